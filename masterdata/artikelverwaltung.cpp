#include "masterdata/artikelverwaltung.hpp"

#include "invoice/programmname.hpp"
#include "invoice/zeichenersatz.hpp"
#include "masterdata/artikelspalten.hpp"
#include "masterdata/listenfenster.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <utility>
#include <vector>

namespace quittika {

namespace {

constexpr const char* kSuche = "Suche...";
constexpr const char* kKeinPreis = "0,00";
constexpr const char* kHinweisAuswahl =
    "Sie übertragen einen Artikel per Doppelklick mit der linken Maustaste in die Rechnung oder einmal den "
    "gewünschten Artikel markieren und dann >OK< drücken.";
constexpr const char* kHinweisBeistellen =
    "Doppelklick oder OK überträgt den Artikel in die Eingabezeile der Rechnung; mit gedrückter Maustaste "
    "ziehen Sie ihn auf ein Leistung-Feld.";

/// A price as the article list holds it, whatever the program's own decimal mark.
std::string LISTENPREIS(std::string_view getippt) {
    constexpr Locale kPunkt{.decimal_mark = '.', .thousands = ','};
    const double preis = double_versuch(ZEICHENERSETZEN(getippt, ",", "."), kPunkt).value_or(0);
    return format_zahl(preis, "0.00", kPunkt);
}

} // namespace

Artikelverwaltung::Artikelverwaltung(Form_Artikelverwaltung& form, Zweck zweck, Form1& form1,
                                     Artikelzustand& zustand, Artikeltabelle& ARTIKEL,
                                     const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                                     std::function<void()> gewaehlt)
    : form_(form),
      form1_(form1),
      zustand_(zustand),
      ARTIKEL_(ARTIKEL),
      sicherung_(verzeichnis.pfad("\\BACKUP_Artikelliste.txt")),
      dialogs_(dialogs),
      gewaehlt_(std::move(gewaehlt)),
      transfer_(form1, zustand, dialogs, "Artikelliste", zustand.ArtikelPfad,
                Listentransfer::Importtitel::Einfach),
      suche_(form.Text_suchen, form.List_Artikelnverwaltung, form.Label_Suche) {
    form.Load = [this, zweck] { Form_Load(zweck); };
    form.Unload = [this] { Form_Unload(); };
    form.Timer1.Tick = [&form] { form.ZOrder(); };
    KnoepfeVerdrahten();
    EingabeVerdrahten();
    ListeVerdrahten();
}

void Artikelverwaltung::KnoepfeVerdrahten() {
    form_.Command_OK.Click = [this] { Command_OK_Click(); };
    for (Control* abbrechen :
         {static_cast<Control*>(&form_.Command_Abbrechen), static_cast<Control*>(&form_.m_Abbrechen)}) {
        abbrechen->Click = [this] { Command_Abbrechen_Click(); };
    }
    form_.Command_delete.Click = [this] { Command_delete_Click(); };
    form_.Command_HELP.Click = [this] { form_.Frame_Hilfe.Visible = !form_.Frame_Hilfe.Visible(); };
    form_.Command_weitersuchen.Click = [this] { suche_.weitersuchen(); };
    form_.m_artikel_exp.Click = [this] { transfer_.Exportieren(); };
    form_.m_ARTK_IMP.Click = [this] {
        if (transfer_.Importieren()) {
            form_.Close();
        }
    };
}

void Artikelverwaltung::EingabeVerdrahten() {
    STANDARDKNOPF(form_.Text_suchen, form_.Command_weitersuchen, form_.Command_OK);
    STANDARDKNOPF(form_.Text_such_Barcode, form_.Command_such, form_.Command_OK);
    form_.Command_such.Click = [this] {
        form_.Text_such_Barcode.Text = form_.Text_such_Barcode.Text() + "\r\n";
    };
    form_.Text_such_Barcode.Change = [this] { Text_such_Barcode_Change(); };
    form_.Text_such_Barcode.KeyDown = TASTEN({{kEingabetaste, [this] { form_.Command_such.user_click(); }}});
    for (Control* zeigen : {static_cast<Control*>(&form_.Command_neuerArtikel),
                            static_cast<Control*>(&form_.Command_ART_ABBRECHEN)}) {
        zeigen->Click = [this] { Command_neuerArtikel_Click(); };
    }
    // Return goes on to the next field; a scanner ends the entry with it.
    form_.Text_leistung.KeyDown = TASTEN({{kEingabetaste, [this] { form_.Text_preis.SetFocus(); }}});
    form_.Text_preis.KeyDown = TASTEN({{kEingabetaste, [this] { form_.Text_Barcode.SetFocus(); }}});
    form_.Text_Barcode.KeyDown = TASTEN({{kEingabetaste, [this] { Command_Artikelhinzufuegen_Click(); }}});
    for (TextBox* feld : {&form_.Text_leistung, &form_.Text_preis, &form_.Text_Barcode}) {
        STANDARDKNOPF(*feld, form_.Command_Artikelhinzufuegen, form_.Command_OK);
    }
    form_.Text_preis.LostFocus = [this] {
        form_.Command_OK.Default = true;
        Text_preis_LostFocus();
    };
    form_.Command_Artikelhinzufuegen.Click = [this] { Command_Artikelhinzufuegen_Click(); };
}

void Artikelverwaltung::ListeVerdrahten() {
    ListBox& liste = form_.List_Artikelnverwaltung;
    liste.DblClick = [this] { List_Artikelnverwaltung_DblClick(); };
    liste.KeyDown = TASTEN({{kEingabetaste, [this] { Command_OK_Click(); }},
                            {kEntfernen, [this] { Command_delete_Click(); }},
                            {kF3, [this] { suche_.weitersuchen(); }}});
    liste.DragText = [this](int index) { return std::string(ARTIKEL_[Satznummer(index)].Leistung); };
}

void Artikelverwaltung::FarbenUebernehmen() {
    FARBEN_UEBERNEHMEN(form_, form1_);
}

void Artikelverwaltung::Form_Load(Zweck zweck) {
    constexpr int kAbstand = 100; // twips
    form_.Label_Hinweis.Caption = zweck == Zweck::Auswahl ? kHinweisAuswahl : kHinweisBeistellen;
    FarbenUebernehmen();
    PLATZIEREN(form_, form1_, form1_.Left() + kAbstand, form1_.Top() + kAbstand);
    Auffrischen();
    form_.Text_suchen.SetFocus();
    form_.Command_weitersuchen.Default = true;
}

void Artikelverwaltung::Auffrischen() {
    Artikelliste_fuellen();
    if (form_.List_Artikelnverwaltung.ListCount() > 0) {
        form_.List_Artikelnverwaltung.ListIndex = 0;
    }
}

void Artikelverwaltung::Artikelliste_fuellen() {
    ARTIKEL_.Artikelliste_einlesen(zustand_.ArtikelPfad);
    std::vector<std::string> reihen;
    reihen.reserve(static_cast<std::size_t>(ARTIKEL_.Anzahl()));
    for (int i = 1; i <= ARTIKEL_.Anzahl(); ++i) {
        reihen.push_back(ARTIKELREIHE(ARTIKEL_[i]));
    }
    form_.List_Artikelnverwaltung.Clear();
    form_.List_Artikelnverwaltung.assign(std::move(reihen));
    form_.Caption = LISTENTITEL("Artikelliste", form_.List_Artikelnverwaltung);
}

/// The record that an item of the list shows; 0, nobody's, where the table was read anew meanwhile and holds
/// another one in that place.
int Artikelverwaltung::Satznummer(int eintrag) const {
    const bool da = eintrag >= 0 && eintrag < ARTIKEL_.Anzahl() &&
                    ARTIKELREIHE(ARTIKEL_[eintrag + 1]) == form_.List_Artikelnverwaltung.List(eintrag);
    return da ? eintrag + 1 : 0;
}

void Artikelverwaltung::Form_Unload() {
    if (zustand_.ArtikelAuswahl.empty()) {
        zustand_.ArtikelAuswahl = zustand_.ArtikelTrenner;
    }
}

void Artikelverwaltung::Command_OK_Click() {
    zustand_.ArtikelAuswahl = markiert().Zeile;
    zustand_.ArtikelAuswahlAbgebrochen = false;
    form_.Close();
    if (gewaehlt_) {
        gewaehlt_();
    }
}

void Artikelverwaltung::Command_Abbrechen_Click() {
    zustand_.ArtikelAuswahlAbgebrochen = true;
    form_.Close();
}

void Artikelverwaltung::List_Artikelnverwaltung_DblClick() {
    if (form_.List_Artikelnverwaltung.ListIndex() >= 0) {
        zustand_.ArtikelAuswahl = markiert().Zeile;
        if (form1_.Direktuebernahme) {
            Command_OK_Click();
        }
    }
}

void Artikelverwaltung::Text_such_Barcode_Change() {
    std::string barcode = form_.Text_such_Barcode.Text();
    if (barcode.empty() || barcode.back() != '\n') {
        return;
    }
    barcode.pop_back();
    if (!barcode.empty() && barcode.back() == '\r') { // a scanner may do without it
        barcode.pop_back();
    }
    const int index = ARTIKEL_.nBarcode_suchen(barcode);
    form_.Text_such_Barcode.Text = "";
    if (index > 0) {
        form_.List_Artikelnverwaltung.ListIndex = index - 1;
    } else {
        dialogs_.message({">" + barcode + "< wurde nicht gefunden!", kSuche});
    }
}

bool Artikelverwaltung::suchen(std::string_view barcode, int feld) {
    ListBox& liste = form_.List_Artikelnverwaltung;
    for (int i = 0; i < liste.ListCount(); ++i) {
        if (FELD_AUS_ZEILE(liste.List(i), zustand_.ArtikelTrenner, feld) == barcode) {
            liste.ListIndex = i;
            return true;
        }
    }
    return false;
}

std::optional<std::string> Artikelverwaltung::Gezogen(std::string_view text) const {
    if (form_.List_Artikelnverwaltung.ListIndex() < 0 ||
        (text != markiert().Leistung && text != markiert().Zeile)) {
        return std::nullopt;
    }
    return std::string(markiert().Zeile);
}

void Artikelverwaltung::Command_neuerArtikel_Click() {
    constexpr int kListenhoehe = 2310; // twips
    const bool zeigen = !form_.Frame_Artikelhinzufuegen.Visible();
    form_.Frame_Artikelhinzufuegen.Visible = zeigen;
    EingabeMarkieren();
    if (zeigen) {
        form_.Text_leistung.SetFocus();
    }
    // What the layout makes of it, it tells.
    ListBox& liste = form_.List_Artikelnverwaltung;
    liste.Height.adopt(zeigen ? kListenhoehe : form_.Height() - liste.Top());
}

void Artikelverwaltung::EingabeMarkieren() {
    const std::pair<TextBox*, int> felder[] = {
        {&form_.Text_leistung, 150}, {&form_.Text_preis, 10}, {&form_.Text_Barcode, 100}};
    for (const auto& [feld, laenge] : felder) {
        feld->SelStart = 0;
        feld->SelLength = laenge;
    }
}

void Artikelverwaltung::Text_preis_LostFocus() {
    form_.Text_preis.Text = LISTENPREIS(form_.Text_preis.Text());
}

void Artikelverwaltung::Command_Artikelhinzufuegen_Click() {
    if (BarcodeVergeben(einzeilig(form_.Text_Barcode.Text())) || !Anhaengen()) {
        return;
    }
    Artikelliste_fuellen();
    form_.List_Artikelnverwaltung.ListIndex = form_.List_Artikelnverwaltung.ListCount() - 1;
    form_.Text_leistung.Text = "";
    form_.Text_preis.Text = kKeinPreis;
    form_.Text_Barcode.Text = "";
    EingabeMarkieren();
    form_.Text_leistung.SetFocus();
}

bool Artikelverwaltung::BarcodeVergeben(const std::string& barcode) {
    const int vorhanden = ARTIKEL_.nBarcode_suchen(barcode);
    if (vorhanden == 0) {
        return false;
    }
    dialogs_.message(
        {"Diese Barcodenummer >" + barcode +
             "< ist schon vorhanden! Doppelte Barcodenummern sind unzulässig. Der ältere Artikel muß "
             "gelöscht werden bevor ein anderer Artikel mit dieser Barcodenummer gespeichert "
             "werden kann.",
         kSuche});
    form_.List_Artikelnverwaltung.ListIndex = vorhanden - 1;
    return true;
}

bool Artikelverwaltung::Anhaengen() {
    std::string zeile;
    for (const TextBox* feld : {&form_.Text_leistung, &form_.Text_preis, &form_.Text_Barcode}) {
        zeile += einzeilig(feld->Text()) + artikelzeile::kTrenner;
    }
    const Dateiergebnis ergebnis = ZEILE_ANHAENGEN(zustand_.ArtikelPfad, zeile);
    form1_.Hinweise.melden(ZEICHENERSATZ_MELDUNG(ergebnis.ersetzt));
    if (!ergebnis) {
        dialogs_.message(
            {"Es ist ein Fehler beim hinzufügen des Artikels passiert. Bitte überprüfen Sie Ihre "
             "Artikeldatei >>" +
                 zustand_.ArtikelDateiname + "<< im Verzeichnis: " + zustand_.ArtikelVerzeichnis,
             std::string(kProgrammdatei) +
                 " Artikeldateifehler... Fehlernr: " + std::to_string(ergebnis.fehlernummer),
             Buttons::Ok, Symbol::Exclamation});
    }
    return ergebnis.gelungen;
}

void Artikelverwaltung::Command_delete_Click() {
    ARTIKEL_[Satznummer(form_.List_Artikelnverwaltung.ListIndex())].Zeile = artikelzeile::kGeloescht;
    Textpuffer rest;
    for (int i = 1; i <= ARTIKEL_.Anzahl(); ++i) {
        if (ARTIKEL_[i].Zeile != artikelzeile::kGeloescht) {
            rest.zeile(ARTIKEL_[i].Zeile);
        }
    }
    try {
        LISTE_NEU_SCHREIBEN(zustand_.ArtikelPfad, sicherung_, rest);
    } catch (const Laufzeitfehler& f) {
        form1_.Hinweise.melden("Fehler beim Löschen des Artikels: " + std::string(fehlertext(f.nummer())));
    }
    Auffrischen();
}

} // namespace quittika
