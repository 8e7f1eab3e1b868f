#include "barcode/barcodemodus.hpp"

#include "invoice/kundenfelder.hpp"
#include "invoice/zahleneingabe.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/zeilenenden.hpp"

#include <utility>

namespace quittika {

namespace {

namespace farbe {
constexpr Color kGefunden = 65280;
constexpr Color kNichtGefunden = 255;
constexpr Color kBefehl = color::kYellow;
constexpr Color kFeststelltaste = 33023;
} // namespace farbe

constexpr const char* kEineMenge = "1";

struct Befehl {
    std::string_view code;
    const char* text;
    CommandButton Form1::*knopf; ///< of the main window, null for none
};

constexpr Befehl kBefehle[] = {
    {"BEFEHL1", "BEFEHL!, z.B. Drucken", nullptr},
    {"BEFEHL2", "BEFEHL!, z.B. Drucken und speichern, kommentare", nullptr},
    {"4003994155486", "Druckvorschau", &Form1::Command_Druckvorschau},
};

} // namespace

Barcodemodus::Barcodemodus(Form_Etp_Barcode& form, Form1& form1, const PROGRAMMEINSTELLUNG& werte,
                           Artikeltabelle& ARTIKEL, const Artikelzustand& artikel, Summen& summen,
                           Desktop& desktop)
    : form_(form),
      form1_(form1),
      werte_(werte),
      ARTIKEL_(ARTIKEL),
      artikel_(artikel),
      summen_(summen),
      desktop_(desktop) {
    form.Load = [this] { Form_Load(); };
    form.Text_Barcode.Change = [this] { Text_Barcode_Change(); };
    form.Text_Barcode.KeyDown = [this](int taste) { Text_Barcode_KeyDown(taste); };
    form.Text_Menge.Change = [this] { Text_Menge_Change(); };
    form.Check_set_Menge.Click = [this] { Check_set_Menge_Click(); };
    form.Check_NoKundenname.Click = [this] { Check_NoKundenname_Click(); };
    form.Command_Close.Click = [&form] { form.Close(); };
    form.Timer1.Tick = [this] {
        form_.ZOrder();
        summe_zeigen();
    };
}

void Barcodemodus::Form_Load() {
    Check_set_Menge_Click();
    form_.Text_Menge.select_all();
    ARTIKEL_.Artikelliste_einlesen(artikel_.ArtikelPfad);
    const int fehler = ARTIKEL_.Lesefehler();
    if (fehler != 0 && fehler != fehler::kDateiFehlt) {
        melden(farbe::kNichtGefunden,
               std::string("Die Artikelliste ist nicht lesbar: ") + fehlertext(fehler));
    }
    summe_zeigen();
    form_.Text_Barcode.SetFocus();
}

void Barcodemodus::Text_Barcode_Change() {
    const std::string text = form_.Text_Barcode.Text();
    std::string_view rest = text;
    std::optional<std::string_view> code = ZEILE_ABTRENNEN(rest);
    if (!code) {
        return;
    }
    for (; code; code = ZEILE_ABTRENNEN(rest)) {
        code_annehmen(std::string(*code));
    }
    form_.Text_Barcode.Text = std::string(rest);
}

void Barcodemodus::code_annehmen(const std::string& code) {
    form_.Text_Barcode.Enabled = false;
    try {
        const FocusHold hier(desktop_, form_);
        code_ausfuehren(code);
    } catch (...) {
        code_verlangen();
        throw;
    }
    code_verlangen();
}

void Barcodemodus::code_ausfuehren(const std::string& code) {
    if (BarcodeBefehl_suchen(code)) {
        return;
    }
    const int index = Barcode_suchen(code);
    if (index > 0 && !Artikel_buchen(index)) {
        melden(farbe::kNichtGefunden, "Artikel  >" + code + "< wurde nicht gebucht!");
    }
}

/// The next code may come.
void Barcodemodus::code_verlangen() {
    form_.Text_Barcode.Enabled = true;
    form_.Text_Barcode.SetFocus();
    form_.Text_Barcode.Text = "";
    if (form_.Check_set_Menge.ticked()) {
        menge_verlangen();
    }
}

void Barcodemodus::menge_verlangen() {
    form_.Text_Menge.SetFocus();
    form_.Text_Menge.select_all();
}

void Barcodemodus::melden(Color farbe, const std::string& text) {
    form_.BackColor = farbe;
    form_.Label_Artikel_INFO.Caption = text;
}

bool Barcodemodus::BarcodeBefehl_suchen(const std::string& code) {
    for (const Befehl& befehl : kBefehle) {
        if (befehl.code == code) {
            befehlgefunden_info(befehl.text);
            if (befehl.knopf != nullptr) {
                (form1_.*befehl.knopf).Click();
            }
            return true;
        }
    }
    return false;
}

void Barcodemodus::befehlgefunden_info(const std::string& text) {
    melden(farbe::kBefehl, text);
}

int Barcodemodus::Barcode_suchen(const std::string& code) {
    const int index = ARTIKEL_.nBarcode_suchen(code);
    if (index > 0) {
        melden(farbe::kGefunden, "OK");
        desktop_.beep();
        if (form_.Text_Menge.Enabled()) {
            form_.Text_Menge.SetFocus();
        }
    } else if (!code.empty()) {
        melden(farbe::kNichtGefunden, "Artikel  >" + code + "< wurde nicht gefunden!");
    }
    return index;
}

bool Barcodemodus::Artikel_buchen(int index) {
    if (form_.Check_NoKundenname.ticked()) {
        kunde_leeren();
    }
    const int zeilen = form1_.List_DARSTELLUNG.ListCount();
    const int stelle = form1_.List_DARSTELLUNG.ListIndex() + 1;
    form1_.Check_K.Value = 0;
    form1_.Text_Menge.Text = menge_nehmen();
    form1_.Text_leistung.Text = std::string(ARTIKEL_[index].Leistung);
    form1_.Text_preis.Text = std::string(ARTIKEL_[index].Preis);
    form1_.Cmd_Add_To_list.Click();
    summen_.jetztberechnen_List();
    summe_zeigen();
    const bool gebucht = form1_.List_DARSTELLUNG.ListCount() > zeilen;
    if (gebucht) {
        zeile_zeigen(stelle);
    }
    return gebucht;
}

/// The quantity of the article that is being booked; the field then stands at the next one's.
std::string Barcodemodus::menge_nehmen() {
    TextBox& menge = form_.Text_Menge;
    const std::optional<Zahleneingabe> zahl = ZAHL_LESEN(menge.Text());
    if (!form_.Check_set_Menge.ticked() || !zahl || zahl->wert <= 0) {
        menge.Text = kEineMenge;
    }
    const std::string genommen = menge.Enabled() ? menge.Text() : kEineMenge;
    menge.Text = kEineMenge;
    return genommen;
}

void Barcodemodus::zeile_zeigen(int zeile) {
    form_.Label_gebucht.Caption = form1_.List_Leistung.List(zeile);
    form_.Label_Betrag.Caption = form1_.List_Menge.List(zeile) + " × " + form1_.List_Preis.List(zeile) +
                                 " = " + form1_.List_Gesamtp.List(zeile);
}

void Barcodemodus::summe_zeigen() {
    form_.Label_Summe.Caption = form1_.Text_gesamtbetrag.Text() + " " + werte_.WAEHRUNG;
}

/// A line end hands the keyboard to the code; what follows it in a pasted text belongs there.
void Barcodemodus::Text_Menge_Change() {
    const std::string text = form_.Text_Menge.Text();
    std::string_view rest = text;
    if (const auto menge = ZEILE_ABTRENNEN(rest)) {
        form_.Text_Menge.Text = std::string(*menge);
        form_.Text_Barcode.SetFocus();
        form_.Text_Barcode.Text = form_.Text_Barcode.Text() + std::string(rest);
    }
}

void Barcodemodus::Text_Barcode_KeyDown(int taste) {
    if (taste == kFeststelltaste) {
        melden(farbe::kFeststelltaste, "Achtung! [Feststelltaste] (CAPS LOCK) wurde gedrückt. Prüfen!");
    }
}

void Barcodemodus::Check_set_Menge_Click() {
    const bool von_hand = form_.Check_set_Menge.ticked();
    form_.Text_Menge.Enabled = von_hand;
    form_.Text_Menge.Text = kEineMenge;
    if (von_hand) {
        menge_verlangen();
    }
}

void Barcodemodus::Check_NoKundenname_Click() {
    if (form_.Check_NoKundenname.ticked()) {
        kunde_leeren();
    }
}

void Barcodemodus::kunde_leeren() {
    for (TextBox* feld : KUNDENFELDER(form1_)) {
        feld->Text = "";
    }
}

} // namespace quittika
