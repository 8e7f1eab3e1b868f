#include "platform/qt/chart_view.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QBarSet>
#include <QChart>
#include <QKeyEvent>
#include <QPainter>
#include <QPen>
#include <QStackedBarSeries>
#include <QToolTip>

#include <array>
#include <utility>

namespace quittika {

namespace {

struct Way {
    int key;
    int categories;
    int series;
};

constexpr std::array<Way, 4> kWays{
    {{Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, 1}, {Qt::Key_Down, 0, -1}}};

} // namespace

ChartBarsView::ChartBarsView(Chart& control, QChartView& widget)
    : TypedView(control, widget), drawing_(control, *widget.chart()) {
    widget.setRenderHint(QPainter::Antialiasing);
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.setAccessibleName(to_qt(control.Caption()));
    connect(widget.chart(), &QChart::plotAreaChanged, this, [this] { drawing_.name_categories(); });
}

void ChartBarsView::items_changed() {
    drawing_.fill();
    dress();
    connect(drawing_.bars(), &QAbstractBarSeries::clicked, this,
            [this](int category, const QBarSet* set) { take(drawing_.index_of(*set, category)); });
    connect(drawing_.bars(), &QAbstractBarSeries::hovered, this,
            [this](bool inside, int category, const QBarSet* set) {
                tell(inside, drawing_.index_of(*set, category));
            });
}

void ChartBarsView::dress() {
    const Pushing here(dressing_);
    const QPalette& palette = widget_.palette();
    // The ground of lists: the bars would not stand out from every colour that a window may have.
    widget_.setBackgroundBrush(palette.color(QPalette::Base));
    drawing_.dress(widget_.font(), palette.color(QPalette::Text), palette.color(QPalette::Base));
}

void ChartBarsView::outline(bool focused) {
    constexpr int kRound = 3; // pixels
    QChart& chart = *widget_.chart();
    chart.setBackgroundBrush(Qt::NoBrush);
    chart.setBackgroundPen(QPen(theme::focus_color(widget_.palette().color(QPalette::Base)), 2));
    chart.setBackgroundRoundness(kRound);
    chart.setBackgroundVisible(focused);
}

void ChartBarsView::push(PropertyId id) {
    if (id == PropertyId::Caption) {
        widget_.chart()->setTitle(to_qt(control_.Caption()).toHtmlEscaped());
        widget_.setAccessibleName(to_qt(control_.Caption()));
    } else if (id == PropertyId::ListIndex) {
        drawing_.mark();
        widget_.setAccessibleDescription(to_qt(control_.bar_text(control_.ListIndex())));
    }
}

void ChartBarsView::take(int bar) {
    guarded(control_.form(), [this, bar] { control_.user_select(bar); });
}

void ChartBarsView::tell(bool inside, int bar) {
    QToolTip::showText(QCursor::pos(), inside ? tool_tip(control_.bar_text(bar)) : QString(), &widget_);
}

int ChartBarsView::bar_in(int category, int series) const {
    const int wanted = control_.index_of({category, series});
    if (control_.cents(wanted) != 0) {
        return wanted;
    }
    const auto count = static_cast<int>(control_.content().series.size());
    for (int bar = category * count; bar < (category + 1) * count; ++bar) {
        if (control_.cents(bar) != 0) {
            return bar;
        }
    }
    return -1;
}

int ChartBarsView::next_bar(int categories, int series) const {
    const auto category_count = static_cast<int>(control_.content().categories.size());
    const auto series_count = static_cast<int>(control_.content().series.size());
    ChartBar at = control_.bar(control_.ListIndex());
    if (at.category < 0) { // nothing is marked yet: the first one, or the last
        at = {categories < 0 ? category_count : -1, 0};
        categories = categories < 0 ? -1 : 1;
        series = 0;
    }
    for (;;) {
        at = {at.category + categories, at.series + series};
        if (at.category < 0 || at.category >= category_count || at.series < 0 || at.series >= series_count) {
            return -1;
        }
        const int bar = categories != 0 ? bar_in(at.category, at.series) : control_.index_of(at);
        if (control_.cents(bar) != 0) {
            return bar;
        }
    }
}

bool ChartBarsView::key_pressed(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape && control_.ListIndex() >= 0) {
        guarded(control_.form(), [this] { control_.ListIndex = -1; });
        return true;
    }
    for (const Way& way : kWays) {
        if (event.key() == way.key) {
            const int bar = next_bar(way.categories, way.series);
            if (bar >= 0) {
                guarded(control_.form(), [this, bar] { control_.ListIndex = bar; });
            }
            return true;
        }
    }
    return false;
}

bool ChartBarsView::eventFilter(QObject* watched, QEvent* event) {
    const bool other_look = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (watched == &widget_ && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        outline(event->type() == QEvent::FocusIn);
    }
    const bool handled = WidgetView::eventFilter(watched, event);
    if (other_look && watched == &widget_ && !dressing_) {
        dress();
    }
    return handled;
}

} // namespace quittika
