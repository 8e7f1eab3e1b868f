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
    /// Makes the widget's row the control's, with a click.
    void take(int row);
    int selected_row() const;
    void open_menu(const QContextMenuEvent& event);
    void pressed(const QMouseEvent& event);
    void released();
    /// A move of the mouse. Returns whether it is the beginning of a drag, or the drag itself, now over.
    bool drags(const QMouseEvent& event);
    void drag(int row, const std::string& text);

    ListModel model_;
    QMenu* menu_;
    bool dirty_ = false;
    bool pushing_ = false;
    bool mouse_down_ = false;
    bool dragged_ = false; ///< since the last press of a button
    int pressed_row_ = -1; ///< may be dragged
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
