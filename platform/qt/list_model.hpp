#pragma once

#include "platform/forms/controls.hpp"

#include <QAbstractListModel>

#include <utility>
#include <vector>

namespace quittika {

/// The items of a list box that are shown, read where they are. It knows of changes when it is told to
/// reload; until then a row that has gone is empty.
class ListModel final : public QAbstractListModel {
public:
    explicit ListModel(const ListBox& list) : list_(list) {}

    /// Lists in step with this one that hold the parts of its rows.
    void set_columns(std::vector<const ListBox*> columns) { columns_ = std::move(columns); }
    /// What parts the text of a row into at most so many columns; the last one takes all that is left.
    void set_separator(const QString& separator, qsizetype columns) {
        separator_ = separator;
        most_parts_ = columns;
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    /// One line of an item, cut where no screen would show it; with columns also its parts, and what a screen
    /// reader says of them.
    QVariant data(const QModelIndex& index, int role) const override;
    void reload();

private:
    QStringList parts(int item) const;
    QStringList separated(int item) const;

    const ListBox& list_;
    std::vector<const ListBox*> columns_;
    QString separator_;
    qsizetype most_parts_ = 0;
    int rows_ = 0;
    int longest_ = 0; ///< characters of the longest row
};

} // namespace quittika
