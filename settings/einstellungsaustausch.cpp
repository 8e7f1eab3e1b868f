#include "settings/einstellungsaustausch.hpp"

#include "invoice/programmname.hpp"
#include "platform/datei.hpp"
#include "platform/fehlertitel.hpp"
#include "platform/text.hpp"
#include "settings/exportfehler.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr const char* kExportname = "Q-K_Einstellungen_Export.xpt";
constexpr const char* kTitel = "Quittika";

} // namespace

Einstellungsaustausch::Einstellungsaustausch(Form1& form1, frm_einstellungen& einstellungen,
                                             Einstellungsschreiber& schreiber,
                                             const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                                             std::function<void()> m_beenden_Click)
    : form1_(form1),
      einstellungen_(einstellungen),
      schreiber_(schreiber),
      verzeichnis_(verzeichnis),
      dialogs_(dialogs),
      m_beenden_Click_(std::move(m_beenden_Click)) {
    einstellungen.m_export.Click = [this] { m_export_Click(); };
    einstellungen.m_import.Click = [this] { m_import_Click(); };
}

/// One message of this module at a time.
void Einstellungsaustausch::melden(const std::string& text) {
    form1_.Hinweise.melden(text, &einstellungen_.m_extra);
}

void Einstellungsaustausch::m_export_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    dialogs_.message({"Achtung, alle bisher nicht übernommenen Einstellungen werden nicht mit exportiert!",
                      "Hinweis", Buttons::Ok, Symbol::Information});
    std::string datei = kExportname;
    try {
        FileDialog dialog;
        dialog.filter = "Bitte Zielverzeichnis angeben...  |";
        dialog.proposed_name = kExportname;
        dialog.asks_before_replacing = false; // a file that exists is refused
        datei = dialogs_.save_file(dialog);
        melden("Exportiere aktuelle Einstellungen nach: " + datei);
        DATEI_KOPIEREN(EINSTELLUNGSPFAD(verzeichnis_), datei, Kopierziel::Neu);
        dialogs_.message({"Programmeinstellungen wurden erfolgreich exportiert!", kTitel, Buttons::Ok,
                          Symbol::Information});
    } catch (const Laufzeitfehler& fehler) {
        melden("FEHLER BEIM EXPORTIEREN VON: " + datei);
        dialogs_.message(EXPORTFEHLER(fehler.nummer(), fehler.nummer() == fehler::kDateiVorhanden));
    }
}

void Einstellungsaustausch::m_import_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (dialogs_.message({"Achtung! Der Import löscht die aktuellen Programmeinstellungen. Die Einstellungen "
                          "sind erst nach einem Neustart von Quittika verfügbar. Möchten sie fortfahren?",
                          "Achtung!", Buttons::YesNo, Symbol::Question, Answer::No}) != Answer::Yes) {
        return;
    }
    std::string datei;
    try {
        datei = dialogs_.open_file({"Q-K Einstellungen  (*.exp;*.xpt)|*.exp;*.xpt", {}, {}});
        melden("Importiere Programmeinstellungen: " + datei);
        Uebernehmen(datei);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            melden("FEHLER BEIM IMPORTIEREN VON: " + datei);
            dialogs_.message({"Fehler beim Import dieser Datei.", FEHLERTITEL(fehler.nummer()), Buttons::Ok,
                              Symbol::Stop});
        }
        return;
    }
    dialogs_.message(
        {"Programmeinstellungen wurde erfolgreich importiert!", kTitel, Buttons::Ok, Symbol::Information});
    form1_.StatusBar1[2].Caption = "FERTIG";
    if (dialogs_.message({"Quittika muss nun beendet werden, damit die Einstellungen beim nächsten Start von "
                          "Quittika zur Verfügung stehen. Soll Quittika jetzt beendet werden?",
                          kProgrammname, Buttons::YesNo, Symbol::Question}) == Answer::Yes) {
        m_beenden_Click_();
    }
}

void Einstellungsaustausch::Uebernehmen(const std::string& datei) {
    const std::string aktuelle = EINSTELLUNGSPFAD(verzeichnis_);
    if (IST_DIESELBE_DATEI(datei, aktuelle)) {
        throw Laufzeitfehler(fehler::kZugriffVerweigert, datei); // as an old file it would delete itself
    }
    if (rechts(datei, 3) == "xpt") {
        DATEI_KOPIEREN(datei, aktuelle);
        return;
    }
    DATEI_KOPIEREN(datei, verzeichnis_.pfad("\\prog.cfg"));
    schreiber_.SPEICHERN_GESPERRT = true;
    try {
        DATEI_LOESCHEN(aktuelle);
    } catch (const Laufzeitfehler&) {
        // A settings file that stays wins at the next start; that there is none is as good.
    }
}

} // namespace quittika
