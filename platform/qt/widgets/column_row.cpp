#include "platform/qt/widgets/column_row.hpp"

#include "platform/qt/widgets/column_list.hpp"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVariant>

#include <algorithm>

namespace quittika {

namespace {

constexpr const char* kColumn = "column";

/// Space that a child leaves at the edges of its column; a field has a frame of its own.
int inset_of(const QWidget& child) {
    return qobject_cast<const QLabel*>(&child) != nullptr ? ColumnList::kPadding : 1;
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
        const int inset = inset_of(*child);
        const int tall = std::min(height(), child->sizeHint().height());
        child->setGeometry(left + span.left + inset, (height() - tall) / 2,
                           span.right - span.left - 2 * inset, tall);
    }
}

} // namespace quittika
