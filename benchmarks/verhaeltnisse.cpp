#include "benchmarks/verhaeltnisse.hpp"

#include <cstdio>
#include <ostream>

namespace quittika {

void Verhaeltnistabelle::ReportRuns(const std::vector<Run>& laeufe) {
    ConsoleReporter::ReportRuns(laeufe);
    for (const Run& lauf : laeufe) {
        if (lauf.run_type == Run::RT_Aggregate && lauf.aggregate_name == "median") {
            zeiten_[lauf.run_name.function_name] =
                lauf.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(lauf.time_unit);
        }
    }
}

void Verhaeltnistabelle::drucken(std::ostream& aus, const std::vector<Vergleich>& vergleiche) const {
    constexpr double kMillisekunden = 1000;
    char zeile[256];
    std::snprintf(zeile, sizeof zeile, "\n%-58s %12s %12s %8s %8s\n", "", "measured ms", "baseline ms",
                  "ratio", "aim");
    aus << zeile;
    for (const Vergleich& v : vergleiche) {
        const auto gemessen = zeiten_.find(v.gemessen);
        const auto grundlage = zeiten_.find(v.grundlage);
        if (gemessen == zeiten_.end()) {
            continue;
        }
        const double ms = gemessen->second * kMillisekunden;
        if (grundlage == zeiten_.end()) {
            std::snprintf(zeile, sizeof zeile, "%-58s %12.3f %12s %8s %5.0f ms\n", v.was, ms, "", "",
                          v.grenze);
        } else {
            const double basis = grundlage->second * kMillisekunden;
            std::snprintf(zeile, sizeof zeile, "%-58s %12.3f %12.3f %8.2f %8.1f\n", v.was, ms, basis,
                          ms / basis, v.grenze);
        }
        aus << zeile;
    }
}

} // namespace quittika
