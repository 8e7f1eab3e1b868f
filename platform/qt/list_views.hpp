#pragma once

#include "platform/qt/list_model.hpp"
#include "platform/qt/widget_view.hpp"

#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <QPoint>

#include <string>

class QContextMenuEvent;
class QMouseEvent;

namespace quittika {

/// Any number of changes of the items reaches the widget at once, before it is painted again.
/// A menu that the list has for a child is the menu of its rows.
class ListBoxView final : public TypedView<ListBox, QListView> {
public:
    ListBoxView(ListBox& control, QListView& widget);

    void items_changed() override;

protected:
    void push(PropertyId id) override;
    void push_all() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void reload();
    void push_index();
    /// Selects an item of the control, with a click.
    void take(int item);
    /// The item in the widget's row of that place, -1 if there is none.
    int item_at(const QModelIndex& place) const { return control_.item_in(place.row()); }
    int selected_item() const;
    QModelIndex place_of(int item) const;
    void open_menu(const QContextMenuEvent& event);
    void pressed(const QMouseEvent& event);
    void released();
    /// A move of the mouse. Returns whether it is the beginning of a drag, or the drag itself, now over.
    bool drags(const QMouseEvent& event);
    void drag(int item, const std::string& text);

    ListModel model_;
    QMenu* menu_;
    bool dirty_ = false;
    bool pushing_ = false;
    bool mouse_down_ = false;
    bool dragged_ = false;  ///< since the last press of a button
    int pressed_item_ = -1; ///< may be dragged
    QPoint pressed_at_;
};

class ComboBoxView final : public TypedView<ComboBox, QComboBox> {
public:
    ComboBoxView(ComboBox& control, QComboBox& widget);

    void items_changed() override;

protected:
    void push(PropertyId id) override;
    void push_all() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void reload();
    void push_choice();

    bool dirty_ = false;
    bool pushing_ = false;
};

} // namespace quittika
