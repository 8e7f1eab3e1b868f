#pragma once

#include "invoice/form1.hpp"
#include "platform/printing.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace quittika {

/// How many characters of `text` fit into `breite` mm.
std::size_t PASSENDE_ZEICHEN(const FontMetrics& metrics, const PrintFont& schrift, std::string_view text,
                             double breite);

/// The column of the descriptions on paper. A row prints on one line, so a long description runs into the
/// price.
class Leistungsspalte {
public:
    Leistungsspalte(const Form1& form1, const frm_einstellungen& einstellungen,
                    const PROGRAMMEINSTELLUNG& programm, const FontMetrics& metrics)
        : form1_(form1), einstellungen_(einstellungen), programm_(programm), metrics_(metrics) {}

    /// For the status bar: that the description of row `zeile` is too long, and how much of it fits; empty
    /// where it fits.
    std::string HINWEIS(int zeile) const;

private:
    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
    const FontMetrics& metrics_;
};

} // namespace quittika
