#include "masterdata/listenfenster.hpp"

#include "platform/desktop.hpp"
#include "platform/forms/twips.hpp"

#include <algorithm>

namespace quittika {

void FARBEN_UEBERNEHMEN(Form& fenster, const Form1& form1) {
    fenster.OwnLook = form1.OwnLook();
    fenster.BackColor = form1.BackColor();
    fenster.ForeColor = form1.ForeColor();
}

void PLATZIEREN(Form& fenster, const Form1& form1, int left, int top) {
    constexpr int kTitelleiste = twips(40);
    const auto innerhalb = [](int platz, int anfang, int ende) {
        return std::max(anfang, std::min(platz, ende));
    };
    const Desktop& desktop = *fenster.desktop();
    const int rechts = std::max(desktop.screen_width(), form1.Left() + form1.Width());
    const int unten = std::max(desktop.screen_height(), form1.Top() + form1.Height());
    fenster.Left = innerhalb(left, std::min(0, form1.Left()), rechts - fenster.Width());
    fenster.Top = innerhalb(top, std::min(0, form1.Top()), unten - fenster.Height() - kTitelleiste);
}

std::string LISTENTITEL(const std::string& name, const ListBox& liste) {
    return name + "     -    Einträge: " + std::to_string(liste.ListCount());
}

void STANDARDKNOPF(TextBox& feld, CommandButton& knopf, CommandButton& sonst) {
    feld.GotFocus = [&feld, &knopf] {
        feld.select_all();
        knopf.Default = true;
    };
    feld.LostFocus = [&sonst] { sonst.Default = true; };
}

} // namespace quittika
