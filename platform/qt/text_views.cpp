#include "platform/qt/text_views.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"

#include <QCoreApplication>
#include <QDropEvent>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

// What follows gives both widgets the same face.

constexpr int kLongestLine = 32767;     ///< characters that a field of one line holds
constexpr int kLongestText = 1'000'000; ///< the same for a field of many lines
constexpr int kLongestPart = 4000;      ///< shown of a longer text

QString text_of(const QLineEdit& line) {
    return line.text();
}

QString text_of(const QPlainTextEdit& area) {
    // Unlike the plain text, the raw one keeps blanks that do not break.
    QString text = area.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

void set_text(QLineEdit& line, const QString& text) {
    const int cursor = line.hasFocus() ? line.cursorPosition() : 0;
    line.setMaxLength(std::max(line.maxLength(), static_cast<int>(text.size())));
    line.setText(text);
    line.setCursorPosition(cursor);
}

void set_text(QPlainTextEdit& area, const QString& text) {
    area.setPlainText(text);
}

bool fits(const QLineEdit& /*line*/, const QString& text) {
    return text.size() <= kLongestLine;
}

bool fits(const QPlainTextEdit& /*area*/, const QString& text) {
    // A single endless line costs the most.
    if (text.size() <= kLongestLine) {
        return true;
    }
    if (text.size() > kLongestText) {
        return false;
    }
    qsizetype start = 0;
    for (qsizetype end = 0; end >= 0; start = end + 1) {
        end = text.indexOf(QLatin1Char('\n'), start);
        if ((end < 0 ? text.size() : end) - start > kLongestLine) {
            return false;
        }
    }
    return true;
}

struct Selection {
    int start;
    int length;
};

Selection selection_of(const QLineEdit& line) {
    return line.hasSelectedText() ? Selection{line.selectionStart(), line.selectionLength()}
                                  : Selection{line.cursorPosition(), 0};
}

Selection selection_of(const QPlainTextEdit& area) {
    const QTextCursor cursor = area.textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

void select(QLineEdit& line, const Selection& part) {
    line.setCursorPosition(part.start);
    if (part.length > 0) {
        line.setSelection(part.start, part.length);
    }
}

void select(QPlainTextEdit& area, const Selection& part) {
    QTextCursor cursor = area.textCursor();
    cursor.setPosition(part.start);
    cursor.setPosition(part.start + part.length, QTextCursor::KeepAnchor);
    area.setTextCursor(cursor);
}

bool can_undo(const QLineEdit& line) {
    return line.isUndoAvailable();
}

bool can_undo(const QPlainTextEdit& area) {
    return area.document()->isUndoAvailable();
}

bool can_redo(const QLineEdit& line) {
    return line.isRedoAvailable();
}

bool can_redo(const QPlainTextEdit& area) {
    return area.document()->isRedoAvailable();
}

void forget_steps(QLineEdit& line) {
    const int cursor = line.hasFocus() ? line.cursorPosition() : 0;
    line.setText(line.text());
    line.setCursorPosition(cursor);
}

void forget_steps(QPlainTextEdit& area) {
    area.document()->clearUndoRedoStacks();
}

bool is_undo(const QKeyEvent& key) {
    return key.keyCombination() == (Qt::ControlModifier | Qt::Key_Z);
}

bool is_redo(const QKeyEvent& key) {
    return key.keyCombination() == (Qt::ControlModifier | Qt::Key_Y) ||
           key.keyCombination() == (Qt::ControlModifier | Qt::ShiftModifier | Qt::Key_Z);
}

} // namespace

template <class W> void TextView<W>::push_all() {
    push_text();
    push_read_only();
    if (this->control_.SelLength() > 0) {
        push_selection();
    }
}

template <class W> void TextView<W>::push(PropertyId id) {
    switch (id) {
    case PropertyId::Text:
        return push_text();
    case PropertyId::Locked:
        return push_read_only();
    case PropertyId::SelStart:
        this->control_.SelLength.adopt(0);
        return push_selection();
    case PropertyId::SelLength:
        return push_selection();
    default:
        return;
    }
}

template <class W> void TextView<W>::push_text() {
    const QString text = lines_to_qt(this->control_.Text());
    const bool fitted = std::exchange(holds_all_, fits(this->widget_, text));
    const QString shown = holds_all_ ? text : text.left(kLongestPart);
    if (shown != text_of(this->widget_)) {
        const Pushing here(pushing_);
        set_text(this->widget_, shown);
    }
    if (fitted != holds_all_) {
        push_read_only();
    }
}

template <class W> void TextView<W>::push_read_only() {
    const bool read_only = this->control_.Locked() || !holds_all_;
    if (this->widget_.isReadOnly() != read_only) {
        this->widget_.setReadOnly(read_only);
    }
}

template <class W> void TextView<W>::push_selection() {
    const QString text = text_of(this->widget_);
    const int start = std::max(0, this->control_.SelStart());
    const int length = std::max(0, this->control_.SelLength());
    const int from = widget_position(text, start);
    const Pushing here(pushing_);
    select(this->widget_, {from, widget_position(text, start + length) - from});
}

template <class W> void TextView<W>::take_text() {
    if (!pushing_ && holds_all_) {
        guarded(this->control_.form(),
                [this] { this->control_.user_type(lines_from_qt(text_of(this->widget_))); });
    }
}

template <class W> void TextView<W>::take_selection() {
    if (pushing_) {
        return;
    }
    const QString text = text_of(this->widget_);
    const Selection part = selection_of(this->widget_);
    const int start = control_position(text, part.start);
    this->control_.SelStart.adopt(start);
    this->control_.SelLength.adopt(control_position(text, part.start + part.length) - start);
}

/// Whether the key takes back, or does again, something that was typed in the field itself.
template <class W> bool TextView<W>::takes_back(const QKeyEvent& key) const {
    return !this->widget_.isReadOnly() &&
           ((is_undo(key) && can_undo(this->widget_)) || (is_redo(key) && can_redo(this->widget_)));
}

template <class W> bool TextView<W>::key_pressed(const QKeyEvent& event) {
    const bool own = is_redo(event) && takes_back(event);
    if (own) { // one of its two keys is none of the widget's on every desktop
        this->widget_.redo();
    }
    return own;
}

template <class W> void TextView<W>::left() {
    if (this->control_.form().FieldLeft && (can_undo(this->widget_) || can_redo(this->widget_))) {
        const Pushing here(pushing_);
        forget_steps(this->widget_);
    }
}

template <class W> bool TextView<W>::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (is_undo(key) || is_redo(key)) {
            event->setAccepted(takes_back(key)); // else it is the window's, and so is what follows
            if (!event->isAccepted()) {
                left();
            }
            return true;
        }
    }
    if (event->type() == QEvent::Drop && !inserting_ && !this->control_.OLEDragDrop) {
        auto& drop = static_cast<QDropEvent&>(*event);
        const bool moved_inside = drop.source() == &this->widget_ || drop.source() == &this->surface();
        if (!moved_inside) {
            insert_copy(drop);
            return true;
        }
    }
    return WidgetView::eventFilter(watched, event);
}

template <class W> void TextView<W>::insert_copy(QDropEvent& drop) {
    const Pushing here(inserting_);
    QDropEvent copy(drop.position(), Qt::CopyAction, drop.mimeData(), drop.buttons(), drop.modifiers());
    copy.setAccepted(drop.possibleActions().testFlag(Qt::CopyAction));
    if (copy.isAccepted()) {
        QCoreApplication::sendEvent(&this->surface(), &copy);
    }
    take_copy(drop, copy.isAccepted());
}

template class TextView<QLineEdit>;
template class TextView<QPlainTextEdit>;

TextLineView::TextLineView(TextBox& control, QLineEdit& widget) : TextView(control, widget) {
    connect(&widget, &QLineEdit::textChanged, this, [this] { take_text(); });
    connect(&widget, &QLineEdit::cursorPositionChanged, this, [this] { take_selection(); });
    connect(&widget, &QLineEdit::selectionChanged, this, [this] { take_selection(); });
}

bool TextLineView::key_pressed(const QKeyEvent& event) {
    const bool empties =
        event.key() == Qt::Key_Escape && widget_.isClearButtonEnabled() && !widget_.text().isEmpty();
    if (empties) {
        widget_.clear();
    }
    return empties;
}

bool TextLineView::eventFilter(QObject* watched, QEvent* event) {
    const bool taken = TextView::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn) {
        const bool by_mouse = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        marked_on_entry_ = by_mouse && widget_.hasSelectedText();
    } else if (event->type() == QEvent::MouseButtonRelease && std::exchange(marked_on_entry_, false) &&
               !widget_.hasSelectedText()) {
        widget_.selectAll();
    }
    return taken;
}

TextAreaView::TextAreaView(TextBox& control, QPlainTextEdit& widget) : TextView(control, widget) {
    widget.setTabChangesFocus(true);
    connect(&widget, &QPlainTextEdit::textChanged, this, [this] { take_text(); });
    connect(&widget, &QPlainTextEdit::cursorPositionChanged, this, [this] { take_selection(); });
    connect(&widget, &QPlainTextEdit::selectionChanged, this, [this] { take_selection(); });
}

} // namespace quittika
