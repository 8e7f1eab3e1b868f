#include "platform/qt/widgets/late_content.hpp"

namespace quittika {

void LateContent::complete() {
    if (!complete_) {
        complete_ = true;
        build();
        emit completed();
    }
}

void LateContent::showEvent(QShowEvent* event) {
    complete();
    QWidget::showEvent(event);
}

} // namespace quittika
