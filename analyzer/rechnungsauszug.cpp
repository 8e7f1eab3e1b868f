#include "analyzer/rechnungsauszug.hpp"

#include "analyzer/betragssumme.hpp"
#include "invoice/file/dateifelder.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <array>

namespace quittika {

namespace {

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
constexpr int kLetzte = dateizeile::kVersandNetto;
} // namespace zeile

/// The lines of a file up to the last one needed, as views of it. A line that it does not have is empty.
class Zeilen {
public:
    explicit Zeilen(std::string_view bytes) {
        int nummer = 0;
        int versatz = 0;
        zeilen_teilen(bytes, [&](std::string_view text) {
            if (nummer == 0 && text != kDateikennung) {
                versatz = 1;
            }
            if (!beginnt_mit(text, kListenmarke)) {
                ZEILEN_.at(static_cast<std::size_t>(nummer + versatz)) = text;
            }
            ++nummer;
            return nummer + versatz <= zeile::kLetzte;
        });
    }
    std::string_view bytes(int nummer) const { return ZEILEN_.at(static_cast<std::size_t>(nummer)); }
    std::string text(int nummer) const { return aus_ansi(bytes(nummer)); }

private:
    std::array<std::string_view, zeile::kLetzte + 1> ZEILEN_{};
};

std::string JaNein(std::string_view text) {
    return nach_int16(text) == 0 ? kNein : kJa;
}

/// Both amounts together; the first one as it stands where the other is none, and `alte_version` then.
std::string MIT_VERSAND(const Zeilen& zeilen, int betrag, int versand, bool& alte_version) {
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

bool REICHT_FUER_AUSZUG(std::string_view bytes) {
    int fehlend = zeile::kLetzte + 1;
    for (std::size_t ende = bytes.find('\n'); ende != std::string_view::npos && --fehlend > 0;) {
        ende = bytes.find('\n', ende + 1);
    }
    return fehlend == 0;
}

Rechnungsauszug AUSZUG_LESEN(std::string_view bytes) {
    const Zeilen zeilen(bytes);
    Rechnungsauszug auszug;
    auto& werte = auszug.werte;
    werte[rohdatum::kDatum] = zeilen.text(zeile::kDatum);
    werte[rohdatum::kNummer] = zeilen.text(zeile::kNummer);
    werte[rohdatum::kNummerzusatz] = zeilen.text(dateizeile::kNummer);
    werte[rohdatum::kKundennummer] = zeilen.text(zeile::kKundennummer);
    werte[rohdatum::kKundenname] = zeilen.text(zeile::kKundenname);
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
