#include "masterdata/kunde_aufnehmen.hpp"

#include "invoice/belegtexte.hpp"
#include "invoice/kundenfelder.hpp"
#include "invoice/programmname.hpp"
#include "invoice/zeichenersatz.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"

#include <algorithm>
#include <vector>

namespace quittika {

namespace {

std::string wie_in_der_datei(const std::string& zeile) {
    return aus_ansi(nach_ansi(zeile).bytes);
}

/// Compares with the line as it would read in the file. A list that cannot be read holds nothing.
bool schon_in_der_liste(const std::string& pfad, const std::string& zeile) {
    const std::string gesucht = wie_in_der_datei(zeile);
    try {
        const std::vector<std::string> zeilen = zeilen_lesen(pfad);
        return std::find(zeilen.begin(), zeilen.end(), gesucht) != zeilen.end();
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace

std::string KUNDENZEILE(const Form1& form1) {
    std::string zeile;
    for (const TextBox* feld : KUNDENFELDER(form1)) {
        zeile += einzeilig(feld->Text()) + "...";
    }
    return zeile;
}

KundeAufnehmen::KundeAufnehmen(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                               Kundenfenster& kundenfenster)
    : form1_(form1), verzeichnis_(verzeichnis), dialogs_(dialogs), kundenfenster_(kundenfenster) {}

void KundeAufnehmen::Command_KD_Add_Click() {
    form1_.Command_Kundenliste.Enabled = false;
    Aufnehmen();
    form1_.Command_Kundenliste.Enabled = true;
}

void KundeAufnehmen::Aufnehmen() {
    const std::string pfad = verzeichnis_.pfad("\\Kundenliste.txt");
    const std::string zeile = KUNDENZEILE(form1_);
    if (!Bestaetigt(pfad, zeile)) {
        form1_.StatusBar1[2].Caption = "Kunde nicht aufgenommen.";
        return;
    }
    const auto ergebnis = ZEILE_ANHAENGEN(pfad, zeile);
    form1_.Hinweise.melden(ZEICHENERSATZ_MELDUNG(ergebnis.ersetzt));
    if (ergebnis) {
        form1_.StatusBar1[2].Caption = "Kunde aufgenommen.";
        if (Kundenverwaltung* offen = kundenfenster_.module()) {
            offen->Aufgenommen(wie_in_der_datei(zeile));
        }
    } else {
        FehlerMelden(pfad, ergebnis.fehlernummer);
    }
}

bool KundeAufnehmen::Bestaetigt(const std::string& pfad, const std::string& zeile) {
    std::string frage;
    if (nur_platzhalter()) {
        frage = "Es sind noch keine Kundendaten eingetragen. Trotzdem in die Kundenliste aufnehmen?";
    } else if (schon_in_der_liste(pfad, zeile)) {
        frage = "Dieser Kunde steht schon genau so in der Kundenliste. Noch einmal aufnehmen?";
    }
    return frage.empty() || dialogs_.message({frage, kProgrammname, Buttons::YesNo, Symbol::Question,
                                              Answer::No}) == Answer::Yes;
}

bool KundeAufnehmen::nur_platzhalter() const {
    const auto felder = KUNDENFELDER(form1_);
    return std::all_of(felder.begin(), felder.end(),
                       [this](const TextBox* feld) { return gekuerzt(KUNDENTEXT(form1_, *feld)).empty(); });
}

void KundeAufnehmen::FehlerMelden(const std::string& pfad, int fehlernummer) {
    dialogs_.message({"Es ist ein Fehler beim hinzufügen des Kunden passiert. Bitte überprüfen Sie Ihre "
                      "Kundendatei >>Kundenliste.txt<< im Programmverzeichnis.",
                      pfad + " Kundendateifehler... Fehlernr: " + std::to_string(fehlernummer), Buttons::Ok,
                      Symbol::Exclamation});
}

} // namespace quittika
