#pragma once

#include "platform/forms/control.hpp"

#include <functional>
#include <string>
#include <vector>

namespace quittika {

/// The values that a user can give to the controls, kind by kind.
namespace user_values {

/// The deed that gives `control` that value. Throws `CommandError` where a user could not reach it.
std::function<void()> setter(Control& control, const std::string& value);

/// The deed that puts one character behind the text. Throws `CommandError` where nobody can type.
std::function<void(const std::string& character)> typist(Control& control);

/// Paths of dropped files, of which each line names one: a path, or a file URL.
std::vector<std::string> paths(const std::string& lines);

} // namespace user_values

} // namespace quittika
