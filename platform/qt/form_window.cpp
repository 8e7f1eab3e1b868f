#include "platform/qt/form_window.hpp"

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"
#include "platform/qt/binding.hpp"
#include "platform/qt/colors.hpp"
#include "platform/qt/file_drop.hpp"
#include "platform/qt/guard.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/task_bar.hpp"
#include "platform/qt/timer_view.hpp"
#include "platform/qt/widget_place.hpp"
#include "platform/qt/widget_view.hpp"
#include "platform/qt/widgets/card.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace quittika {

namespace {

using window_state::kMaximised;
using window_state::kMinimised;
using window_state::kNormal;

/// A window that is neither main window nor dialog greets the user and has no frame.
bool is_splash(const QWidget& window) {
    return qobject_cast<const QMainWindow*>(&window) == nullptr &&
           qobject_cast<const QDialog*>(&window) == nullptr;
}

/// Moves a place so that a good part of the title bar can be reached on some screen.
QPoint reachable(const QPoint& place, const QSize& size) {
    constexpr int kTitle = 40;
    const QRect title(place, QSize(size.width(), kTitle));
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect common = screen->availableGeometry().intersected(title);
        if (common.width() >= kTitle && common.height() >= kTitle / 2) {
            return place;
        }
    }
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    QRect moved(place, size);
    moved.moveLeft(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - size.width())));
    moved.moveTop(std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() - size.height())));
    return moved.topLeft();
}

/// The last " [*]" becomes the toolkit's place for the mark; any other belongs to the text.
QString window_title(const std::string& caption) {
    constexpr const char* kMark = "[*]";
    constexpr std::string_view kPlace = " [*]";
    const std::size_t place = caption.rfind(kPlace);
    if (place == std::string::npos) {
        return to_qt(caption);
    }
    QString before = to_qt(std::string_view(caption).substr(0, place));
    before.replace(QLatin1String(kMark), QLatin1String("[*][*]"));
    return before + QLatin1String(kMark) + to_qt(std::string_view(caption).substr(place + kPlace.size()));
}

} // namespace

FormWindow::FormWindow(Form& form, QtDesktop& desktop) : form_(form), desktop_(desktop) {
    for (Control* control : form.controls()) {
        if (auto* timer = dynamic_cast<Timer*>(control)) {
            auto view = std::make_unique<TimerView>(*timer, desktop);
            timers_.push_back(view.get());
            timer->attach(std::move(view));
        }
    }
}

FormWindow::~FormWindow() {
    if (waiting_ != nullptr) {
        waiting_->quit();
    }
    if (window_ != nullptr) {
        window_->removeEventFilter(this);
        desktop_.let_go(*window_);
    }
    delete window_.data();
}

QWidget* FormWindow::window() {
    if (!built_) {
        built_ = true;
        window_ = desktop_.new_window(form_).release();
        if (window_ != nullptr) {
            start();
        }
    }
    return window_;
}

void FormWindow::start() {
    QWidget& window = *window_;
    if (is_splash(window)) {
        window.setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    }
    desktop_.built(window);
    for (Card* group : window.findChildren<Card*>()) {
        if (form_.find(from_qt(group->objectName())) == nullptr) {
            groups_.emplace_back(group, WidgetColors());
        }
    }
    bind(form_, window, desktop_.tools());
    for (const PropertyId id :
         {PropertyId::Caption, PropertyId::Modified, PropertyId::Enabled, PropertyId::BackColor}) {
        property_changed(id);
    }
    window.resize(pixels(form_.Width()), pixels(form_.Height()));
    placed_ = form_.Left() != 0 || form_.Top() != 0;
    grow_to_content();
    if (placed_) {
        push_place();
    }
    take_place();
    push_state();
    window.installEventFilter(this);
    if (first_focus_ != nullptr) {
        focus(*first_focus_);
    }
}

void FormWindow::property_changed(PropertyId id) {
    if (window_ == nullptr) {
        return;
    }
    switch (id) {
    case PropertyId::Caption:
        return window_->setWindowTitle(window_title(form_.Caption()));
    case PropertyId::Modified:
        return window_->setWindowModified(form_.Modified());
    case PropertyId::Enabled:
        return window_->setEnabled(form_.Enabled());
    case PropertyId::BackColor:
    case PropertyId::ForeColor:
    case PropertyId::OwnLook:
        return push_look();
    case PropertyId::WindowState:
        return push_state();
    case PropertyId::Left:
    case PropertyId::Top:
        return push_place();
    case PropertyId::Width:
    case PropertyId::Height:
        return window_->resize(pixels(form_.Width()), pixels(form_.Height()));
    default:
        return;
    }
}

void FormWindow::push_look() {
    if (window_ == nullptr) {
        return;
    }
    const Look& look = desktop_.look();
    colors_.push(*window_, form_, look.window);
    for (auto& [group, colors] : groups_) {
        colors.push(*group, form_.OwnLook() ? color::kButtonFace : look.group);
    }
    for (Control* control : form_.controls()) { // a tinge depends on what is around
        if (control->view() != nullptr) {
            control->view()->property_changed(PropertyId::BackColor);
        }
    }
}

void FormWindow::push_place() {
    placed_ = true;
    window_->move(reachable(QPoint(pixels(form_.Left()), pixels(form_.Top())), window_->size()));
}

void FormWindow::grow_to_content() {
    const int lack = window_->minimumSizeHint().width() - window_->width();
    const QRect room = window_->screen()->availableGeometry();
    const int spare = room.width() - window_->width() - lack;
    if (lack <= 0) {
        return;
    }
    window_->resize(window_->width() + lack, window_->height());
    if (placed_ && spare >= 0) {
        const int left = pixels(form_.Left()) - lack / 2;
        form_.Left.adopt(twips(std::clamp(left, room.left(), room.left() + spare)));
    }
}

void FormWindow::push_state() {
    const Qt::WindowStates kept = window_->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    const Qt::WindowStates added = form_.WindowState() == kMinimised   ? Qt::WindowMinimized
                                   : form_.WindowState() == kMaximised ? Qt::WindowMaximized
                                                                       : Qt::WindowNoState;
    if (window_->windowState() != (kept | added)) {
        window_->setWindowState(kept | added);
    }
}

void FormWindow::take_place() {
    if (window_->windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) {
        return; // the normal place is the one to come back to
    }
    take_pixels(form_.Left, window_->x());
    take_pixels(form_.Top, window_->y());
    take_pixels(form_.Width, window_->width());
    take_pixels(form_.Height, window_->height());
}

void FormWindow::take_state() {
    const Qt::WindowStates state = window_->windowState();
    form_.WindowState.adopt(state.testFlag(Qt::WindowMinimized)   ? kMinimised
                            : state.testFlag(Qt::WindowMaximized) ? kMaximised
                                                                  : kNormal);
}

Qt::WindowFlags FormWindow::flags_in_front(bool modal) const {
    if (form_.companion() && !modal) {
        // Without a button that makes it an icon, which nobody would find off the task bar. No tool window:
        // that one would answer to the keys of the main window, too.
        return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
               Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint;
    }
    const Qt::WindowFlags hints = window_->windowFlags() & ~Qt::WindowType_Mask;
    const Qt::WindowFlags buttons =
        qobject_cast<QDialog*>(window_) ? Qt::WindowFlags() : Qt::WindowMinMaxButtonsHint;
    return Qt::Dialog | hints | buttons;
}

void FormWindow::bring_in_front_of(QWidget* parent, bool modal) {
    if (parent == window_ || is_splash(*window_)) {
        parent = nullptr;
    }
    if (window_->parentWidget() != parent) {
        const Qt::WindowFlags alone = Qt::Window | (window_->windowFlags() & ~Qt::WindowType_Mask);
        const QPoint place = window_->pos();
        window_->setParent(parent, parent == nullptr ? alone : flags_in_front(modal));
        if (placed_) {
            window_->move(place);
        }
    }
    window_->setWindowModality(!modal              ? Qt::NonModal
                               : parent == nullptr ? Qt::ApplicationModal
                                                   : Qt::WindowModal);
}

void FormWindow::show(Modality modality) {
    update_timers();
    if (window() == nullptr) {
        return;
    }
    const bool modal = modality == Modality::Modal;
    if (!window_->isVisible()) {
        bring_in_front_of(modal ? desktop_.active_window() : desktop_.main_window(), modal);
        if (is_splash(*window_) && !placed_) {
            window_->move(QGuiApplication::primaryScreen()->availableGeometry().center() -
                          window_->rect().center());
        }
        if (form_.companion() && !modal) {
            keep_off_task_bar(*window_);
        }
        show_window();
        listen_for_files();
    }
    activate();
    if (modal && waiting_ == nullptr) {
        wait();
    }
}

void FormWindow::show_window() {
    const bool with_focus = desktop_.may_take_focus(form_);
    window_->setAttribute(Qt::WA_ShowWithoutActivating, !with_focus);
    window_->show();
    if (!with_focus) {
        desktop_.focus_endangered();
    }
}

void FormWindow::listen_for_files() {
    QWindow* shown = window_->windowHandle();
    if (!form_.FilesDropped || (file_drop_ != nullptr && file_drop_->window() == shown)) {
        return;
    }
    const auto is_ready = [this] {
        const QWidget* modal = QApplication::activeModalWidget();
        return window_->isEnabled() && (modal == nullptr || modal == window_);
    };
    file_drop_ = std::make_unique<FileDrop>(*shown, is_ready, [this](const FileDrop::Paths& paths) {
        activate();
        guarded(form_, [&] { form_.FilesDropped(paths); });
    });
}

void FormWindow::wait() {
    const QPointer<FormWindow> here(this);
    QEventLoop loop;
    waiting_ = &loop;
    if (window_->isVisible()) {
        loop.exec();
    }
    if (here != nullptr) {
        waiting_ = nullptr;
    }
}

void FormWindow::note_place() {
    if (window_ != nullptr && window_->isVisible() && !is_splash(*window_)) {
        desktop_.note_place(form_, window_ != desktop_.main_window()); // that one is centred
    }
}

void FormWindow::hide() {
    if (window_ != nullptr) {
        note_place();
        window_->hide();
    }
    update_timers();
    if (waiting_ != nullptr) {
        waiting_->quit();
    }
}

void FormWindow::raise() {
    const QWidget* modal = QApplication::activeModalWidget();
    const bool blocked = modal != nullptr && modal != window_ && !modal->isAncestorOf(window_);
    // A menu that drops down would be covered, too.
    if (window_ != nullptr && window_->isVisible() && !window_->isMinimized() && !blocked &&
        QApplication::activePopupWidget() == nullptr &&
        (!form_.companion() || desktop_.may_come_to_front(*window_))) {
        window_->raise();
    }
}

void FormWindow::activate() {
    if (window_ != nullptr && window_->isVisible()) {
        if (window_->isMinimized() && form_.WindowState() != kMinimised) {
            window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
        }
        window_->raise();
        take_focus();
    }
}

void FormWindow::take_focus() {
    if (desktop_.may_take_focus(form_)) {
        window_->activateWindow();
    }
}

void FormWindow::focus(Control& control) {
    if (window_ == nullptr) {
        first_focus_ = &control;
        return;
    }
    first_focus_ = nullptr;
    if (auto* view = dynamic_cast<WidgetView*>(control.view())) {
        view->focus();
        if (window_->isVisible() && !window_->isActiveWindow()) {
            take_focus();
        }
    }
}

void FormWindow::update_timers() {
    for (TimerView* timer : timers_) {
        timer->update();
    }
}

bool FormWindow::asked_to_close() {
    bool closed = false;
    guarded(form_, [&] { closed = form_.Close(); });
    update_timers();
    if (closed) {
        desktop_.window_closed();
    }
    return closed;
}

bool FormWindow::escape() {
    if (window_ == desktop_.main_window() || is_splash(*window_)) {
        return false;
    }
    window_->close();
    return true;
}

bool FormWindow::key_pressed(const QKeyEvent& event) {
    if (event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier) {
        guarded(form_, [this] { desktop_.help(form_); });
        return true;
    }
    return event.key() == Qt::Key_Escape && escape();
}

bool FormWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::Close:
        event->setAccepted(asked_to_close());
        return true;
    case QEvent::KeyPress:
        return key_pressed(*static_cast<QKeyEvent*>(event));
    case QEvent::Move:
    case QEvent::Resize:
        take_place();
        if (event->type() == QEvent::Resize && form_.shown() && form_.Resize) {
            guarded(form_, [this] { form_.Resize(); });
        }
        return false;
    case QEvent::WindowStateChange:
        take_state();
        return false;
    case QEvent::WindowActivate:
        if (form_.companion()) {
            desktop_.companion_used(*window_);
        }
        return false;
    default:
        return false;
    }
}

} // namespace quittika
