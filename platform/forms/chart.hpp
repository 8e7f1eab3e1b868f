#pragma once

#include "platform/forms/control.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// What one colour of a chart stands for.
enum class ChartTone { Settled, Open };

/// One amount for each category; those of all series stand on each other.
struct ChartSeries {
    std::string name;
    ChartTone tone = ChartTone::Settled;
    std::vector<std::int64_t> cents;
};

struct ChartContent {
    std::vector<std::string> categories;
    std::vector<ChartSeries> series;
};

/// A part of a column: a series in a category.
struct ChartBar {
    int category = -1;
    int series = -1;
    bool operator==(const ChartBar&) const = default;
};

/// Stacked columns of amounts; its caption is the heading. The bars count from 0, all of the first category
/// before those of the second; at most one of them is marked. One without an amount cannot be seen.
class Chart final : public Control {
public:
    using Control::Control;
    std::string_view kind() const override { return "Chart"; }
    std::string main_value() const override { return bar_text(ListIndex()); }

    Property<int> ListIndex{*this, PropertyId::ListIndex, -1}; ///< marked bar, -1 for none

    const ChartContent& content() const { return content_; }
    /// Shows other amounts, nothing marked. Throws `Laufzeitfehler` 5 for a series that is not as long as the
    /// categories.
    void show(ChartContent content);
    /// Bars, those without an amount included.
    int ListCount() const;
    /// The bar of that index; -1 and -1 if there is none.
    ChartBar bar(int index) const;
    int index_of(const ChartBar& bar) const;
    /// Amount of a bar in cents, 0 if there is none.
    std::int64_t cents(int index) const;
    /// "11.2008, unbezahlt: 1.190,00"; empty if there is none.
    std::string bar_text(int index) const;

    /// A user's click beside the bars does nothing.
    void user_click() override {}
    /// A user's click on a bar marks it; the mark goes with the second one.
    void user_select(int index) { ListIndex = index == ListIndex() ? -1 : index; }

protected:
    void check(PropertyId id, std::int64_t value) const override;
    void fire_for(PropertyId id) override;

private:
    ChartContent content_;
};

/// Charts on one sheet, the first on top.
struct ChartSheet {
    std::string title;
    std::string remark; ///< beneath them; may be empty
    std::vector<const Chart*> charts;
};

/// "1.190,00"
std::string cents_text(std::int64_t cents);

} // namespace quittika
