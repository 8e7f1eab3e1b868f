#include "invoice/summen.hpp"

#include "platform/datum.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <string>
#include <utility>
#include <vector>

namespace quittika {

namespace {

void schreiben(TextBox& feld, double wert, std::string_view muster) {
    feld.Text = format_zahl(wert, muster);
}

/// Sum of all rows but the comments; nothing where no double holds it.
std::optional<double> LISTENSUMME(const Form1& form1) {
    const std::vector<std::string>& betraege = form1.List_Gesamtp.items();
    const std::vector<std::string>& arten = form1.List_K.items();
    double summe = 0;
    for (std::size_t i = 0; i < betraege.size(); ++i) {
        if (i < arten.size() && arten[i] == "K") {
            continue;
        }
        if (const std::optional<double> wert = double_versuch(betraege[i])) {
            summe += *wert;
        }
    }
    try {
        return dezimal_bereinigt(summe);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

} // namespace

Summen::Summen(Form1& form1, const frm_einstellungen& einstellungen, Rechnungszustand& zustand,
               Eingabezeile& eingabezeile, const Clock& uhr, std::function<int()> ANZAHL_DRUCKSEITEN)
    : form1_(form1),
      einstellungen_(einstellungen),
      zustand_(zustand),
      eingabezeile_(eingabezeile),
      uhr_(uhr),
      anzahl_druckseiten_(std::move(ANZAHL_DRUCKSEITEN)) {}

void Summen::SatzLesen(TextBox& feld, double& variable) {
    const std::string getippt = feld.Text();
    if (const std::optional<Zahleneingabe> zahl = ZAHL_LESEN(getippt)) {
        const Feldwert wert = FELDWERT(getippt, *zahl, zahl->wert, "0.00");
        variable = wert.wert;
        form1_.Hinweise.melden(wert.hinweis, &feld);
    } else {
        form1_.Hinweise.melden(KEINE_ZAHL(getippt) + ", es bleibt bei " + format_zahl(variable, "0.00") + ".",
                               &feld);
    }
    schreiben(feld, variable, "0.00");
}

void Summen::UngezaehltesMelden() {
    const Form1& f = form1_;
    const bool versand = f.Check_Versandkosten.ticked();
    std::string text;
    const auto anfuegen = [&text](const std::string& satz) { text += (text.empty() ? "" : " ") + satz; };
    if (Rabattprozent != 0 && !f.Check_RABATT.ticked()) {
        anfuegen("Der Rabatt zählt nicht: Das Häkchen \"" + BESCHRIFTUNG(f.Check_RABATT) + "\" fehlt.");
    }
    if (Versand_Eingabe != 0 && !versand) {
        anfuegen("Die Versandkosten zählen nicht: Das Häkchen \"" + BESCHRIFTUNG(f.Check_Versandkosten) +
                 "\" fehlt.");
    }
    if (f.Check_mwst.ticked() && mwst_modus() == Mwst_Modus::Ohne) {
        anfuegen("Die MwSt. zählt nicht: Bitte \"" + BESCHRIFTUNG(f.Option_mwst_plus) + "\", \"" +
                 BESCHRIFTUNG(f.Option_mwst_minus) + "\" oder \"" + BESCHRIFTUNG(f.Option_inkl_MwSt) +
                 "\" wählen.");
    }
    if (versand && f.Check_VersandMwStEXTRA.ticked() && f.Check_VersandINKL_MwSt.ticked()) {
        anfuegen("Die MwSt. der Versandkosten wird nicht neu berechnet: Bitte nur \"" +
                 BESCHRIFTUNG(f.Check_VersandMwStEXTRA) + "\" oder \"" +
                 BESCHRIFTUNG(f.Check_VersandINKL_MwSt) + "\" ankreuzen.");
    }
    form1_.Hinweise.setzen(Hinweiszeile::Lage::NichtGezaehlt, text);
}

/// Answers the number of the error where the split cannot be calculated, and makes it zeros; else 0.
int Summen::VersandAufteilen() {
    if (!form1_.Check_Versandkosten.ticked()) {
        Versand_Eingabe = 0;
        versand_ = {};
    }
    const bool extra = form1_.Check_VersandMwStEXTRA.ticked();
    const bool inklusive = form1_.Check_VersandINKL_MwSt.ticked();
    const std::string& name = form1_.Text_Versandk.Text();
    if (extra == inklusive) {
        if (!extra) {
            form1_.Label_Versandkosten.Caption = name;
        }
        return 0;
    }
    const double satz = ZAHL_LESEN(einstellungen_.Text_MwSt.Text()).value_or(Zahleneingabe{}).wert;
    form1_.Label_Versandkosten.Caption = extra ? name + " (Netto)" : name;
    form1_.Label_VersandkostenMWST.Caption = extra ? "Versandk.-MwSt.: (" + zahl_text(satz) + "%)"
                                                   : "Enthaltene MwSt. " + form1_.Text_MwSt.Text() + " %:";
    try {
        const Versand_Modus modus = extra ? Versand_Modus::Getrennt : Versand_Modus::Enthalten;
        versand_ = VERSAND_AUFTEILEN(modus, Versand_Eingabe, satz, versand_);
        return 0;
    } catch (const Laufzeitfehler& fehler) {
        versand_ = {};
        return fehler.nummer();
    }
}

std::optional<double> Summen::ListensummeBerechnen() {
    if (gemerkt_.betraege == form1_.List_Gesamtp.revision() && gemerkt_.arten == form1_.List_K.revision()) {
        return gemerkt_.summe;
    }
    gemerkt_ = {form1_.List_Gesamtp.revision(), form1_.List_K.revision(), LISTENSUMME(form1_)};
    return gemerkt_.summe;
}
Rechenergebnis Summen::BetraegeBerechnen(Mwst_Modus modus) {
    const std::optional<double> summe = ListensummeBerechnen();
    Listensumme = summe.value_or(0);
    if (!summe) {
        Rechenergebnis ohne;
        ohne.fehler = fehler::kUeberlauf;
        return ohne;
    }
    return RECHNUNGSBETRAEGE(
        {Listensumme, form1_.Check_RABATT.ticked(), Rabattprozent, modus, MwSt_Satz, Versand_Eingabe});
}

Mwst_Modus Summen::mwst_modus() const {
    if (!form1_.Check_mwst.ticked()) {
        return Mwst_Modus::Ohne;
    }
    if (form1_.Option_mwst_plus.Value()) {
        return Mwst_Modus::Plus;
    }
    if (form1_.Option_mwst_minus.Value()) {
        return Mwst_Modus::Minus;
    }
    return form1_.Option_inkl_MwSt.Value() ? Mwst_Modus::Inklusive : Mwst_Modus::Ohne;
}

void Summen::Anzeigen(const Rechenergebnis& ergebnis) {
    const bool drei = form1_.Check_000.ticked();
    const bool aufgeteilt = form1_.Check_VersandMwStEXTRA.ticked() || form1_.Check_VersandINKL_MwSt.ticked();
    const std::string_view weit = drei ? "0.000" : "0.00";
    schreiben(form1_.Text_summe, Listensumme, weit);
    schreiben(form1_.Text_summemwst, ergebnis.MwSt_Betrag, "0.00");
    schreiben(form1_.Text_gesamtbetrag, ergebnis.Gesamtbetrag, "0.00");
    schreiben(form1_.Text_summeRabatt, ergebnis.Rabattbetrag, drei ? "-0.000" : "-0.00");
    schreiben(form1_.Text_summeNACHRABATT, ergebnis.Summe_nach_Rabatt, weit);
    schreiben(form1_.Text_PreisVersankosten, aufgeteilt ? versand_.Versand_Netto : Versand_Eingabe, "0.00");
    schreiben(form1_.Text_PreisVersankostenMwST, versand_.Versand_MwSt, "0.00");
}

void Summen::PositionenNummerieren() {
    std::vector<std::string> nummern;
    nummern.reserve(form1_.List_K.items().size());
    int zaehler = 0;
    for (const std::string& art : form1_.List_K.items()) {
        nummern.push_back(art == "-" ? std::to_string(++zaehler) : " ");
    }
    if (nummern != form1_.List_pos.items()) {
        form1_.List_pos.assign(std::move(nummern));
    }
}

/// Why amounts are missing; empty when none is.
std::string Summen::Grund(int fehler_versand, int fehler_betraege) const {
    if (fehler_betraege == fehler::kDivisionDurchNull) {
        return "Aus einem MwSt.-Satz von -100 % lässt sich kein Betrag berechnen. Bitte den Satz ändern.";
    }
    if (fehler_versand == fehler::kDivisionDurchNull) {
        return "Die MwSt. der Versandkosten lässt sich bei einem Satz von -100 % nicht berechnen. Bitte den "
               "Satz "
               "in den Rechnungseinstellungen ändern.";
    }
    const bool zu_gross = fehler_versand != 0 || fehler_betraege != 0 || !eingabezeile_.SummeGueltig();
    return zu_gross ? "Die Beträge sind zu groß zum Rechnen. Bitte Mengen, Preise und Sätze prüfen." : "";
}

void Summen::jetztberechnen_List() {
    const Rechnungszustand::Sperre still(zustand_);
    form1_.m_speichern_direkt.Enabled = !zustand_.AktuellerPfad().empty();
    eingabezeile_.lesen();
    if (Waechter < 1 || Waechter > 9) {
        Waechter = 2;
    }
    SatzLesen(form1_.Text_MwSt, MwSt_Satz);
    SatzLesen(form1_.Text_Rabatt, Rabattprozent);
    SatzLesen(form1_.Text_PreisVersankostenEingabe, Versand_Eingabe);
    UngezaehltesMelden();
    const int fehler_versand = VersandAufteilen();
    if (form1_.Check_datum.ticked() && !zustand_.IstDateiDesPfads()) { // an invoice on disk keeps its date
        form1_.Text_Datum.Text = datum_text(uhr_.now());
    }
    const Mwst_Modus modus = mwst_modus();
    const Rechenergebnis ergebnis = BetraegeBerechnen(modus);
    form1_.Label_summe.Caption = modus == Mwst_Modus::Plus || modus == Mwst_Modus::Inklusive
                                     ? "Gesamtbetrag (inkl. MwSt.) :"
                                     : "Gesamtbetrag:";
    Anzeigen(ergebnis);
    PositionenNummerieren();
    form1_.StatusBar1[2].Caption = "Anzahl Druckseiten: " + std::to_string(anzahl_druckseiten_());
    form1_.Hinweise.setzen(Hinweiszeile::Lage::Rechenfehler, Grund(fehler_versand, ergebnis.fehler));
}

} // namespace quittika
