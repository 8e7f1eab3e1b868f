#include "invoice/erste_rechnung.hpp"

#include "platform/datum.hpp"

namespace quittika {

ErsteRechnung::ErsteRechnung(Form1& form1, const frm_einstellungen& einstellungen, Vorgaben& vorgaben,
                             Rechnung& rechnung, Rechnungsnummern& nummern, const Clock& uhr)
    : form1_(form1),
      einstellungen_(einstellungen),
      vorgaben_(vorgaben),
      rechnung_(rechnung),
      nummern_(nummern),
      uhr_(uhr) {}

void ErsteRechnung::Beginnen() {
    vorgaben_.uebernehmen();
    form1_.Text_rechnung.Text = einstellungen_.Text_rechnung.Text();
    form1_.Text_Datum.Text = datum_text(uhr_.now());
    form1_.Text_LIEFERDATUM.Text = " ";
    LieferdatumFreigeben(form1_);
    rechnung_.NotizSetzen(vorgabe::kNotiz);
    nummern_.RNStartLesen();
}

} // namespace quittika
