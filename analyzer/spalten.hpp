#pragma once

#include <array>
#include <string>
#include <string_view>

namespace quittika {

/// Columns of `List_rohdata`: what is kept of an invoice.
namespace rohdatum {
constexpr std::size_t kDatum = 0;
constexpr std::size_t kNummer = 1;
constexpr std::size_t kNummerzusatz = 2;
constexpr std::size_t kKundennummer = 3;
constexpr std::size_t kKundenname = 4;
constexpr std::size_t kVersendet = 5; ///< "JA" or "NEIN", as the two others
constexpr std::size_t kAbgemahnt = 6;
constexpr std::size_t kMahnstufe = 7; ///< "0" for an invoice without a dunning
constexpr std::size_t kBezahlt = 8;
constexpr std::size_t kNetto = 9;
constexpr std::size_t kMwSt = 10;
constexpr std::size_t kBrutto = 11;
constexpr std::size_t kNotiz = 12;
constexpr std::size_t kAnzahl = 13;
} // namespace rohdatum

using Rohdaten = std::array<std::string, rohdatum::kAnzahl>;

inline constexpr const char* kJa = "JA";
inline constexpr const char* kNein = "NEIN";

/// A text as a column of a table, cut to its width with ".." at the end. Kinds: 0 and 5 left, 1 as "000" or
/// blanks, 2 and 4 right, 3 centred; empty for every other kind.
std::string SPALTE_FORMAT(int art, std::string_view text, std::size_t breite);

/// The invoice as a row of the table.
std::string TABELLENZEILE(const Rohdaten& werte);

/// The heads over the table's columns.
extern const std::array<const char*, 2> kTabellenkopf;

} // namespace quittika
