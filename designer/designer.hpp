#pragma once

#include "designer/bilderstand.hpp"
#include "designer/blockzug.hpp"
#include "designer/designdatei.hpp"
#include "designer/hilfslinien.hpp"
#include "designer/rechtsklick.hpp"
#include "designer/vorlagenauswahl.hpp"
#include "platform/forms/opened_window.hpp"
#include "print/druckvorschau.hpp"
#include "safety/verlauf.hpp"
#include "settings/bilderwahl.hpp"

namespace quittika {

/// The designer's window: loads the user's own page design, lets the user place its blocks, saves it or
/// leaves it as it was.
class Designer {
public:
    Designer(FORM_DESIGNER& form, Designdatei& designdatei, frm_einstellungen& einstellungen,
             Einstellungsfenster& einstellungsfenster, Bilderwahl& bilderwahl, Blockbilder& blockbilder,
             Vorschauzeichnung& vorschauzeichnung, Vorschaufenster& vorschaufenster,
             const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Pictures& bilder);

    /// Closes the window as its frame does. Returns whether it is closed.
    bool SCHLIESSEN() { return form_.Close(); }

private:
    void bloecke_verdrahten();
    void knoepfe_verdrahten();
    void tasten_verdrahten();
    void Form_Load();
    void Design_zeigen();
    void Form_Resize();
    void Form_QueryUnload(bool& abbrechen);
    void Form_Unload();

    void MouseDown(std::size_t nummer, const MouseEvent& maus);
    void Maus_Bewegt(std::size_t nummer);
    void rechtsklick(std::size_t nummer);
    void waehlen(std::size_t nummer);
    bool ist_gewaehlt() const;
    void schieben(double dx, double dy);
    void schritt(const Designseite::Stand& vorher);
    void verlauf_gehen(bool zurueck);
    void Stand_zeigen();
    void Lagen_zeigen();
    void Blocktext_zeigen();
    bool Bilder_zeigen();
    void logo_und_wasserzeichen_zeigen();
    void Sichtbarkeit_zeigen();
    void Option_Click(int nummer);
    void m_Zurueck_Click();
    void zum_block();
    void m_reset_Click();

    Design auf_dem_schirm() const;
    bool Stand_Speichern();
    void CMD_SPEICHERN_Click();
    void Cmd_Vorschau_Click();

    FORM_DESIGNER& form_;
    Designdatei& designdatei_;
    frm_einstellungen& einstellungen_;
    Einstellungsfenster& einstellungsfenster_;
    Bilderwahl& bilderwahl_;
    Blockbilder& blockbilder_;
    Vorschauzeichnung& vorschauzeichnung_;
    Vorschaufenster& vorschaufenster_;
    Dialogs& dialogs_;

    Bilderstand bilderstand_;
    Designseite seite_;
    Hilfslinien hilfslinien_;
    Blockzug blockzug_;
    Rechtsklick rechtsklick_;
    Vorlagenauswahl vorlagen_;
    Verlauf<Designseite::Stand> verlauf_;
    std::array<Blocklage, kDesignbloecke> lagen_{};
    std::size_t ausgewaehlt_ = kDesignelemente; ///< none at first
    int LIST_OPTION_ = 0;
    bool TIP_LISTE_OFFEN_ = false;
    bool vom_programm_ = false; ///< option buttons are being set
    Design geladen_;            ///< the variables as they were when the window was opened
    Design anfang_;             ///< what the window then showed
    bool gespeichert_ = false;
};

using Designerfenster = OpenedWindow<FORM_DESIGNER, Designer>;

} // namespace quittika
