#include "masterdata/kundenverwaltung.hpp"

#include "invoice/kundenfelder.hpp"
#include "masterdata/listenfenster.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"

#include <utility>
#include <vector>

namespace quittika {

Kundenverwaltung::Kundenverwaltung(Form_Kundenverwaltung& form, Form1& form1, Artikelzustand& zustand,
                                   const Programmverzeichnis& verzeichnis, Dialogs& dialogs)
    : form_(form),
      form1_(form1),
      pfad_(verzeichnis.pfad("\\Kundenliste.txt")),
      sicherung_(verzeichnis.pfad("\\BACKUP_Kundenliste.txt")),
      transfer_(form1, zustand, dialogs, "Kundenliste", pfad_, Listentransfer::Importtitel::MitFehlernummer),
      suche_(form.Text_suchen, form.List_Kundenverwaltung, form.Label_Suche) {
    form.Load = [this] { Form_Load(); };
    STANDARDKNOPF(form.Text_suchen, form.Command_weitersuchen, form.Command_OK);
    form.Command_weitersuchen.Click = [this] { suche_.weitersuchen(); };
    form.Timer1.Tick = [&form] { form.ZOrder(); };
    form.List_Kundenverwaltung.DblClick = [this] { Command_OK_Click(); };
    form.List_Kundenverwaltung.KeyDown = TASTEN({{kEingabetaste, [this] { Command_OK_Click(); }},
                                                 {kEntfernen, [this] { Command_delete_Click(); }},
                                                 {kF3, [this] { suche_.weitersuchen(); }}});
    form.Command_OK.Click = [this] { Command_OK_Click(); };
    form.Command_Abbrechen.Click = [&form] { form.Close(); };
    form.Command_delete.Click = [this] { Command_delete_Click(); };
    form.Command_HELP.Click = [&form] { form.Frame_Hilfe.Visible = !form.Frame_Hilfe.Visible(); };
    form.m_kunden_EXP.Click = [this] { transfer_.Exportieren(); };
    form.m_KUNDE_IMP.Click = [this] {
        if (transfer_.Importieren()) {
            form_.Close();
        }
    };
}

void Kundenverwaltung::FarbenUebernehmen() {
    FARBEN_UEBERNEHMEN(form_, form1_);
}

void Kundenverwaltung::Form_Load() {
    constexpr int kAbstand = 200; // twips
    FarbenUebernehmen();
    PLATZIEREN(form_, form1_, form1_.Width() - form_.Width() - kAbstand, kAbstand);
    Kundenliste_laden(pfad_);
    form_.Text_suchen.SetFocus();
    form_.Command_weitersuchen.Default = true;
}

std::string Kundenverwaltung::Kundenliste_laden(const std::string& pfad) {
    std::vector<std::string> zeilen;
    try {
        zeilen = zeilen_lesen(pfad, kHoechstens);
    } catch (const Laufzeitfehler&) {
        zeilen.clear();
    }
    std::string letzte = zeilen.size() < kHoechstens ? "FEHLER" : zeilen.back();
    form_.List_Kundenverwaltung.Clear();
    form_.List_Kundenverwaltung.assign(std::move(zeilen));
    TitelZeigen();
    return letzte;
}

void Kundenverwaltung::Aufgenommen(const std::string& zeile) {
    if (form_.List_Kundenverwaltung.ListCount() < kHoechstens) {
        form_.List_Kundenverwaltung.AddItem(zeile);
        TitelZeigen();
    }
}

void Kundenverwaltung::TitelZeigen() {
    form_.Caption = LISTENTITEL("Kundenliste", form_.List_Kundenverwaltung);
}

void Kundenverwaltung::Command_OK_Click() {
    LISTOK_KD_List(form1_, form_.List_Kundenverwaltung.Text());
    form_.Close();
}

void Kundenverwaltung::Command_delete_Click() {
    ListBox& liste = form_.List_Kundenverwaltung;
    Textpuffer rest;
    for (int i = 0; i < liste.ListCount(); ++i) {
        if (i != liste.ListIndex()) {
            rest.zeile(liste.List(i));
        }
    }
    try {
        LISTE_NEU_SCHREIBEN(pfad_, sicherung_, rest);
        if (liste.ListIndex() >= 0) {
            liste.RemoveItem(liste.ListIndex());
        }
    } catch (const Laufzeitfehler& f) {
        form1_.Hinweise.melden("Fehler beim Löschen des Kunden: " + std::string(fehlertext(f.nummer())));
        Kundenliste_laden(pfad_);
    }
    TitelZeigen();
}

void LISTOK_KD_List(Form1& form1, std::string_view zeile) {
    int index = 0;
    for (TextBox* feld : KUNDENFELDER(form1)) {
        const std::string text(FELD_AUS_ZEILE(zeile, "...", index++));
        if (text != "ERROR") {
            feld->Text = text;
        }
    }
}

} // namespace quittika
