#pragma once

#include "platform/forms/controls.hpp"
#include "platform/qt/binding.hpp"
#include "platform/qt/paint_tools.hpp"

#include <QWidget>

#include <memory>
#include <string>

namespace quittika::test {

/// One control of each kind, and a log of the events.
struct AllKinds : Form {
    AllKinds();

    std::string log;
    /// The events since the last call.
    std::string take_log() { return std::exchange(log, {}); }

    TextBox Field{*this, "Field"};
    TextBox Note{*this, "Note"};
    CheckBox Tick{*this, "Tick", "Tick"};
    Frame Choice{*this, "Choice", "Choice"};
    OptionButton First{Choice, "First", "First"};
    OptionButton Second{Choice, "Second", "Second"};
    OptionButton Third{Choice, "Third", "Third"};
    OptionButton Stranger{*this, "Stranger", "Stranger"};
    CommandButton Button{*this, "Button", "Button"};
    CommandButton Tool{*this, "Tool", "Tool"};
    Label Caption_{*this, "Caption_", "Caption"};
    ListBox Rows{*this, "Rows"};
    ComboBox Fixed{*this, "Fixed", {"one", "two", "three"}};
    ComboBox Typed{*this, "Typed", {"one", "two"}, true};
    HScrollBar Bar{*this, "Bar", 0, 10, 3};
    Slider Knob{*this, "Knob", 0, 10, 3};
    ProgressBar Progress{*this, "Progress", 0, 100, 0};
    Image Picture{*this, "Picture"};
    SSTab Tabs{*this, "Tabs", {"&Anfang", "Text && Bild"}};
    Frame Back{Tabs.page(1), "Back"};
    TextBox Hidden{Back, "Hidden"};
    Shape Patch{*this, "Patch"};
    Menu Entry{*this, "Entry", "&Entry"};
    StatusPanel Panel{*this, "Panel"};
    Timer Clock{*this, "Clock", 20, false};
    ControlArray<TextBox, 2> Line{*this, "Line"};
};

/// "a label" as the name of a case: "a_label".
std::string case_name(std::string what);

/// A window for it, made in code.
std::unique_ptr<QWidget> window_for_all_kinds();

/// Form and window, tied together.
struct Bound {
    Bound() { bind(form, *window, tools); }
    template <class W = QWidget> W& widget(const char* name) {
        auto* found = window->findChild<W*>(QString::fromUtf8(name));
        if (found == nullptr) {
            throw std::runtime_error(std::string("no widget ") + name);
        }
        return *found;
    }

    PaintTools tools;
    std::unique_ptr<QWidget> window = window_for_all_kinds();
    AllKinds form; ///< goes before its window
};

} // namespace quittika::test
