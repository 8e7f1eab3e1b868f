#pragma once

#include <memory>
#include <string_view>
#include <vector>

class QWidget;

namespace quittika {

/// A design of the folder forms/, named like its form.
struct WindowDesign {
    std::string_view form;
    std::unique_ptr<QWidget> (*build)();
};

/// All designs. The build writes this table from the .ui files that it finds.
const std::vector<WindowDesign>& window_table();

/// A new window for the form of that name; null if there is no design for it.
std::unique_ptr<QWidget> build_window(std::string_view form);

} // namespace quittika
