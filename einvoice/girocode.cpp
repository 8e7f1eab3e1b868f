#include "einvoice/girocode.hpp"

#include "einvoice/kennungen.hpp"
#include "einvoice/rechnungsbeleg.hpp"
#include "einvoice/xmltext.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "settings/feldhinweise.hpp"

#include <memory>

#include <qrencode.h>

namespace quittika {

namespace {

constexpr std::size_t kEmpfaenger = 70;  // characters
constexpr std::size_t kVerwendung = 140; // characters
constexpr std::size_t kBytes = 331;      // of the whole text
constexpr int kRuhezone = 4;             // modules
constexpr Cent kHoechstens{999'999'999'99};

std::string zeile(const std::string& text, std::size_t zeichen) {
    return gekuerzt(links(XML_TEXT(einzeilig(text)), zeichen));
}

/// As many whole characters as fit into these bytes.
std::string in_bytes(std::string text, std::size_t bytes) {
    while (text.size() > bytes) {
        text = links(text, zeichenzahl(text) - 1);
    }
    return text;
}

} // namespace

Ueberweisung UEBERWEISUNG(const Belegquelle& quelle, const Verkaeufer& verkaeufer) {
    const bool zu_zahlen = !quelle.lieferschein && !BELEGARTFRAGE(quelle.Titel);
    const Cent betrag = festkomma_lesen<Cent>(quelle.Gesamtbetrag).value_or(Cent{});
    return {verkaeufer.Name,
            IBAN_NUMMER(verkaeufer.IBAN),
            KENNUNG(verkaeufer.BIC),
            WAEHRUNGSCODE(quelle.Waehrung),
            zu_zahlen ? betrag : Cent{},
            gekuerzt(quelle.Titel + " " + quelle.Nummer) +
                (quelle.Datum.empty() ? "" : " vom " + quelle.Datum)};
}

std::string GIROCODE_FEHLER(const Ueberweisung& u) {
    if (u.waehrung != "EUR") {
        return "Ein GiroCode gilt nur für Beträge in EUR.";
    }
    if (u.betrag <= Cent{} || u.betrag > kHoechstens) {
        return "Ohne einen Betrag, der zu zahlen ist, gibt es keinen GiroCode.";
    }
    if (zeile(u.empfaenger, kEmpfaenger).empty()) {
        return "Für den GiroCode fehlt Ihr Name.";
    }
    if (u.IBAN.empty() || !IBANHINWEIS(u.IBAN).empty()) {
        return "Für den GiroCode fehlt Ihre gültige IBAN.";
    }
    return BIC_FEHLER(u.BIC);
}

std::string GIROCODE_TEXT(const Ueberweisung& u) {
    const std::string vorn = "BCD\n002\n1\nSCT\n" + KENNUNG(u.BIC) + "\n" + zeile(u.empfaenger, kEmpfaenger) +
                             "\n" + IBAN_NUMMER(u.IBAN) + "\nEUR" + datentext(u.betrag) + "\n\n\n";
    return vorn + in_bytes(zeile(u.verwendung, kVerwendung), kBytes - vorn.size());
}

SquareGrid QR_CODE(const std::string& text) {
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeData(static_cast<int>(text.size()), reinterpret_cast<const unsigned char*>(text.data()),
                          0, QR_ECLEVEL_M),
        QRcode_free);
    if (code == nullptr) {
        throw Laufzeitfehler(fehler::kUngueltigerAufruf);
    }
    SquareGrid bild{code->width, kRuhezone, {}};
    const int module = code->width * code->width;
    for (int i = 0; i < module; ++i) {
        bild.dark.push_back((code->data[i] & 1U) != 0);
    }
    return bild;
}

std::optional<SquareGrid> GIROCODE(const Belegquelle& quelle, const Verkaeufer& verkaeufer) {
    const Ueberweisung ueberweisung = UEBERWEISUNG(quelle, verkaeufer);
    if (verkaeufer.GiroCode != "1" || !GIROCODE_FEHLER(ueberweisung).empty()) {
        return std::nullopt;
    }
    return QR_CODE(GIROCODE_TEXT(ueberweisung));
}

} // namespace quittika
