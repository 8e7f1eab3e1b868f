#pragma once

#include "platform/desktop.hpp"
#include "platform/script/script_timers.hpp"

#include <cstdint>
#include <deque>
#include <functional>
#include <string_view>
#include <vector>

namespace quittika {

/// Windows without a screen: it knows which are open, which is in front and where the focus stands.
class ScriptDesktop final : public Desktop {
public:
    /// Serves the user until `open` tells that the modal window is gone.
    using ModalLoop = std::function<void(const std::function<bool()>& open)>;

    explicit ScriptDesktop(ScriptClock& clock) : timers_(clock) {}
    ~ScriptDesktop() override;

    void adopt(Form& form) override;
    void release(Form& form) override;
    void show(Form& form, Modality modality) override;
    void hide(Form& form) override;
    void raise(Form& form) override;
    /// Fires `LostFocus` and `GotFocus`. A control that cannot be reached on an open window takes no focus.
    void set_focus(Control& control) override;
    void set_look(const Look& /*look*/) override {} // nothing is painted
    void hold_focus(const Form* form) override { focus_holder_ = form; }
    int screen_width() const override { return 15360; }
    int screen_height() const override { return 11520; }
    void beep() override { ++beeps_; }
    void later(std::function<void()> work) override;
    void end() override { ended_ = true; }

    void on_modal(ModalLoop loop) { modal_loop_ = std::move(loop); }

    /// All known forms, open or not, in the order of their adoption.
    const std::vector<Form*>& forms() const { return forms_; }
    /// The known form of that name, the youngest if there are several, or null.
    Form* find(std::string_view name) const;
    /// The open windows, the one in front last.
    std::vector<Form*> windows() const;
    bool is_modal(const Form& form) const;
    /// The modal window that keeps the user away from an open one, or null.
    const Form* blocker(const Form& form) const;

    const Control* focus() const { return focus_; }
    /// How often the attention signal sounded.
    int beeps() const { return beeps_; }
    /// Takes the focus away from where it is.
    void drop_focus();

    ScriptTimers& timers() { return timers_; }
    /// Takes the next work that was put off; an empty function if there is none.
    std::function<void()> take_work();
    bool ended() const { return ended_; }

    /// Forgets all windows and work, as before a program was started.
    void reset();

private:
    struct Window {
        Form* form;
        std::uint64_t opened; ///< count of the windows opened before
    };
    void forget_window(const Form& form);
    bool takes_focus(const Control& control) const;

    ScriptTimers timers_;
    ModalLoop modal_loop_;
    std::vector<Form*> forms_;
    std::vector<Window> windows_; ///< back to front
    std::vector<Window> modals_;  ///< the modal ones, in the order of their opening
    std::deque<std::function<void()>> work_;
    Control* focus_ = nullptr;
    const Form* focus_form_ = nullptr; ///< the form of `focus_`, which may be gone already
    const Form* focus_holder_ = nullptr;
    std::uint64_t opened_ = 0;
    int beeps_ = 0;
    bool ended_ = false;
};

} // namespace quittika
