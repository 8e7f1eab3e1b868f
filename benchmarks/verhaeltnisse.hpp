#pragma once

#include <benchmark/benchmark.h>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace quittika {

/// What is compared: a measured benchmark against a baseline of the same run, or against a time.
struct Vergleich {
    const char* was;
    const char* gemessen;  ///< name of the benchmark
    const char* grundlage; ///< name of the baseline; empty: `grenze` is a time in ms
    double grenze;         ///< highest ratio aimed at, or ms
};

/// Keeps the median time of each benchmark and prints the table of ratios at the end.
class Verhaeltnistabelle : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& laeufe) override;
    void drucken(std::ostream& aus, const std::vector<Vergleich>& vergleiche) const;

private:
    std::map<std::string, double> zeiten_; ///< seconds
};

} // namespace quittika
