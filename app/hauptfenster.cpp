#include "app/hauptfenster.hpp"

#include "app/fenstertitel.hpp"
#include "app/form_ueber_quittika.hpp"
#include "invoice/belegtexte.hpp"
#include "invoice/programmname.hpp"
#include "platform/datum.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <string_view>

namespace quittika {

namespace {

constexpr std::string_view kEndung = ".QK8";
constexpr const char* kLieferdatum = "LIEFERDATUM: ";

} // namespace

Hauptfenster::Hauptfenster(Teile teile) : t_(teile) {
    FensterVerdrahten();
    MenueVerdrahten();
    KopfVerdrahten();
    EingabeVerdrahten();
    ListenVerdrahten();
    ZeilenmenueVerdrahten();
    BetraegeVerdrahten();
    StatusVerdrahten();
    RasterVerdrahten();
    AblegenVerdrahten();
    SpaeteresSperren();
}

void Hauptfenster::Form_QueryUnload(bool& abbrechen) {
    if (!ohne_frage_schliessen_) {
        abbrechen = !t_.dateibefehle.VorherSpeichern(Buttons::YesNoCancel);
    }
}

void Hauptfenster::TitelZeigen() {
    t_.form1.Caption = FENSTERTITEL(t_.zustand);
    t_.form1.Modified = t_.zustand.geaendert();
}

void Hauptfenster::Form_FilesDropped(const std::vector<std::string>& pfade) {
    const auto rechnung = std::find_if(pfade.begin(), pfade.end(), [](const std::string& pfad) {
        return grossbuchstaben(rechts(pfad, kEndung.size())) == kEndung;
    });
    const Hinweiszeile::Befehl befehl(t_.form1.Hinweise);
    if (rechnung == pfade.end()) {
        t_.form1.Hinweise.melden("Auf das Fenster lassen sich nur Rechnungsdateien (*.qk8) ziehen.");
    } else if (t_.dateibefehle.Oeffnen(*rechnung) && pfade.size() > 1) {
        t_.form1.Hinweise.melden("Nur eine Rechnung auf einmal: Die übrigen Dateien wurden nicht geöffnet.");
    }
}

void Hauptfenster::KundeAnwaehlen() {
    t_.form1.Text_Kunde_1.SetFocus();
    PlatzhalterMarkieren(t_.form1.Text_Kunde_1);
}

void Hauptfenster::EingabezeileAnwaehlen() {
    const bool kommentar = t_.form1.Check_K.ticked();
    Eingabezeile::hingehen(kommentar ? t_.form1.Text_leistung : t_.form1.Text_Menge);
}

void Hauptfenster::PlatzhalterMarkieren(TextBox& feld) {
    if (KUNDENTEXT(t_.form1, feld).empty()) {
        feld.select_all();
    }
}

void Hauptfenster::m_beenden_Click() {
    if (t_.zustand.geaendert() && !t_.dateibefehle.VorherSpeichern(Buttons::YesNo)) {
        return;
    }
    ohne_frage_schliessen_ = true;
    t_.form1.Close();
}

void Hauptfenster::ueber_QUITTIKA_Click() {
    Form_ueber_QUITTIKA form;
    form.Label_Version.Caption = t_.werte.VERSIONSTEXT;
    form.Command_OK.Click = [&form] { form.Close(); };
    t_.platform.desktop.adopt(form);
    form.Show(Modality::Modal);
}

void Hauptfenster::m_Schlagwortsuche_Click() {
    t_.platform.dialogs.message({"Diese Funktion steht zur Zeit noch nicht zur Verfügung.", kProgrammdatei,
                                 Buttons::Ok, Symbol::Information});
}

void Hauptfenster::DOKUMENT_OEFFNEN(const std::string& dokument) {
    try {
        t_.platform.shell.open(dokument);
    } catch (const Laufzeitfehler& fehler) {
        t_.platform.dialogs.message({"Das Dokument konnte nicht geöffnet werden: " + dokument,
                                     "Achtung!  Fehlernr.:" + std::to_string(fehler.nummer()), Buttons::Ok,
                                     Symbol::Exclamation});
    }
}

void Hauptfenster::Check_datum_Click() {
    if (t_.form1.Check_datum.ticked()) {
        t_.form1.Text_Datum.Text = datum_text(t_.platform.clock.now());
    }
}

void Hauptfenster::Check_LIEFERDATUM_Click() {
    TextBox& feld = t_.form1.Text_LIEFERDATUM;
    if (t_.form1.Check_LIEFERDATUM.ticked() && !beginnt_mit(feld.Text(), kLieferdatum)) {
        feld.Text = kLieferdatum + gekuerzt(feld.Text());
    }
    LieferdatumFreigeben(t_.form1);
}

void Hauptfenster::Check_abgemahnt_Click() {
    const bool abgemahnt = t_.form1.Check_abgemahnt.ticked();
    t_.form1.Combo1_mahnung.Enabled = abgemahnt;
    if (abgemahnt) {
        t_.form1.Combo1_mahnung.ListIndex = 0;
    }
}

void Hauptfenster::Option_anschreiben_Click() {
    const bool anschreiben = t_.form1.Option_anschreiben.Value();
    t_.form1.Frame_Bemerkungen[0].Visible = anschreiben;
    t_.form1.Frame_Bemerkungen[1].Visible = !anschreiben;
    t_.summen.jetztberechnen_List();
}

/// VAT without a kind of it would count nothing.
void Hauptfenster::Check_mwst_Click() {
    Form1& f = t_.form1;
    const bool ohne_art =
        !f.Option_mwst_plus.Value() && !f.Option_mwst_minus.Value() && !f.Option_inkl_MwSt.Value();
    if (f.Check_mwst.ticked() && ohne_art) {
        f.Option_mwst_plus.Value = true;
    }
}

void Hauptfenster::Text_MwSt_LostFocus() {
    t_.summen.jetztberechnen_List();
    const Rechnungszustand::Sperre still(t_.zustand);
    SatzAuswahlZeigen(t_.form1, t_.werte);
}

void Hauptfenster::Command_berechnen_Click() {
    t_.summen.jetztberechnen_List();
    if (TextBox* feld = t_.eingabezeile.abgelehntes_feld()) {
        Eingabezeile::hingehen(*feld);
    }
}

} // namespace quittika
