#include "print/pdfname.hpp"

#include "invoice/belegtexte.hpp"
#include "platform/text.hpp"

namespace quittika {

std::string PDFNAME_VORSCHLAGEN(const Form1& form1, const frm_einstellungen& einstellungen) {
    std::string name;
    for (const char zeichen :
         BELEGTITEL(form1, einstellungen) + " " + KUNDENTEXT(form1, form1.Text_Kunde_1)) {
        if (zeichen != ' ' || !name.ends_with(' ')) { // titles are spaced out for the paper
            name += zeichen;
        }
    }
    return gekuerzt(name) + ".pdf";
}

} // namespace quittika
