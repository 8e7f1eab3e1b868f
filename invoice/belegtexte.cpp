#include "invoice/belegtexte.hpp"

#include "platform/text.hpp"

#include <utility>

namespace quittika {

bool IST_LIEFERSCHEIN(const Form1& form1) {
    return form1.Option_LIEFERSCHEIN.Value() || form1.Option_LIEFERSCHEIN_KOPIE.Value();
}

std::string BELEGTITEL(const Form1& form1, const frm_einstellungen& einstellungen) {
    const bool kopie = form1.Option_RECHNUNG_KOPIE.Value() || form1.Option_LIEFERSCHEIN_KOPIE.Value();
    return (IST_LIEFERSCHEIN(form1) ? einstellungen.Label_Lieferschein.Caption() : std::string()) +
           form1.Text_rechnung.Text() + " " + form1.Text_RNnr.Text() +
           (kopie ? einstellungen.Label_Kopie.Caption() : std::string());
}

std::string SUMMENBEZEICHNUNG(const Form1& form1) {
    const bool netto = form1.Check_mwst.ticked() && form1.Option_mwst_plus.Value();
    return netto ? "Summe (netto):" : form1.Label_summe.Caption();
}

std::string KUNDENTEXT(const Form1& form1, const TextBox& feld) {
    const std::pair<const TextBox*, const char*> platzhalter[] = {
        {&form1.Text_Kunde_1, vorgabe::kKunde1},
        {&form1.Text_Kunde_2, vorgabe::kKunde2},
        {&form1.Text_Kunde_3, vorgabe::kKunde3},
        {&form1.Text_Kunde_4, vorgabe::kKunde4},
        {&form1.Text_KundennrK, vorgabe::kKundennr}};
    for (const auto& [eines, text] : platzhalter) {
        if (eines == &feld && gekuerzt(feld.Text()) == text) {
            return {};
        }
    }
    return feld.Text();
}

} // namespace quittika
