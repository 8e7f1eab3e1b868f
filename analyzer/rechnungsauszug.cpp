#include "analyzer/rechnungsauszug.hpp"

#include "analyzer/betragssumme.hpp"
#include "invoice/file/dateifelder.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr std::string_view kMarke = kListenmarke;

namespace zeile {
constexpr int kNummer = 1;
constexpr int kDatum = 2;
constexpr int kKundenname = 3;
constexpr int kKundennummer = 7;
constexpr int kMwSt = 53;
constexpr int kBrutto = 54;
constexpr int kVersendet = 56;
constexpr int kBezahlt = 57;
constexpr int kAbgemahnt = 58;
} // namespace zeile

std::string JaNein(std::string_view text) {
    return nach_int16(text) == 0 ? kNein : kJa;
}

/// Both amounts together; the first one as it stands where the other is none, and `alte_version` then.
std::string MIT_VERSAND(std::string_view betrag, std::string_view versand, bool& alte_version) {
    Betragssumme summe;
    summe.dazu(aus_ansi(betrag));
    const auto gelesen = BETRAG_LESEN(aus_ansi(versand));
    if (!gelesen) {
        alte_version = true;
        return aus_ansi(betrag);
    }
    summe.dazu(*gelesen);
    return summe.text();
}

} // namespace

bool Rechnungszeilen::lesen(std::string_view bytes) {
    ZEILEN_.fill({});
    std::size_t nummer = 0;
    bool erste = true;
    while (!bytes.empty() && nummer < kAnzahl) {
        const std::size_t ende = bytes.find('\n');
        const bool ganz = ende != std::string_view::npos;
        std::string_view zeile = bytes.substr(0, ende);
        bytes.remove_prefix(ganz ? ende + 1 : bytes.size());
        if (ganz && !zeile.empty() && zeile.back() == '\r') {
            zeile.remove_suffix(1);
        }
        if (std::exchange(erste, false) && zeile != kDateikennung) {
            ++nummer;
        }
        if (zeile.substr(0, kMarke.size()) != kMarke) {
            ZEILEN_[nummer] = zeile;
        }
        nummer += ganz ? 1 : 0;
    }
    return nummer == kAnzahl;
}

Rechnungsauszug AUSZUG_LESEN(const Rechnungszeilen& ZEILEN) {
    Rechnungsauszug auszug;
    auto& werte = auszug.werte;
    werte[rohdatum::kDatum] = aus_ansi(ZEILEN[zeile::kDatum]);
    werte[rohdatum::kNummer] = aus_ansi(ZEILEN[zeile::kNummer]);
    werte[rohdatum::kNummerzusatz] = aus_ansi(ZEILEN[dateizeile::kNummer]);
    werte[rohdatum::kKundennummer] = aus_ansi(ZEILEN[zeile::kKundennummer]);
    werte[rohdatum::kKundenname] = aus_ansi(ZEILEN[zeile::kKundenname]);
    werte[rohdatum::kVersendet] = JaNein(ZEILEN[zeile::kVersendet]);
    werte[rohdatum::kAbgemahnt] = JaNein(ZEILEN[zeile::kAbgemahnt]);
    werte[rohdatum::kMahnstufe] =
        werte[rohdatum::kAbgemahnt] == kJa ? zahl_text(nach_double(ZEILEN[dateizeile::kMahnung])) : "0";
    werte[rohdatum::kBezahlt] = JaNein(ZEILEN[zeile::kBezahlt]);
    werte[rohdatum::kNetto] =
        MIT_VERSAND(ZEILEN[dateizeile::kNachRabatt], ZEILEN[dateizeile::kVersandNetto], auszug.alte_version);
    werte[rohdatum::kMwSt] =
        MIT_VERSAND(ZEILEN[zeile::kMwSt], ZEILEN[dateizeile::kVersandMwSt], auszug.alte_version);
    werte[rohdatum::kBrutto] = aus_ansi(ZEILEN[zeile::kBrutto]);
    if (!BETRAG_LESEN(werte[rohdatum::kBrutto])) {
        throw Laufzeitfehler(fehler::kFalscherTyp); // it would stop the sums of all
    }
    werte[rohdatum::kNotiz] = aus_ansi(ZEILEN[dateizeile::kNotiz]);
    return auszug;
}

} // namespace quittika
