#pragma once

#include "platform/script/script_desktop.hpp"

#include <functional>
#include <string>

namespace quittika {

/// What a user's hands do to controls. Every act throws `CommandError`, and changes nothing,
/// where a user could not do it. A page behind another one comes to the front first.
class User {
public:
    explicit User(ScriptDesktop& desktop) : desktop_(desktop) {}

    /// Gives a control a value by hand; a text field is left again.
    void set(Control& control, const std::string& value);
    /// Types behind the text that stands in the field, and stays there.
    void type(Control& control, const std::string& text);
    void click(Control& control);
    void dblclick(Control& control);
    /// Clicks an item of a list or combo box, where -1 takes the selection away, or a tab.
    void select(Control& control, int index);
    void key(Control& control, int code);
    /// `action` "down", "move" or "up". What hears its clicks from the mouse is clicked by the left button.
    void mouse(Control& control, const std::string& action, const MouseEvent& event);
    void drop(Control& control, const std::string& text);
    /// Drops files on a window: a path or a file URL a line.
    void drop(Form& form, const std::string& files);

private:
    class Deed;
    void require_reachable(const Control& control) const;
    void bring_to_front(Control& control);
    void focus(Control& control);
    void turn_to(SSTab& tabs, int page);
    void press(Control& control);

    ScriptDesktop& desktop_;
};

} // namespace quittika
