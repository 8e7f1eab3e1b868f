#include "platform/qt/widgets/disclosure_button.hpp"

namespace quittika {

DisclosureButton::DisclosureButton(QWidget *parent) : QToolButton(parent) {
    setCheckable(true);
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize({10, 10});
    show_state(false);
    connect(this, &QToolButton::toggled, this, &DisclosureButton::show_state);
}

void DisclosureButton::show_state(bool open) {
    setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
}

} // namespace quittika
