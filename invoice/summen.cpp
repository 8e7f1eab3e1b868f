#include "invoice/summen.hpp"

#include "platform/datum.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace quittika {

namespace {

/// Comment and break rows put a lone blank where others have a quantity or a price.
bool leerfeld(const std::string& text) {
    return text == " ";
}

std::string mit_komma(const std::string& text) {
    return ZEICHENERSETZEN(text, ".", ",");
}

void schreiben(TextBox& feld, double wert, std::string_view muster) {
    feld.Text = format_zahl(wert, muster);
}

} // namespace

int NachkommastellenZaehlen(std::string_view text) {
    const std::size_t komma = text.find(',');
    if (komma == std::string_view::npos) {
        return 0;
    }
    int stellen = 0;
    for (std::size_t i = komma + 1; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        ++stellen;
    }
    return stellen;
}

std::string_view MENGENFORMAT(std::string_view text, bool dezimal) {
    if (!dezimal) {
        return "0";
    }
    switch (NachkommastellenZaehlen(text)) {
    case 1:
        return "0.0";
    case 3:
        return "0.000";
    case 4:
        return "0.0000";
    default:
        return "0.00";
    }
}

Summen::Summen(Form1& form1, const frm_einstellungen& einstellungen, Rechnungszustand& zustand,
               Dialogs& dialogs, const Clock& uhr, std::function<int()> ANZAHL_DRUCKSEITEN)
    : form1_(form1),
      einstellungen_(einstellungen),
      zustand_(zustand),
      dialogs_(dialogs),
      uhr_(uhr),
      anzahl_druckseiten_(std::move(ANZAHL_DRUCKSEITEN)) {}

std::optional<double> Summen::Menge() const {
    const std::string text = mit_komma(form1_.Text_Menge.Text());
    const std::optional<double> wert = double_versuch(text);
    if (!wert || dezimalmengen()) {
        return wert;
    }
    try {
        return nach_int16(*wert);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

bool Summen::MengeIstZahl() const {
    return double_versuch(mit_komma(form1_.Text_Menge.Text())).has_value();
}

std::optional<double> Summen::Preis() const {
    return double_versuch(mit_komma(form1_.Text_preis.Text()));
}

void Summen::MengeLesen() {
    TextBox& feld = form1_.Text_Menge;
    Mengenwert = 0;
    if (form1_.Check_K.ticked() || leerfeld(feld.Text())) {
        return;
    }
    const std::string text = mit_komma(feld.Text());
    const std::optional<double> wert = Menge();
    if (!wert) {
        feld.Text = text;
        dialogs_.message({"Ihre Eingabe ist nicht gültig!", "Achtung Fehler!"});
        return;
    }
    Mengenwert = *wert;
    schreiben(feld, Mengenwert, MENGENFORMAT(text, dezimalmengen()));
}

void Summen::PreisLesen() {
    TextBox& feld = form1_.Text_preis;
    Preiswert = 0;
    if (form1_.Check_K.ticked() || leerfeld(feld.Text())) {
        return;
    }
    if (const std::optional<double> wert = Preis()) {
        Preiswert = *wert;
        schreiben(feld, Preiswert, form1_.Check_000.ticked() ? "0.000" : "0.00");
    } else {
        feld.Text = mit_komma(feld.Text());
    }
}

void Summen::SatzLesen(TextBox& feld, double& variable) {
    if (const std::optional<double> wert = double_versuch(mit_komma(feld.Text()))) {
        variable = *wert;
    }
    schreiben(feld, variable, "0.00");
}

void Summen::VersandAufteilen() {
    if (!form1_.Check_Versandkosten.ticked()) {
        Versand_Eingabe = 0;
        versand_ = {};
    }
    const bool extra = form1_.Check_VersandMwStEXTRA.ticked();
    const bool inklusive = form1_.Check_VersandINKL_MwSt.ticked();
    if (extra == inklusive) {
        if (!extra) {
            form1_.Label_Versandkosten.Caption = form1_.Text_Versandk.Text();
        }
        return;
    }
    const double satz = double_versuch(mit_komma(einstellungen_.Text_MwSt.Text())).value_or(0);
    const Versand_Modus modus = extra ? Versand_Modus::Getrennt : Versand_Modus::Enthalten;
    versand_ = VERSAND_AUFTEILEN(modus, Versand_Eingabe, satz, versand_);
    const std::string& name = form1_.Text_Versandk.Text();
    form1_.Label_Versandkosten.Caption = extra ? name + " (Netto)" : name;
    form1_.Label_VersandkostenMWST.Caption = extra ? "Versandk.-MwSt.: (" + zahl_text(satz) + "%)"
                                                   : "Enthaltene MwSt. " + form1_.Text_MwSt.Text() + " %:";
}

/// A row beyond all bounds counts as none: it must not keep the list's totals from being right.
void Summen::ZeilensummeBerechnen() {
    Zeilensumme = Mengenwert * Preiswert;
    zeilensumme_gueltig_ = std::isfinite(Zeilensumme);
    if (!zeilensumme_gueltig_) {
        Zeilensumme = 0;
    }
    schreiben(form1_.Text_gesamtp, Zeilensumme, form1_.Check_000.ticked() ? "0.000" : "0.00");
}

double Summen::ListensummeBerechnen() const {
    const std::vector<std::string>& betraege = form1_.List_Gesamtp.items();
    const std::vector<std::string>& arten = form1_.List_K.items();
    double summe = 0;
    for (std::size_t i = 0; i < betraege.size(); ++i) {
        if (i < arten.size() && arten[i] == "K") {
            continue;
        }
        if (const std::optional<double> wert = double_versuch(betraege[i])) {
            summe = endlich(summe + *wert);
        }
    }
    return dezimal_bereinigt(summe);
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

void Summen::rechnen() {
    const Rechnungszustand::Sperre still(zustand_);
    form1_.m_speichern_direkt.Enabled = !zustand_.AktuellerPfad().empty();
    MengeLesen();
    PreisLesen();
    if (Waechter < 1 || Waechter > 9) {
        Waechter = 2;
    }
    SatzLesen(form1_.Text_MwSt, MwSt_Satz);
    SatzLesen(form1_.Text_Rabatt, Rabattprozent);
    SatzLesen(form1_.Text_PreisVersankostenEingabe, Versand_Eingabe);
    VersandAufteilen();
    if (form1_.Check_datum.ticked() && !zustand_.IstDateiDesPfads()) { // an invoice on disk keeps its date
        form1_.Text_Datum.Text = datum_text(uhr_.now());
    }
    ZeilensummeBerechnen();
    Listensumme = ListensummeBerechnen();
    const Mwst_Modus modus = mwst_modus();
    const Rechenergebnis ergebnis = RECHNUNGSBETRAEGE(
        {Listensumme, form1_.Check_RABATT.ticked(), Rabattprozent, modus, MwSt_Satz, Versand_Eingabe});
    form1_.Label_summe.Caption = modus == Mwst_Modus::Plus || modus == Mwst_Modus::Inklusive
                                     ? "Gesamtbetrag (inkl. MwSt.) :"
                                     : "Gesamtbetrag:";
    Anzeigen(ergebnis);
    PositionenNummerieren();
    form1_.StatusBar1[2].Caption = "Anzahl Druckseiten: " + std::to_string(anzahl_druckseiten_());
}

void Summen::jetztberechnen_List() {
    try {
        rechnen();
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kUeberlauf && fehler.nummer() != fehler::kDivisionDurchNull) {
            throw;
        }
    }
}

void Summen::EingabezeileVerlassen() {
    if (Menge() && Preis()) {
        jetztberechnen_List();
    } else {
        form1_.Text_gesamtp.Text = vorgabe::kBetrag;
    }
}

} // namespace quittika
