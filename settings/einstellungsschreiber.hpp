#pragma once

#include "platform/dialogs.hpp"
#include "platform/textdatei.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/einstellungstabelle.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// The settings file `prog_n.cfg` of the program folder.
std::string EINSTELLUNGSPFAD(const Programmverzeichnis& verzeichnis);

/// What the owners of all lines hold.
std::vector<std::string> ZEILENTEXTE(const Einstellungstabelle& tabelle);
/// The same as a whole file.
Textpuffer EINSTELLUNGSTEXT(const std::vector<std::string>& texte);

/// Writes the settings file.
class Einstellungsschreiber {
public:
    Einstellungsschreiber(Form1& form1, const Einstellungstabelle& tabelle,
                          const Programmverzeichnis& verzeichnis, Dialogs& dialogs)
        : form1_(form1), tabelle_(tabelle), verzeichnis_(verzeichnis), dialogs_(dialogs) {}

    /// Set when `prog.cfg` was replaced: a settings file would hide it at the next start.
    bool SPEICHERN_GESPERRT = false;

    /// Replaces the file by what the windows hold. A file that was changed elsewhere, or could not be read
    /// to its end, is put aside before. A failure is told in a box and in panel 3; the old file stays then.
    void EINSTELLUNGEN_SPEICHERN();
    /// From now on a settings window holds what is not taken over yet: what is saved for its lines is what
    /// they hold now.
    void VORLAEUFIG_BEGINNT(const Form& fenster) { in_kraft_[&fenster] = ZEILENTEXTE(tabelle_); }
    void VORLAEUFIG_ENDET(const Form& fenster) { in_kraft_.erase(&fenster); }
    /// Everything that a file with these bytes holds is in the windows.
    void GELESEN_MERKEN(std::string bytes) { stand_ = std::move(bytes); }

private:
    std::vector<std::string> InKraft() const;
    void FremdesBeiseiteLegen();

    Form1& form1_;
    const Einstellungstabelle& tabelle_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    std::map<const Form*, std::vector<std::string>> in_kraft_; ///< of the windows that are being worked on
    std::optional<std::string> stand_; ///< content of the file that was read or written last
};

} // namespace quittika
