#pragma once

#include "platform/forms/activity.hpp"
#include "platform/forms/named.hpp"
#include "platform/forms/property.hpp"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace quittika {

class Control;
class Form;

/// Something that holds controls: a form, a frame on it, or a page behind a tab.
/// Option buttons of one container switch each other off.
class Container {
public:
    virtual ~Container() = default;
    virtual Form& form() = 0;
    /// The control that this container is, or null for the form itself.
    virtual Control* container_control() = 0;
    /// Whether what it holds can be seen; not on a page behind another one.
    virtual bool in_front() const { return true; }
    /// Turns to the page that it is.
    virtual void bring_to_front() {}
};

/// What a platform hangs on a control in order to show it.
class ControlView {
public:
    ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    virtual void property_changed(PropertyId id) = 0;
    /// The items of a list or combo box have changed.
    virtual void items_changed() {}
};

enum class MouseButton { None = 0, Left = 1, Right = 2 };

/// A mouse event inside a control; x and y in twips from its top left corner.
struct MouseEvent {
    MouseButton button;
    int x;
    int y;
};

/// A turn of the mouse wheel: positive away from the user, 120 for each notch.
struct WheelEvent {
    int turn;
    bool control_key;
};

/// Base of everything that stands on a form.
class Control : public PropertyHost {
    Container& container_;
    Form& form_;

protected:
    Activity& activity_; ///< of the form; the handlers count in it

public:
    Control(Container& container, const Named& named, std::string caption = {});
    ~Control() override;

    /// Full name, with the index in parentheses for an element of a control array.
    const std::string& name() const { return name_; }
    /// Index in the control array, -1 if it is none.
    int index() const { return index_; }
    Placing placing() const { return placing_; }
    /// Keeps data that nobody sees; never visible.
    bool data_only() const { return !shown_; }
    /// Class name as scripts list it ("TextBox").
    virtual std::string_view kind() const = 0;
    /// The text that a script reads when it names no property.
    virtual std::string main_value() const { return Caption(); }

    Form& form() const { return form_; }
    /// The container that the control stands in.
    Container& container() const { return container_; }
    /// Visible itself, and all frames around it too, and every page that it stands on in front.
    bool effectively_visible() const;
    /// Visible as far as a user's clicks on tabs can make it so.
    bool visible_behind_tabs() const;
    /// Enabled itself, and all frames around it too.
    bool effectively_enabled() const;

    /// Moves the keyboard focus here, if the control can be seen.
    void SetFocus();

    void attach(std::unique_ptr<ControlView> view);
    ControlView* view() const { return view_.get(); }

    Property<std::string> Caption;
    Property<bool> Enabled{*this, PropertyId::Enabled, true};
    Property<bool> Visible{*this, PropertyId::Visible, true};
    Property<Color> BackColor{*this, PropertyId::BackColor, color::kButtonFace};
    Property<Color> ForeColor{*this, PropertyId::ForeColor, color::kWindowText};
    /// Painted as the desktop paints such a thing, whatever the two colours.
    Property<bool> OwnLook{*this, PropertyId::OwnLook, false};
    Property<bool> FontBold{*this, PropertyId::FontBold, false};
    Property<std::string> ToolTipText{*this, PropertyId::ToolTipText};
    // Twips inside the container; of use only if the form gives the control a place.
    Property<int> Left{*this, PropertyId::Left, 0};
    Property<int> Top{*this, PropertyId::Top, 0};
    Property<int> Width{*this, PropertyId::Width, 0};
    Property<int> Height{*this, PropertyId::Height, 0};

    using Event = std::function<void()>; ///< what a handler of the plain kind takes
    using MouseHandler = Handler<const MouseEvent&>;
    Handler<> Click{activity_};
    Handler<> DblClick{activity_};
    Handler<> GotFocus{activity_};
    Handler<> LostFocus{activity_};
    Handler<> Resize{activity_};     ///< the window has given the control another size
    Handler<int> KeyDown{activity_}; ///< key code
    MouseHandler MouseDown{activity_};
    MouseHandler MouseMove{activity_};
    MouseHandler MouseUp{activity_};
    Handler<const WheelEvent&> MouseWheel{activity_};
    Handler<const std::string&> OLEDragDrop{activity_}; ///< dropped text

    /// What a user's click does to this control.
    virtual void user_click() { Click(); }
    /// The focus leaves this control for another one of the window.
    virtual void user_leave() { LostFocus(); }

protected:
    /// Throws `Laufzeitfehler` 380 for a place or visibility that is not the program's to set.
    void check(PropertyId id, std::int64_t value) const override;
    void changed(PropertyId id) override;
    /// Events that belong to a changed property.
    virtual void fire_for(PropertyId /*id*/) {}
    void notify_items();

private:
    bool may_be(PropertyId id, std::int64_t value) const;

    std::string name_;
    int index_;
    Placing placing_;
    bool shown_;
    std::unique_ptr<ControlView> view_;
};

/// A row of like controls, addressed by index; the first index is `First`.
template <class T, std::size_t N, int First = 0> class ControlArray {
public:
    template <class... Args>
    ControlArray(Container& container, const Named& named, const Args&... args)
        : ControlArray(std::make_index_sequence<N>{}, container, named, args...) {}

    /// An array whose elements stand in the frames of another array, one in each.
    template <class C, class... Args>
    ControlArray(ControlArray<C, N, First>& frames, const Named& named, const Args&... args)
        : ControlArray(std::make_index_sequence<N>{}, frames, named, args...) {}

    T& operator[](int index) { return items_.at(static_cast<std::size_t>(index - First)); }
    const T& operator[](int index) const { return items_.at(static_cast<std::size_t>(index - First)); }
    static constexpr int first() { return First; }
    static constexpr int size() { return static_cast<int>(N); }
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    template <std::size_t... I, class... Args>
    ControlArray(std::index_sequence<I...>, Container& container, const Named& named, const Args&... args)
        : items_{{T(container, named.element(First + static_cast<int>(I)), args...)...}} {}
    template <std::size_t... I, class C, class... Args>
    ControlArray(std::index_sequence<I...>, ControlArray<C, N, First>& frames, const Named& named,
                 const Args&... args)
        : items_{{T(frames[First + static_cast<int>(I)], named.element(First + static_cast<int>(I)),
                    args...)...}} {}

    std::array<T, N> items_;
};

} // namespace quittika
