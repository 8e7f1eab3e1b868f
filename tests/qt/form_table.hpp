#pragma once

#include "analyzer/form_analyzer.hpp"
#include "analyzer/form_verzwahlauftrag.hpp"
#include "app/form_start.hpp"
#include "app/form_ueber_quittika.hpp"
#include "barcode/form_etp_barcode.hpp"
#include "designer/form_designer.hpp"
#include "einvoice/form_e_rechnung.hpp"
#include "invoice/form1.hpp"
#include "masterdata/form_artikelverwaltung.hpp"
#include "masterdata/form_kundenverwaltung.hpp"
#include "print/form2_etiketten.hpp"
#include "print/form_druckvorschau.hpp"
#include "print/form_lieferschein_opt.hpp"
#include "safety/form_datensicherung.hpp"
#include "safety/form_fassungen.hpp"
#include "safety/form_nummernpruefung.hpp"
#include "safety/form_rueckspielen.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/frm_programm.hpp"
#include "tools/form_helferlein.hpp"
#include "tools/form_notiz.hpp"
#include "tools/form_txt_vorlagen.hpp"

#include <memory>
#include <vector>

namespace quittika::test {

using MakeForm = std::unique_ptr<Form> (*)();

template <class F> std::unique_ptr<Form> make() {
    return std::make_unique<F>();
}

/// Every form that has a window.
inline const std::vector<MakeForm> kForms{make<Form1>,
                                          make<Form_START>,
                                          make<Form_ueber_QUITTIKA>,
                                          make<frm_Programm>,
                                          make<Form_Lieferschein_opt>,
                                          make<Form_Druckvorschau>,
                                          make<Form_Fassungen>,
                                          make<Form_Etp_Barcode>,
                                          make<Form2_PAKET_ETIKETT>,
                                          make<Form2_PAKETHRMS_ETIKETT>,
                                          make<Form2_PAECKCHEN_ETIKETT>,
                                          make<Form2_Breiter_Brief>,
                                          make<frm_einstellungen>,
                                          make<Form_Kundenverwaltung>,
                                          make<Form_Artikelverwaltung>,
                                          make<FORM_DESIGNER>,
                                          make<Form_txt_Vorlagen>,
                                          make<Form_Helferlein>,
                                          make<Form_Helferlein_Bkg>,
                                          make<Form_Notiz>,
                                          make<Form_Analyzer>,
                                          make<Form_VerzWahlAuftrag>,
                                          make<Form_Datensicherung>,
                                          make<Form_Rueckspielen>,
                                          make<Form_Nummernpruefung>,

                                          make<Form_ERechnung>};

} // namespace quittika::test
