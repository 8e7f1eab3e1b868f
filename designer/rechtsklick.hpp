#pragma once

#include "designer/designseite.hpp"
#include "platform/dialogs.hpp"
#include "settings/einstellungsfenster.hpp"
#include "settings/frm_einstellungen.hpp"

#include <functional>

namespace quittika {

/// What a right click on a block offers: sizes of logo and watermark, colours and texts of the rest.
class Rechtsklick {
public:
    /// `gefaerbt`: after a block was given a colour. `groesse`: after a size was set, with what stood there
    /// before.
    Rechtsklick(FORM_DESIGNER& form, Designseite& seite, frm_einstellungen& einstellungen,
                Einstellungsfenster& einstellungsfenster, Dialogs& dialogs, std::function<void()> gefaerbt,
                std::function<void(const Designseite::Stand& vorher)> groesse);

    /// For the block of that code, which begins at that place of the window, twips.
    void RECHTSKLICK(int code, int left, int top);
    /// Brings an open frame back into a window that has become smaller.
    void rahmen_nachziehen();
    /// Shows the sizes in the fields.
    void groessen_zeigen();

private:
    void groessenrahmen(Frame& rahmen, Frame& anderer, int left, int top);
    void farbrahmen(int code, int left, int top);
    void Command_FARBE_LINIEN_Click();
    void Command_TEXTEINSTELLUNGEN_Click();
    void GROESSE_SETZEN(int code, Designseite::Stand vorher);
    void CMD_MAXGROESSE_Wasserz_Click();
    void nicht_vorhanden();
    frm_einstellungen::Farbzeile* farbzeile(int code);
    Container* textseite(int code);

    FORM_DESIGNER& form_;
    Designseite& seite_;
    frm_einstellungen& einstellungen_;
    Einstellungsfenster& einstellungsfenster_;
    Dialogs& dialogs_;
    std::function<void()> gefaerbt_;
    std::function<void(const Designseite::Stand&)> groesse_;
    int SELEKTOR_ = 0;         ///< code of the last right click
    bool stand_schon_ = false; ///< the colour frame has been given a place
};

} // namespace quittika
