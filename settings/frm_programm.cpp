#include "settings/frm_programm.hpp"

namespace quittika {

frm_Programm::frm_Programm() : Form("frm_Programm", " Programmeinstellungen") {
    Frame_Individuell.Visible.adopt(false);
    Frame_farbe_formular.BackColor.adopt(0xC0C0C0);
    Frame_farbe_hintergrund.BackColor.adopt(0x97785B);
    Command_delreg.ToolTipText.adopt("Dies setzt das Programm auf den Ursprungszustand zurück");
}

} // namespace quittika
