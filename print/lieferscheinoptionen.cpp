#include "print/lieferscheinoptionen.hpp"

#include "invoice/belegtexte.hpp"
#include "platform/laufzeitfehler.hpp"
#include "print/form_lieferschein_opt.hpp"

namespace quittika {

Lieferscheinoptionen::Lieferscheinoptionen(const Form1& form1, const frm_einstellungen& einstellungen,
                                           Desktop& desktop)
    : form1_(form1), einstellungen_(einstellungen), desktop_(desktop) {}

Lieferscheinangaben Lieferscheinoptionen::vorgabe() const {
    const bool alle = LAYOUT_GEWAEHLT(einstellungen_) != kEigenesLayout;
    return {alle, alle, alle, alle};
}

Lieferscheinangaben Lieferscheinoptionen::check_LIEFERSCHEIN_PRINT() const {
    if (!IST_LIEFERSCHEIN(form1_)) {
        return {};
    }
    Form_Lieferschein_opt form;
    bool weiter = false;
    form.CMD_weiter.Click = [&form, &weiter] {
        weiter = true;
        form.Close();
    };
    const bool alle = vorgabe().preise;
    for (CheckBox* angabe : {&form.Check_LIEFERSCH_WERBESPRUCH, &form.Check_LIEFERSCH_BEMERKUNGSTEXT,
                             &form.Check_LIEFERSCH_ANSCHREIBEN, &form.Check_LIEFERSCH_PREISE}) {
        angabe->Value = alle ? 1 : 0;
    }
    form.Check_LIEFERSCH_PREISE.Enabled = alle;
    desktop_.adopt(form);
    form.Show(Modality::Modal);
    if (!weiter) {
        throw Laufzeitfehler(fehler::kDialogAbgebrochen);
    }
    return {form.Check_LIEFERSCH_WERBESPRUCH.ticked(), form.Check_LIEFERSCH_BEMERKUNGSTEXT.ticked(),
            form.Check_LIEFERSCH_ANSCHREIBEN.ticked(), form.Check_LIEFERSCH_PREISE.ticked()};
}

} // namespace quittika
