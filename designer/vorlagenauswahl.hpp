#pragma once

#include "designer/form_designer.hpp"
#include "platform/dialogs.hpp"
#include "platform/pictures.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/bilderwahl.hpp"
#include "settings/frm_einstellungen.hpp"

#include <functional>
#include <string>

namespace quittika {

/// The choice of background templates: pages of pictures in the folder `DESIGN_A4`.
class Vorlagenauswahl {
public:
    /// `gewaehlt`: after a template has become the watermark of the settings.
    Vorlagenauswahl(FORM_DESIGNER& form, frm_einstellungen& einstellungen, Bilderwahl& bilderwahl,
                    const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Pictures& bilder,
                    std::function<void()> gewaehlt);

    /// Goes back to the first page.
    void ERSTE_SEITE();

private:
    void oeffnen();
    void blaettern(int schritt);
    void Timer_zap_Timer();
    void naechste_laden();
    std::string pfad(int nummer) const;
    void Image_VorlageHintergrund_MouseDown(int nummer);

    FORM_DESIGNER& form_;
    frm_einstellungen& einstellungen_;
    Bilderwahl& bilderwahl_;
    Dialogs& dialogs_;
    Pictures& bilder_;
    std::function<void()> gewaehlt_;
    std::string anfang_;   ///< of the templates' paths
    std::string standard_; ///< path of the standard watermark
    int seite_ = 1;
    int geladen_ = 0; ///< templates of the page that are shown
};

} // namespace quittika
