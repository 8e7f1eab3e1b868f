#include "masterdata/kunde_aufnehmen.hpp"

#include "invoice/zeichenersatz.hpp"
#include "platform/textdatei.hpp"

namespace quittika {

std::string KUNDENZEILE(const Form1& form1) {
    std::string zeile;
    for (const TextBox* feld : {&form1.Text_Kunde_1, &form1.Text_Kunde_2, &form1.Text_Kunde_3,
                                &form1.Text_Kunde_4, &form1.Text_KundennrK}) {
        zeile += feld->Text() + "...";
    }
    return zeile;
}

KundeAufnehmen::KundeAufnehmen(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs)
    : form1_(form1), verzeichnis_(verzeichnis), dialogs_(dialogs) {}

void KundeAufnehmen::Command_KD_Add_Click() {
    const std::string pfad = verzeichnis_.pfad("\\Kundenliste.txt");
    const auto ergebnis = ZEILE_ANHAENGEN(pfad, KUNDENZEILE(form1_));
    form1_.StatusBar1[3].Caption = ZEICHENERSATZ_MELDUNG(ergebnis.ersetzt);
    if (!ergebnis) {
        dialogs_.message({"Es ist ein Fehler beim hinzufügen des Kunden passiert. Bitte überprüfen Sie Ihre "
                          "Kundendatei >>Kundenliste.txt<< im Programmverzeichnis.",
                          pfad + " Kundendateifehler... Fehlernr: " + std::to_string(ergebnis.fehlernummer),
                          Buttons::Ok, Symbol::Exclamation});
    }
}

} // namespace quittika
