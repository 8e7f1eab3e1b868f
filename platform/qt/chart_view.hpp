#pragma once

#include "platform/qt/chart_drawing.hpp"
#include "platform/qt/widget_view.hpp"

#include <QChartView>

namespace quittika {

/// Shows a chart. A click marks a bar, the arrow keys go from one to the next, Escape takes the mark away; a
/// tool tip tells the amount under the mouse.
class ChartBarsView final : public TypedView<Chart, QChartView> {
public:
    ChartBarsView(Chart& control, QChartView& widget);

    void items_changed() override;

protected:
    void push(PropertyId id) override;
    void push_all() override { items_changed(); }
    bool key_pressed(const QKeyEvent& event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dress();
    /// Shows whether the keys mean this chart.
    void outline(bool focused);
    void take(int bar);
    void tell(bool inside, int bar);
    /// The bar with an amount that lies next in that direction, in another category one of another series if
    /// need be; -1 if there is none.
    int next_bar(int categories, int series) const;
    /// The bar with an amount in that category, of that series if there is one; -1 if there is none.
    int bar_in(int category, int series) const;

    ChartDrawing drawing_;
    bool dressing_ = false;
};

} // namespace quittika
