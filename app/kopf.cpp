#include "app/kopf.hpp"

#include "invoice/belegtexte.hpp"
#include "invoice/kundenfelder.hpp"
#include "invoice/rechnung.hpp"
#include "platform/datum.hpp"
#include "platform/text.hpp"

namespace quittika {

namespace {

constexpr const char* kLieferdatum = "LIEFERDATUM: ";

} // namespace

Kopf::Kopf(Form1& form1, const Ereignisse& ereignisse, KundeAufnehmen& kunde_aufnehmen, const Clock& uhr)
    : form1_(form1), uhr_(uhr) {
    DokumentVerdrahten(ereignisse);
    KundeVerdrahten(ereignisse, kunde_aufnehmen);
    TexteVerdrahten(ereignisse);
    StatusVerdrahten(ereignisse);
}

void Kopf::DokumentVerdrahten(const Ereignisse& ereignisse) {
    for (TextBox* feld :
         {&form1_.Text_Datum, &form1_.Text_LIEFERDATUM, &form1_.Text_rechnung, &form1_.Text_RNnr}) {
        feld->Change = ereignisse.eintrag();
    }
    form1_.Check_LIEFERDATUM.Click = ereignisse.aenderung([this] { Check_LIEFERDATUM_Click(); });
    form1_.Check_datum.Click = ereignisse.aenderung([this] { Check_datum_Click(); });
    // Printed otherwise, but nothing of the invoice itself.
    for (OptionButton* dokument : {&form1_.Option_RECHNUNG, &form1_.Option_RECHNUNG_KOPIE,
                                   &form1_.Option_LIEFERSCHEIN, &form1_.Option_LIEFERSCHEIN_KOPIE}) {
        dokument->Click = ereignisse.vom_benutzer(ereignisse.rechnen());
    }
}

void Kopf::KundeVerdrahten(const Ereignisse& ereignisse, KundeAufnehmen& kunde_aufnehmen) {
    for (TextBox* feld : KUNDENFELDER(form1_)) {
        feld->Change = ereignisse.eintrag();
        feld->GotFocus = [this, feld] { PlatzhalterMarkieren(*feld); };
        feld->OLEDragDrop = ABLEGEN(*feld);
    }
    form1_.Check_tele_nichtdrucken.Click = ereignisse.vom_benutzer(ereignisse.rechnen());
    form1_.Command_KD_Add.Click =
        ereignisse.befehl([&kunde_aufnehmen] { kunde_aufnehmen.Command_KD_Add_Click(); });
}

void Kopf::TexteVerdrahten(const Ereignisse& ereignisse) {
    for (OptionButton* block : {&form1_.Option_anschreiben, &form1_.Option_Bemerkungen}) {
        block->Click = [this, rechnen = ereignisse.rechnen()] {
            Option_anschreiben_Click();
            rechnen();
        };
    }
    for (int n = 1; n <= 4; ++n) {
        for (TextBox& zeile : form1_.Text_Bemerkung(n)) {
            zeile.Change = ereignisse.eintrag();
        }
    }
}

void Kopf::StatusVerdrahten(const Ereignisse& ereignisse) {
    form1_.Check_versendet.Click = ereignisse.aenderung();
    form1_.Check_bezahlt.Click = ereignisse.aenderung();
    form1_.Check_abgemahnt.Click = ereignisse.aenderung([this] { Check_abgemahnt_Click(); });
    form1_.Combo1_mahnung.Click = ereignisse.eintrag();
}

void Kopf::KundeAnwaehlen() {
    form1_.Text_Kunde_1.SetFocus();
    PlatzhalterMarkieren(form1_.Text_Kunde_1);
}

void Kopf::PlatzhalterMarkieren(TextBox& feld) {
    if (KUNDENTEXT(form1_, feld).empty()) {
        feld.select_all();
    }
}

void Kopf::Check_datum_Click() {
    if (form1_.Check_datum.ticked()) {
        form1_.Text_Datum.Text = datum_text(uhr_.now());
    }
}

void Kopf::Check_LIEFERDATUM_Click() {
    TextBox& feld = form1_.Text_LIEFERDATUM;
    if (form1_.Check_LIEFERDATUM.ticked() && !beginnt_mit(feld.Text(), kLieferdatum)) {
        feld.Text = kLieferdatum + gekuerzt(feld.Text());
    }
    LieferdatumFreigeben(form1_);
}

void Kopf::Check_abgemahnt_Click() {
    const bool abgemahnt = form1_.Check_abgemahnt.ticked();
    form1_.Combo1_mahnung.Enabled = abgemahnt;
    if (abgemahnt) {
        form1_.Combo1_mahnung.ListIndex = 0;
    }
}

void Kopf::Option_anschreiben_Click() {
    const bool anschreiben = form1_.Option_anschreiben.Value();
    form1_.Frame_Bemerkungen[0].Visible = anschreiben;
    form1_.Frame_Bemerkungen[1].Visible = !anschreiben;
}

} // namespace quittika
