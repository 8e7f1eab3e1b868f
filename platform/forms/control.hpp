#pragma once

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

/// Something that holds controls: a form, or a frame on it.
/// Option buttons of one container switch each other off.
class Container {
public:
    virtual ~Container() = default;
    virtual Form& form() = 0;
    /// The control that this container is, or null for the form itself.
    virtual Control* container_control() = 0;
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

/// Place of an element in a control array.
struct ArrayIndex {
    std::string_view name;
    int index;
};

enum class MouseButton { None = 0, Left = 1, Right = 2 };

/// A mouse event inside a control; x and y in twips from its top left corner.
struct MouseEvent {
    MouseButton button;
    int x;
    int y;
};

/// Base of everything that stands on a form. Events are plain functions; an empty one is not called.
class Control : public PropertyHost {
public:
    Control(Container& container, std::string_view name, std::string caption = {});
    Control(Container& container, ArrayIndex place, std::string caption = {});
    ~Control() override;

    /// Full name, with the index in parentheses for an element of a control array.
    const std::string& name() const { return name_; }
    /// Index in the control array, -1 if it is none.
    int index() const { return index_; }
    /// Class name as scripts list it ("TextBox").
    virtual std::string_view kind() const = 0;
    /// The text that a script reads when it names no property.
    virtual std::string main_value() const { return Caption(); }

    Form& form() const { return form_; }
    /// The container that the control stands in.
    Container& container() const { return container_; }
    /// Visible itself, and all frames around it too.
    bool effectively_visible() const;
    /// Enabled itself, and all frames around it too.
    bool effectively_enabled() const;

    /// Moves the keyboard focus here.
    void SetFocus();

    void attach(std::unique_ptr<ControlView> view);
    ControlView* view() const { return view_.get(); }

    Property<std::string> Caption;
    Property<bool> Enabled{*this, PropertyId::Enabled, true};
    Property<bool> Visible{*this, PropertyId::Visible, true};
    Property<Color> BackColor{*this, PropertyId::BackColor, color::kButtonFace};
    Property<Color> ForeColor{*this, PropertyId::ForeColor, color::kWindowText};
    Property<bool> FontBold{*this, PropertyId::FontBold, false};
    Property<std::string> ToolTipText{*this, PropertyId::ToolTipText};
    Property<int> Left{*this, PropertyId::Left, 0};     ///< twips
    Property<int> Top{*this, PropertyId::Top, 0};       ///< twips
    Property<int> Width{*this, PropertyId::Width, 0};   ///< twips
    Property<int> Height{*this, PropertyId::Height, 0}; ///< twips

    using Event = std::function<void()>;
    using Mouse = std::function<void(const MouseEvent&)>;
    Event Click;
    Event DblClick;
    Event GotFocus;
    Event LostFocus;
    std::function<void(int)> KeyDown; ///< key code
    Mouse MouseDown;
    Mouse MouseMove;
    Mouse MouseUp;
    std::function<void(const std::string&)> OLEDragDrop; ///< dropped text

    /// What a user's click does to this control.
    virtual void user_click() { fire(Click); }

protected:
    void changed(PropertyId id) override;
    /// Events that belong to a changed property.
    virtual void fire_for(PropertyId /*id*/) {}
    void notify_items();
    static void fire(const Event& event) {
        if (event) {
            event();
        }
    }

private:
    Container& container_;
    Form& form_;
    std::string name_;
    int index_ = -1;
    std::unique_ptr<ControlView> view_;
};

/// Calls an event if somebody listens.
template <class... Args, class... Given>
void fire_event(const std::function<void(Args...)>& event, Given&&... args) {
    if (event) {
        event(std::forward<Given>(args)...);
    }
}

/// A row of like controls, addressed by index; the first index is `First`.
template <class T, std::size_t N, int First = 0> class ControlArray {
public:
    template <class... Args>
    ControlArray(Container& container, std::string_view name, const Args&... args)
        : ControlArray(std::make_index_sequence<N>{}, container, name, args...) {}

    /// An array whose elements stand in the frames of another array, one in each.
    template <class C, class... Args>
    ControlArray(ControlArray<C, N, First>& frames, std::string_view name, const Args&... args)
        : ControlArray(std::make_index_sequence<N>{}, frames, name, args...) {}

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
    ControlArray(std::index_sequence<I...>, Container& container, std::string_view name, const Args&... args)
        : items_{{T(container, ArrayIndex{name, First + static_cast<int>(I)}, args...)...}} {}
    template <std::size_t... I, class C, class... Args>
    ControlArray(std::index_sequence<I...>, ControlArray<C, N, First>& frames, std::string_view name,
                 const Args&... args)
        : items_{{T(frames[First + static_cast<int>(I)], ArrayIndex{name, First + static_cast<int>(I)},
                    args...)...}} {}

    std::array<T, N> items_;
};

} // namespace quittika
