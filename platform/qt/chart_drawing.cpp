#include "platform/qt/chart_drawing.hpp"

#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/contrast.hpp"

#include <QBarSet>
#include <QChart>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGraphicsSimpleTextItem>
#include <QLegend>
#include <QLocale>
#include <QPen>
#include <QStackedBarSeries>
#include <QValueAxis>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quittika {

namespace {

constexpr double kCents = 100;
constexpr double kHalf = 0.5;
constexpr double kNameGap = 4; // pixels

struct Look {
    QColor fill;
    QColor edge;
    Qt::BrushStyle style;
};

Look look_of(ChartTone tone, bool dark_ground) {
    if (tone == ChartTone::Settled) {
        return dark_ground ? Look{QColor(86, 180, 233), QColor(86, 180, 233), Qt::SolidPattern}
                           : Look{QColor(0, 114, 178), QColor(0, 92, 144), Qt::SolidPattern};
    }
    return dark_ground ? Look{QColor(240, 170, 60), QColor(255, 196, 110), Qt::BDiagPattern}
                       : Look{QColor(213, 94, 0), QColor(168, 74, 0), Qt::BDiagPattern};
}

/// Lowest and highest end of the columns.
std::pair<double, double> bounds_of(const ChartContent& content) {
    std::pair<double, double> bounds{0, 0};
    for (std::size_t category = 0; category < content.categories.size(); ++category) {
        double below = 0;
        double above = 0;
        for (const ChartSeries& series : content.series) {
            const auto cents = static_cast<double>(series.cents[category]);
            (cents < 0 ? below : above) += cents / kCents;
        }
        bounds = {std::min(bounds.first, below), std::max(bounds.second, above)};
    }
    constexpr double kHeadroom = 1.03;
    return bounds.first == bounds.second
               ? std::pair<double, double>{0, 1}
               : std::pair<double, double>{bounds.first * kHeadroom, bounds.second * kHeadroom};
}

/// How many categories share a name, where one takes the room of `rooms` of them: a part of a year of months,
/// or years.
int step_for(double rooms) {
    constexpr std::array<int, 6> kSteps{1, 2, 3, 4, 6, 12};
    const auto found =
        std::find_if(kSteps.begin(), kSteps.end(), [rooms](int step) { return step >= rooms; });
    return found != kSteps.end() ? *found
                                 : kSteps.back() * static_cast<int>(std::ceil(rooms / kSteps.back()));
}

/// The words of a name, one below the other.
QStringList words_of(const std::string& category) {
    return to_qt(category).split(QLatin1Char(' '));
}

} // namespace

ChartDrawing::ChartDrawing(const Chart& chart, QChart& drawing) : chart_(chart), drawing_(drawing) {
    drawing.setLocale(QLocale(QLocale::German, QLocale::Germany));
    drawing.setLocalizeNumbers(true);
    drawing.setBackgroundVisible(false);
    drawing.setTitle(to_qt(chart.Caption()).toHtmlEscaped());
    drawing.legend()->setAlignment(Qt::AlignTop);
}

void ChartDrawing::clear() {
    drawing_.removeAllSeries();
    for (QAbstractAxis* axis : drawing_.axes()) {
        axis->hide(); // its parts outlive it until the event loop comes round
        drawing_.removeAxis(axis);
        delete axis;
    }
    bars_ = nullptr;
}

void ChartDrawing::fill() {
    clear();
    constexpr double kBarWidth = 0.7; // of the room
    bars_ = new QStackedBarSeries;
    bars_->setBarWidth(kBarWidth);
    for (const ChartSeries& series : chart_.content().series) {
        auto* set = new QBarSet(to_qt(series.name));
        for (const std::int64_t cents : series.cents) {
            set->append(static_cast<double>(cents) / kCents);
        }
        bars_->append(set);
    }
    drawing_.addSeries(bars_);
    add_axes();
    drawing_.legend()->setVisible(chart_.content().series.size() > 1);
    mark();
}

void ChartDrawing::add_axes() {
    auto* categories = new QValueAxis;
    categories->setRange(
        -kHalf, std::max<double>(static_cast<double>(chart_.content().categories.size()), 1) - kHalf);
    categories->setLabelsVisible(false);
    categories->setGridLineVisible(false);
    categories->setTickCount(2);
    auto* amounts = new QValueAxis;
    const auto [low, high] = bounds_of(chart_.content());
    amounts->setRange(low, high);
    amounts->applyNiceNumbers();
    constexpr double kSmall = 10;
    amounts->setLabelFormat(amounts->max() - amounts->min() < kSmall ? QStringLiteral("%.2f")
                                                                     : QStringLiteral("%.0f"));
    drawing_.addAxis(categories, Qt::AlignBottom);
    drawing_.addAxis(amounts, Qt::AlignLeft);
    bars_->attachAxis(categories);
    bars_->attachAxis(amounts);
}

void ChartDrawing::dress(const QFont& font, const QColor& text, const QColor& ground) {
    font_ = font;
    text_ = text;
    ground_ = ground;
    QFont bold = font;
    bold.setBold(true);
    drawing_.setTitleFont(bold);
    drawing_.setTitleBrush(text);
    drawing_.legend()->setFont(font);
    drawing_.legend()->setLabelColor(text);
    constexpr double kLine = 0.5; // share of the text's colour
    constexpr double kGrid = 0.2;
    for (QAbstractAxis* axis : drawing_.axes()) {
        axis->setLabelsFont(font);
        axis->setLabelsColor(text);
        axis->setLinePenColor(theme::soft(text, ground, kLine, 1));
        axis->setGridLineColor(theme::soft(text, ground, kGrid, 1));
    }
    constexpr int kMargin = 4;
    constexpr int kRight = 20; // half of a name may stand out there
    const int names = qRound(2 * QFontMetricsF(font).height() + kNameGap);
    drawing_.setMargins({kMargin, kMargin, kRight, names});
    dress_bars();
    name_categories();
}

void ChartDrawing::dress_bars() const {
    if (bars_ == nullptr) {
        return;
    }
    const bool dark_ground = theme::readable_on(ground_) == QColor(Qt::white);
    for (int i = 0; i < bars_->count(); ++i) {
        const ChartTone tone = chart_.content().series.at(static_cast<std::size_t>(i)).tone;
        const Look look = look_of(tone, dark_ground);
        QBarSet& set = *bars_->barSets().at(i);
        set.setBrush(QBrush(look.fill, look.style));
        set.setPen(QPen(look.edge, 1));
        set.setSelectedColor(text_);
    }
}

void ChartDrawing::mark() {
    const ChartBar marked = chart_.bar(chart_.ListIndex());
    for (int i = 0; bars_ != nullptr && i < bars_->count(); ++i) {
        QBarSet& set = *bars_->barSets().at(i);
        set.deselectAllBars();
        if (i == marked.series) {
            set.selectBar(marked.category);
        }
    }
}

// The toolkit's own names are shortened to the room of one category; these are as long as they are.
void ChartDrawing::name_categories() {
    qDeleteAll(names_);
    names_.clear();
    const auto& categories = chart_.content().categories;
    const auto count = static_cast<int>(categories.size());
    const QRectF plot = drawing_.plotArea();
    const double room = plot.width() / std::max(count, 1);
    const QFont font = name_font(room);
    const int step = font != font_ ? 1 : step_for(widest_name() / std::max(room, 1.0));
    for (int i = (count - 1) % step; i >= 0 && i < count; i += step) {
        add_name(categories[static_cast<std::size_t>(i)], font, plot.left() + (i + kHalf) * room);
    }
}

double ChartDrawing::widest_name() const {
    constexpr double kGap = 5; // pixels
    double widest = 0;
    for (const std::string& category : chart_.content().categories) {
        for (const QString& word : words_of(category)) {
            widest = std::max(widest, QFontMetricsF(font_).horizontalAdvance(word));
        }
    }
    return widest + kGap;
}

QFont ChartDrawing::name_font(double room) const {
    constexpr int kSmallest = 11; // pixels
    const int usual = QFontInfo(font_).pixelSize();
    const int fitting = static_cast<int>(usual * room / widest_name());
    QFont font = font_;
    if (fitting >= kSmallest && fitting < usual) {
        font.setPixelSize(fitting);
    }
    return font;
}

void ChartDrawing::add_name(const std::string& category, const QFont& font, double middle) {
    double top = drawing_.plotArea().bottom() + kNameGap;
    for (const QString& word : words_of(category)) {
        auto* name = new QGraphicsSimpleTextItem(word, &drawing_);
        name->setFont(font);
        name->setBrush(text_);
        name->setPos(middle - name->boundingRect().width() / 2, top);
        top += QFontMetricsF(font).height();
        names_.append(name);
    }
}

int ChartDrawing::index_of(const QBarSet& set, int category) const {
    const auto series = bars_->barSets().indexOf(const_cast<QBarSet*>(&set));
    return chart_.index_of({category, static_cast<int>(series)});
}

} // namespace quittika
