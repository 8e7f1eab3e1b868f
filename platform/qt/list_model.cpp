#include "platform/qt/list_model.hpp"

#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/column_list.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <string_view>

namespace quittika {

namespace {

constexpr int kShown = 1000; ///< characters of a row

QString line_of(std::string_view item) {
    constexpr std::size_t kBytes = 4000; // enough for them in any case
    QString text = to_qt(item.substr(0, kBytes)).left(kShown);
    for (QChar& character : text) {
        if (character == QLatin1Char('\r') || character == QLatin1Char('\n') ||
            character == QLatin1Char('\t')) {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

} // namespace

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return line_of(list_.List(list_.item_in(index.row())));
    case ColumnList::kColumnTexts:
        return parts(list_.item_in(index.row()));
    case ColumnList::kLongestRow:
        return longest_;
    case Qt::AccessibleTextRole: {
        QStringList said = parts(list_.item_in(index.row()));
        said.removeIf([](const QString& part) { return part.trimmed().isEmpty(); });
        return said.isEmpty() ? data(index, Qt::DisplayRole) : said.join(QLatin1String("; "));
    }
    default:
        return {};
    }
}

QStringList ListModel::separated(int item) const {
    QStringList parts = line_of(list_.List(item)).split(separator_);
    if (parts.size() > 1 && parts.back().isEmpty()) {
        parts.removeLast(); // it stands behind the last part, too
    }
    while (parts.size() > most_parts_ && parts.size() > 1) {
        const QString last = parts.takeLast();
        parts.back() += separator_ + last;
    }
    return parts;
}

QStringList ListModel::parts(int item) const {
    if (!separator_.isEmpty()) {
        return separated(item);
    }
    QStringList parts;
    for (const ListBox* column : columns_) {
        parts.append(line_of(column->List(item)));
    }
    return parts;
}

void ListModel::reload() {
    beginResetModel();
    rows_ = list_.shown_count();
    std::size_t longest = 0;
    for (const std::string& item : list_.items()) {
        if (item.size() > longest) { // bytes are never fewer than characters
            longest = std::max(longest, zeichenzahl(item));
        }
    }
    longest_ = static_cast<int>(std::min<std::size_t>(longest, kShown));
    endResetModel();
}

} // namespace quittika
