#pragma once

#include <string_view>

namespace quittika {

/// The chapter of the manual that is about the window of that name: its anchor in
/// "startbenutzerhandbuch.htm". Empty for a window that has none.
std::string_view HILFEKAPITEL(std::string_view fenster);

} // namespace quittika
