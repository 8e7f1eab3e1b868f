#include "platform/qt/frame_view.hpp"

#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/card.hpp"

#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>

namespace quittika {

namespace {

constexpr int kLineLeft = 6;
constexpr int kLineTop = 2;

/// What the letter of the caption leads to.
QWidget& first_field(QWidget& frame) {
    for (QWidget* widget = frame.nextInFocusChain(); widget != &frame; widget = widget->nextInFocusChain()) {
        if (frame.isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            return *widget;
        }
    }
    return frame;
}

} // namespace

void FrameView::push(PropertyId id) {
    if (id != PropertyId::Caption) {
        return;
    }
    const QString caption = to_qt(control_.Caption());
    auto* group = qobject_cast<QGroupBox*>(&widget_);
    if (group == nullptr) {
        show_caption(caption);
    } else if (group->title() != caption) {
        group->setTitle(caption);
    }
}

Color FrameView::ground() const {
    const auto* desktop = dynamic_cast<const QtDesktop*>(control_.form().desktop());
    const bool group = desktop != nullptr && qobject_cast<Card*>(&widget_) != nullptr;
    return group && !control_.form().OwnLook() ? desktop->look().group : WidgetView::ground();
}

void FrameView::show_caption(const QString& caption) {
    if (line_ == nullptr) {
        if (caption.isEmpty()) {
            return;
        }
        line_ = new QLabel(&widget_);
        line_->setObjectName(QStringLiteral("ui_Rahmentitel"));
        line_->setTextFormat(Qt::PlainText);
        line_->setAttribute(Qt::WA_TransparentForMouseEvents);
        line_->setBuddy(&first_field(widget_));
    }
    line_->setText(caption);
    line_->setVisible(!caption.isEmpty());
    place_line();
}

void FrameView::place_line() {
    line_->adjustSize();
    line_->move(kLineLeft, kLineTop);
    const int room = line_->text().isEmpty() ? 0 : kLineTop + line_->height();
    if (QLayout* layout = widget_.layout(); layout != nullptr && room != room_) {
        layout->setContentsMargins(layout->contentsMargins() + QMargins(0, room - room_, 0, 0));
        room_ = room;
    }
}

bool FrameView::eventFilter(QObject* watched, QEvent* event) {
    const bool other_font = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    const bool taken = WidgetView::eventFilter(watched, event);
    if (other_font && line_ != nullptr) {
        QMetaObject::invokeMethod( // the line hears of it after the frame
            this, [this] { place_line(); }, Qt::QueuedConnection);
    }
    return taken;
}

} // namespace quittika
