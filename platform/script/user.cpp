#include "platform/script/user.hpp"

#include "platform/forms/chart.hpp"
#include "platform/forms/controls.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/script/lookup.hpp"
#include "platform/script/protocol.hpp"
#include "platform/script/user_values.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace quittika {

namespace {

constexpr std::array<std::string_view, 13> kFocusable{
    "CommandButton", "CheckBox", "OptionButton", "TextBox",    "ListBox", "ComboBox", "HScrollBar",
    "VScrollBar",    "Slider",   "DriveListBox", "DirListBox", "SSTab",   "Chart"};

/// What has no other clicks than those of the mouse.
constexpr std::array<std::string_view, 8> kClickedByMouse{"Label", "StatusPanel", "Image", "PictureBox",
                                                          "Frame", "Shape",       "Line",  "TextBox"};

template <class Kinds> bool is_one_of(const Kinds& kinds, const Control& control) {
    return std::find(kinds.begin(), kinds.end(), control.kind()) != kinds.end();
}

/// A size of 0 is not known here.
bool contains(const Control& control, const MouseEvent& at) {
    const auto within = [](int place, int size) { return place >= 0 && (size == 0 || place < size); };
    return within(at.x, control.Width()) && within(at.y, control.Height());
}

/// Byte length of the UTF-8 character that begins at `at`; a stray byte counts as one.
std::size_t character_length(std::string_view text, std::size_t at) {
    std::size_t length = 1;
    while (at + length < text.size() && (static_cast<unsigned char>(text[at + length]) & 0xC0U) == 0x80U) {
        ++length;
    }
    return length;
}

template <class List> void require_item(List& list, int index) {
    if (index < -1 || index >= list.ListCount()) {
        throw CommandError(lookup::full_name(list) + " hat keinen Eintrag " + std::to_string(index));
    }
}

void require_shown(const ListBox& list, int index) {
    if (index >= 0 && list.row_of(index) < 0) {
        throw CommandError(lookup::full_name(list) + " zeigt den Eintrag " + std::to_string(index) +
                           " nicht");
    }
}

void require_shown(const Chart& chart, int index) {
    if (index >= 0 && chart.cents(index) == 0) {
        throw CommandError(lookup::full_name(chart) + " hat keinen Balken " + std::to_string(index));
    }
}

template <class List> void choose(List& list, int index) {
    if (index == -1) {
        list.ListIndex = -1;
    } else {
        list.user_select(index);
    }
}

} // namespace

/// A deed of the user on a control that he can reach; the control stays until the deed is done.
class User::Deed {
public:
    Deed(const ScriptDesktop& desktop, const Control& control) : here_(control.form().activity()) {
        lookup::require_reachable(desktop, control);
    }

private:
    Activity::Hold here_;
};

void User::require_reachable(const Control& control) const {
    lookup::require_reachable(desktop_, control);
}

void User::bring_to_front(Control& control) {
    std::vector<Container*> behind; // innermost first
    for (Control* c = &control; c != nullptr; c = c->container().container_control()) {
        if (!c->container().in_front()) {
            behind.push_back(&c->container());
        }
    }
    for (auto page = behind.rbegin(); page != behind.rend(); ++page) {
        desktop_.set_focus(*(*page)->container_control());
        (*page)->bring_to_front();
        require_reachable(control);
    }
}

void User::focus(Control& control) {
    bring_to_front(control);
    if (is_one_of(kFocusable, control)) {
        desktop_.set_focus(control);
        require_reachable(control); // leaving the former control may have taken this one away
    }
}

void User::set(Control& control, const std::string& value) {
    const Deed deed(desktop_, control);
    const std::function<void()> give = user_values::setter(control, value);
    focus(control);
    give();
    if (control.kind() == "TextBox" && desktop_.focus() == &control) {
        desktop_.drop_focus();
    }
}

void User::type(Control& control, const std::string& text) {
    const Deed deed(desktop_, control);
    const auto append = user_values::typist(control);
    focus(control);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = character_length(text, at);
        require_reachable(control); // the characters before may have closed the window
        append(text.substr(at, length));
        at += length;
    }
}

void User::press(Control& control) {
    const auto* const list = dynamic_cast<const ListBox*>(&control);
    const bool nothing_under_the_pointer = list != nullptr && list->ListIndex() < 0;
    const bool only_drops_down = control.kind() == "ComboBox";
    if (!nothing_under_the_pointer && !only_drops_down) {
        control.user_click();
    }
}

void User::click(Control& control) {
    const Deed deed(desktop_, control);
    focus(control);
    press(control);
}

void User::dblclick(Control& control) {
    const Deed deed(desktop_, control);
    click(control);
    if (control.form().shown()) {
        control.DblClick();
    }
}

void User::select(Control& control, int index) {
    const Deed deed(desktop_, control);
    if (auto* const list = dynamic_cast<ListBox*>(&control)) {
        require_item(*list, index);
        require_shown(*list, index);
        focus(control);
        choose(*list, index);
    } else if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
        require_item(*combo, index);
        focus(control);
        choose(*combo, index);
    } else if (auto* const chart = dynamic_cast<Chart*>(&control)) {
        require_item(*chart, index);
        require_shown(*chart, index);
        focus(control);
        choose(*chart, index);
    } else if (auto* const tabs = dynamic_cast<SSTab*>(&control)) {
        turn_to(*tabs, index);
    } else {
        throw CommandError(lookup::full_name(control) + " hat keine Einträge");
    }
}

void User::turn_to(SSTab& tabs, int page) {
    if (page < 0 || page >= static_cast<int>(tabs.captions().size())) {
        throw CommandError(lookup::full_name(tabs) + " hat keinen Eintrag " + std::to_string(page));
    }
    focus(tabs);
    tabs.Tab = page;
}

void User::key(Control& control, int code) {
    const Deed deed(desktop_, control);
    focus(control);
    control.KeyDown(code);
    if (code == kF1) {
        desktop_.help(control.form());
    }
}

void User::mouse(Control& control, const std::string& action, const MouseEvent& event) {
    struct Action {
        std::string_view name;
        Control::MouseHandler Control::*handler;
        bool needs_button;
    };
    static constexpr std::array<Action, 3> kActions{{{"down", &Control::MouseDown, true},
                                                     {"move", &Control::MouseMove, false},
                                                     {"up", &Control::MouseUp, true}}};
    const auto found = std::find_if(kActions.begin(), kActions.end(),
                                    [&action](const Action& known) { return known.name == action; });
    if (found == kActions.end()) {
        throw CommandError("Die Maus kann down, move und up, nicht \"" + action + "\"");
    }
    if (found->needs_button && event.button == MouseButton::None) {
        throw CommandError("Zu " + action + " gehört eine Maustaste");
    }
    const Deed deed(desktop_, control);
    bring_to_front(control);
    (control.*(found->handler))(event);
    const bool clicks = action == "up" && event.button == MouseButton::Left && contains(control, event);
    if (clicks && is_one_of(kClickedByMouse, control) && control.form().shown()) {
        control.user_click();
    }
}

void User::drop(Control& control, const std::string& text) {
    const Deed deed(desktop_, control);
    if (!control.OLEDragDrop) {
        throw CommandError(lookup::full_name(control) + " nimmt nichts an");
    }
    bring_to_front(control);
    control.OLEDragDrop(text);
}

void User::drop(Form& form, const std::string& files) {
    lookup::require_reachable(desktop_, form);
    if (!form.FilesDropped) {
        throw CommandError(form.name() + " nimmt nichts an");
    }
    form.FilesDropped(user_values::paths(files));
}

} // namespace quittika
