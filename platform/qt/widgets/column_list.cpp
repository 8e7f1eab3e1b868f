#include "platform/qt/widgets/column_list.hpp"

#include <QFontMetricsF>
#include <QScrollBar>
#include <QStyle>

namespace quittika {

namespace {

constexpr double kSmallestFont = 8.5;
constexpr double kLargestFont = 15.0;
constexpr double kFontStep = 0.5;
constexpr int kFewestRows = 6;

QFont fixed_pitch(double points) {
    QFont font;
    font.setFamilies(
        {QStringLiteral("Liberation Mono"), QStringLiteral("Courier New"), QStringLiteral("monospace")});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSizeF(points);
    return font;
}

double character_width(const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(QString(100, QLatin1Char('0'))) / 100.0;
}

} // namespace

ColumnList::ColumnList(QWidget* parent) : QListView(parent) {
    setFont(fixed_pitch(kSmallestFont));
    setUniformItemSizes(true);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers);
}

void ColumnList::setColumns(int columns) {
    columns_ = columns;
    fit_font();
    updateGeometry();
}

double ColumnList::text_left() const {
    return frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
}

double ColumnList::column_width() const {
    return character_width(font());
}

int ColumnList::chrome_width() const {
    return qCeil(2 * text_left()) +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
}

QSize ColumnList::sizeHint() const {
    return minimumSizeHint();
}

QSize ColumnList::minimumSizeHint() const {
    const QFont smallest = fixed_pitch(kSmallestFont);
    const int row = qCeil(QFontMetricsF(smallest).height()) + 1;
    return {qCeil(columns_ * character_width(smallest)) + chrome_width(),
            kFewestRows * row + 2 * frameWidth()};
}

void ColumnList::fit_font() {
    const double room = (width() - chrome_width()) / static_cast<double>(columns_);
    double points = kLargestFont;
    while (points > kSmallestFont && character_width(fixed_pitch(points)) > room) {
        points -= kFontStep;
    }
    if (points != font().pointSizeF()) {
        setFont(fixed_pitch(points));
    }
}

void ColumnList::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    fit_font();
}

} // namespace quittika
