#pragma once

#include "platform/forms/controls.hpp"

#include <QAbstractListModel>

#include <utility>
#include <vector>

namespace quittika {

/// The items of a list box, read where they are. It knows of changes when it is told to reload; until then
/// a row that has gone is empty.
class ListModel final : public QAbstractListModel {
public:
    explicit ListModel(const ListBox& list) : list_(list) {}

    /// Lists in step with this one that hold the parts of its rows.
    void set_columns(std::vector<const ListBox*> columns) { columns_ = std::move(columns); }

    int rowCount(const QModelIndex& parent = {}) const override;
    /// One line of an item, cut where no screen would show it; with columns also its parts, and what a screen
    /// reader says of them.
    QVariant data(const QModelIndex& index, int role) const override;
    void reload();

private:
    QStringList parts(int row) const;

    const ListBox& list_;
    std::vector<const ListBox*> columns_;
    int rows_ = 0;
};

} // namespace quittika
