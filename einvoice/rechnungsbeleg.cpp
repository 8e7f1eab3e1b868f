#include "einvoice/rechnungsbeleg.hpp"

#include "einvoice/belegrechnung.hpp"
#include "einvoice/kennungen.hpp"
#include "einvoice/xmltext.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "settings/feldhinweise.hpp"

#include <cstddef>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kRabattcode = "95";
constexpr const char* kFrachtcode = "FC";
constexpr std::int64_t kTag = 86400; // seconds
constexpr int kLetztesJahr = 9999;

bool ist_zahl(const std::string& text, int& zahl, int hoechstens) {
    const std::optional<std::int64_t> wert = dezimal_lesen(text, 0);
    if (!wert || *wert < 0 || *wert > hoechstens) {
        return false;
    }
    zahl = static_cast<int>(*wert);
    return true;
}

/// Makes the document piece by piece and collects what it finds.
class Aufsteller {
public:
    Aufsteller(const Belegquelle& quelle, const Bezug& bezug) : q_(quelle), bezug_(bezug) {}

    Aufstellung aufstellen(const Verkaeufer& verkaeufer, const Kaeufer& kaeufer) {
        b_.verkaeufer = gereinigt(verkaeufer, VERKAEUFERANGABEN());
        b_.kaeufer = gereinigt(kaeufer, KAEUFERANGABEN());
        kennungen_ordnen();
        kopf();
        art();
        lieferdatum();
        steuerart();
        zeilen();
        rabatt_und_versand();
        rechnen();
        zahlung();
        return std::move(a_);
    }

private:
    void fatal(const char* feld, std::string text, int zeile = -1) {
        a_.maengel.push_back({Schwere::Fatal, feld, std::move(text), zeile});
    }
    void hinweis(const char* feld, std::string text, int zeile = -1) {
        a_.maengel.push_back({Schwere::Hinweis, feld, std::move(text), zeile});
    }

    std::string gereinigt(const std::string& text, const char* feld, int zeile = -1) {
        const std::string zeile_text = einzeilig(text);
        std::string rein = XML_TEXT(zeile_text);
        if (zeichenzahl(rein) < zeichenzahl(gekuerzt(ersetzen(zeile_text, "\t", " ")))) {
            hinweis(feld,
                    "Der Text enthält Zeichen, die eine E-Rechnung nicht halten kann. Sie fallen dort weg.",
                    zeile);
        }
        return rein;
    }

    template <class T> T gereinigt(T angaben, std::span<const Angabe<T>> felder) {
        for (const Angabe<T>& feld : felder) {
            angaben.*feld.wert = gereinigt(angaben.*feld.wert, feld.feld);
        }
        return angaben;
    }

    void kennungen_ordnen() {
        b_.verkaeufer.IBAN = IBAN_NUMMER(b_.verkaeufer.IBAN);
        for (std::string* const nummer :
             {&b_.verkaeufer.USt_IdNr, &b_.verkaeufer.BIC, &b_.kaeufer.USt_IdNr}) {
            const std::string rein = KENNUNG(*nummer);
            *nummer = rein.empty() ? *nummer : rein; // what is no number at all is wrong, not missing
        }
        for (std::string* const land : {&b_.verkaeufer.Land, &b_.kaeufer.Land}) {
            const std::string code = LANDESCODE(*land);
            *land = code.empty() ? *land : code;
        }
    }

    void kopf() {
        if (q_.lieferschein) {
            fatal("Option_RECHNUNG",
                  "Ein Lieferschein ist keine Rechnung. Bitte als Dokument \"Rechnung\" wählen.");
        }
        b_.nummer = gereinigt(q_.Nummer, "Text_RNnr");
        b_.datum = datum_lesen(q_.Datum);
        if (!b_.datum && !q_.Datum.empty()) {
            fatal("Text_Datum", "Das Rechnungsdatum ist kein Datum wie 31.12.2026.");
        }
        b_.waehrung = WAEHRUNGSCODE(q_.Waehrung);
        if (b_.waehrung.empty()) {
            fatal("Text_Waehrung", "Die Währung \"" + links(q_.Waehrung, 20) +
                                       "\" hat keinen Code, den eine E-Rechnung kennt, wie EUR oder CHF.");
        }
        std::string bemerkungen;
        for (const std::string& zeile : q_.Bemerkungen) {
            bemerkungen += (bemerkungen.empty() ? "" : "\n") + gereinigt(zeile, "Text_Bemerkung1");
        }
        if (!bemerkungen.empty()) {
            b_.hinweise.push_back(bemerkungen);
        }
    }

    void art() {
        const bool gefragt = BELEGARTFRAGE(q_.Titel).has_value();
        if (gefragt && !bezug_.art) {
            fatal("Combo_Belegart", "Der Titel ist \"" + links(q_.Titel, 60) +
                                        "\": Ist das eine Gutschrift oder die Korrektur einer Rechnung?");
        }
        b_.art = bezug_.art.value_or(Belegart::Rechnung);
        if (b_.art == Belegart::Rechnung) {
            return;
        }
        b_.bezug_nummer = gereinigt(bezug_.Nummer, "Text_Bezug_Nummer");
        b_.bezug_datum = datum_lesen(bezug_.Datum);
        if (!b_.bezug_datum && !gekuerzt(bezug_.Datum).empty()) {
            fatal("Text_Bezug_Datum", "Das Datum der ursprünglichen Rechnung ist kein Datum wie 31.12.2026.");
        }
    }

    void lieferdatum() {
        const std::string text = gereinigt(q_.Lieferdatum, "Text_LIEFERDATUM");
        const std::size_t punkt = text.rfind(':');
        const std::string wert = gekuerzt(punkt == std::string::npos ? text : text.substr(punkt + 1));
        b_.lieferdatum = datum_lesen(wert);
        if (b_.lieferdatum || wert.empty()) {
            return;
        }
        b_.hinweise.push_back(text);
        hinweis("Text_LIEFERDATUM",
                "Das Lieferdatum ist kein einzelnes Datum wie 31.12.2026. Es steht in der "
                "E-Rechnung als Bemerkung.");
    }

    Prozent satz_lesen(const std::string& text, Prozent kleinster, const char* feld, const char* wovon) {
        const std::optional<Prozent> satz = festkomma_lesen<Prozent>(text);
        if (satz && *satz >= kleinster && satz->wert <= kHundertProzent) {
            return *satz;
        }
        fatal(feld, std::string(wovon) + " \"" + links(text, 20) + "\" ist kein Satz von " +
                        lesetext(kleinster) + " bis 100 %.");
        return {};
    }

    /// Category and reason of what bears no VAT.
    Steuerart befreit() {
        const Befreiung* const grund = BEFREIUNG(b_.verkaeufer.Befreiungsgrund);
        if (grund == nullptr) {
            fatal("Combo_Befreiungsgrund",
                  "Die Rechnung weist keine MwSt. aus. Bitte den Grund dafür wählen.");
            return {"E", {}};
        }
        befreiungstext_ = *grund->text != '\0' ? grund->text : b_.verkaeufer.Befreiungstext;
        befreiungscode_ = grund->code;
        if (befreiungstext_.empty()) {
            fatal("Text_Befreiungstext",
                  "Bitte den Grund nennen, aus dem die Rechnung keine MwSt. ausweist.");
        }
        return {grund->kategorie, {}};
    }

    void steuerart() {
        Prozent satz;
        if (q_.mwst != Mwst_Modus::Ohne) {
            satz = satz_lesen(q_.MwSt_Satz, {}, "Text_MwSt", "Der MwSt.-Satz");
        }
        const bool steuerpflichtig = q_.mwst == Mwst_Modus::Plus || q_.mwst == Mwst_Modus::Inklusive;
        if (q_.mwst == Mwst_Modus::Inklusive || q_.mwst == Mwst_Modus::Minus) {
            g_.enthalten = satz;
        }
        g_.steuer = steuerpflichtig && satz.wert > 0 ? Steuerart{"S", satz} : befreit();
    }

    void zeilen() {
        for (std::size_t i = 0; i < q_.zeilen.size(); ++i) {
            const Quellzeile& zeile = q_.zeilen[i];
            if (zeile.K == "K") {
                kommentar(gereinigt(zeile.Leistung, "List_DARSTELLUNG", static_cast<int>(i)));
            } else if (zeile.K != "T") {
                position(zeile, static_cast<int>(i));
            }
        }
    }

    void kommentar(const std::string& text) {
        if (!text.empty()) {
            (b_.zeilen.empty() ? b_.hinweise : b_.zeilen.back().hinweise).push_back(text);
        }
    }

    void position(const Quellzeile& quelle, int zeile) {
        const std::string nummer = "Position " + std::to_string(b_.zeilen.size() + 1);
        const std::optional<Menge> menge = festkomma_lesen<Menge>(quelle.Menge);
        const std::optional<Preis> preis = festkomma_lesen<Preis>(quelle.Preis);
        const std::optional<Preis> gesamt = festkomma_lesen<Preis>(quelle.Gesamtp);
        Position p{menge.value_or(Menge{}), preis.value_or(Preis{}), gesamt.value_or(Preis{})};
        if (!menge || !preis || !gesamt) {
            fatal(
                "List_DARSTELLUNG",
                nummer +
                    ": Menge, Einzelpreis oder Gesamtpreis ist keine Zahl, die eine E-Rechnung halten kann.",
                zeile);
        } else {
            zeile_vergleichen(p, nummer, zeile);
        }
        if (p.preis.wert < 0) { // prices are never negative there, quantities may be
            p.preis = -p.preis;
            p.menge = -p.menge;
        }
        g_.positionen.push_back(p);
        b_.zeilen.push_back({gereinigt(quelle.Leistung, "List_DARSTELLUNG", zeile),
                             {},
                             p.menge,
                             p.preis,
                             {},
                             g_.steuer,
                             zeile});
    }

    /// A row that is too large to reckon with counts as zero from here on.
    void zeile_vergleichen(Position& p, const std::string& nummer, int zeile) {
        constexpr std::int64_t kMengeEins = 10'000;
        constexpr std::int64_t kHalberCent = 5'000;
        Preis gerechnet;
        try {
            gerechnet.wert = mal_durch(p.menge.wert, p.preis.wert, kMengeEins);
        } catch (const Laufzeitfehler&) {
            p = {};
            fatal("List_DARSTELLUNG", nummer + ": Menge und Einzelpreis sind zu groß zum Rechnen.", zeile);
            return;
        }
        const Preis abstand = gerechnet - p.gesamt;
        if (abstand.wert > kHalberCent || -abstand.wert > kHalberCent) {
            fatal("List_DARSTELLUNG",
                  nummer + ": Menge mal Einzelpreis ergibt " + lesetext(gerechnet) +
                      ", in der Rechnung steht " + lesetext(p.gesamt) + ". Bitte die Zeile neu eingeben.",
                  zeile);
        }
    }

    void rabatt_und_versand() {
        if (q_.rabatt) {
            g_.rabatt = satz_lesen(q_.Rabatt_Satz, {-kHundertProzent}, "Text_Rabatt", "Der Rabatt");
        }
        g_.versandsteuer = g_.steuer;
        if (!q_.versand) {
            return;
        }
        if (const std::optional<Cent> betrag = festkomma_lesen<Cent>(q_.Versand_Betrag)) {
            g_.versand = *betrag;
        } else {
            fatal("Text_PreisVersankostenEingabe", "Die Versandkosten sind keine Zahl.");
        }
        if (g_.versand != Cent{}) {
            versandsteuer();
        }
    }

    /// Shipping is gross at the rate of the settings, unless the invoice bears no VAT and names none of it.
    void versandsteuer() {
        const bool genannt = q_.versand_getrennt || q_.versand_enthalten;
        const bool befreit = g_.steuer.kategorie != "S";
        if (befreit && !genannt) {
            return;
        }
        const Prozent satz = satz_lesen(q_.Versand_Satz, {}, "Text_MwSt", "Der MwSt.-Satz der Versandkosten");
        g_.versandsteuer = satz.wert > 0 ? Steuerart{"S", satz} : befreit ? g_.steuer : this->befreit();
        const std::string prozent = lesetext(satz) + " %";
        if (befreit) {
            hinweis("Check_VersandMwStEXTRA",
                    "Die Rechnung ist steuerfrei, nennt aber " + prozent +
                        " MwSt. der Versandkosten. Diese MwSt. ist dann geschuldet. Ohne die "
                        "Häkchen bei den Versandkosten sind auch sie steuerfrei.");
        } else if (!genannt) {
            hinweis("Check_VersandMwStEXTRA",
                    "In den Versandkosten von " + lesetext(g_.versand) + " stecken " + prozent +
                        " MwSt., die auf der Rechnung nicht steht. Bitte \"MwSt. getrennt ausweisen\" oder "
                        "\"enthaltene MwSt. nennen\" ankreuzen.");
        } else if (q_.versand_getrennt && q_.versand_enthalten) {
            hinweis("Check_VersandINKL_MwSt",
                    "Die MwSt. der Versandkosten auf der Rechnung kann veraltet sein, solange "
                    "beide Häkchen gesetzt sind. Bitte nur eines setzen.");
        } else if (q_.versand_enthalten && g_.steuer.satz != satz) {
            hinweis("Check_VersandINKL_MwSt",
                    "Bei den Versandkosten nennt die Rechnung den Satz " + q_.MwSt_Satz +
                        " %, gerechnet sind " + prozent +
                        ". Mit \"MwSt. getrennt ausweisen\" steht der richtige Satz da.");
        }
    }

    void rechnen() {
        if (const std::optional<Cent> gesamt = festkomma_lesen<Cent>(q_.Gesamtbetrag)) {
            g_.gesamt = *gesamt;
        } else {
            fatal("Text_gesamtbetrag", "Der Rechnungsbetrag ist keine Zahl.");
            return;
        }
        try {
            werte_uebernehmen(BELEG_RECHNEN(g_));
        } catch (const Laufzeitfehler&) {
            fatal("List_DARSTELLUNG",
                  "Die Beträge sind zu groß zum Rechnen. Bitte Mengen, Preise und Sätze prüfen.");
        }
    }

    void werte_uebernehmen(const Rechenwerte& w) {
        for (std::size_t i = 0; i < b_.zeilen.size(); ++i) {
            b_.zeilen[i].einzelpreis = w.einzelpreise[i];
            b_.zeilen[i].betrag = w.betraege[i];
        }
        b_.steuern = w.steuern;
        for (Steuergruppe& gruppe : b_.steuern) {
            if (gruppe.steuer.kategorie != "S") {
                gruppe.grund = befreiungstext_;
                gruppe.code = befreiungscode_;
            }
        }
        b_.summen = w.summen;
        if (q_.rabatt) {
            nachlass({false, w.rabatt, w.summen.zeilen, g_.rabatt, "Rabatt", kRabattcode, g_.steuer});
        }
        nachlass({true, w.versand, {}, {}, versandname(), kFrachtcode, g_.versandsteuer});
        betrag_vergleichen(w);
    }

    std::string versandname() {
        std::string name = gereinigt(q_.Versand_Text, "Text_Versandk");
        while (!name.empty() && (name.back() == ':' || name.back() == ' ')) {
            name.pop_back();
        }
        return name.empty() ? "Versandkosten" : name;
    }

    /// A negative allowance is a charge and the other way round: amounts are never negative there.
    void nachlass(Nachlass n) {
        if (n.betrag == Cent{}) {
            return;
        }
        if (n.betrag < Cent{}) {
            n = {!n.zuschlag, -n.betrag, {}, {}, std::move(n.grund), "", std::move(n.steuer)};
        }
        (n.zuschlag ? b_.summen.zuschlaege : b_.summen.nachlaesse) += n.betrag;
        b_.nachlaesse.push_back(std::move(n));
    }

    void betrag_vergleichen(const Rechenwerte& w) {
        const Cent rest = w.summen.rundung;
        if (rest > kGroessteRundung || -rest > kGroessteRundung) {
            fatal("Text_gesamtbetrag", "Die Rechnung nennt " + lesetext(g_.gesamt) + " " + b_.waehrung +
                                           ", aus Positionen, Rabatt, Versandkosten und MwSt. ergeben sich " +
                                           lesetext(w.summen.brutto) +
                                           ". Mehr als 2 Cent lassen sich nicht als "
                                           "Rundung angeben. Bitte neu berechnen und die Positionen prüfen.");
        }
    }

    void zahlung() {
        int tage = 0;
        if (!b_.verkaeufer.Zahlungstage.empty()) {
            if (!ist_zahl(b_.verkaeufer.Zahlungstage, tage, kLaengsteFrist)) {
                fatal("Text_Zahlungstage", "Das Zahlungsziel ist eine Zahl von Tagen, wie 14.");
            } else if (b_.datum) {
                b_.zahlung.faellig = zeitpunkt_aus(sekunden_aus(*b_.datum) + tage * kTag);
                if (b_.zahlung.faellig->jahr > kLetztesJahr) {
                    fatal("Text_Zahlungstage", "Das Zahlungsziel liegt zu weit in der Zukunft.");
                }
            }
        }
        const std::string& prozent = b_.verkaeufer.Skonto_Prozent;
        const std::string& skontotage = b_.verkaeufer.Skonto_Tage;
        if (prozent.empty() && skontotage.empty()) {
            return;
        }
        const std::optional<Cent> satz = festkomma_lesen<Cent>(prozent);
        if (!satz || satz->wert <= 0 || satz->wert >= 100'00) {
            fatal("Text_Skonto_Prozent",
                  "Der Skonto ist ein Satz mit höchstens zwei Stellen hinter dem Komma, wie 2,5.");
            return;
        }
        if (!ist_zahl(skontotage, b_.zahlung.skontotage, kLaengsteFrist)) {
            fatal("Text_Skonto_Tage", "Die Skontofrist ist eine Zahl von Tagen, wie 10.");
            return;
        }
        b_.zahlung.skonto = *satz;
        if (b_.zahlung.faellig && b_.zahlung.skontotage > tage) {
            hinweis("Text_Skonto_Tage", "Die Skontofrist ist länger als das Zahlungsziel.");
        }
    }

    static constexpr int kLaengsteFrist = 999; // days

    const Belegquelle& q_;
    const Bezug& bezug_;
    Aufstellung a_;
    Rechnungsbeleg& b_ = a_.beleg;
    Rechengrundlage g_;
    std::string befreiungstext_;
    std::string befreiungscode_;
};

} // namespace

std::optional<Belegart> BELEGARTFRAGE(const std::string& titel) {
    const std::string text = grossbuchstaben(titel);
    const auto enthaelt = [&text](const char* wort) { return text.find(wort) != std::string::npos; };
    if (enthaelt("STORNO")) {
        return Belegart::Korrektur;
    }
    return enthaelt("GUTSCHRIFT") ? std::optional(Belegart::Gutschrift) : std::nullopt;
}

Aufstellung RECHNUNGSBELEG(const Belegquelle& quelle, const Verkaeufer& verkaeufer, const Kaeufer& kaeufer,
                           const Bezug& bezug) {
    return Aufsteller(quelle, bezug).aufstellen(verkaeufer, kaeufer);
}

} // namespace quittika
