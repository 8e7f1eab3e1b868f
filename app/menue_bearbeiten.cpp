#include "app/menue_bearbeiten.hpp"

namespace quittika {

void MENUE_BEARBEITEN(Form1& form1, const Ereignisse& ereignisse, Rueckgaengig& rueckgaengig) {
    form1.m_rueckgaengig.Click = ereignisse.befehl([&rueckgaengig] { rueckgaengig.m_rueckgaengig_Click(); });
    for (Menu* eintrag : {&form1.m_wiederholen, &form1.m_wiederholen_kurz}) {
        eintrag->Click = ereignisse.befehl([&rueckgaengig] { rueckgaengig.m_wiederholen_Click(); });
    }
}

} // namespace quittika
