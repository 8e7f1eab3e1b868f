#include "platform/qt/list_model.hpp"

#include "platform/qt/qt_text.hpp"

#include <string_view>

namespace quittika {

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    constexpr int kShown = 1000;         // characters
    constexpr std::size_t kBytes = 4000; // enough for them in any case
    QString text = to_qt(std::string_view(list_.List(index.row())).substr(0, kBytes)).left(kShown);
    for (QChar& character : text) {
        if (character == QLatin1Char('\r') || character == QLatin1Char('\n') ||
            character == QLatin1Char('\t')) {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

void ListModel::reload() {
    beginResetModel();
    rows_ = list_.ListCount();
    endResetModel();
}

} // namespace quittika
