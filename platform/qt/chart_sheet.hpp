#pragma once

#include "platform/forms/chart.hpp"

#include <string>

namespace quittika {

/// As `Printing::save_charts`.
void save_charts(const ChartSheet& sheet, const std::string& path);

} // namespace quittika
