#pragma once

#include "platform/forms/control.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quittika {

class Desktop;

enum class Modality { Modeless, Modal };

/// Values of a form's `WindowState`.
namespace window_state {
inline constexpr int kNormal = 0;
inline constexpr int kMinimised = 1;
inline constexpr int kMaximised = 2;
} // namespace window_state

/// How a window is made.
struct FormDesign {
    int width = 0; ///< twips, without the frame; what it starts with unless the user has changed it
    int height = 0;
    bool companion = false; ///< stays above the main window and off the task bar
};

/// A window as data: its controls register themselves here. It never knows who shows it.
class Form : public PropertyHost, public Container {
    Activity activity_; // the handlers below count in it

public:
    Form(std::string_view name, std::string caption, const FormDesign& design = {});
    ~Form() override;

    const std::string& name() const { return name_; }
    bool companion() const { return companion_; }
    /// What runs on the form's behalf.
    Activity& activity() { return activity_; }
    /// All controls in the order of their declaration.
    const std::vector<Control*>& controls() const { return controls_; }
    /// The control of that full name ("Text_Bemerkung1(1)"), or null.
    Control* find(std::string_view name) const;

    Form& form() override { return *this; }
    Control* container_control() override { return nullptr; }

    /// Connects the form to the desktop that shows it; done once, by `Desktop::adopt`.
    void attach(Desktop& desktop, std::unique_ptr<ControlView> view);
    /// Forgets the desktop; the form is then only data.
    void detach();
    Desktop* desktop() const { return desktop_; }
    ControlView* view() const { return view_.get(); }

    /// Loads the form if need be, shows it in front of the others and gives it the focus. A modal one
    /// returns after it was closed. A form that closes itself while it loads is not shown.
    void Show(Modality modality = Modality::Modeless);
    void Hide();
    /// Runs `Load` without showing anything; nothing if the form is loaded already.
    void ensure_loaded();
    /// Asks `QueryUnload`; unless that cancels, runs `Unload` and takes the window away.
    /// Returns whether the form is closed.
    bool Close();
    /// Brings the window in front of the others; the focus stays where it is. A window that a modal one
    /// keeps the user away from stays behind that.
    void ZOrder();

    bool loaded() const { return loaded_; }
    bool shown() const { return shown_; }

    Property<std::string> Caption; ///< " [*]" in it is where the platform marks unsaved changes
    Property<bool> Modified{*this, PropertyId::Modified, false}; ///< what it shows is not saved
    Property<Color> BackColor{*this, PropertyId::BackColor, color::kButtonFace};
    Property<Color> ForeColor{*this, PropertyId::ForeColor, color::kWindowText};
    /// Painted as the desktop paints such a thing, whatever the two colours.
    Property<bool> OwnLook{*this, PropertyId::OwnLook, false};
    Property<bool> Enabled{*this, PropertyId::Enabled, true};
    Property<int> WindowState{*this, PropertyId::WindowState, window_state::kNormal};
    // On the screen, in twips; width and height without the frame.
    Property<int> Left{*this, PropertyId::Left, 0};
    Property<int> Top{*this, PropertyId::Top, 0};
    Property<int> Width;
    Property<int> Height;

    Handler<> Load{activity_};
    Handler<> Shown{activity_}; ///< the form comes into sight, for the first time or once more
    /// A property of a control of the form has changed, whoever changed it; after the control's own events.
    Handler<const Control&> ControlChanged{activity_};
    /// The focus has left a text field inside the window; after the field's own event. Where somebody
    /// listens, a field that was left takes nothing back by itself any more: that is the listener's.
    Handler<> FieldLeft{activity_};
    /// Another number after each change of a text, value, choice or list on the form.
    std::uint64_t revision() const { return revision_; }
    /// How often the user has typed in a text field of the form.
    std::uint64_t typed() const { return typed_; }

    Handler<bool&> QueryUnload{activity_}; ///< the argument set true keeps the form open
    Handler<> Unload{activity_};
    Handler<> Resize{activity_};
    Handler<> Deactivate{activity_}; ///< the user has turned to another program
    Handler<const std::vector<std::string>&> FilesDropped{activity_}; ///< paths in the system's form, UTF-8

protected:
    void changed(PropertyId id) override;

private:
    friend class Control;
    friend class TextBox;
    void add(Control& control) { controls_.push_back(&control); }

    std::string name_;
    std::vector<Control*> controls_;
    mutable std::unordered_map<std::string_view, Control*> by_name_;
    Desktop* desktop_ = nullptr;
    std::unique_ptr<ControlView> view_;
    bool loaded_ = false;
    bool shown_ = false;
    bool companion_;
    std::uint64_t revision_ = 0;
    std::uint64_t typed_ = 0;
};

} // namespace quittika
