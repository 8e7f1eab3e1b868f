#include "app/hilfekapitel.hpp"

#include <algorithm>

namespace quittika {

namespace {

struct Hilfekapitel {
    std::string_view fenster;
    std::string_view kapitel;
};

constexpr Hilfekapitel kKapitel[] = {
    {"Form_START", "erste-rechnung"},        {"form1", "hauptfenster"},
    {"frm_einstellungen", "firmendaten"},    {"frm_Programm", "farben"},
    {"FORM_DESIGNER", "eigenes-layout"},     {"Form_Kundenverwaltung", "kunden"},
    {"Form_Artikelverwaltung", "artikel"},   {"Form_Etp_Barcode", "scanner"},
    {"Form_Druckvorschau", "drucken"},       {"Form_Lieferschein_opt", "lieferschein"},
    {"Form2_Breiter_Brief", "umschlag"},     {"Form2_PAKET_ETIKETT", "paket"},
    {"Form2_PAKETHRMS_ETIKETT", "paket"},    {"Form2_PAECKCHEN_ETIKETT", "paket"},
    {"Form_Analyzer", "analyzer"},           {"Form_VerzWahlAuftrag", "analyzer"},
    {"Form_txt_Vorlagen", "textvorlagen"},   {"Form_Helferlein", "helfer"},
    {"Form_Helferlein_Bkg", "helfer"},       {"Form_Notiz", "notiz"},
    {"Form_Fassungen", "fassungen"},         {"Form_Datensicherung", "sicherung"},
    {"Form_Rueckspielen", "zurueckspielen"}, {"Form_Nummernpruefung", "nummern-pruefen"},
    {"Form_ERechnung", "e-rechnung"},        {"Form_ueber_QUITTIKA", "version"},
};

} // namespace

std::string_view HILFEKAPITEL(std::string_view fenster) {
    const auto* gefunden = std::ranges::find(kKapitel, fenster, &Hilfekapitel::fenster);
    return gefunden == std::end(kKapitel) ? std::string_view() : gefunden->kapitel;
}

} // namespace quittika
