#include "platform/qt/widgets/late_content.hpp"

#include <QLayout>
#include <QTimer>

namespace quittika {

void LateContent::complete() {
    if (!complete_) {
        complete_ = true;
        build();
        emit completed();
        // The new widgets show themselves with the next event; only then is their size known.
        QTimer::singleShot(0, this, [this] { claim_room(); });
    }
}

void LateContent::claim_room() {
    updateGeometry();
    for (QWidget* around = this; around != nullptr; around = around->parentWidget()) {
        if (QLayout* layout = around->layout()) {
            layout->invalidate();
            layout->activate();
        }
    }
}

void LateContent::showEvent(QShowEvent* event) {
    complete();
    QWidget::showEvent(event);
}

} // namespace quittika
