#include "app/betraege.hpp"

#include "invoice/rechnung.hpp"

namespace quittika {

Betraege::Betraege(Form1& form1, const Ereignisse& ereignisse, Rechnungszustand& zustand,
                   Eingabezeile& eingabezeile, Summen& summen, PROGRAMMEINSTELLUNG& werte,
                   Einstellungsschreiber& einstellungsschreiber)
    : form1_(form1),
      zustand_(zustand),
      eingabezeile_(eingabezeile),
      summen_(summen),
      werte_(werte),
      einstellungsschreiber_(einstellungsschreiber) {
    SchalterVerdrahten(ereignisse);
    WertfeldVerdrahten(form1.Text_MwSt, ereignisse, [this] { Text_MwSt_LostFocus(); });
    for (TextBox* feld : {&form1.Text_Rabatt, &form1.Text_PreisVersankostenEingabe, &form1.Text_Versandk}) {
        WertfeldVerdrahten(*feld, ereignisse, ereignisse.rechnen());
    }
    form1.Command_berechnen.Click = ereignisse.befehl([this] { Command_berechnen_Click(); });
}

void Betraege::SchalterVerdrahten(const Ereignisse& ereignisse) {
    Form1& f = form1_;
    for (OptionButton* art : {&f.Option_mwst_plus, &f.Option_mwst_minus, &f.Option_inkl_MwSt}) {
        art->Click = ereignisse.aenderung();
    }
    for (CheckBox* haekchen : {&f.Check_RABATT, &f.Check_Versandkosten, &f.Check_VersandMwStEXTRA,
                               &f.Check_VersandINKL_MwSt, &f.Check_000}) {
        haekchen->Click = ereignisse.aenderung();
    }
    f.Check_mengenartDECIMAL.Click = ereignisse.aenderung([this] { Check_mengenartDECIMAL_Click(); });
    f.Check_mwst.Click = ereignisse.aenderung([this] { Check_mwst_Click(); });
    f.Option_Satz1.Click = ereignisse.aenderung([this] { form1_.Text_MwSt.Text = werte_.MWST_SATZ1; });
    f.Option_Satz2.Click = ereignisse.aenderung([this] { form1_.Text_MwSt.Text = werte_.MWST_SATZ2; });
}

void Betraege::WertfeldVerdrahten(TextBox& feld, const Ereignisse& ereignisse,
                                  const Ereignisse::Ereignis& rechnen) {
    CommandButton& knopf = form1_.Command_berechnen;
    feld.Change = ereignisse.eintrag([&hinweise = form1_.Hinweise, &feld] { hinweise.vergessen(feld); });
    feld.GotFocus = [&knopf] { knopf.Default = true; };
    feld.LostFocus = [&knopf, rechnen] {
        knopf.Default = false;
        rechnen();
    };
    feld.KeyDown = TASTEN({{kEingabetaste, ereignisse.eingabeende([rechnen, &feld] {
                                rechnen();
                                feld.select_all();
                            })}});
}

void Betraege::Check_mengenartDECIMAL_Click() {
    werte_.MENGE_DEZIMAL = form1_.Check_mengenartDECIMAL.ticked();
    einstellungsschreiber_.EINSTELLUNGEN_SPEICHERN();
}

/// VAT without a kind of it would count nothing.
void Betraege::Check_mwst_Click() {
    Form1& f = form1_;
    const bool ohne_art =
        !f.Option_mwst_plus.Value() && !f.Option_mwst_minus.Value() && !f.Option_inkl_MwSt.Value();
    if (f.Check_mwst.ticked() && ohne_art) {
        f.Option_mwst_plus.Value = true;
    }
}

void Betraege::Text_MwSt_LostFocus() {
    summen_.jetztberechnen_List();
    const Rechnungszustand::Sperre still(zustand_);
    SatzAuswahlZeigen(form1_, werte_);
}

void Betraege::Command_berechnen_Click() {
    summen_.jetztberechnen_List();
    if (TextBox* feld = eingabezeile_.abgelehntes_feld()) {
        Eingabezeile::hingehen(*feld);
    }
}

} // namespace quittika
