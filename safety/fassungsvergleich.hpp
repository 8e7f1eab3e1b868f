#pragma once

#include "invoice/form1.hpp"

#include <string>
#include <vector>

namespace quittika {

/// A line of the comparison of two invoices.
struct Vergleichszeile {
    enum class Art : std::uint8_t { Gleich, NurFrueher, NurJetzt };
    Art art = Art::Gleich;
    std::string menge;
    std::string leistung;
    std::string preis;
    std::string gesamt;
    bool operator==(const Vergleichszeile&) const = default;
};

/// The rows of both in their order, those that are the same once, and the totals behind them: which of them
/// only the earlier one has, which only the present one.
std::vector<Vergleichszeile> FASSUNGEN_VERGLEICHEN(const Form1& frueher, const Form1& jetzt);

} // namespace quittika
