#pragma once

#include "platform/print_surface.hpp"

#include <functional>
#include <string>
#include <string_view>

namespace quittika {

/// What helps against texts of an invoice printed one over the other.
inline constexpr const char* kAusweg =
    "bitte Text kürzen, kleinere Schrift wählen oder eine Seite früher umbrechen.";

/// What is not on the sheets as it should be; empty where all is right.
struct Zeichenbefund {
    std::string fehlendes_bild; ///< the first picture that could not be drawn
    std::string ueberdruck;     ///< the first texts one over the other, as a sentence
    bool code_fehlt = false;    ///< there was no room for the GiroCode

    /// All as sentences; `getan` says what was done with the document: "gedruckt".
    std::string hinweis(const std::string& getan) const;
};

/// Draws a document on a device that was made for it. A drawing that fails skips only itself. Throws what the
/// page feed and the end of the document throw. `ausweg`: what helps against texts one over the other.
Zeichenbefund AUSGEBEN(PrintDevice& ziel, const PrintDocument& dokument, const FontMetrics& metrics,
                       std::string_view ausweg, const std::function<void(PrintSurface& surface)>& zeichnung);

} // namespace quittika
