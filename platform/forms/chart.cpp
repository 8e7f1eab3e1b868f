#include "platform/forms/chart.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quittika {

void Chart::show(ChartContent content) {
    const auto complete = [&content](const ChartSeries& series) {
        return series.cents.size() == content.categories.size();
    };
    if (!std::all_of(content.series.begin(), content.series.end(), complete)) {
        throw Laufzeitfehler(fehler::kUngueltigerAufruf);
    }
    content_ = std::move(content);
    ListIndex.adopt(-1);
    notify_items();
}

int Chart::ListCount() const {
    return static_cast<int>(content_.categories.size() * content_.series.size());
}

ChartBar Chart::bar(int index) const {
    if (index < 0 || index >= ListCount()) {
        return {};
    }
    const int series = static_cast<int>(content_.series.size());
    return {index / series, index % series};
}

int Chart::index_of(const ChartBar& bar) const {
    return bar.category * static_cast<int>(content_.series.size()) + bar.series;
}

std::int64_t Chart::cents(int index) const {
    const ChartBar at = bar(index);
    return at.category < 0 ? 0
                           : content_.series[static_cast<std::size_t>(at.series)]
                                 .cents[static_cast<std::size_t>(at.category)];
}

std::string Chart::bar_text(int index) const {
    const ChartBar at = bar(index);
    return at.category < 0 ? std::string()
                           : content_.categories[static_cast<std::size_t>(at.category)] + ", " +
                                 content_.series[static_cast<std::size_t>(at.series)].name + ": " +
                                 cents_text(cents(index));
}

void Chart::check(PropertyId id, std::int64_t value) const {
    Control::check(id, value);
    if (id == PropertyId::ListIndex && (value < -1 || value >= ListCount())) {
        throw Laufzeitfehler(fehler::kEigenschaft);
    }
}

void Chart::fire_for(PropertyId id) {
    if (id == PropertyId::ListIndex) {
        Click();
    }
}

std::string cents_text(std::int64_t cents) {
    constexpr std::size_t kDecimals = 2;
    constexpr std::size_t kGroup = 3;
    std::string digits = std::to_string(cents);
    const std::string sign = cents < 0 ? "-" : "";
    digits.erase(0, sign.size());
    digits.insert(0, digits.size() <= kDecimals ? kDecimals + 1 - digits.size() : 0, '0');
    std::size_t mark = digits.size() - kDecimals;
    digits.insert(mark, 1, deutsch().decimal_mark);
    for (; mark > kGroup; mark -= kGroup) {
        digits.insert(mark - kGroup, 1, deutsch().thousands);
    }
    return sign + digits;
}

} // namespace quittika
