#include "app/menue_listen.hpp"

#include "invoice/programmname.hpp"

namespace quittika {

void MENUE_LISTEN(Form1& form1, const Ereignisse& ereignisse, Dialogs& dialogs, Kundenfenster& kundenfenster,
                  Artikeluebernahme& artikel) {
    form1.m_Schlagwortsuche.Click = ereignisse.befehl([&dialogs] {
        dialogs.message({"Diese Funktion steht zur Zeit noch nicht zur Verfügung.", kProgrammdatei,
                         Buttons::Ok, Symbol::Information});
    });
    for (Control* kunden :
         {static_cast<Control*>(&form1.m_Kundenliste), static_cast<Control*>(&form1.Command_Kundenliste)}) {
        kunden->Click = ereignisse.befehl([&kundenfenster] { kundenfenster.open(); });
    }
    for (Control* liste :
         {static_cast<Control*>(&form1.m_Artikelliste), static_cast<Control*>(&form1.Command_Artikelliste)}) {
        liste->Click = ereignisse.befehl([&artikel] { artikel.Command_Artikelliste_Click(); });
    }
}

} // namespace quittika
