#include "tools/helferlein.hpp"

#include "invoice/textblock.hpp"
#include "platform/zeilenenden.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quittika {

namespace {

constexpr Color kZuViel = color::rgb(255, 205, 160);

/// Without characters below the blank.
std::string gereinigt(std::string_view zeile) {
    std::string rein;
    std::copy_if(zeile.begin(), zeile.end(), std::back_inserter(rein),
                 [](char c) { return static_cast<unsigned char>(c) >= ' '; });
    return rein;
}

bool zu_viele_zeilen(std::string_view text) {
    std::size_t zeilen = 0;
    while (zeilen < kHelferzeilen && ZEILE_ABTRENNEN(text)) {
        ++zeilen;
    }
    return zeilen == kHelferzeilen;
}

void zeigen(Helferform& form, const Helferlein::Ziel& ziel, Desktop& desktop) {
    const Helferlein helferlein(form, ziel);
    desktop.adopt(form);
    form.Show(Modality::Modal);
}

} // namespace

std::array<std::string, kHelferzeilen> TEXT_AUFTEILEN(std::string_view text) {
    std::array<std::string, kHelferzeilen> zeilen;
    for (std::string& zeile : zeilen) {
        const auto ganze = ZEILE_ABTRENNEN(text);
        zeile = gereinigt(ganze ? *ganze : std::exchange(text, {}));
    }
    return zeilen;
}

Helferlein::Helferlein(Helferform& form, const Ziel& ziel)
    : form_(form), ziel_(ziel), muster_(form.Text_Eingabe.Text()), grund_(form.Text_Eingabe.BackColor()) {
    form.Load = [&form] {
        form.Text_Eingabe.SetFocus();
        form.Text_Eingabe.select_all();
    };
    form.Text_Eingabe.Change = [this] { Text_Eingabe_Change(); };
    form.Text_Eingabe.Click = [this] { Text_Eingabe_Click(); };
    form.CMD_Format.Click = [this] { CMD_Format_Click(); };
    form.Command1.Click = [&form] { form.Close(); };
}

void Helferlein::CMD_Format_Click() {
    const auto zeilen = TEXT_AUFTEILEN(form_.Text_Eingabe.Text());
    for (std::size_t n = 0; n < zeilen.size(); ++n) {
        ziel_.at(n)->Text = zeilen.at(n);
    }
    form_.Close();
}

/// The explanation becomes bold, too: not everybody tells colours apart.
void Helferlein::Text_Eingabe_Change() {
    const bool zu_viel = zu_viele_zeilen(form_.Text_Eingabe.Text());
    form_.Text_Eingabe.BackColor = zu_viel ? kZuViel : grund_;
    form_.Label1.FontBold = zu_viel;
}

void Helferlein::Text_Eingabe_Click() {
    if (form_.Text_Eingabe.Text() == muster_) {
        form_.Text_Eingabe.Text = "";
    }
}

void HELFER_ADRESSE_ZEIGEN(Form1& form1, Desktop& desktop) {
    Form_Helferlein form;
    zeigen(form, {&form1.Text_Kunde_1, &form1.Text_Kunde_2, &form1.Text_Kunde_3, &form1.Text_Kunde_4},
           desktop);
}

void HELFER_TEXT_ZEIGEN(Form1& form1, Desktop& desktop) {
    const int block = TEXTBLOCK_GEWAEHLT(form1);
    Form_Helferlein_Bkg form;
    zeigen(form,
           {&form1.Text_Bemerkung1[block], &form1.Text_Bemerkung2[block], &form1.Text_Bemerkung3[block],
            &form1.Text_Bemerkung4[block]},
           desktop);
}

} // namespace quittika
