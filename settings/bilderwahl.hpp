#pragma once

#include "platform/dialogs.hpp"
#include "platform/pictures.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>

namespace quittika {

/// Choice of logo and watermark in the settings dialog. What is chosen prints at once; the next start takes
/// both from the design file.
class Bilderwahl {
public:
    Bilderwahl(frm_einstellungen& einstellungen, const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
               Pictures& bilder);

    /// Lets the user choose the logo. One that cannot be shown is refused with the reason, and nothing
    /// changes. Returns whether there is a new one.
    bool Command_durchsuchen_Click();
    /// Takes the watermark from a file that the user chooses if `anfragen`, else from the path in the dialog.
    /// In place of one that cannot be shown comes the standard file, with a message. Returns whether the
    /// chosen one is shown.
    bool Wasserz_Bild_suchen(bool anfragen);

    /// After a take-over: asks whether pictures chosen in the dialog since the last one shall stay beyond the
    /// run, and then writes their paths into the design file.
    void DAUERHAFT_ANBIETEN();
    /// The choice of pictures was taken back.
    void verwerfen();

private:
    struct Bildplatz;
    std::string dateiwahl(const char* titel);
    void zeigen(const Bildplatz& platz, const std::string& pfad);
    void getippten_pfad_nehmen(const Bildplatz& platz);
    bool nur_fuer_diesen_lauf(const Bildplatz& platz) const;
    void speichern(const Bildplatz& platz);
    Bildplatz logo();
    Bildplatz wasserzeichen();

    frm_einstellungen& einstellungen_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    Pictures& bilder_;
    bool logo_gewaehlt_ = false;
    bool wasserzeichen_gewaehlt_ = false;
};

} // namespace quittika
