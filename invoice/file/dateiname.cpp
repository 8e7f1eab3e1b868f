#include "invoice/file/dateiname.hpp"

#include "platform/datum.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

namespace quittika {

std::string DATEINAME_VORSCHLAGEN(const Form1& form1) {
    constexpr int kFalscherTyp = 13;
    constexpr std::size_t kLaenge = 127;
    const auto datum = datum_lesen(form1.Text_Datum.Text());
    if (!datum) {
        throw Laufzeitfehler(kFalscherTyp);
    }
    std::string name = std::to_string(datum->jahr) + "-" + format_zahl(datum->monat, "00") + "-" +
                       format_zahl(datum->tag, "00") + "+" + form1.Text_rechnung.Text() + " " +
                       form1.Text_RNnr.Text() + "+" + form1.Text_KundennrK.Text() + "+" +
                       form1.Text_Kunde_1.Text();
    for (const char* zeichen : {":", "!", "@", "/", "\\", ";", ",", ".", "?", "*"}) {
        name = ZEICHENERSETZEN(name, zeichen, " ");
    }
    return links(name, kLaenge) + ".qk8";
}

} // namespace quittika
