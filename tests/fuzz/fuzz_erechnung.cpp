#include "einvoice/angabendatei.hpp"
#include "einvoice/cii.hpp"
#include "einvoice/erkennung.hpp"
#include "einvoice/kennungen.hpp"
#include "einvoice/pflichtangaben.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "tests/fuzz/verlangen.hpp"
#include "tests/pruefstand.hpp"

#include <algorithm>
#include <cstdint>

namespace quittika {
namespace {

/// Texts for the fields of an invoice, taken from the lines one by one.
class Textquelle {
public:
    explicit Textquelle(const std::vector<std::string>& zeilen) : zeilen_(zeilen) {}
    std::string naechster() { return zeilen_.empty() ? std::string() : zeilen_[stelle_++ % zeilen_.size()]; }
    template <class T> T angaben(std::span<const Angabe<T>> felder) {
        T angaben;
        for (const Angabe<T>& feld : felder) {
            angaben.*feld.wert = naechster();
        }
        return angaben;
    }

private:
    const std::vector<std::string>& zeilen_;
    std::size_t stelle_ = 0;
};

/// Both files take any bytes, keep what they do not know and give back what was put in.
void dateien_pruefen(const std::string& bytes, const Verkaeufer& verkaeufer, const Kaeufer& kaeufer) {
    static const Probenordner ordner;
    const Angabenspeicher speicher{Programmverzeichnis(ordner.ordner())};
    ordner.schreiben("e_rechnung.cfg", bytes);
    const std::string pfad = ordner.schreiben("e_rechnung_kunden.txt", bytes);
    const std::vector<std::string> davor = zeilen_lesen(pfad);
    speicher.verkaeufer_merken(verkaeufer);
    const Verkaeufer gelesen = speicher.verkaeufer();
    for (const Angabe<Verkaeufer>& feld : VERKAEUFERANGABEN()) {
        const std::string ansi = aus_ansi(nach_ansi(einzeilig(verkaeufer.*feld.wert)).bytes);
        verlangen(gelesen.*feld.wert == gekuerzt(ansi));
    }
    const std::string schluessel = "Kunde 4711";
    const bool neu = !speicher.kaeufer(schluessel).has_value();
    speicher.kaeufer_merken(schluessel, kaeufer);
    verlangen(speicher.kaeufer(schluessel).has_value());
    const std::vector<std::string> danach = zeilen_lesen(pfad);
    verlangen(!neu ||
              (danach.size() > davor.size() && std::equal(davor.begin(), davor.end(), danach.begin())));
}

void erkennung_pruefen(const std::vector<std::string>& zeilen) {
    const Erkanntes e = ANGABEN_ERKENNEN(zeilen);
    verlangen(E_MAIL_FEHLER(e.E_Mail).empty() && LAND_FEHLER(e.Land).empty());
    verlangen(e.PLZ.empty() == e.Ort.empty() && e.PLZ.size() <= 5);
}

Belegquelle quelle_aus(Textquelle& texte) {
    Belegquelle q;
    q.Titel = texte.naechster();
    q.Nummer = texte.naechster();
    q.Datum = texte.naechster();
    q.Waehrung = "EUR";
    q.MwSt_Satz = "19,00";
    q.mwst = Mwst_Modus::Inklusive;
    q.Gesamtbetrag = texte.naechster();
    q.Kunde = {texte.naechster(), texte.naechster(), texte.naechster(), texte.naechster()};
    q.zeilen = {{"K", " ", texte.naechster(), " ", " "},
                {"-", texte.naechster(), texte.naechster(), texte.naechster(), texte.naechster()}};
    return q;
}

/// An invoice of any texts is refused with a reason or makes an XML that fits the schema.
void beleg_pruefen(const Belegquelle& q, const Verkaeufer& verkaeufer, const Kaeufer& kaeufer) {
    PFLICHTANGABEN(q);
    for (const E_Format format : {E_Format::ZUGFeRD, E_Format::XRechnung}) {
        const E_Rechnung e = E_RECHNUNG(q, verkaeufer, kaeufer, {}, format);
        if (e.vollstaendig()) {
            CII_XML(e.beleg, format); // throws what does not fit
        }
    }
}

/// The same with numbers in order: only texts that may be anything are any.
void texte_pruefen(Belegquelle q, Verkaeufer verkaeufer, Kaeufer kaeufer) {
    q.Datum = "1.1.2026";
    q.Gesamtbetrag = "1,00";
    q.zeilen.back() = {"-", "1", q.zeilen.back().Leistung, "1,00", "1,00"};
    verkaeufer.Land = kaeufer.Land = "DE";
    verkaeufer.Zahlungstage = "14";
    verkaeufer.Skonto_Prozent = verkaeufer.Skonto_Tage = verkaeufer.BIC = verkaeufer.E_Mail = "";
    verkaeufer.IBAN = verkaeufer.USt_IdNr = kaeufer.USt_IdNr = kaeufer.E_Mail = "";
    beleg_pruefen(q, verkaeufer, kaeufer);
}

} // namespace
} // namespace quittika

/// Whatever bytes the two files of electronic invoices, an address and the fields of an invoice hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zeiger, std::size_t anzahl) {
    using namespace quittika;
    const std::string bytes(reinterpret_cast<const char*>(zeiger), anzahl);
    std::vector<std::string> zeilen;
    zeilen_durchgehen(bytes, [&](std::string_view zeile) {
        zeilen.emplace_back(zeile);
        return true;
    });
    Textquelle texte(zeilen);
    const auto verkaeufer = texte.angaben(VERKAEUFERANGABEN());
    const auto kaeufer = texte.angaben(KAEUFERANGABEN());
    dateien_pruefen(bytes, verkaeufer, kaeufer);
    erkennung_pruefen(zeilen);
    const Belegquelle quelle = quelle_aus(texte);
    beleg_pruefen(quelle, verkaeufer, kaeufer);
    texte_pruefen(quelle, verkaeufer, kaeufer);
    return 0;
}
