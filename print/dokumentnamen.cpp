#include "print/dokumentnamen.hpp"

#include "invoice/belegtexte.hpp"
#include "platform/text.hpp"

namespace quittika {

namespace {

/// Titles are spaced out for the paper.
std::string mit_einfachen_leerzeichen(const std::string& text) {
    std::string ergebnis;
    for (const char zeichen : text) {
        if (zeichen != ' ' || !ergebnis.ends_with(' ')) {
            ergebnis += zeichen;
        }
    }
    return gekuerzt(ergebnis);
}

} // namespace

std::string AUFTRAGSTITEL(const Form1& form1) {
    return "QK-> " + form1.Text_Kunde_1.Text() + " " + form1.Text_rechnung.Text() + " " +
           form1.Text_RNnr.Text();
}

std::string DOKUMENTTITEL(const Form1& form1, const frm_einstellungen& einstellungen) {
    return mit_einfachen_leerzeichen(BELEGTITEL(form1, einstellungen));
}

std::string PDFNAME_VORSCHLAGEN(const Form1& form1, const frm_einstellungen& einstellungen) {
    return mit_einfachen_leerzeichen(BELEGTITEL(form1, einstellungen) + " " +
                                     KUNDENTEXT(form1, form1.Text_Kunde_1)) +
           ".pdf";
}

} // namespace quittika
