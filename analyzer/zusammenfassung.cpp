#include "analyzer/zusammenfassung.hpp"

#include "analyzer/betragssumme.hpp"
#include "analyzer/spalten.hpp"

#include <algorithm>
#include <iterator>

namespace quittika {

namespace {

Betragsgruppe BETRAGSGRUPPE(const std::vector<std::string>& bezahlt,
                            const std::vector<std::string>& betraege) {
    Betragssumme erwartet;
    Betragssumme eingegangen;
    Betragssumme offen;
    for (std::size_t i = 0; i < betraege.size(); ++i) {
        erwartet.dazu(betraege[i]);
        (bezahlt.at(i) == kJa ? eingegangen : offen).dazu(betraege[i]);
    }
    return {erwartet.text(), eingegangen.text(), offen.text()};
}

constexpr std::size_t kRauten = 72;
constexpr std::size_t kPunkte = 89;

constexpr const char* kHinweis[] = {
    "HINWEIS:",
    "Die MwSt-Berechnung liefert nur bei konsequenter Einhaltung",
    "EINER Berechnungsart (z.B. plus MwSt) in allen Rechnungen ein aussagefähiges Ergebnis!",
    "Zu dem muss das Verfahren zur Berechnung der Versandkosten dem Verfahren  ",
    "der Rechnung entsprechen.  ",
    "(z.B. beides Brutto=Netto, beides mit inklusive MwSt oder beides exklusive MwSt!!!)"};

constexpr const char* kHinweisAlteVersion[] = {
    "Es wurden Rechnungen entdeckt, welche mit Versionen von",
    "Quittika 2008 unter Version 4.0.2 erstellt wurden. Für diese gilt:",
    "Eventuelle MwSt-Beträge von der Versandkosten Berechnung werden nicht berücksichtigt!",
    "Wenn Sie jedoch die Versandkosten wie einen Artikel in die Rechnung einfügen,",
    "taucht die MwSt ganz normal im berücksichtigten Posten auf."};

} // namespace

Gesamtwerte GESAMTWERTE(const std::vector<std::string>& bezahlt, const std::vector<std::string>& netto,
                        const std::vector<std::string>& mwst, const std::vector<std::string>& brutto) {
    const auto offen =
        std::count_if(bezahlt.begin(), bezahlt.end(), [](const std::string& text) { return text != kJa; });
    return {static_cast<int>(bezahlt.size()), static_cast<int>(offen), BETRAGSGRUPPE(bezahlt, brutto),
            BETRAGSGRUPPE(bezahlt, netto), BETRAGSGRUPPE(bezahlt, mwst)};
}

std::vector<std::string> ZUSAMMENFASSUNG(const std::string& verzeichnis, const Zeitpunkt& jetzt,
                                         bool alte_version, const Gesamtwerte& werte) {
    const std::string punkte(kPunkte, '.');
    std::vector<std::string> zeilen{"Zusammenfassung von Verzeichnis:  (" + verzeichnis + ") ",
                                    "Erstellt am: " + datum_text(jetzt) + " ,  " + zeit_text(jetzt),
                                    std::string(kRauten, '#'), ""};
    zeilen.insert(zeilen.end(), std::begin(kHinweis), std::end(kHinweis));
    if (alte_version) {
        zeilen.insert(zeilen.end(), std::begin(kHinweisAlteVersion), std::end(kHinweisAlteVersion));
    }
    zeilen.insert(
        zeilen.end(),
        {"", "", "Anzahl berücksichtigter Rechnungen:    " + std::to_string(werte.rechnungen),
         "Anzahl nicht bezahlter Rechnungen:      " + std::to_string(werte.nicht_bezahlt), punkte,
         "Gesamtbeträge ([Brutto] erwartet) *: " + werte.brutto.erwartet,
         "Gesamtbeträge ([Brutto] bezahlt) *: " + werte.brutto.bezahlt,
         "Gesamtbeträge ([Brutto] nicht bezahlt) *: " + werte.brutto.nicht_bezahlt,
         "* Nach Rabatt, nach evtl. MwSt und nach Versandkosten.", punkte,
         "Summebeträge ([Netto] erwartet) * *: " + werte.netto.erwartet,
         "Summebeträge ([Netto] bezahlt) * *: " + werte.netto.bezahlt,
         "Summebeträge ([Netto] nicht bezahlt) * *: " + werte.netto.nicht_bezahlt,
         "* * Nach Rabatt, aber vor MwSt (ausser wenn >inkl.MwSt.< gerechnet wird) und Versandkosten.",
         punkte, "MwSt-Beträge (erwartet): " + werte.mwst.erwartet,
         "MwSt-Beträge (bezahlt): " + werte.mwst.bezahlt,
         "MwSt-Beträge (nicht bezahlt): " + werte.mwst.nicht_bezahlt, punkte});
    return zeilen;
}

} // namespace quittika
