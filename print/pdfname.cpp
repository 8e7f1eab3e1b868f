#include "print/pdfname.hpp"

#include "invoice/belegtexte.hpp"
#include "platform/text.hpp"

namespace quittika {

std::string PDFNAME_VORSCHLAGEN(const Form1& form1, const frm_einstellungen& einstellungen) {
    return gekuerzt(BELEGTITEL(form1, einstellungen) + " " + KUNDENTEXT(form1, form1.Text_Kunde_1)) + ".pdf";
}

} // namespace quittika
