#pragma once

#include "platform/desktop.hpp"
#include "platform/qt/paint_tools.hpp"
#include "platform/qt/window_places.hpp"
#include "platform/qt/window_table.hpp"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

class FormWindow;

/// The desktop with real windows. Needs a `QtApplication`.
class QtDesktop final : public Desktop {
public:
    /// Makes the window of the form of that name; null if there is none.
    using BuildWindow = std::unique_ptr<QWidget> (*)(std::string_view form);
    explicit QtDesktop(BuildWindow build = build_window);
    ~QtDesktop() override;

    void adopt(Form& form) override;
    void release(Form& form) override;
    void show(Form& form, Modality modality) override;
    void hide(Form& form) override;
    void raise(Form& form) override;
    void set_focus(Control& control) override;
    void set_look(const Look& look) override;
    void hold_focus(const Form* form) override;
    int screen_width() const override;
    int screen_height() const override;
    void beep() override;
    void later(std::function<void()> work) override;
    void end() override;

    /// Keeps sizes and places of the windows in this file. To be called before the first form is adopted.
    void remember_places(std::string path) { places_.emplace(std::move(path)); }

    /// Runs `start` and then the event loop until `end`, or until the user has closed the last window.
    int run(const std::function<void()>& start);

    /// Window of an adopted form, built if need be, but not shown; null without a design.
    QWidget* window(Form& form);

    /// Whether the program itself stands still because long work is under way.
    bool standing_still() const { return standstills_ > 0; }
    /// While one lives, no timer ticks, and what is to be done later waits.
    class Standstill {
    public:
        explicit Standstill(QtDesktop& desktop) : desktop_(desktop) { ++desktop_.standstills_; }
        Standstill(const Standstill&) = delete;
        Standstill& operator=(const Standstill&) = delete;
        ~Standstill();

    private:
        QtDesktop& desktop_;
    };
    const Look& look() const { return look_; }
    /// What the windows draw pictures and pages with.
    PaintTools& tools() { return tools_; }

    // For the windows themselves.
    QWidget* main_window() const { return main_; }
    std::unique_ptr<QWidget> new_window(const Form& form) const { return build_(form.name()); }
    /// Whether no other form holds the keyboard.
    bool may_take_focus(const Form& form) const { return focus_holder_ == nullptr || focus_holder_ == &form; }
    /// A window is shown that may not take the keyboard. Not every desktop heeds that.
    void focus_endangered() { focus_endangered_ = true; }
    /// The user turns to a companion, which the other ones must not cover from now on.
    void companion_used(QWidget& window) { companion_ = &window; }
    bool may_come_to_front(const QWidget& companion) const {
        return companion_ == nullptr || companion_ == &companion || !companion_->isVisible();
    }
    /// The window in use, in front of which a modal one comes.
    QWidget* active_window() const;
    void built(QWidget& window);
    /// Before `window` goes: what belongs to it stays.
    void let_go(QWidget& window);
    void window_closed();
    /// A window has its form's size, and its place if that counts.
    void note_place(const Form& form, bool with_place);

private:
    FormWindow* find(const Form& form) const;
    void restore_place(Form& form) const;
    void deactivated();

    BuildWindow build_;
    PaintTools tools_;
    Look look_;
    std::vector<FormWindow*> windows_; ///< owned by their forms
    std::optional<WindowPlaces> places_;
    QPointer<QWidget> main_;                     ///< the first main window that was built
    QPointer<QWidget> companion_;                ///< the one used last
    QObject context_;                            ///< work that is still to be done goes with it
    std::vector<std::function<void()>> waiting_; ///< for the end of a standstill
    const Form* focus_holder_ = nullptr;
    bool focus_endangered_ = false;
    int standstills_ = 0;
    bool ended_ = false;
};

} // namespace quittika
