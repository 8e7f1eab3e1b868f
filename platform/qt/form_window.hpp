#pragma once

#include "platform/forms/form.hpp"

#include "platform/qt/colors.hpp"

#include <QObject>
#include <QPointer>

#include <memory>
#include <utility>
#include <vector>

class QEventLoop;
class QKeyEvent;
class QWidget;

namespace quittika {

class Card;
class FileDrop;
class QtDesktop;
class TimerView;

/// A form's window. It is built when it is first needed; a form without a design has none.
class FormWindow final : public QObject, public ControlView {
public:
    FormWindow(Form& form, QtDesktop& desktop);
    ~FormWindow() override;

    void property_changed(PropertyId id) override;
    /// Paints the window, and what stands on it, as the desktop and the form want it.
    void push_look();

    Form& form() const { return form_; }
    /// The window, built if need be; null without a design.
    QWidget* window();
    /// The window if it is built, else null.
    QWidget* built() const { return window_; }

    void show(Modality modality);
    /// Takes the window away and ends a modal wait for it.
    void hide();
    /// Brings the window to the front; `activate` gives it the focus, too.
    void raise();
    void activate();
    void focus(Control& control);
    /// Tells the desktop where the window stands, if it is open.
    void note_place();
    /// Starts and stops the form's timers as they should run.
    void update_timers();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take_focus();
    void show_window();
    void start();
    void push_place();
    void push_state();
    Qt::WindowFlags flags_in_front(bool modal) const;
    /// A width that was asked for may be too small for text of the desktop's size; the middle stays where the
    /// screen allows it.
    void grow_to_content();
    void bring_in_front_of(QWidget* parent, bool modal);
    void wait();
    void listen_for_files();
    bool asked_to_close();
    /// Closes any window but the main one and the splash. Returns whether it is such a window.
    bool escape();
    bool key_pressed(const QKeyEvent& event);
    void take_place();
    void take_state();

    Form& form_;
    QtDesktop& desktop_;
    WidgetColors colors_;
    std::vector<std::pair<Card*, WidgetColors>> groups_; ///< those that no control stands for
    QPointer<QWidget> window_;                           ///< a parent window may take it along
    std::vector<TimerView*> timers_;                     ///< owned by their controls
    std::unique_ptr<FileDrop> file_drop_;
    QEventLoop* waiting_ = nullptr;
    Control* first_focus_ = nullptr; ///< asked for before the window was there
    bool built_ = false;
    bool placed_ = false;
};

} // namespace quittika
