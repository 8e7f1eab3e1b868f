#include "platform/qt/list_model.hpp"

#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/column_list.hpp"

#include <string_view>

namespace quittika {

namespace {

QString line_of(std::string_view item) {
    constexpr int kShown = 1000;         // characters
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
        return line_of(list_.List(index.row()));
    case ColumnList::kColumnTexts:
        return parts(index.row());
    case Qt::AccessibleTextRole: {
        QStringList said = parts(index.row());
        said.removeIf([](const QString& part) { return part.trimmed().isEmpty(); });
        return said.isEmpty() ? data(index, Qt::DisplayRole) : said.join(QLatin1String("; "));
    }
    default:
        return {};
    }
}

QStringList ListModel::parts(int row) const {
    QStringList parts;
    for (const ListBox* column : columns_) {
        parts.append(line_of(column->List(row)));
    }
    return parts;
}

void ListModel::reload() {
    beginResetModel();
    rows_ = list_.ListCount();
    endResetModel();
}

} // namespace quittika
