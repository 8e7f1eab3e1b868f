#pragma once

#include "platform/desktop.hpp"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quittika {

/// Windows of one kind that are made when they are opened and destroyed when they are closed.
class WindowLives {
public:
    explicit WindowLives(Desktop& desktop) : desktop_(desktop) {}
    WindowLives(const WindowLives&) = delete;
    WindowLives& operator=(const WindowLives&) = delete;
    ~WindowLives();

    /// The open window's parts, or null.
    std::shared_ptr<void> open() const;
    /// Brings the open window to the front.
    void bring_to_front() const;
    /// Shows a new window; `parts` hold the form and whatever works on it. They are let go when the form is
    /// closed and nothing of it runs any more. What `Load` throws comes out, and the window is gone.
    void begin(Form& form, std::shared_ptr<void> parts);

private:
    struct Life {
        Form* form;
        std::shared_ptr<void> parts;
    };
    void end_later(const Form& form);
    void end(const Form* form);

    Desktop& desktop_;
    std::vector<Life> lives_; ///< the open window last; those before it are closed and wait for their end
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true); ///< asked by work that was put off
};

/// A window that lives from its opening to its closing, with the module that works on it. A handler may close
/// its own window, open it again or end the program: window and module go when the last handler has
/// returned.
///
///     OpenedWindow<Form_Notiz, Notizfenster> notiz{
///         desktop, [this](Form_Notiz& form) { return std::make_unique<Notizfenster>(form, form1); }};
///     form1.Cmd_Notiz.Click = [this] { notiz.open(); };
template <class F, class Module> class OpenedWindow {
public:
    /// `make` wires a module to a new form.
    using Make = std::function<std::unique_ptr<Module>(F& form)>;
    OpenedWindow(Desktop& desktop, Make make) : make_(std::move(make)), lives_(desktop) {}

    /// Opens the window, or brings the open one to the front. What `make` or `Load` throws comes out.
    void open() {
        if (module() != nullptr) {
            lives_.bring_to_front();
            return;
        }
        const auto parts = std::make_shared<Parts>();
        parts->module = make_(parts->form);
        lives_.begin(parts->form, parts);
    }

    /// The open window's module, null if it is closed. Good for the present handler.
    Module* module() const {
        const auto parts = std::static_pointer_cast<Parts>(lives_.open());
        return parts == nullptr ? nullptr : parts->module.get();
    }

private:
    struct Parts {
        F form;
        std::unique_ptr<Module> module; ///< goes before its form
    };

    Make make_;
    WindowLives lives_;
};

} // namespace quittika
