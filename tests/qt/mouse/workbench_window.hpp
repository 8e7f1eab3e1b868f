#pragma once

#include <QWidget>

#include <memory>
#include <string_view>

namespace quittika::test {

/// The window of workbench.hpp.
std::unique_ptr<QWidget> workbench_window(std::string_view form);

} // namespace quittika::test
