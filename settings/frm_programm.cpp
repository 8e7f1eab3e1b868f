#include "settings/frm_programm.hpp"

#include "platform/forms/twips.hpp"

namespace quittika {

frm_Programm::frm_Programm() : Form("frm_Programm", " Programmeinstellungen", {twips(560), twips(470)}) {
    Option_stil_standard.Value.adopt(true);
    Frame_Individuell.Visible.adopt(false);
    Frame_farbe_formular.BackColor.adopt(0xC0C0C0);
    Frame_farbe_hintergrund.BackColor.adopt(0x97785B);
    Command_delreg.ToolTipText.adopt("Dies setzt das Programm auf den Ursprungszustand zurück");
}

} // namespace quittika
