#pragma once

#include "platform/desktop.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// A directory as it is typed, in full: "~" is the home folder, what begins with none of "/" and "~" lies in
/// `ordner`.
std::string VERZEICHNIS_LESEN(std::string_view getippt, const std::string& ordner);

/// Lets the user choose a directory, beginning with `anfang`, or with the home folder where that is none.
/// Nothing where the user chooses none.
std::optional<std::string> VERZEICHNIS_WAEHLEN(Desktop& desktop, const std::string& anfang);

} // namespace quittika
