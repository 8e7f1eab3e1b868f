#pragma once

#include "platform/progress.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// A number as people write it: "2026-0042" is the 42nd of the series "2026".
struct Rechnungsnummer {
    std::string reihe;   ///< digits in front of the counting ones, parted by "-"
    std::int64_t zahl;   ///< that counts up
    std::string zusatz;  ///< letters behind it, small: "17a" is another number than "17"
    std::size_t stellen; ///< digits that the counting number is written with
};

/// Reads the number of an invoice from the title of the document and the field of the number, which together
/// are its number. Letters in front do not make another series, digits do: "RECHNUNG 2026-" and "0042".
/// Nothing where there is no number but 0, which stands for none.
std::optional<Rechnungsnummer> RECHNUNGSNUMMER_LESEN(std::string_view titel, std::string_view nummer);

/// What the check reads of an invoice.
struct Nummernzeile {
    std::string datei; ///< path below the folder
    std::string titel;
    std::string nummer;
    std::string datum;
    std::string kunde;
};

/// Numbers of a series that no invoice has.
struct Nummernluecke {
    std::string reihe;
    std::int64_t von;
    std::int64_t bis;
    std::size_t stellen;
};

/// A number that several invoices have.
struct Nummerndoppel {
    std::string nummer;
    std::vector<std::size_t> rechnungen; ///< indices of the lines
};

struct Nummernbefund {
    std::vector<Nummernluecke> luecken;
    std::vector<Nummerndoppel> doppelte;
    std::vector<std::size_t> ohne_nummer;
    std::optional<std::int64_t> hoechste;         ///< of the counter's series, which has no digits in front
    std::optional<std::size_t> naechste_vergeben; ///< an invoice that has the counter's next number already
};

/// `zaehler`: the next number to be given, where there is a counter.
Nummernbefund NUMMERN_PRUEFEN(const std::vector<Nummernzeile>& zeilen, std::optional<std::int64_t> zaehler);

/// "2026-0042", or "0042 bis 0045 (4 Nummern)" for several.
std::string LUECKENTEXT(const Nummernluecke& luecke);

/// All invoices of a folder.
struct Nummernliste {
    std::vector<Nummernzeile> zeilen;
    std::vector<std::string> unlesbar; ///< files, each with the reason
    bool abgebrochen = false;
};

/// Reads the `*.qk8` files of a folder, or of all folders below it, too, as far as they are needed.
/// `ohne`: a folder that is left out with all below it. Throws `Laufzeitfehler` for a folder that cannot be
/// read.
Nummernliste NUMMERN_EINLESEN(const std::string& ordner, bool mit_unterordnern, const std::string& ohne,
                              ProgressDisplay& fortschritt);

} // namespace quittika
