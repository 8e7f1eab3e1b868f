#include "platform/qt/list_views.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/column_list.hpp"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QEvent>
#include <QItemSelectionModel>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>

#include <memory>
#include <utility>
#include <vector>

namespace quittika {

namespace {

/// The form's lists of these names; none if one of them is missing.
std::vector<const ListBox*> lists_of(const Form& form, const QStringList& names) {
    std::vector<const ListBox*> lists;
    for (const QString& name : names) {
        const auto* list = dynamic_cast<const ListBox*>(form.find(from_qt(name)));
        if (list == nullptr) {
            return {};
        }
        lists.push_back(list);
    }
    return lists;
}

} // namespace

ListBoxView::ListBoxView(ListBox& control, QListView& widget)
    : TypedView(control, widget),
      model_(control),
      menu_(widget.findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (const auto* in_columns = qobject_cast<ColumnList*>(&widget)) {
        model_.set_columns(lists_of(control.form(), in_columns->sources()));
        model_.set_separator(in_columns->separator(), in_columns->sources().size());
    }
    widget.setUniformItemSizes(true);
    widget.setSelectionMode(QAbstractItemView::SingleSelection);
    widget.setEditTriggers(QAbstractItemView::NoEditTriggers);
    const std::unique_ptr<QItemSelectionModel> former(widget.selectionModel());
    widget.setModel(&model_);
    connect(widget.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const int item = selected_item();
        if (!pushing_ && !mouse_down_ && item >= 0) {
            take(item);
        }
    });
    connect(&widget, &QListView::clicked, this, [this](const QModelIndex& index) { take(item_at(index)); });
    connect(&widget, &QListView::doubleClicked, this, [this] {
        if (control_.DblClick) {
            guarded(control_.form(), [this] { control_.DblClick(); });
        }
    });
}

int ListBoxView::selected_item() const {
    const QModelIndexList rows = widget_.selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : item_at(rows.front());
}

QModelIndex ListBoxView::place_of(int item) const {
    return model_.index(control_.row_of(item));
}

void ListBoxView::take(int item) {
    reload();
    if (control_.row_of(item) >= 0) {
        guarded(control_.form(), [this, item] { control_.user_select(item); });
    }
    push_index();
}

void ListBoxView::open_menu(const QContextMenuEvent& event) {
    const bool by_mouse = event.reason() == QContextMenuEvent::Mouse;
    const QModelIndex row = by_mouse ? widget_.indexAt(event.pos()) : place_of(control_.ListIndex());
    if (!row.isValid()) {
        return;
    }
    mouse_down_ = false; // its release goes to the menu
    if (item_at(row) != control_.ListIndex()) {
        take(item_at(row));
    }
    menu_->popup(by_mouse ? event.globalPos()
                          : widget_.viewport()->mapToGlobal(widget_.visualRect(row).bottomLeft()));
}

bool ListBoxView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu && menu_ != nullptr) {
        open_menu(static_cast<QContextMenuEvent&>(*event));
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        pressed(static_cast<QMouseEvent&>(*event));
    } else if (event->type() == QEvent::MouseMove && drags(static_cast<QMouseEvent&>(*event))) {
        return true;
    } else if (event->type() == QEvent::MouseButtonRelease) {
        if (std::exchange(dragged_, false)) {
            return true;
        }
        released();
    }
    return WidgetView::eventFilter(watched, event);
}

// While the button is down the selection follows the mouse; the row chosen is the one at its release.
void ListBoxView::pressed(const QMouseEvent& event) {
    mouse_down_ = true;
    dragged_ = false;
    pressed_at_ = event.position().toPoint();
    const bool may_be_dragged = control_.DragText && event.button() == Qt::LeftButton;
    pressed_item_ = may_be_dragged ? item_at(widget_.indexAt(pressed_at_)) : -1;
}

void ListBoxView::released() {
    mouse_down_ = false;
    pressed_item_ = -1;
    QMetaObject::invokeMethod(
        this,
        [this] {
            const int item = selected_item();
            if (item >= 0 && item != control_.ListIndex()) {
                take(item);
            } else {
                push_index(); // a click beside the rows chooses nothing else
            }
        },
        Qt::QueuedConnection);
}

bool ListBoxView::drags(const QMouseEvent& event) {
    if (pressed_item_ < 0 || !event.buttons().testFlag(Qt::LeftButton)) {
        return false;
    }
    const QPoint way = event.position().toPoint() - pressed_at_;
    if (way.manhattanLength() >= QApplication::startDragDistance()) {
        const int item = std::exchange(pressed_item_, -1);
        std::string text;
        guarded(control_.form(), [&] { text = control_.DragText(item); });
        if (text.empty()) {
            return false;
        }
        drag(item, text);
    }
    return true;
}

void ListBoxView::drag(int item, const std::string& text) {
    const Activity::Hold here(control_.form().activity()); // until the drop has been heard
    mouse_down_ = false;
    dragged_ = true; // the drag gets the release
    if (item != control_.ListIndex()) {
        take(item);
    }
    if (!QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        return; // the click has led to a box, which got it
    }
    auto* data = new QMimeData;
    data->setText(lines_to_qt(text));
    auto* drag = new QDrag(&widget_);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction);
}

void ListBoxView::push_all() {
    dirty_ = true;
    reload();
}

void ListBoxView::items_changed() {
    if (!dirty_) {
        dirty_ = true;
        QMetaObject::invokeMethod(
            this, [this] { reload(); }, Qt::QueuedConnection);
    }
}

void ListBoxView::reload() {
    if (!dirty_) {
        return;
    }
    dirty_ = false;
    const Pushing here(pushing_);
    const int first = widget_.verticalScrollBar()->value();
    const int left = widget_.horizontalScrollBar()->value();
    const int former = item_at(widget_.currentIndex());
    model_.reload();
    if (widget_.isVisible()) {
        // The scroll bars learn their new range with the layout.
        static_cast<QAbstractItemView&>(widget_).doItemsLayout();
        widget_.verticalScrollBar()->setValue(first);
        widget_.horizontalScrollBar()->setValue(left);
    }
    const bool same = former == control_.ListIndex();
    widget_.setAutoScroll(!same);
    push_index();
    widget_.setAutoScroll(true);
}

void ListBoxView::push(PropertyId id) {
    if (id == PropertyId::ListIndex) {
        push_index();
    }
}

void ListBoxView::push_index() {
    const QModelIndex index = dirty_ ? QModelIndex() : place_of(control_.ListIndex());
    if (dirty_ || selected_item() == item_at(index)) {
        return;
    }
    const Pushing here(pushing_);
    if (!index.isValid()) {
        widget_.selectionModel()->clear();
        return;
    }
    widget_.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (widget_.hasAutoScroll()) {
        widget_.scrollTo(index);
    }
}

ComboBoxView::ComboBoxView(ComboBox& control, QComboBox& widget) : TypedView(control, widget) {
    widget.setEditable(control.editable());
    widget.setInsertPolicy(QComboBox::NoInsert);
    connect(&widget, &QComboBox::activated, this, [this](int row) {
        if (row < control_.ListCount()) {
            guarded(control_.form(), [this, row] { control_.user_select(row); });
        }
        push_choice();
    });
    connect(&widget, &QComboBox::editTextChanged, this, [this](const QString& text) {
        if (!pushing_) {
            guarded(control_.form(), [&] { control_.Text = from_qt(text); });
        }
    });
}

bool ComboBoxView::eventFilter(QObject* watched, QEvent* event) {
    return passes_by(*event, widget_) || WidgetView::eventFilter(watched, event);
}

void ComboBoxView::push_all() {
    dirty_ = true;
    reload();
}

void ComboBoxView::items_changed() {
    if (!dirty_) {
        dirty_ = true;
        QMetaObject::invokeMethod(
            this, [this] { reload(); }, Qt::QueuedConnection);
    }
}

void ComboBoxView::reload() {
    if (!dirty_) {
        return;
    }
    dirty_ = false;
    const Pushing here(pushing_);
    widget_.clear();
    QStringList items;
    for (const std::string& item : control_.items()) {
        items.append(to_qt(item));
    }
    widget_.addItems(items);
    push_choice();
}

void ComboBoxView::push(PropertyId id) {
    if (!dirty_ && (id == PropertyId::ListIndex || id == PropertyId::Text)) {
        push_choice();
    }
}

void ComboBoxView::push_choice() {
    const Pushing here(pushing_);
    const QString text = to_qt(control_.Text());
    if (widget_.isEditable()) {
        if (widget_.currentIndex() != control_.ListIndex()) {
            widget_.setCurrentIndex(control_.ListIndex());
        }
        if (widget_.currentText() != text) {
            widget_.setEditText(text);
        }
        return;
    }
    // A text that is none of the items shows where no item is chosen.
    widget_.setPlaceholderText(control_.ListIndex() < 0 ? text : QString());
    widget_.setCurrentIndex(control_.ListIndex());
}

} // namespace quittika
