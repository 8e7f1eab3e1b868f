#pragma once

#include "invoice/form1.hpp"
#include "platform/forms/controls.hpp"

#include <string>

namespace quittika {

// What the windows of the lists have in common.

/// Gives a window the colours of the main window.
void FARBEN_UEBERNEHMEN(Form& fenster, const Form1& form1);

/// Moves a window to a place in twips, but not beyond the screen and the main window's part of another one.
void PLATZIEREN(Form& fenster, const Form1& form1, int left, int top);

/// Caption with the count of a list: "Kundenliste     -    Einträge: 3".
std::string LISTENTITEL(const std::string& name, const ListBox& liste);

/// The Return key means `knopf` while the focus is in `feld`, else `sonst`: marks it so.
void STANDARDKNOPF(TextBox& feld, CommandButton& knopf, CommandButton& sonst);

} // namespace quittika
