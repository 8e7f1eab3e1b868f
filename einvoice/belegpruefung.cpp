#include "einvoice/belegpruefung.hpp"

#include "einvoice/kennungen.hpp"
#include "einvoice/xmltext.hpp"
#include "platform/text.hpp"
#include "settings/feldhinweise.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

class Pruefer {
public:
    Pruefer(const Rechnungsbeleg& beleg, E_Format format)
        : b_(beleg), v_(beleg.verkaeufer), k_(beleg.kaeufer), xrechnung_(format == E_Format::XRechnung) {}

    Maengel pruefen() {
        beleg();
        verkaeufer();
        kaeufer();
        steuer();
        zahlung();
        if (xrechnung_) {
            fuer_xrechnung();
        }
        formen();
        std::stable_sort(m_.begin(), m_.end(),
                         [](const Mangel& a, const Mangel& b) { return a.schwere > b.schwere; });
        return std::move(m_);
    }

private:
    void fatal(const char* feld, std::string text, int zeile = -1) {
        m_.push_back({Schwere::Fatal, feld, std::move(text), zeile});
    }
    void hinweis(const char* feld, std::string text) {
        m_.push_back({Schwere::Hinweis, feld, std::move(text), -1});
    }
    /// `was`: what is missing, as the subject of the sentence.
    void pflicht(const std::string& wert, const char* feld, const char* was) {
        if (wert.empty()) {
            fatal(feld, std::string(was) + " fehlt.");
        }
    }
    void empfohlen(const std::string& wert, const char* feld, const char* was) {
        if (wert.empty()) {
            hinweis(feld, std::string(was) + " fehlt.");
        }
    }
    void form(const std::string& fehler, const char* feld) {
        if (!fehler.empty()) {
            fatal(feld, fehler);
        }
    }

    void beleg() {
        pflicht(b_.nummer, "Text_RNnr", "Die Rechnungsnummer");
        if (!b_.datum) {
            fatal("Text_Datum", "Das Rechnungsdatum fehlt.");
        }
        if (b_.zeilen.empty()) {
            fatal("List_DARSTELLUNG", "Die Rechnung hat keine Position.");
        }
        for (std::size_t i = 0; i < b_.zeilen.size(); ++i) {
            zeile(b_.zeilen[i], "Position " + std::to_string(i + 1));
        }
        if (b_.art != Belegart::Rechnung && b_.bezug_nummer.empty()) {
            fatal("Text_Bezug_Nummer", "Die Nummer der ursprünglichen Rechnung fehlt.");
        }
        if (b_.art != Belegart::Rechnung && !b_.bezug_datum) {
            hinweis("Text_Bezug_Datum", "Das Datum der ursprünglichen Rechnung fehlt.");
        }
        if (b_.art == Belegart::Gutschrift && b_.summen.zahlbetrag < Cent{}) {
            hinweis("Combo_Belegart",
                    "Der Betrag ist negativ. Eine Gutschrift darüber wäre eine Forderung: Gemeint ist wohl "
                    "die Rechnungskorrektur (384).");
        }
        if (!b_.lieferdatum && !hat_kategorie("K")) {
            hinweis("Check_LIEFERDATUM", "Das Lieferdatum fehlt.");
        }
    }

    void zeile(const Belegzeile& zeile, const std::string& nummer) {
        if (zeile.bezeichnung.empty()) {
            fatal("List_DARSTELLUNG", nummer + ": Die Bezeichnung fehlt.", zeile.zeile);
        }
        // What one price for one piece cannot say to the cent, as with very large quantities.
        constexpr std::int64_t kMengeMalPreisJeCent = 100'000'000;
        constexpr std::int64_t kErlaubt = 2; // cents
        const std::int64_t abstand =
            mal_durch(zeile.menge.wert, zeile.einzelpreis.wert, kMengeMalPreisJeCent) - zeile.betrag.wert;
        if (abstand >= kErlaubt || -abstand >= kErlaubt) {
            fatal("List_DARSTELLUNG",
                  nummer +
                      ": Der Nettopreis hat bei dieser Menge zu viele Stellen. Bitte die Menge auf mehrere "
                      "Positionen verteilen.",
                  zeile.zeile);
        }
    }

    void verkaeufer() {
        pflicht(v_.Name, "Text_Verkaeufer_Name", "Ihr Name");
        pflicht(v_.Land, "Text_Verkaeufer_Land", "Ihr Land");
        empfohlen(v_.Strasse, "Text_Verkaeufer_Strasse", "Ihre Straße");
        if (v_.USt_IdNr.empty() && v_.Steuernummer.empty()) {
            fatal("Text_Verkaeufer_USt_IdNr", "Ihre USt-IdNr. oder Ihre Steuernummer fehlt.");
        }
        if (!xrechnung_) {
            empfohlen(v_.PLZ, "Text_Verkaeufer_PLZ", "Ihre Postleitzahl");
            empfohlen(v_.Ort, "Text_Verkaeufer_Ort", "Ihr Ort");
        }
    }

    void kaeufer() {
        pflicht(k_.Name, "Text_Kaeufer_Name", "Der Name des Käufers");
        pflicht(k_.Land, "Text_Kaeufer_Land", "Das Land des Käufers");
        empfohlen(k_.Strasse, "Text_Kaeufer_Strasse", "Die Straße des Käufers");
        if (!xrechnung_) {
            empfohlen(k_.PLZ, "Text_Kaeufer_PLZ", "Die Postleitzahl des Käufers");
            empfohlen(k_.Ort, "Text_Kaeufer_Ort", "Der Ort des Käufers");
        }
    }

    bool hat_kategorie(const char* kategorie) const {
        return std::any_of(b_.steuern.begin(), b_.steuern.end(),
                           [&](const Steuergruppe& g) { return g.steuer.kategorie == kategorie; });
    }

    void steuer() {
        const bool innergemeinschaftlich = hat_kategorie("K");
        if ((innergemeinschaftlich || hat_kategorie("G")) && v_.USt_IdNr.empty() &&
            !v_.Steuernummer.empty()) {
            fatal("Text_Verkaeufer_USt_IdNr", "Für Lieferungen ins Ausland ohne MwSt. fehlt Ihre USt-IdNr.");
        }
        if ((innergemeinschaftlich || hat_kategorie("AE")) && k_.USt_IdNr.empty()) {
            fatal("Text_Kaeufer_USt_IdNr",
                  "Für diesen Grund der Steuerfreiheit fehlt die USt-IdNr. des Käufers.");
        }
        if (innergemeinschaftlich && !b_.lieferdatum) {
            fatal("Text_LIEFERDATUM",
                  "Eine innergemeinschaftliche Lieferung braucht das Lieferdatum, als Datum wie 31.12.2026.");
        }
    }

    void zahlung() {
        if (b_.summen.zahlbetrag > Cent{} && v_.Zahlungstage.empty()) {
            fatal("Text_Zahlungstage", "Das Zahlungsziel fehlt: Tage bis zur Fälligkeit, 0 für sofort.");
        }
        if (xrechnung_) {
            pflicht(v_.IBAN, "Text_Verkaeufer_IBAN", "Ihre IBAN");
        } else {
            empfohlen(v_.IBAN, "Text_Verkaeufer_IBAN", "Ihre IBAN");
        }
    }

    void fuer_xrechnung() {
        pflicht(v_.PLZ, "Text_Verkaeufer_PLZ", "Ihre Postleitzahl");
        pflicht(v_.Ort, "Text_Verkaeufer_Ort", "Ihr Ort");
        pflicht(v_.Kontakt, "Text_Verkaeufer_Kontakt", "Ein Ansprechpartner");
        pflicht(v_.Telefon, "Text_Verkaeufer_Telefon", "Ihre Telefonnummer");
        pflicht(v_.E_Mail, "Text_Verkaeufer_E_Mail", "Ihre E-Mail-Adresse");
        pflicht(k_.PLZ, "Text_Kaeufer_PLZ", "Die Postleitzahl des Käufers");
        pflicht(k_.Ort, "Text_Kaeufer_Ort", "Der Ort des Käufers");
        pflicht(k_.E_Mail, "Text_Kaeufer_E_Mail", "Die E-Mail-Adresse des Käufers");
        pflicht(k_.Leitweg_ID, "Text_Kaeufer_Leitweg_ID", "Die Leitweg-ID des Käufers");
    }

    void formen() {
        form(UST_ID_FEHLER(v_.USt_IdNr), "Text_Verkaeufer_USt_IdNr");
        form(UST_ID_FEHLER(k_.USt_IdNr), "Text_Kaeufer_USt_IdNr");
        if (const std::string hinweis = IBANHINWEIS(v_.IBAN); !hinweis.empty()) {
            fatal("Text_Verkaeufer_IBAN", "IBAN: " + hinweis);
        }
        form(BIC_FEHLER(v_.BIC), "Text_Verkaeufer_BIC");
        form(LAND_FEHLER(v_.Land), "Text_Verkaeufer_Land");
        form(LAND_FEHLER(k_.Land), "Text_Kaeufer_Land");
        form(E_MAIL_FEHLER(v_.E_Mail), "Text_Verkaeufer_E_Mail");
        form(E_MAIL_FEHLER(k_.E_Mail), "Text_Kaeufer_E_Mail");
        leitweg();
        constexpr std::ptrdiff_t kZiffern = 3;
        if (!v_.Telefon.empty() && std::count_if(v_.Telefon.begin(), v_.Telefon.end(),
                                                 [](char c) { return c >= '0' && c <= '9'; }) < kZiffern) {
            fatal("Text_Verkaeufer_Telefon", "Eine Telefonnummer hat wenigstens drei Ziffern.");
        }
    }

    /// Private buyers may ask for a reference of their own instead.
    void leitweg() {
        const std::string fehler = LEITWEG_FEHLER(k_.Leitweg_ID);
        if (fehler.empty()) {
            return;
        }
        if (IST_WIE_LEITWEG(k_.Leitweg_ID)) {
            fatal("Text_Kaeufer_Leitweg_ID", fehler);
        } else {
            hinweis("Text_Kaeufer_Leitweg_ID", fehler + " Behörden nehmen die Rechnung damit nicht an.");
        }
    }

    const Rechnungsbeleg& b_;
    const Verkaeufer& v_;
    const Kaeufer& k_;
    bool xrechnung_;
    Maengel m_;
};

/// Whether the buyer is still the one whose address is printed.
void anschrift_vergleichen(const Belegquelle& quelle, const Kaeufer& kaeufer, Maengel& maengel) {
    std::string gedruckt;
    for (const std::string& zeile : quelle.Kunde) {
        gedruckt += XML_TEXT(zeile) + "\n";
    }
    const std::pair<const std::string&, const char*> teile[] = {{kaeufer.Name, "Text_Kaeufer_Name"},
                                                                {kaeufer.Strasse, "Text_Kaeufer_Strasse"},
                                                                {kaeufer.Ort, "Text_Kaeufer_Ort"}};
    for (const auto& [teil, feld] : teile) {
        if (!teil.empty() && gedruckt.find(teil) == std::string::npos) {
            maengel.push_back({Schwere::Hinweis, feld,
                               "\"" + links(teil, 40) + "\" steht nicht in der Anschrift der Rechnung.", -1});
        }
    }
}

} // namespace

Maengel BELEG_PRUEFEN(const Rechnungsbeleg& beleg, E_Format format) {
    return Pruefer(beleg, format).pruefen();
}

E_Rechnung E_RECHNUNG(const Belegquelle& quelle, const Verkaeufer& verkaeufer, const Kaeufer& kaeufer,
                      const Bezug& bezug, E_Format format) {
    Aufstellung aufstellung = RECHNUNGSBELEG(quelle, verkaeufer, kaeufer, bezug);
    Maengel maengel = std::move(aufstellung.maengel);
    const std::size_t bisher = maengel.size();
    for (Mangel& mangel : BELEG_PRUEFEN(aufstellung.beleg, format)) {
        const auto davor = maengel.begin() + static_cast<std::ptrdiff_t>(bisher);
        const bool genannt = std::any_of(maengel.begin(), davor, [&](const Mangel& m) {
            return m.schwere == Schwere::Fatal && m.feld == mangel.feld && m.zeile == mangel.zeile;
        });
        if (!genannt) { // one reason a field is enough
            maengel.push_back(std::move(mangel));
        }
    }
    anschrift_vergleichen(quelle, aufstellung.beleg.kaeufer, maengel);
    std::stable_sort(maengel.begin(), maengel.end(),
                     [](const Mangel& a, const Mangel& b) { return a.schwere > b.schwere; });
    return {std::move(aufstellung.beleg), std::move(maengel)};
}

} // namespace quittika
