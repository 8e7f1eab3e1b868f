#include "invoice/file/dateibefehle.hpp"

#include "invoice/file/dateiname.hpp"
#include "invoice/file/hindernis.hpp"
#include "invoice/programmname.hpp"
#include "platform/verzeichnis.hpp"

namespace quittika {

Dateibefehle::Dateibefehle(Form1& form1, Rechnungszustand& zustand, Rechnung& rechnung, Vorgaben& vorgaben,
                           Summen& summen, const Dateistand& stand, Dialogs& dialogs,
                           Rechnungsschreiber& schreiber, Rechnungsleser& leser, Rechnungsnummern& nummern,
                           ZuletztGeoeffnet& zuletzt, Rechnungssperre& sperre)
    : form1_(form1),
      zustand_(zustand),
      rechnung_(rechnung),
      vorgaben_(vorgaben),
      summen_(summen),
      stand_(stand),
      dialogs_(dialogs),
      schreiber_(schreiber),
      leser_(leser),
      nummern_(nummern),
      zuletzt_(zuletzt),
      sperre_(sperre) {}

bool Dateibefehle::VorherSpeichern(Buttons tasten) {
    switch (
        dialogs_.message({"Möchten Sie Ihre aktuelle Rechnung vorher speichern?", kProgrammname, tasten})) {
    case Answer::Yes:
        return VorAnderemSpeichern();
    case Answer::Cancel:
        return false;
    default:
        return true;
    }
}

bool Dateibefehle::VorAnderemSpeichern() {
    if (!m_speichern_Click()) {
        return false;
    }
    std::string geaendert;
    for (const std::string& meldung : {nummernmeldung_, schreiber_.Meldung()}) {
        geaendert += meldung + (meldung.empty() ? "" : "\r\n");
    }
    if (!geaendert.empty()) {
        dialogs_.message({geaendert + "Bitte die gespeicherte Rechnung prüfen: " + zustand_.AktuellerPfad(),
                          "Achtung!", Buttons::Ok, Symbol::Exclamation});
    }
    return true;
}

bool Dateibefehle::m_neu_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (zustand_.geaendert() && !zustand_.OhneRueckfrage && !VorherSpeichern(Buttons::YesNo)) {
        return false;
    }
    form1_.StatusBar1[2].Caption = "";
    rechnung_.RechnungLeeren();
    NeuBeginnen();
    zustand_.DateiLoesen();
    sperre_.Setzen("");
    summen_.jetztberechnen_List();
    zustand_.als_gespeichert_merken();
    return true;
}

void Dateibefehle::NeuBeginnen() {
    const Rechnungszustand::Sperre still(zustand_);
    form1_.Hinweise.leeren();
    nummern_.RNNUMMERZUWEISEN();
    vorgaben_.uebernehmen();
    summen_.VersandMerken({});
    PfadZeigen("");
}

bool Dateibefehle::m_speichern_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    summen_.jetztberechnen_List();
    nummernmeldung_ = nummern_.NummerErneuern();
    try {
        return SpeichernNach(SpeicherpfadWaehlen());
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            SpeicherfehlerMelden(fehler);
        }
        return false;
    }
}

std::string Dateibefehle::SpeicherpfadWaehlen() {
    return dialogs_.save_file({"Quittika 2008  Dateien (*.qk8)|*.qk8|", DATEINAME_VORSCHLAGEN(form1_), {}});
}

bool Dateibefehle::SpeichernNach(const std::string& pfad) {
    if (!ErsetzenErlaubt(pfad)) {
        return false;
    }
    PfadZeigen(pfad);
    form1_.StatusBar1[2].Caption = "SPEICHERN VON: " + pfad;
    // Used up before the file is there: a gap among the numbers does less harm than a number given out twice.
    if (const std::string meldung = nummern_.NummerVerbrauchen(); !meldung.empty()) {
        nummernmeldung_ = meldung;
    }
    schreiber_.DateiDatenSammeln();
    if (!schreiber_.DateiSchreiben(pfad)) {
        if (!stand_.VorgemerktesLiegtIn(pfad)) {
            nummern_.NummerZurueckgeben();
        }
        PfadZeigen(zustand_.IstDateiDesPfads() ? zustand_.AktuellerPfad() : std::string());
        form1_.StatusBar1[2].Caption = kSpeicherfehler;
        return false;
    }
    zustand_.als_gespeichert_merken();
    zuletzt_.ZuletztGeoeffnetMerken(pfad); // a file that was not written is none of the recent ones
    form1_.StatusBar1[2].Caption = "SPEICHERN ABGESCHLOSSEN";
    AktuellenPfadSetzen(pfad);
    return true;
}

void Dateibefehle::m_speichern_direkt_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    const Answer antwort =
        dialogs_.message({"Möchten sie die aktuellen Änderungen dieser Rechnung speichern?",
                          "Aktuelle Änderungen speichern...", Buttons::YesNo});
    if (zustand_.AktuellerPfad().empty()) {
        return;
    }
    if (antwort == Answer::Yes && FremdeDateiUeberschreiben()) {
        AmPfadSpeichern();
    } else {
        AbbruchZeigen();
    }
}

void Dateibefehle::AmPfadSpeichern() {
    if (!ErsetzenErlaubt(zustand_.AktuellerPfad())) {
        return;
    }
    summen_.jetztberechnen_List();
    schreiber_.DateiDatenSammeln();
    if (!schreiber_.DateiSchreiben(zustand_.AktuellerPfad())) {
        form1_.StatusBar1[2].Caption = kSpeicherfehler;
        return;
    }
    zustand_.als_gespeichert_merken();
    AktuellenPfadSetzen(zustand_.AktuellerPfad());
    PfadZeigen(zustand_.AktuellerPfad());
    form1_.StatusBar1[2].Caption = "SPEICHERN ERFOLGREICH ABGESCHLOSSEN";
}

bool Dateibefehle::ErsetzenErlaubt(const std::string& pfad) {
    const auto anderer = sperre_.WerSonst(pfad);
    if (!anderer && !stand_.AnderswoGeaendert(pfad)) {
        return true;
    }
    const std::string grund =
        anderer ? "< ist geöffnet von " + SPERRTEXT(*anderer)
                : "< wurde von einem anderen Programm geändert, seit sie hier geöffnet oder "
                  "gespeichert wurde";
    const Answer antwort =
        dialogs_.message({"Die Datei >" + pfad + grund +
                              ". Soll sie trotzdem ersetzt werden?\r\n"
                              "Nein behält beide: die Datei bleibt, wie sie ist, und Ihre Rechnung bleibt im "
                              "Fenster.",
                          anderer ? "Datei ist geöffnet" : "Datei wurde geändert", Buttons::YesNo,
                          Symbol::Exclamation, Answer::No});
    if (antwort == Answer::Yes) {
        return true;
    }
    AbbruchZeigen();
    form1_.Hinweise.melden("Ihre Rechnung ist nicht gespeichert: bitte unter einem anderen Namen speichern.");
    return false;
}

void Dateibefehle::AbbruchZeigen() {
    form1_.StatusBar1[2].Caption = "SPEICHERN WURDE ABGEBROCHEN";
}

bool Dateibefehle::FremdeDateiUeberschreiben() {
    return zustand_.IstDateiDesPfads() || !datei_vorhanden(zustand_.AktuellerPfad()) ||
           UEBERSCHREIBEN_FRAGEN(zustand_.AktuellerPfad(), dialogs_);
}

void Dateibefehle::m_speichern_kurz_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (zustand_.IstDateiDesPfads()) {
        AmPfadSpeichern();
    } else {
        m_speichern_Click();
    }
}

void Dateibefehle::SpeicherfehlerMelden(const Laufzeitfehler& fehler) {
    form1_.Hinweise.melden(SPEICHERHINDERNIS(fehler));
    form1_.StatusBar1[2].Caption = kSpeicherfehler;
    dialogs_.message(
        {"Es dürfen keine Sonderzeichen(:;!?\\/!§$%&()@?ß, etc. im Feld >>RECHNUNG,KUNDENNAME und DATUM "
         "enthalten sein.",
         "Achtung!"});
}

void Dateibefehle::m_oeffnen_Click() {
    Oeffnen("");
}

bool Dateibefehle::Oeffnen(const std::string& pfad) {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (zustand_.geaendert() && !VorherSpeichern(Buttons::YesNo)) {
        return false;
    }
    const bool gelesen = oeffneRN(pfad);
    if (gelesen) {
        summen_.jetztberechnen_List();
    }
    return gelesen;
}

bool Dateibefehle::oeffneRN(const std::string& pfad) {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    std::string gewaehlt = pfad;
    try {
        if (gewaehlt.empty()) {
            gewaehlt = dialogs_.open_file({"Quittika 2008  Dateien (*.qk8)|*.qk8", {}, {}});
            zustand_.ZuletztGeoeffnet = gewaehlt;
        }
        const Zugriff zugriff = ZugriffErfragen(gewaehlt);
        if (zugriff == Zugriff::Keiner) {
            return false;
        }
        leser_.DateiEinlesen(gewaehlt);
        GelesenesZeigen(gewaehlt, zugriff);
        zuletzt_.ZuletztGeoeffnetMerken(gewaehlt);
        form1_.StatusBar1[2].Caption = "GEÖFFNETE DATEI: " + gewaehlt;
        if (Geoeffnet) {
            Geoeffnet();
        }
        return true;
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            OeffnungsfehlerMelden(gewaehlt, fehler);
        }
        return false;
    }
}

void Dateibefehle::m_R_Click(int n) {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    const std::string pfad = zuletzt_.Eintrag(n);
    try {
        const Zugriff zugriff = ZugriffErfragen(pfad);
        if (zugriff == Zugriff::Keiner) {
            return;
        }
        if (zustand_.geaendert() && VorVerlust) {
            VorVerlust();
        }
        leser_.DateiEinlesen(pfad);
        form1_.StatusBar1[2].Caption = "GEÖFFNETE DATEI: " + pfad;
        GelesenesZeigen(pfad, zugriff);
    } catch (const Laufzeitfehler& fehler) {
        OeffnungsfehlerMelden(pfad, fehler);
    }
}

bool Dateibefehle::AlsUngespeichertOeffnen(std::string_view bytes) {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    leser_.InhaltUebernehmen(bytes);
    const bool rechnung = GelesenesZeigen({}, Zugriff::NurLesen);
    if (Geoeffnet) {
        Geoeffnet();
    }
    if (rechnung) {
        if (leser_.NummerVorlaeufig()) {
            nummern_.RNNUMMERZUWEISEN();
        }
        zustand_.aendern();
    }
    return rechnung;
}

Dateibefehle::Zugriff Dateibefehle::ZugriffErfragen(const std::string& pfad) {
    const auto anderer = sperre_.WerSonst(pfad);
    if (!anderer) {
        return Zugriff::Ganz;
    }
    const std::string ausweg =
        anderer->hier ? ""
                      : "\r\nGibt es dort niemanden mehr, der sie geöffnet hat, löschen Sie bitte >>" +
                            anderer->pfad + "<<.";
    const Answer antwort = dialogs_.message(
        {"Die Rechnung >" + pfad + "< ist geöffnet von " + SPERRTEXT(*anderer) +
             ".\r\nSoll sie nur zum Lesen geöffnet werden? Sie lässt sich dann unter einem anderen Namen "
             "speichern." +
             ausweg,
         "Rechnung ist geöffnet", Buttons::YesNo, Symbol::Exclamation});
    return antwort == Answer::Yes ? Zugriff::NurLesen : Zugriff::Keiner;
}

void Dateibefehle::OeffnungsfehlerMelden(const std::string& pfad, const Laufzeitfehler& fehler) {
    form1_.Hinweise.melden(OEFFNUNGSHINDERNIS(fehler));
    form1_.StatusBar1[2].Caption = "FEHLER BEIM ÖFFNEN VON DATEI: " + pfad;
    dialogs_.message({"Fehler beim öffnen dieser Datei.", "Achtung!"});
}

void Dateibefehle::PfadZeigen(const std::string& pfad) {
    form1_.Label_Pfad.Caption = pfad;
}

void Dateibefehle::AktuellenPfadSetzen(const std::string& pfad) {
    zustand_.DateiSetzen(pfad);
    sperre_.Setzen(pfad);
    form1_.m_speichern_direkt.Enabled = !pfad.empty();
}

bool Dateibefehle::GelesenesZeigen(const std::string& pfad, Zugriff zugriff) {
    const bool rechnung = leser_.DateiDatenAnzeigen();
    const bool ganz = rechnung && !leser_.befund().abgeschnitten && zugriff == Zugriff::Ganz;
    AktuellenPfadSetzen(ganz ? pfad : std::string());
    if (rechnung) {
        PfadZeigen(pfad);
        form1_.Hinweise.leeren();
        form1_.Hinweise.melden(BEFUND_MELDUNG(leser_.befund()));
        if (zugriff == Zugriff::NurLesen && !pfad.empty()) {
            form1_.Hinweise.melden(
                "Nur zum Lesen geöffnet: Änderungen lassen sich unter einem anderen Namen speichern.");
        }
        summen_.VersandMerken(leser_.VersandGelesen());
    } else {
        NeuBeginnen();
    }
    Auffrischen();
    return rechnung;
}

void Dateibefehle::Auffrischen() {
    summen_.jetztberechnen_List();
    rechnung_.DarstellungAufbauen();
    {
        // The six lists stand on their last row already; the next row is to follow it.
        const Rechnungszustand::Sperre still(zustand_);
        form1_.List_DARSTELLUNG.ListIndex = form1_.List_DARSTELLUNG.ListCount() - 1;
    }
    zustand_.als_gespeichert_merken();
}

} // namespace quittika
