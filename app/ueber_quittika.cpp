#include "app/ueber_quittika.hpp"

#include "app/form_ueber_quittika.hpp"

namespace quittika {

void UEBER_QUITTIKA_ZEIGEN(const PROGRAMMEINSTELLUNG& werte, Desktop& desktop) {
    Form_ueber_QUITTIKA form;
    form.Label_Version.Caption = werte.VERSIONSTEXT;
    form.Command_OK.Click = [&form] { form.Close(); };
    desktop.adopt(form);
    form.Show(Modality::Modal);
}

} // namespace quittika
