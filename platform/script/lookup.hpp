#pragma once

#include "platform/script/script_desktop.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// Finding windows and controls by the names that scripts use. All throw `CommandError`.
namespace lookup {

Form& form(const ScriptDesktop& desktop, std::string_view name);
/// `<form>.<control>`, with the index in parentheses for an element of a control array.
Control& control(const ScriptDesktop& desktop, std::string_view name);
/// The value of `<form>.<control>`, `<form>.<control>.<Property>` or `<form>.<Property>`. `Shown` of a list:
/// the indices of the items that the user sees, from top to bottom. A chart's value is its marked bar.
std::string value(const ScriptDesktop& desktop, std::string_view name);
/// The items of a list or combo box, the bars of a chart.
std::vector<std::string> items(const ScriptDesktop& desktop, std::string_view name);

/// Throws unless a user could get at the window.
void require_reachable(const ScriptDesktop& desktop, const Form& form);
/// Throws unless a user could get at the control, be it by a click on the tab of its page.
void require_reachable(const ScriptDesktop& desktop, const Control& control);

/// The name under which scripts know a control.
std::string full_name(const Control& control);

} // namespace lookup

} // namespace quittika
