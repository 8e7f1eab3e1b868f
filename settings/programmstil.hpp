#pragma once

#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/frm_programm.hpp"
#include "settings/programmeinstellung.hpp"

#include <functional>
#include <optional>

namespace quittika {

/// A style as the settings hold it: the button that is on, and what follows from it.
struct Stilwahl {
    OptionButton frm_Programm::*knopf = &frm_Programm::Option_stil_standard;
    Color hintergrund = 0;
    Color formular = 0;
    Color individuell_hintergrund = 0;
    Color individuell_formular = 0;
    bool bild = false;
};

/// The colours of the windows. While no style is on, the windows are painted in the program's own look.
class Programmstil {
public:
    /// `mitziehen` is called after the main window was painted: windows that have its colours take the new
    /// ones.
    Programmstil(Form1& form1, frm_einstellungen& einstellungen, frm_Programm& programm,
                 PROGRAMMEINSTELLUNG& werte, Desktop& desktop, std::function<void()> mitziehen);

    /// The two colours become those of the style that is on; without one they stay.
    void FARBEN_WAEHLEN();
    /// Colours and picture of the style that is on, shown at once; without one those that windows begin with.
    void Option_stil_Click();
    /// Spreads the two colours over the windows, and the style's picture.
    void Command_Vorschau_Click();
    /// Shows which style is on, and the user's own colours, in the dialog.
    void DIALOG_ZEIGEN();

    Stilwahl wahl() const;
    /// Gives the settings another style; the windows stay as they are. The caller keeps the events quiet.
    void setzen(const Stilwahl& wahl);
    /// What the windows show; nothing before they were painted first.
    const std::optional<Stilwahl>& gezeigt() const { return gezeigt_; }

private:
    void HINTERGRUNDBILD_NEHMEN();

    Form1& form1_;
    frm_einstellungen& einstellungen_;
    frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& werte_;
    Desktop& desktop_;
    std::function<void()> mitziehen_;
    std::optional<Stilwahl> gezeigt_;
};

} // namespace quittika
