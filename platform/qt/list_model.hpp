#pragma once

#include "platform/forms/controls.hpp"

#include <QAbstractListModel>

namespace quittika {

/// The items of a list box, read where they are. It knows of changes when it is told to reload; until then
/// a row that has gone is empty.
class ListModel final : public QAbstractListModel {
public:
    explicit ListModel(const ListBox& list) : list_(list) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    /// One line of an item, cut where no screen would show it.
    QVariant data(const QModelIndex& index, int role) const override;
    void reload();

private:
    const ListBox& list_;
    int rows_ = 0;
};

} // namespace quittika
