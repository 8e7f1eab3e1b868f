#include "analyzer/rechnungsauszug.hpp"

#include "analyzer/betragssumme.hpp"
#include "analyzer/rechnungszeilen.hpp"
#include "invoice/file/dateifelder.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

namespace quittika {

namespace {

namespace zeile {
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
std::string MIT_VERSAND(const Rechnungszeilen& zeilen, int betrag, int versand, bool& alte_version) {
    const std::string text = zeilen.text(betrag);
    Betragssumme summe;
    summe.dazu(text);
    if (!BETRAG_LESEN(zeilen.text(versand))) {
        alte_version = true;
        return text;
    }
    summe.dazu(zeilen.text(versand));
    return summe.text();
}

} // namespace

Rechnungsauszug AUSZUG_LESEN(std::string_view bytes) {
    const Rechnungszeilen zeilen(bytes);
    Rechnungsauszug auszug;
    auto& werte = auszug.werte;
    werte[rohdatum::kDatum] = zeilen.text(rechnungszeile::kDatum);
    werte[rohdatum::kNummer] = zeilen.text(rechnungszeile::kTitel);
    werte[rohdatum::kNummerzusatz] = zeilen.text(dateizeile::kNummer);
    werte[rohdatum::kKundennummer] = zeilen.text(zeile::kKundennummer);
    werte[rohdatum::kKundenname] = zeilen.text(rechnungszeile::kKundenname);
    werte[rohdatum::kVersendet] = JaNein(zeilen.bytes(zeile::kVersendet));
    werte[rohdatum::kAbgemahnt] = JaNein(zeilen.bytes(zeile::kAbgemahnt));
    werte[rohdatum::kMahnstufe] =
        werte[rohdatum::kAbgemahnt] == kJa ? zahl_text(nach_double(zeilen.bytes(dateizeile::kMahnung))) : "0";
    werte[rohdatum::kBezahlt] = JaNein(zeilen.bytes(zeile::kBezahlt));
    werte[rohdatum::kNetto] =
        MIT_VERSAND(zeilen, dateizeile::kNachRabatt, dateizeile::kVersandNetto, auszug.alte_version);
    werte[rohdatum::kMwSt] = MIT_VERSAND(zeilen, zeile::kMwSt, dateizeile::kVersandMwSt, auszug.alte_version);
    werte[rohdatum::kBrutto] = zeilen.text(zeile::kBrutto);
    Betragssumme().dazu(werte[rohdatum::kBrutto]); // one that is no amount would stop the sums of all
    werte[rohdatum::kNotiz] = zeilen.text(dateizeile::kNotiz);
    return auszug;
}

} // namespace quittika
