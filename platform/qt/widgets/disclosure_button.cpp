#include "platform/qt/widgets/disclosure_button.hpp"

#include "platform/qt/widgets/theme.hpp"

#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionToolButton>
#include <QTimer>

namespace quittika {

namespace {

constexpr int kArrow = 10; ///< pixels

} // namespace

DisclosureButton::DisclosureButton(QWidget* parent) : QToolButton(parent) {
    setCheckable(true);
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize({theme::scaled(kArrow), theme::scaled(kArrow)});
    show_state(false);
    connect(this, &QToolButton::toggled, this, &DisclosureButton::show_state);
}

void DisclosureButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->state.setFlag(QStyle::State_On, false); // the arrow tells
    // It stands on the window itself, so it takes the window's text colour.
    option->palette.setBrush(QPalette::ButtonText, palette().windowText());
}

void DisclosureButton::show_state(bool open) {
    setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    if (open) {
        // The layout has to make room first.
        QTimer::singleShot(0, this, &DisclosureButton::scroll_up);
    }
}

void DisclosureButton::scroll_up() {
    for (QWidget* outer = parentWidget(); outer != nullptr; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer)) {
            area->verticalScrollBar()->setValue(mapTo(area->widget(), QPoint()).y());
            return;
        }
    }
}

} // namespace quittika
