#include "app/menue_listen.hpp"

#include "invoice/programmname.hpp"

namespace quittika {

void MENUE_LISTEN(Form1& form1, const Ereignisse& ereignisse, Dialogs& dialogs) {
    form1.m_Schlagwortsuche.Click = ereignisse.befehl([&dialogs] {
        dialogs.message({"Diese Funktion steht zur Zeit noch nicht zur Verfügung.", kProgrammdatei,
                         Buttons::Ok, Symbol::Information});
    });
    SPERREN({&form1.m_Kundenliste, &form1.Command_Kundenliste, &form1.m_Artikelliste,
             &form1.Command_Artikelliste});
}

} // namespace quittika
