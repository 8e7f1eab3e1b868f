#pragma once

#include "platform/forms/form.hpp"

#include <functional>
#include <utility>

namespace quittika {

/// Colours of the windows and of the groups on them that have none of their own.
struct Look {
    Color window = color::kButtonFace;
    Color group = color::kButtonFace;
    bool operator==(const Look&) const = default;
};

/// The desktop's windows. Implemented with real windows and by the script runner.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// What runs on behalf of any of the windows: idle when everything that one deed of the user leads to is
    /// done.
    Activity& activity() { return activity_; }

    /// Makes a form known; from then on it can be shown. The form tells when it goes (`release`).
    virtual void adopt(Form& form) = 0;
    virtual void release(Form& form) = 0;

    /// Shows a form in front and gives it the focus. A modal one keeps the caller here until it is hidden or
    /// closed.
    virtual void show(Form& form, Modality modality) = 0;
    virtual void hide(Form& form) = 0;
    /// Brings a form to the front as far as no modal one is there; the focus stays where it is.
    virtual void raise(Form& form) = 0;
    /// Gives a control the focus, and its form with it.
    virtual void set_focus(Control& control) = 0;
    /// From now on no other form takes the keyboard from this one, see `FocusHold`; null ends that.
    virtual void hold_focus(const Form* form) = 0;

    /// Paints all windows so, those that are made later included.
    virtual void set_look(const Look& look) = 0;

    /// Size of the screen in twips.
    virtual int screen_width() const = 0;
    virtual int screen_height() const = 0;

    /// Sounds the desktop's attention signal.
    virtual void beep() = 0;

    /// Runs `work` once, when the present event has been handled.
    virtual void later(std::function<void()> work) = 0;

    /// Ends the program's event loop.
    virtual void end() = 0;

    /// What F1 does in a window of the program.
    void on_help(std::function<void(const Form&)> help) { help_ = std::move(help); }
    /// The user has pressed F1 in a form's window.
    void help(const Form& form) const {
        if (help_) {
            help_(form);
        }
    }

private:
    std::function<void(const Form&)> help_;
    Activity activity_;
};

/// While one lives, the keyboard stays with a form's window whatever else is shown or asks for the focus:
/// what is typed without a pause must not end up in another one. Message boxes are not kept from it.
class FocusHold {
public:
    FocusHold(Desktop& desktop, const Form& form) : desktop_(desktop) { desktop_.hold_focus(&form); }
    FocusHold(const FocusHold&) = delete;
    FocusHold& operator=(const FocusHold&) = delete;
    ~FocusHold() { desktop_.hold_focus(nullptr); }

private:
    Desktop& desktop_;
};

} // namespace quittika
