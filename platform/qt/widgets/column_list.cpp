#include "platform/qt/widgets/column_list.hpp"

#include "platform/qt/widgets/column_row.hpp"

#include <QEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QtMath>

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
        if (texts.isEmpty() && !list_.columns_in_text()) {
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
        if (list_.columns_in_text()) {
            painter->drawText(option.rect.adjusted(kPadding, 0, 0, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                              index.data().toString());
            return;
        }
        const qsizetype count = std::min(texts.size(), list_.columns_.size());
        for (int i = 0; i < count; ++i) {
            const QRect room = list_.cell(i, option.rect);
            const QString text =
                option.fontMetrics.elidedText(list_.cell_text(i, texts.at(i)), Qt::ElideRight, room.width());
            painter->drawText(room, static_cast<int>(list_.columns_.at(i).alignment), text);
        }
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        if (list_.columns_.isEmpty()) {
            return QStyledItemDelegate::sizeHint(option, index);
        }
        const int longest = list_.columns_in_text() ? index.data(kLongestRow).toInt() : 0;
        return {longest == 0 ? 0 : qCeil(list_.text_width(longest)) + 2 * kPadding, list_.row_height()};
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
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (columns_in_text()) {
            arrange(); // what stands over the columns goes along
        }
    });
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
        columns_.append({source, alignment_of(letter), letter == QLatin1Char('n'), letter == QLatin1Char('t'),
                         grows, form.mid(1).toInt()});
    }
    setHorizontalScrollBarPolicy(columns_in_text() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
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

qreal ColumnList::text_width(int characters) const {
    constexpr int kMany = 100; // characters, so that a fraction of a pixel counts
    return QFontMetricsF(font()).horizontalAdvance(QString(kMany, QLatin1Char('0'))) * characters / kMany;
}

void ColumnList::arrange() {
    spans_.clear();
    if (columns_in_text()) {
        arrange_text();
    } else {
        arrange_columns();
    }
    viewport()->update();
    emit arranged();
}

void ColumnList::arrange_text() {
    const int start = frameWidth() + kPadding - horizontalScrollBar()->value();
    int characters = 0;
    for (const Column& column : columns_) {
        const int left = start + qRound(text_width(characters));
        characters += column.characters;
        spans_.append({left - kPadding, start + qRound(text_width(characters)) + kPadding});
    }
}

void ColumnList::arrange_columns() {
    QList<int> widths;
    int spare = width() - chrome_width();
    int growing = 0;
    for (int i = 0; i < columns_.size(); ++i) {
        widths.append(needed_width(i));
        spare -= widths.last();
        growing += columns_.at(i).grows ? 1 : 0;
    }
    int left = frameWidth();
    for (int i = 0; i < columns_.size(); ++i) {
        const int share = columns_.at(i).grows ? std::max(spare, 0) / growing : 0;
        spare -= share;
        growing -= columns_.at(i).grows ? 1 : 0;
        const int right = left + widths.at(i) + share;
        spans_.append({left, right});
        left = right;
    }
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
    if (columns_in_text()) {
        const QString text = index.data().toString();
        const bool fits = text_width(static_cast<int>(text.size())) + 2 * kPadding <= viewport()->width();
        return fits ? longer : QStringList(text.simplified());
    }
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
    if (!columns_in_text()) {
        return minimumSizeHint();
    }
    int characters = 0;
    for (const Column& column : columns_) {
        characters += column.characters;
    }
    return {chrome_width() + qCeil(text_width(characters)) + 2 * kPadding, minimumSizeHint().height()};
}

QSize ColumnList::minimumSizeHint() const {
    constexpr int kFewestCharacters = 40; // the rest can be scrolled
    int width = chrome_width() + (columns_in_text() ? qCeil(text_width(kFewestCharacters)) : 0);
    for (int i = 0; i < columns_.size() && !columns_in_text(); ++i) {
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

void ColumnList::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    find_leader();
    follow();
}

void ColumnList::find_leader() {
    if (leader_ != nullptr || follows_.isEmpty()) {
        return;
    }
    leader_ = window()->findChild<ColumnList*>(follows_);
    if (leader_ != nullptr) {
        connect(leader_->verticalScrollBar(), &QScrollBar::valueChanged, this, &ColumnList::follow);
        connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &ColumnList::follow);
        connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int row) {
            if (!following_ && leader_ != nullptr && isVisible()) {
                leader_->verticalScrollBar()->setValue(row);
            }
        });
    }
}

void ColumnList::follow() {
    if (leader_ != nullptr) {
        const QScopedValueRollback<bool> here(following_, true);
        verticalScrollBar()->setValue(leader_->verticalScrollBar()->value());
    }
}

} // namespace quittika
