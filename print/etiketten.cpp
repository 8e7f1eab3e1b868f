#include "print/etiketten.hpp"

#include "invoice/belegtexte.hpp"
#include "platform/text.hpp"
#include "print/nachsichtiges_geraet.hpp"

#include <memory>

namespace quittika {

namespace {

std::vector<std::string> texte(const std::vector<TextBox*>& felder) {
    std::vector<std::string> zeilen;
    zeilen.reserve(felder.size());
    for (const TextBox* feld : felder) {
        zeilen.push_back(feld->Text());
    }
    return zeilen;
}

} // namespace

Etikettenfenster::Etikettenfenster(Form2_Etikett& form, const Etikett& etikett, Form1& form1,
                                   const frm_einstellungen& einstellungen,
                                   const PROGRAMMEINSTELLUNG& programm, Dialogs& dialogs, Printing& printing)
    : form_(form),
      etikett_(etikett),
      form1_(form1),
      programm_(programm),
      printing_(printing),
      exemplare_(form1, dialogs, printing, etikett.worte) {
    Vorbelegen(einstellungen);
    Verdrahten();
}

void Etikettenfenster::Vorbelegen(const frm_einstellungen& einstellungen) {
    const TextBox* const firma[] = {&einstellungen.Text_firma_1, &einstellungen.Text_firma_2,
                                    &einstellungen.Text_firma_3, &einstellungen.Text_firma_4};
    for (std::size_t n = 0; n < form_.Absenderzeilen.size(); ++n) {
        form_.Absenderzeilen[n]->Text = firma[n]->Text();
    }
    const std::string telefon =
        form1_.Check_tele_nichtdrucken.ticked() ? std::string() : KUNDENTEXT(form1_, form1_.Text_Kunde_4);
    const std::string kunde[] = {KUNDENTEXT(form1_, form1_.Text_Kunde_1),
                                 KUNDENTEXT(form1_, form1_.Text_Kunde_2),
                                 KUNDENTEXT(form1_, form1_.Text_Kunde_3), telefon};
    for (std::size_t n = 0; n < form_.Kundenzeilen.size(); ++n) {
        form_.Kundenzeilen[n]->Text = kunde[n];
    }
    if (form_.Telefon != nullptr) {
        form_.Telefon->Text = telefon;
    }
}

void Etikettenfenster::Verdrahten() {
    for (Control* control : form_.controls()) {
        if (auto* feld = dynamic_cast<TextBox*>(control)) {
            feld->Change = [this] { Geaendert(); };
        } else if (control->kind() == "CheckBox" || control->kind() == "OptionButton") {
            control->Click = [this] { FormularZeigen(); };
        }
    }
    form_.Load = [this] { FormularZeigen(); };
    form_.Timer_Formular.Tick = [this] { FormularZeigen(); };
    form_.CMDdrucken.Click = [this] { CMDdrucken_Click(); };
    form_.Command_Abbrechen.Click = [this] { form_.Close(); };
}

Etiketteninhalt Etikettenfenster::inhalt() const {
    Etiketteninhalt inhalt;
    if (form_.ChkAbsender.ticked()) {
        inhalt.von(Wer::Absender) = texte(form_.Absenderzeilen);
    }
    if (form_.ChkKunde.ticked()) {
        inhalt.von(Wer::Kunde) = texte(form_.Kundenzeilen);
        if (form_.Telefon != nullptr) {
            inhalt.von(Wer::Telefon) = {form_.Telefon->Text()};
        }
    }
    inhalt.beleg = form_.MitBeleg != nullptr && form_.MitBeleg->Value();
    inhalt.schmal = form_.Schmal != nullptr && form_.Schmal->Value();
    return inhalt;
}

void Etikettenfenster::Geaendert() {
    form_.Timer_Formular.Enabled = false; // the time counts from the last letter on
    form_.Timer_Formular.Enabled = true;
}

void Etikettenfenster::FormularZeigen() {
    form_.Timer_Formular.Enabled = false;
    const Etiketteninhalt inhalt = this->inhalt();
    const Paper& papier = etikett_.bild.at(inhalt.schmal ? 1 : 0);
    const std::unique_ptr<PrintDevice> bild =
        printing_.picture(form_.Picture_Formular, {etikett_.name, papier});
    NachsichtigesGeraet geraet(*bild, papier);
    PrintSurface surface(geraet, printing_.metrics());
    surface.FontName = programm_.RECHNUNGSSCHRIFT;
    ZEICHNE_FORMULAR(surface, etikett_, inhalt);
    DRUCKE_ETIKETT(surface, etikett_, inhalt);
    form_.Label_Hinweis.Caption = geraet.ueberdruck().hinweis(etikett_.worte.ausweg);
    form_.CMDdrucken.Enabled = !inhalt.leer();
}

void Etikettenfenster::CMDdrucken_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    const Etiketteninhalt inhalt = this->inhalt();
    const std::string name = gekuerzt(std::string(etikett_.name) + " " +
                                      (form_.ChkKunde.ticked() ? form_.txtVersName.Text() : ""));
    try {
        exemplare_.drucken(exemplare_.drucker_waehlen(name + ".pdf"), "QK-> " + name,
                           [this, &inhalt](PrintSurface& surface) {
                               surface.FontName = programm_.RECHNUNGSSCHRIFT;
                               DRUCKE_ETIKETT(surface, etikett_, inhalt);
                           });
        form_.Close();
    } catch (const Laufzeitfehler& fehler) {
        exemplare_.gescheitert(fehler);
    }
}

Etiketten::Etiketten(Form1& form1, const frm_einstellungen& einstellungen,
                     const PROGRAMMEINSTELLUNG& programm, Desktop& desktop, Dialogs& dialogs,
                     Printing& printing)
    : form1_(form1),
      einstellungen_(einstellungen),
      programm_(programm),
      desktop_(desktop),
      dialogs_(dialogs),
      printing_(printing) {}

void Etiketten::zeigen(Form2_Etikett& form, const Etikett& etikett) {
    Etikettenfenster fenster(form, etikett, form1_, einstellungen_, programm_, dialogs_, printing_);
    desktop_.adopt(form);
    form.Show(Modality::Modal);
}

} // namespace quittika
