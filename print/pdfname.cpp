#include "print/pdfname.hpp"

#include "invoice/belegtexte.hpp"
#include "invoice/file/dateiname.hpp"
#include "platform/text.hpp"

namespace quittika {

namespace {

constexpr std::size_t kBytes =
    200; ///< file systems take 255, the ending and a mark for unfinished files included

bool unbrauchbar(char zeichen) {
    constexpr std::string_view kVerboten = "<>|\"";
    return static_cast<unsigned char>(zeichen) < 0x20 || kVerboten.find(zeichen) != std::string_view::npos;
}

} // namespace

std::string PDFNAME_VORSCHLAGEN(const Form1& form1, const frm_einstellungen& einstellungen) {
    std::string name;
    for (const char zeichen : DATEINAME_BEREINIGEN(BELEGTITEL(form1, einstellungen) + " " +
                                                   KUNDENTEXT(form1, form1.Text_Kunde_1))) {
        const char brauchbar = unbrauchbar(zeichen) ? ' ' : zeichen;
        if (brauchbar != ' ' || !name.ends_with(' ')) {
            name += brauchbar;
        }
    }
    while (name.size() > kBytes) {
        name = links(name, zeichenzahl(name) - 1);
    }
    name = gekuerzt(name);
    return (name.empty() ? "Rechnung" : name) + ".pdf";
}

} // namespace quittika
