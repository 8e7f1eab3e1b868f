#include "invoice/file/textexport.hpp"

#include "invoice/file/exporttext.hpp"
#include "platform/text.hpp"
#include "tools/dokument_oeffnen.hpp"

namespace quittika {

namespace {

/// Whether a file holds anything that replacing it would lose.
bool hat_inhalt(const std::string& pfad) {
    try {
        return !bytes_lesen(pfad, 0).empty();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.nummer() != fehler::kDateiFehlt && fehler.nummer() != fehler::kPfadFehlt;
    }
}

} // namespace

Textexport::Textexport(Form1& form1, const frm_einstellungen& einstellungen, Summen& summen,
                       const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Shell& shell)
    : form1_(form1),
      einstellungen_(einstellungen),
      summen_(summen),
      dialogs_(dialogs),
      shell_(shell),
      ablage_(form1.Hinweise, verzeichnis, dialogs) {}

void Textexport::m_Rechnung_txt_export_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    summen_.jetztberechnen_List();
    try {
        const std::string pfad = Dateiwahl();
        if (hat_inhalt(pfad) && !UEBERSCHREIBEN_FRAGEN(pfad, dialogs_)) {
            return;
        }
        if (Schreiben(pfad)) {
            OEFFNEN_ANBIETEN(pfad, pfad, dialogs_, shell_);
        }
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            form1_.StatusBar1[2].Caption = kSpeicherfehler;
            ablage_.FehlerMelden(fehler);
        }
    }
}

std::string Textexport::Dateiwahl() {
    constexpr std::size_t kLaenge = 127;
    const std::string name =
        links("EXPORTDATEI - " + form1_.Text_rechnung.Text() + form1_.Text_RNnr.Text(), kLaenge);
    FileDialog dialog{"(*.txt)|*.txt|", name + ".txt", {}};
    dialog.asks_before_replacing = false;
    return dialogs_.save_file(dialog);
}

bool Textexport::Schreiben(const std::string& pfad) {
    const Exporttext text = EXPORTTEXT(form1_, einstellungen_);
    Textpuffer datei;
    for (const std::string& zeile : text.zeilen) {
        datei.zeile(zeile);
    }
    if (!ablage_.Ablegen(pfad, datei)) {
        form1_.StatusBar1[2].Caption = kSpeicherfehler;
        return false;
    }
    if (text.gekuerzt) {
        form1_.Hinweise.melden("Achtung: Für die Textdatei zu lange Zeilen enden dort auf \"..\".");
    }
    return true;
}

} // namespace quittika
