#include "platform/qt/widgets/scanner_field.hpp"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>

#include <chrono>

namespace quittika {

namespace {

constexpr QChar kLineEnd = u'\n';

bool is_return(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool is_line_feed(const QKeyEvent& event) {
    return !is_return(event) && event.text() == kLineEnd;
}

bool is_text(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

void ScannerField::keyPressEvent(QKeyEvent* event) {
    if (working_) {
        return take(*event); // one that was kept
    }
    working_ = true;
    QCoreApplication::instance()->installEventFilter(this);
    take(*event);
    replay();
    QCoreApplication::instance()->removeEventFilter(this);
    working_ = false;
}

void ScannerField::take(QKeyEvent& event) {
    const bool belongs_to_return = is_line_feed(event) && after_return_;
    after_return_ = false;
    if (is_return(event) || is_line_feed(event)) {
        event.accept();
        if (!belongs_to_return) {
            for (auto* field : window()->findChildren<ScannerField*>()) { // the focus may have moved on
                field->after_return_ = is_return(event);
            }
            end_line();
        }
    } else {
        QLineEdit::keyPressEvent(&event);
    }
}

void ScannerField::end_line() {
    setText(text() + kLineEnd);
}

bool ScannerField::eventFilter(QObject* watched, QEvent* event) {
    const auto* window = qobject_cast<const QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Show:
        if (window != nullptr && window->isWindow() && window->isModal()) {
            await_pause();
        }
        return false;
    case QEvent::KeyPress:
        return event->spontaneous() &&
               (keep(static_cast<const QKeyEvent&>(*event)) || QApplication::activeModalWidget() == nullptr);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Close:
        return event->spontaneous() && QApplication::activeModalWidget() == nullptr;
    default:
        return false;
    }
}

/// The toolkit drops keys for other windows from the moment on at which a modal one is shown, but the desktop
/// sends them there until it has given that one the keyboard.
void ScannerField::await_pause() {
    constexpr auto kPause = std::chrono::milliseconds(150);
    QEventLoop waiting;
    connect(&pause_, &QTimer::timeout, &waiting, &QEventLoop::quit);
    pause_.start(kPause);
    waiting.exec();
    pause_.stop();
}

/// Keys that work a message box pass: Return and blank unless they belong to a text, and all that is no text.
bool ScannerField::keep(const QKeyEvent& event) {
    if (pause_.isActive()) {
        pause_.start();
    }
    const bool within_text = !kept_.isEmpty() && !kept_.endsWith(kLineEnd);
    if (is_line_feed(event) || (is_return(event) && within_text)) {
        kept_ += within_text ? QString(kLineEnd) : QString();
        return true;
    }
    const bool text = is_text(event) && (within_text || event.key() != Qt::Key_Space);
    kept_ += text ? event.text() : QString();
    return text;
}

void ScannerField::replay() {
    while (!kept_.isEmpty()) {
        const QChar next = kept_.front();
        kept_.remove(0, 1);
        QWidget* focused = window()->focusWidget();
        QKeyEvent press(QEvent::KeyPress, next == kLineEnd ? Qt::Key_Return : Qt::Key_unknown, Qt::NoModifier,
                        next);
        QCoreApplication::sendEvent(focused == nullptr ? this : focused, &press);
    }
}

} // namespace quittika
