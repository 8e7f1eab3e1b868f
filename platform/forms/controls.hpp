#pragma once

#include "platform/forms/form.hpp"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

class Label final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "Label"; }
};

class CommandButton final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "CommandButton"; }

    /// Marks the button that the Return key means, at most one on a form. The mark is only shown: the key
    /// itself comes to the `KeyDown` of the control that has the focus.
    Property<bool> Default{*this, PropertyId::Default, false};

protected:
    void changed(PropertyId id) override;
};

/// A frame groups the controls that name it as their container.
class Frame final : public Control, public Container {
public:
    using Control::Control;
    std::string_view kind() const override { return "Frame"; }
    Form& form() override { return Control::form(); }
    Control* container_control() override { return this; }
};

struct DrawnPage;

/// Shows a picture file, or a page that was drawn on it.
class PictureControl : public Control {
public:
    using Control::Control;

    Property<std::string> Picture{*this, PropertyId::Picture}; ///< path of the file, empty for no picture

    /// Shows a file even where its path stands there already: its content may be another.
    void show_picture(std::string path);
    /// Shows a page until a picture takes its place; null takes it away.
    void show_page(std::shared_ptr<const DrawnPage> page);
    /// The page shown, or null.
    const std::shared_ptr<const DrawnPage>& page() const { return page_; }
    /// Wipes out what was drawn.
    void Cls() { show_page(nullptr); }

protected:
    void changed(PropertyId id) override;

private:
    std::shared_ptr<const DrawnPage> page_;
};

class PictureBox final : public PictureControl {
public:
    using PictureControl::PictureControl;
    std::string_view kind() const override { return "PictureBox"; }
};

class Image final : public PictureControl {
public:
    using PictureControl::PictureControl;
    std::string_view kind() const override { return "Image"; }
};

/// A coloured shape or line that the program moves about.
class Shape final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "Shape"; }
};

class Line final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "Line"; }
};

/// A text field. Line ends inside the text are CR LF.
class TextBox final : public Control {
public:
    TextBox(Container& container, const Named& named, std::string text = {});
    std::string_view kind() const override { return "TextBox"; }
    std::string main_value() const override { return Text(); }

    Property<std::string> Text;
    Property<bool> Locked{*this, PropertyId::Locked, false};  ///< shown and selectable, but not to be edited
    Property<int> SelStart{*this, PropertyId::SelStart, 0};   ///< characters
    Property<int> SelLength{*this, PropertyId::SelLength, 0}; ///< characters

    /// Marks the whole text.
    void select_all();
    /// What the user's typing makes of the text.
    void user_type(std::string text);
    void user_leave() override;

    Handler<> Change{activity_};

protected:
    void fire_for(PropertyId id) override;
};

/// Value 0 off, 1 on, 2 greyed.
class CheckBox final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "CheckBox"; }
    std::string main_value() const override { return Value.as_text(); }
    void user_click() override { Value = Value() == 1 ? 0 : 1; }

    bool ticked() const { return Value() == 1; }
    Property<int> Value{*this, PropertyId::Value, 0};

protected:
    void check(PropertyId id, std::int64_t value) const override;
    void fire_for(PropertyId id) override;
};

/// One of several in a container: switching it on switches its siblings off, without an event of theirs.
class OptionButton final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "OptionButton"; }
    std::string main_value() const override { return Value.as_text(); }
    void user_click() override { Value = true; }

    Property<bool> Value{*this, PropertyId::Value, false};

protected:
    void changed(PropertyId id) override;
    void fire_for(PropertyId id) override;

private:
    void switch_siblings_off();
};

/// A list of texts, at most one of them selected.
class ListBox final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "ListBox"; }
    std::string main_value() const override { return Text(); }

    Property<int> ListIndex{*this, PropertyId::ListIndex, -1}; ///< selected item, -1 for none

    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::vector<std::string>& items() const { return items_; }
    /// Text of item `index`; empty if there is none.
    const std::string& List(int index) const;
    /// Text of the selected item, empty if none is selected.
    const std::string& Text() const { return List(ListIndex()); }
    void AddItem(std::string text);
    /// Puts an item at `index`, 0 to the count; a selection moves along. Throws `Laufzeitfehler` 5.
    void AddItem(std::string text, int index);
    /// Takes an item away. A selected one leaves nothing selected. Throws `Laufzeitfehler` 5.
    void RemoveItem(int index);
    void Clear();
    /// Replaces the items from `first` on and leaves the selection where it was, if there is still an item.
    void assign(std::vector<std::string> items, int first = 0);
    /// Another number after each change of the items.
    std::uint64_t revision() const { return revision_; }

    /// Lets the user see these items alone, in this order; items, indices and count stay as they are. The
    /// next change of the items ends it. Throws `Laufzeitfehler` 5 for an item that is none or named twice.
    void show_rows(std::vector<int> indices);
    /// All items in their own order again.
    void show_all();
    /// Items that are shown.
    int shown_count() const { return in_own_order_ ? ListCount() : static_cast<int>(shown_.size()); }
    /// Index of the item that is shown in this row, -1 if there is none.
    int item_in(int row) const;
    /// The row in which an item is shown, -1 if it is not.
    int row_of(int index) const;

    /// A user's click on an item: fires `Click` even where it was selected already.
    void user_select(int index);

    /// The text that item `index` gives when the mouse drags it to a text field; the field gets a copy. The
    /// drag selects the item first. An item with an empty text stays; without a routine none can be dragged.
    std::function<std::string(int index)> DragText;

    Handler<> Changed{activity_}; ///< after items or selection have changed, whoever changed them

protected:
    void check(PropertyId id, std::int64_t value) const override;
    void fire_for(PropertyId id) override;

private:
    void tell_items();
    void own_order();

    std::vector<std::string> items_;
    std::uint64_t revision_ = 0;
    bool in_own_order_ = true;
    std::vector<int> shown_; ///< items by row, while they are not in their own order
    std::vector<int> rows_;  ///< and back, -1 for those that are not shown
};

/// A drop-down list; with `editable` the text can be typed, too.
class ComboBox final : public Control {
public:
    ComboBox(Container& container, const Named& named, std::vector<std::string> items = {},
             bool editable = false);
    std::string_view kind() const override { return "ComboBox"; }
    std::string main_value() const override { return Text(); }

    Property<std::string> Text{*this, PropertyId::Text};
    Property<int> ListIndex{*this, PropertyId::ListIndex, -1};

    bool editable() const { return editable_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::vector<std::string>& items() const { return items_; }
    const std::string& List(int index) const;
    void AddItem(std::string text);
    void Clear();
    void user_select(int index);

    Handler<> Change{activity_};

protected:
    void check(PropertyId id, std::int64_t value) const override;
    void fire_for(PropertyId id) override;

private:
    std::vector<std::string> items_;
    bool editable_;
};

/// What scroll bars, sliders and progress bars share: a value within bounds. New bounds take the value along,
/// with `Change`; while they contradict each other, it stays.
class RangeControl : public Control {
public:
    RangeControl(Container& container, const Named& named, int min, int max, int value);
    std::string main_value() const override { return Value.as_text(); }

    Property<int> Min;
    Property<int> Max;
    Property<int> Value;

    Handler<> Change{activity_};

protected:
    void check(PropertyId id, std::int64_t value) const override;
    void changed(PropertyId id) override;
    void fire_for(PropertyId id) override;
};

class HScrollBar final : public RangeControl {
public:
    using RangeControl::RangeControl;
    std::string_view kind() const override { return "HScrollBar"; }
};

class VScrollBar final : public RangeControl {
public:
    using RangeControl::RangeControl;
    std::string_view kind() const override { return "VScrollBar"; }
};

/// A slider; `Click` follows each change.
class Slider final : public RangeControl {
public:
    using RangeControl::RangeControl;
    std::string_view kind() const override { return "Slider"; }

protected:
    void fire_for(PropertyId id) override;
};

class ProgressBar final : public RangeControl {
public:
    using RangeControl::RangeControl;
    std::string_view kind() const override { return "ProgressBar"; }
};

/// Fires `Tick` every `Interval` ms while it is enabled and its form is loaded; an interval of 0 stops it.
class Timer final : public Control {
public:
    Timer(Container& container, const Named& named, int interval_ms, bool enabled = true);
    std::string_view kind() const override { return "Timer"; }
    bool running() const { return Enabled() && Interval() > 0 && form().loaded(); }

    Property<int> Interval; ///< ms
    Handler<> Tick{activity_};
};

class Menu final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "Menu"; }
};

/// One panel of a status bar; its caption is its text.
class StatusPanel final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "StatusPanel"; }
};

/// Pages behind tabs. A control names the page that it stands on as its container:
///
///     SSTab SSTab1{*this, "SSTab1", {"Firmendaten", "Bankdaten"}};
///     Frame Frame5{SSTab1.page(1), "Frame5", "Bankverbindung"};
///
/// Whoever turns to another page, `Click` follows. What stands on a page behind another one cannot be seen
/// and takes no focus, but it is within a user's reach: a script's command on it clicks the tab first.
class SSTab final : public Control {
public:
    /// `captions`: one for each page; "&" marks the letter for the Alt key, "&&" is an ampersand.
    SSTab(Container& container, const Named& named, std::vector<std::string> captions);
    std::string_view kind() const override { return "SSTab"; }
    /// Caption of the page in front.
    std::string main_value() const override;
    /// The tabs report their clicks themselves.
    void user_click() override {}

    Property<int> Tab{*this, PropertyId::Tab, 0}; ///< page in front, from 0

    const std::vector<std::string>& captions() const { return captions_; }
    Container& page(int index) { return pages_.at(static_cast<std::size_t>(index)); }
    /// Index of one of the pages.
    int index_of(const Container& page) const;

protected:
    void check(PropertyId id, std::int64_t value) const override;
    void fire_for(PropertyId id) override;

private:
    class Page final : public Container {
    public:
        Page(SSTab& tabs, int index) : tabs_(tabs), index_(index) {}
        Form& form() override { return tabs_.form(); }
        Control* container_control() override { return &tabs_; }
        bool in_front() const override { return tabs_.Tab() == index_; }
        void bring_to_front() override { tabs_.Tab = index_; }

    private:
        SSTab& tabs_;
        int index_;
    };

    std::vector<std::string> captions_;
    std::deque<Page> pages_;
};

/// Drives and directories, chosen by path.
class DriveListBox final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "DriveListBox"; }
    std::string main_value() const override { return Path(); }
    Property<std::string> Path{*this, PropertyId::Path}; ///< root of the chosen drive
    Handler<> Change{activity_};

protected:
    void fire_for(PropertyId id) override;
};

class DirListBox final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "DirListBox"; }
    std::string main_value() const override { return Path(); }
    Property<std::string> Path{*this, PropertyId::Path}; ///< chosen directory
    Handler<> Change{activity_};

protected:
    void fire_for(PropertyId id) override;
};

} // namespace quittika
