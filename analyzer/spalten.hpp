#pragma once

#include <string>
#include <string_view>

namespace quittika {

/// Columns of `List_rohdata`: what is kept of an invoice.
namespace rohdatum {
constexpr int kDatum = 0;
constexpr int kNummer = 1;
constexpr int kNummerzusatz = 2;
constexpr int kKundennummer = 3;
constexpr int kKundenname = 4;
constexpr int kVersendet = 5; ///< "JA" or "NEIN", as the two others
constexpr int kAbgemahnt = 6;
constexpr int kMahnstufe = 7; ///< "0" for an invoice without a dunning
constexpr int kBezahlt = 8;
constexpr int kNetto = 9;
constexpr int kMwSt = 10;
constexpr int kBrutto = 11;
constexpr int kNotiz = 12;
constexpr int kAnzahl = 13;
} // namespace rohdatum

inline constexpr const char* kJa = "JA";
inline constexpr const char* kNein = "NEIN";

/// A text as a column of a table, cut to its width with ".." at the end. Kinds: 0 and 5 left, 1 as "000" or
/// blanks, 2 and 4 right, 3 centred; empty for every other kind.
std::string SPALTE_FORMAT(int art, std::string_view text, std::size_t breite);

} // namespace quittika
