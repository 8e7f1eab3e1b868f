#include "platform/qt/widgets/column_row.hpp"

#include "platform/qt/widgets/column_list.hpp"

#include <QEvent>
#include <QVariant>
#include <algorithm>

namespace quittika {

ColumnRow::ColumnRow(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ColumnRow::sizeHint() const {
    int height = 0;
    for (const QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        height = std::max(height, child->sizeHint().height());
    }
    return {0, height};
}

bool ColumnRow::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::LayoutRequest:
        updateGeometry();
        [[fallthrough]];
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::Show:
        place_children();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool ColumnRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::Resize ||
        event->type() == QEvent::Move) {
        place_children();
    }
    return QWidget::eventFilter(watched, event);
}

ColumnList* ColumnRow::find_list() {
    if (!columns_) {
        columns_ = window()->findChild<ColumnList*>(list_name_);
        if (columns_) {
            columns_->installEventFilter(this);
        }
    }
    return columns_;
}

void ColumnRow::place_children() {
    const ColumnList* list = find_list();
    if (list == nullptr) {
        return;
    }
    const double left =
        list->mapTo(window(), QPoint()).x() - mapTo(window(), QPoint()).x() + list->text_left();
    const double column = list->column_width();
    for (QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const int from = qRound(left + child->property("columnFrom").toDouble() * column);
        const int to = qRound(left + child->property("columnTo").toDouble() * column);
        const int tall = std::min(height(), child->sizeHint().height());
        child->setGeometry(from, (height() - tall) / 2, to - from, tall);
    }
}

} // namespace quittika
