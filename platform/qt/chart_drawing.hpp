#pragma once

#include "platform/forms/chart.hpp"

#include <QColor>
#include <QFont>
#include <QList>

#include <string>

class QBarSet;
class QChart;
class QGraphicsSimpleTextItem;
class QStackedBarSeries;

namespace quittika {

/// Draws a chart with the toolkit's own. What the bars stand for is told by colours that differ in brightness
/// and by a hatching, so that everybody can tell them apart, on paper, too.
class ChartDrawing {
public:
    /// Whoever shows `drawing` takes care of it; it must outlive this.
    ChartDrawing(const Chart& chart, QChart& drawing);

    /// Draws the present amounts.
    void fill();
    void dress(const QFont& font, const QColor& text, const QColor& ground);
    /// Shows which bar is marked.
    void mark();
    /// Names as many categories as there is room for.
    void name_categories();
    /// What the mouse is told of; null before the first `fill`.
    QStackedBarSeries* bars() const { return bars_; }
    /// Index of a bar.
    int index_of(const QBarSet& set, int category) const;

private:
    void clear();
    void add_axes();
    void dress_bars() const;
    /// In pixels, with the gap to the next one.
    double widest_name() const;
    /// The font in which each category can be named, if it needs not be too small; else the chart's own.
    QFont name_font(double room) const;
    /// Puts a name beneath the columns, its words one below the other.
    void add_name(const std::string& category, const QFont& font, double middle);

    const Chart& chart_;
    QChart& drawing_;
    QStackedBarSeries* bars_ = nullptr;
    QList<QGraphicsSimpleTextItem*> names_; ///< of the categories
    QFont font_;
    QColor text_;
    QColor ground_;
};

} // namespace quittika
