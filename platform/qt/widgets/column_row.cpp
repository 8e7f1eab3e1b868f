#include "platform/qt/widgets/column_row.hpp"

#include "platform/qt/widgets/column_head.hpp"
#include "platform/qt/widgets/column_list.hpp"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QVariant>

#include <algorithm>

namespace quittika {

namespace {

constexpr const char* kColumn = "column";
constexpr const char* kLastColumn = "lastColumn";

/// Space that a child leaves at the edges of its column; a field has a frame of its own.
int inset_of(const QWidget& child) {
    const bool of_text =
        qobject_cast<const QLabel*>(&child) != nullptr || qobject_cast<const ColumnHead*>(&child) != nullptr;
    return of_text ? ColumnList::kPadding : 1;
}

} // namespace

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

int ColumnRow::needed_width(int column) const {
    int width = 0;
    for (const QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const QVariant place = child->property(kColumn);
        if (place.isValid() && place.toInt() == column && qobject_cast<const QLineEdit*>(child) == nullptr) {
            width = std::max(width, child->sizeHint().width() + 2 * inset_of(*child));
        }
    }
    return width;
}

bool ColumnRow::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::LayoutRequest:
        updateGeometry();
        if (ColumnList* list = find_list()) {
            list->arrange();
            list->updateGeometry();
        }
        break;
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
    if (event->type() == QEvent::Move) {
        place_children();
    }
    return QWidget::eventFilter(watched, event);
}

void ColumnRow::reveal(const QWidget& child) const {
    if (columns_ != nullptr) {
        QScrollBar& bar = *columns_->horizontalScrollBar();
        const int left = columns_->viewport()->mapTo(window(), QPoint()).x() - mapTo(window(), QPoint()).x();
        const int too_far_left = std::min(child.geometry().left() - left, 0);
        const int too_far_right =
            std::max(child.geometry().right() - left - columns_->viewport()->width(), 0);
        bar.setValue(bar.value() + too_far_left + too_far_right);
    }
}

ColumnList* ColumnRow::find_list() {
    if (!columns_) {
        columns_ = window()->findChild<ColumnList*>(list_name_);
        if (columns_) {
            columns_->installEventFilter(this);
            connect(columns_, &ColumnList::arranged, this, &ColumnRow::place_children);
            columns_->add_row(*this);
        }
    }
    return columns_;
}

void ColumnRow::place_children() {
    const ColumnList* list = find_list();
    if (list == nullptr) {
        return;
    }
    const int left = list->mapTo(window(), QPoint()).x() - mapTo(window(), QPoint()).x();
    for (QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const ColumnList::Span span = list->span(child->property(kColumn).toInt());
        const QVariant last = child->property(kLastColumn);
        const int right = last.isValid() ? list->span(last.toInt()).right : span.right;
        const int inset = inset_of(*child);
        const bool fills = child->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
        const int tall = fills ? height() : std::min(height(), child->sizeHint().height());
        child->setGeometry(left + span.left + inset, (height() - tall) / 2, right - span.left - 2 * inset,
                           tall);
    }
}

} // namespace quittika
