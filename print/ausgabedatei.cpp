#include "print/ausgabedatei.hpp"

#include "invoice/file/dateiablage.hpp"
#include "invoice/file/hindernis.hpp"
#include "platform/text.hpp"
#include "platform/verzeichnis.hpp"

#include <algorithm>

namespace quittika {

std::string OHNE_ENDUNG(const std::string& pfad, std::string_view endung) {
    const bool vorhanden = grossbuchstaben(rechts(pfad, endung.size())) == grossbuchstaben(endung);
    return vorhanden ? pfad.substr(0, pfad.size() - endung.size()) : pfad;
}

bool ERSETZEN_ERLAUBT(const std::vector<std::string>& dateien, Dialogs& dialogs) {
    const auto erste = std::find_if(dateien.begin(), dateien.end(),
                                    [](const std::string& datei) { return datei_vorhanden(datei); });
    if (erste == dateien.end()) {
        return true;
    }
    const auto weitere = std::count_if(erste + 1, dateien.end(),
                                       [](const std::string& datei) { return datei_vorhanden(datei); });
    return weitere == 0 ? UEBERSCHREIBEN_FRAGEN(*erste, dialogs)
                        : dialogs.message({"Sollen die vorhandene Datei: >" + *erste + "< und " +
                                               std::to_string(weitere) + " weitere überschrieben werden?",
                                           "Dateien überschreiben?", Buttons::YesNo}) == Answer::Yes;
}

void AUSGABEFEHLER_MELDEN(const Laufzeitfehler& fehler, Form1& form1, Dialogs& dialogs) {
    if (fehler.nummer() == fehler::kDialogAbgebrochen) {
        return;
    }
    const std::string grund = SPEICHERHINDERNIS(fehler);
    form1.StatusBar1[2].Caption = kSpeicherfehler;
    form1.Hinweise.melden(grund);
    dialogs.message({grund, "Achtung!", Buttons::Ok, Symbol::Exclamation});
}

} // namespace quittika
