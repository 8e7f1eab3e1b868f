#pragma once

#include "platform/forms/control.hpp"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quittika {

class Desktop;

enum class Modality { Modeless, Modal };

/// A window as data: its controls register themselves here. It never knows who shows it.
class Form : public PropertyHost, public Container {
public:
    Form(std::string_view name, std::string caption);
    ~Form() override;

    const std::string& name() const { return name_; }
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

    /// Loads the form if need be and shows it; a modal one returns after it was closed.
    void Show(Modality modality = Modality::Modeless);
    void Hide();
    /// Runs `Load` without showing anything; nothing if the form is loaded already.
    void ensure_loaded();
    /// Asks `QueryUnload`; unless that cancels, runs `Unload` and takes the window away.
    /// Returns whether the form is closed.
    bool Close();
    /// Brings the window in front of the others.
    void ZOrder();

    bool loaded() const { return loaded_; }
    bool shown() const { return shown_; }

    Property<std::string> Caption; ///< " [*]" in it is where the platform marks unsaved changes
    Property<bool> Modified{*this, PropertyId::Modified, false}; ///< what it shows is not saved
    Property<Color> BackColor{*this, PropertyId::BackColor, color::kButtonFace};
    Property<Color> ForeColor{*this, PropertyId::ForeColor, color::kWindowText};
    Property<bool> Enabled{*this, PropertyId::Enabled, true};
    Property<int> WindowState{*this, PropertyId::WindowState, 0}; ///< 0 normal, 1 minimised, 2 maximised
    Property<int> Left{*this, PropertyId::Left, 0};               ///< twips
    Property<int> Top{*this, PropertyId::Top, 0};                 ///< twips
    Property<int> Width{*this, PropertyId::Width, 0};             ///< twips
    Property<int> Height{*this, PropertyId::Height, 0};           ///< twips

    std::function<void()> Load;
    std::function<void(bool& cancel)> QueryUnload;
    std::function<void()> Unload;
    std::function<void()> Resize;
    std::function<void(const std::vector<std::string>& paths)> FilesDropped; ///< in the system's form, UTF-8

protected:
    void changed(PropertyId id) override;

private:
    friend class Control;
    void add(Control& control) { controls_.push_back(&control); }

    std::string name_;
    std::vector<Control*> controls_;
    mutable std::unordered_map<std::string_view, Control*> by_name_;
    Desktop* desktop_ = nullptr;
    std::unique_ptr<ControlView> view_;
    bool loaded_ = false;
    bool shown_ = false;
};

} // namespace quittika
