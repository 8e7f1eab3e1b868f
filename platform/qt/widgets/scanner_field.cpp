#include "platform/qt/widgets/scanner_field.hpp"

#include <QCoreApplication>
#include <QKeyEvent>

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
    if (event->type() == QEvent::KeyPress && event->spontaneous()) {
        return keep(static_cast<const QKeyEvent&>(*event));
    }
    return QLineEdit::eventFilter(watched, event);
}

/// Keys that work a message box pass: Return and blank unless they belong to a text, and all that is no text.
bool ScannerField::keep(const QKeyEvent& event) {
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
