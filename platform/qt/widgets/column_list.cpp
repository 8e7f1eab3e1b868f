#include "platform/qt/widgets/column_list.hpp"

#include "platform/qt/widgets/column_row.hpp"

#include <QEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace quittika {

namespace {

constexpr int kFewestRows = 4;
constexpr int kRowGap = 3; ///< pixels between the texts of two rows

/// The size stays the window's.
QFont fixed_pitch() {
    QFont font;
    font.setFamilies(
        {QStringLiteral("Liberation Mono"), QStringLiteral("Courier New"), QStringLiteral("monospace")});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

Qt::Alignment alignment_of(QChar letter) {
    return Qt::AlignVCenter | (letter == QLatin1Char('r')   ? Qt::AlignRight
                               : letter == QLatin1Char('c') ? Qt::AlignHCenter
                                                            : Qt::AlignLeft);
}

} // namespace

/// Draws the ground as any list does, and each column in its place.
class ColumnList::Delegate final : public QStyledItemDelegate {
public:
    explicit Delegate(ColumnList& list) : QStyledItemDelegate(&list), list_(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& given,
               const QModelIndex& index) const override {
        const QStringList texts = index.data(kColumnTexts).toStringList();
        if (texts.isEmpty()) {
            QStyledItemDelegate::paint(painter, given, index);
            return;
        }
        QStyleOptionViewItem option(given);
        initStyleOption(&option, index);
        option.text.clear();
        list_.style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, &list_);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        painter->setFont(option.font);
        painter->setPen(option.palette.color(
            option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled,
            selected ? QPalette::HighlightedText : QPalette::Text));
        const qsizetype count = std::min(texts.size(), list_.columns_.size());
        for (int i = 0; i < count; ++i) {
            const QRect room = list_.cell(i, option.rect);
            const QString text =
                option.fontMetrics.elidedText(list_.cell_text(i, texts.at(i)), Qt::ElideRight, room.width());
            painter->drawText(room, static_cast<int>(list_.columns_.at(i).alignment), text);
        }
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return list_.columns_.isEmpty() ? QStyledItemDelegate::sizeHint(option, index)
                                        : QSize(0, list_.row_height());
    }

private:
    ColumnList& list_;
};

ColumnList::ColumnList(QWidget* parent) : QListView(parent) {
    setFont(fixed_pitch());
    setUniformItemSizes(true);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new Delegate(*this)); // its parent takes care of it
}

void ColumnList::setColumns(const QString& columns) {
    written_ = columns;
    columns_.clear();
    for (const QString& word : columns.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString source = word.section(QLatin1Char(':'), 0, 0);
        QString form = word.section(QLatin1Char(':'), 1);
        const bool grows = form.endsWith(QLatin1Char('+'));
        form.chop(grows ? 1 : 0);
        const QChar letter = form.isEmpty() ? QLatin1Char('l') : form.at(0);
        columns_.append(
            {source, alignment_of(letter), letter == QLatin1Char('n'), grows, form.mid(1).toInt()});
    }
    arrange();
    updateGeometry();
}

QStringList ColumnList::sources() const {
    QStringList names;
    for (const Column& column : columns_) {
        names.append(column.source);
    }
    return names;
}

ColumnList::Span ColumnList::span(int column) const {
    return spans_.value(column, Span{0, 0});
}

void ColumnList::add_row(ColumnRow& row) {
    rows_.append(&row);
    arrange();
    updateGeometry();
}

int ColumnList::needed_width(int column) const {
    const int text = columns_.at(column).characters * fontMetrics().horizontalAdvance(QLatin1Char('0'));
    int width = text + 2 * kPadding;
    for (const QPointer<ColumnRow>& row : rows_) {
        width = std::max(width, row != nullptr ? row->needed_width(column) : 0);
    }
    return width;
}

void ColumnList::arrange() {
    QList<int> widths;
    int spare = width() - chrome_width();
    for (int i = 0; i < columns_.size(); ++i) {
        widths.append(needed_width(i));
        spare -= widths.last();
    }
    spans_.clear();
    int left = frameWidth();
    for (int i = 0; i < columns_.size(); ++i) {
        const int right = left + widths.at(i) + (columns_.at(i).grows ? std::max(spare, 0) : 0);
        spans_.append({left, right});
        left = right;
    }
    viewport()->update();
    emit arranged();
}

int ColumnList::chrome_width() const {
    return 2 * frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
}

int ColumnList::row_height() const {
    return fontMetrics().height() + kRowGap;
}

QString ColumnList::cell_text(int column, const QString& text) const {
    const bool number = columns_.at(column).leading_zeros && !text.trimmed().isEmpty();
    return number ? text.rightJustified(columns_.at(column).characters, QLatin1Char('0')) : text;
}

QRect ColumnList::cell(int column, const QRect& row) const {
    const Span place = span(column);
    return {place.left - frameWidth() + kPadding, row.top(), place.right - place.left - 2 * kPadding,
            row.height()};
}

QStringList ColumnList::shortened(const QModelIndex& index) const {
    QStringList longer;
    const QStringList texts = index.data(kColumnTexts).toStringList();
    const qsizetype count = std::min(texts.size(), columns_.size());
    for (int i = 0; i < count; ++i) {
        if (fontMetrics().horizontalAdvance(cell_text(i, texts.at(i))) > cell(i, QRect()).width()) {
            longer.append(texts.at(i));
        }
    }
    return longer;
}

QSize ColumnList::sizeHint() const {
    return minimumSizeHint();
}

QSize ColumnList::minimumSizeHint() const {
    int width = chrome_width();
    for (int i = 0; i < columns_.size(); ++i) {
        width += needed_width(i);
    }
    return {width, kFewestRows * row_height() + 2 * frameWidth()};
}

bool ColumnList::event(QEvent* event) {
    const bool handled = QListView::event(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        arrange();
        updateGeometry();
    }
    return handled;
}

bool ColumnList::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const QStringList texts = shortened(indexAt(help.pos()));
        if (!texts.isEmpty()) {
            // Marked up, it is broken into lines.
            QToolTip::showText(help.globalPos(),
                               QStringLiteral("<p>%1</p>").arg(texts.join(QLatin1Char('\n')).toHtmlEscaped()),
                               viewport());
            return true;
        }
    }
    return QListView::viewportEvent(event);
}

void ColumnList::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    arrange();
}

} // namespace quittika
