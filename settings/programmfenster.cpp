#include "settings/programmfenster.hpp"

#include "invoice/rechnung.hpp"
#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "settings/wahldialog.hpp"

#include <string>

namespace quittika {

namespace {

/// What a reset takes away, in this order.
constexpr const char* kZuruecksetzen[] = {"\\prog.cfg", "\\prog_n.cfg", "\\design.dsg",
                                          "\\analyse_quelle.txt"};

} // namespace

Programmfenster::Programmfenster(Form1& form1, frm_Programm& programm, PROGRAMMEINSTELLUNG& werte,
                                 Rechnungszustand& zustand, Programmstil& stil,
                                 Einstellungsschreiber& schreiber, const Programmverzeichnis& verzeichnis,
                                 Dialogs& dialogs, Desktop& desktop)
    : form1_(form1),
      programm_(programm),
      zustand_(zustand),
      stil_(stil),
      schreiber_(schreiber),
      verzeichnis_(verzeichnis),
      dialogs_(dialogs),
      desktop_(desktop) {
    for (OptionButton* knopf :
         {&programm.Option_stil_standard, &programm.Option_stil1, &programm.Option_stil2,
          &programm.Option_stil3, &programm.Option_stil4, &programm.Option_stil5, &programm.Option_stil6stroh,
          &programm.Option_stil7stroh}) {
        knopf->Click = [this, knopf] {
            if (knopf->Value() && !zustand_.gesperrt()) {
                stil_.Option_stil_Click();
            }
        };
    }
    programm.Command_farbe_formular.Click = [this, &werte] {
        FARBE_WAEHLEN(werte.FARBE_INDIVIDUELL_FORMULAR);
    };
    programm.Command_farbe_hintergrund.Click = [this, &werte] {
        FARBE_WAEHLEN(werte.FARBE_INDIVIDUELL_HINTERGRUND);
    };
    programm.Command_Vorschau.Click = [this] { stil_.Command_Vorschau_Click(); };
    programm.Command_uebernehmen.Click = [this] { Command_uebernehmen_Click(); };
    programm.Command_nichtuebernehmen.Click = [this] { Command_nichtuebernehmen_Click(); };
    programm.Command_delreg.Click = [this] { Command_delreg_Click(); };
    programm.QueryUnload = [this](bool& abbrechen) {
        abbrechen = true; // it holds the settings as long as the program runs
        Command_nichtuebernehmen_Click();
    };
}

void Programmfenster::m_Programmeinstellungen_Click() {
    if (!programm_.shown()) {
        const Rechnungszustand::Sperre still(zustand_);
        schreiber_.VORLAEUFIG_BEGINNT(programm_);
        in_kraft_ = stil_.wahl();
        datum_in_kraft_ = programm_.Check_datum.Value();
        stil_.setzen(stil_.gezeigt().value_or(in_kraft_));
    }
    programm_.Show();
}

void Programmfenster::Command_uebernehmen_Click() {
    stil_.Command_Vorschau_Click();
    DatumAutomatisch(form1_, zustand_, programm_.Check_datum.Value());
    schreiber_.VORLAEUFIG_ENDET(programm_);
    schreiber_.EINSTELLUNGEN_SPEICHERN();
    programm_.Hide();
}

void Programmfenster::Command_nichtuebernehmen_Click() {
    if (programm_.shown()) {
        const Rechnungszustand::Sperre still(zustand_);
        stil_.setzen(in_kraft_);
        programm_.Check_datum.Value = datum_in_kraft_;
        schreiber_.VORLAEUFIG_ENDET(programm_);
    }
    programm_.Hide();
}

void Programmfenster::FARBE_WAEHLEN(Color& farbe) {
    if (const auto gewaehlt = WAHL(dialogs_, "Die Farbe", [&] { return dialogs_.choose_color(farbe); })) {
        farbe = *gewaehlt;
        stil_.Option_stil_Click();
    }
}

void Programmfenster::Command_delreg_Click() {
    dialogs_.message({"Das Programm wird nun zurückgesetzt und beendet.", "Information", Buttons::Ok,
                      Symbol::Information});
    for (const char* datei : kZuruecksetzen) {
        try {
            DATEI_LOESCHEN(verzeichnis_.pfad(datei));
        } catch (const Laufzeitfehler&) {
            continue; // what is not there or cannot go is left
        }
    }
    desktop_.end();
}

} // namespace quittika
