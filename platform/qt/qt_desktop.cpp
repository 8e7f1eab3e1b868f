#include "platform/qt/qt_desktop.hpp"

#include "platform/forms/twips.hpp"
#include "platform/qt/binding.hpp"
#include "platform/qt/form_window.hpp"
#include "platform/qt/guard.hpp"
#include "platform/qt/widget_place.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <utility>

namespace quittika {

QtDesktop::QtDesktop(BuildWindow build) : build_(build) {
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &context_,
                     [this](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive && !standing_still()) {
                             deactivated();
                         }
                     });
}

void QtDesktop::deactivated() {
    const std::vector<FormWindow*> windows = windows_; // a handler may open another one
    for (FormWindow* window : windows) {
        if (std::find(windows_.begin(), windows_.end(), window) != windows_.end() &&
            window->form().Deactivate) {
            guarded(window->form(), [window] { window->form().Deactivate(); });
        }
    }
}

QtDesktop::~QtDesktop() {
    while (!windows_.empty()) {
        Form& form = windows_.back()->form();
        windows_.pop_back();
        unbind(form);
        form.detach();
    }
}

FormWindow* QtDesktop::find(const Form& form) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const FormWindow* window) { return &window->form() == &form; });
    return found == windows_.end() ? nullptr : *found;
}

void QtDesktop::adopt(Form& form) {
    if (find(form) == nullptr) {
        restore_place(form);
        auto window = std::make_unique<FormWindow>(form, *this);
        windows_.push_back(window.get());
        form.attach(*this, std::move(window));
    }
}

void QtDesktop::restore_place(Form& form) const {
    const auto remembered = places_ ? places_->find(form.name()) : std::nullopt;
    const QSize design(pixels(form.Width()), pixels(form.Height()));
    const WindowPlace designed{design * theme::scale(), std::nullopt};
    QList<QRect> screens{QApplication::primaryScreen()->availableGeometry()};
    for (const QScreen* screen : QApplication::screens()) {
        screens.append(screen->availableGeometry());
    }
    const WindowPlace place = fitted(remembered.value_or(designed), screens);
    take_pixels(form.Width, place.size.width());
    take_pixels(form.Height, place.size.height());
    if (place.place) {
        form.Left.adopt(twips(place.place->x()));
        form.Top.adopt(twips(place.place->y()));
    }
    if (place.maximised) {
        form.WindowState.adopt(window_state::kMaximised);
    }
}

void QtDesktop::note_place(const Form& form, bool with_place) {
    if (!places_) {
        return;
    }
    WindowPlace place{QSize(pixels(form.Width()), pixels(form.Height())), std::nullopt,
                      form.WindowState() == window_state::kMaximised};
    if (with_place) {
        place.place = QPoint(pixels(form.Left()), pixels(form.Top()));
    }
    places_->note(form.name(), place);
}

void QtDesktop::release(Form& form) {
    // The form's controls are gone by now; nothing of them may be touched.
    std::erase_if(windows_, [&](const FormWindow* window) { return &window->form() == &form; });
}

void QtDesktop::show(Form& form, Modality modality) {
    if (FormWindow* window = find(form)) {
        window->show(modality);
    }
}

void QtDesktop::hide(Form& form) {
    if (FormWindow* window = find(form)) {
        window->hide();
    }
}

void QtDesktop::raise(Form& form) {
    if (FormWindow* window = find(form)) {
        window->raise();
    }
}

void QtDesktop::set_focus(Control& control) {
    if (FormWindow* window = find(control.form())) {
        window->focus(control);
    }
}

void QtDesktop::set_look(const Look& look) {
    if (look_ != look) {
        look_ = look;
        for (FormWindow* window : windows_) {
            window->push_look();
        }
    }
}

void QtDesktop::hold_focus(const Form* form) {
    const Form* former = std::exchange(focus_holder_, form);
    if (form == nullptr && std::exchange(focus_endangered_, false)) {
        if (FormWindow* window = find(*former)) {
            window->activate();
        }
    }
}

int QtDesktop::screen_width() const {
    return twips(QApplication::primaryScreen()->availableGeometry().width());
}

int QtDesktop::screen_height() const {
    return twips(QApplication::primaryScreen()->availableGeometry().height());
}

void QtDesktop::beep() {
    QApplication::beep();
}

void QtDesktop::later(std::function<void()> work) {
    QTimer::singleShot(0, &context_, [this, work = std::move(work)]() mutable {
        if (standing_still()) {
            waiting_.push_back(std::move(work));
        } else {
            guarded(work);
        }
    });
}

QtDesktop::Standstill::~Standstill() {
    if (--desktop_.standstills_ == 0) {
        for (std::function<void()>& work : std::exchange(desktop_.waiting_, {})) {
            desktop_.later(std::move(work));
        }
    }
}

void QtDesktop::end() {
    ended_ = true;
    QCoreApplication::exit(); // unlike quit, this asks no window again
}

int QtDesktop::run(const std::function<void()>& start) {
    QApplication::setQuitOnLastWindowClosed(false); // a box may be the only window for a while
    guarded(start);
    const int result = ended_ ? 0 : QCoreApplication::exec();
    for (FormWindow* window : windows_) {
        window->note_place();
    }
    if (places_) {
        places_->save();
    }
    return result;
}

QWidget* QtDesktop::window(Form& form) {
    FormWindow* window = find(form);
    return window == nullptr ? nullptr : window->window();
}

QWidget* QtDesktop::active_window() const {
    QWidget* active = QApplication::activeModalWidget();
    if (active == nullptr) {
        active = QApplication::activeWindow();
    }
    return active != nullptr && active->isVisible() ? active : main_.data();
}

void QtDesktop::built(QWidget& window) {
    if (main_ == nullptr && qobject_cast<QMainWindow*>(&window) != nullptr) {
        main_ = &window;
    }
}

void QtDesktop::let_go(QWidget& window) {
    for (const FormWindow* other : windows_) {
        QWidget* child = other->built();
        if (child != nullptr && child->parentWidget() == &window) {
            child->setParent(nullptr, child->windowFlags());
        }
    }
}

void QtDesktop::window_closed() {
    const auto is_open = [](const FormWindow* window) {
        return window->built() != nullptr && window->form().shown();
    };
    later([this, is_open] {
        if (std::none_of(windows_.begin(), windows_.end(), is_open)) {
            end();
        }
    });
}

} // namespace quittika
