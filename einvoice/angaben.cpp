#include "einvoice/angaben.hpp"

#include <algorithm>
#include <array>

namespace quittika {

namespace {

constexpr std::array<Angabe<Verkaeufer>, 18> kVerkaeufer{{
    {"Name", "Text_Verkaeufer_Name", &Verkaeufer::Name},
    {"Strasse", "Text_Verkaeufer_Strasse", &Verkaeufer::Strasse},
    {"PLZ", "Text_Verkaeufer_PLZ", &Verkaeufer::PLZ},
    {"Ort", "Text_Verkaeufer_Ort", &Verkaeufer::Ort},
    {"Land", "Text_Verkaeufer_Land", &Verkaeufer::Land},
    {"USt-IdNr", "Text_Verkaeufer_USt_IdNr", &Verkaeufer::USt_IdNr},
    {"Steuernummer", "Text_Verkaeufer_Steuernummer", &Verkaeufer::Steuernummer},
    {"Kontakt", "Text_Verkaeufer_Kontakt", &Verkaeufer::Kontakt},
    {"Telefon", "Text_Verkaeufer_Telefon", &Verkaeufer::Telefon},
    {"E-Mail", "Text_Verkaeufer_E_Mail", &Verkaeufer::E_Mail},
    {"IBAN", "Text_Verkaeufer_IBAN", &Verkaeufer::IBAN},
    {"BIC", "Text_Verkaeufer_BIC", &Verkaeufer::BIC},
    {"Zahlungstage", "Text_Zahlungstage", &Verkaeufer::Zahlungstage},
    {"Skonto-Prozent", "Text_Skonto_Prozent", &Verkaeufer::Skonto_Prozent},
    {"Skonto-Tage", "Text_Skonto_Tage", &Verkaeufer::Skonto_Tage},
    {"Befreiungsgrund", "Combo_Befreiungsgrund", &Verkaeufer::Befreiungsgrund},
    {"Befreiungstext", "Text_Befreiungstext", &Verkaeufer::Befreiungstext},
    {"GiroCode", "Check_GiroCode", &Verkaeufer::GiroCode},
}};

constexpr std::array<Angabe<Kaeufer>, 9> kKaeufer{{
    {"Name", "Text_Kaeufer_Name", &Kaeufer::Name},
    {"Zusatz", "Text_Kaeufer_Zusatz", &Kaeufer::Zusatz},
    {"Strasse", "Text_Kaeufer_Strasse", &Kaeufer::Strasse},
    {"PLZ", "Text_Kaeufer_PLZ", &Kaeufer::PLZ},
    {"Ort", "Text_Kaeufer_Ort", &Kaeufer::Ort},
    {"Land", "Text_Kaeufer_Land", &Kaeufer::Land},
    {"USt-IdNr", "Text_Kaeufer_USt_IdNr", &Kaeufer::USt_IdNr},
    {"E-Mail", "Text_Kaeufer_E_Mail", &Kaeufer::E_Mail},
    {"Leitweg-ID", "Text_Kaeufer_Leitweg_ID", &Kaeufer::Leitweg_ID},
}};

constexpr std::array<Befreiung, 5> kBefreiungen{{
    {"Kleinunternehmer", "Kleinunternehmer (§ 19 UStG)", "E", "",
     "Steuerbefreiung für Kleinunternehmer nach § 19 UStG"},
    {"Reverse-Charge", "Steuerschuld des Empfängers (§ 13b UStG)", "AE", "VATEX-EU-AE",
     "Steuerschuldnerschaft des Leistungsempfängers"},
    {"Innergemeinschaftlich", "Innergemeinschaftliche Lieferung (§ 4 Nr. 1b UStG)", "K", "VATEX-EU-IC",
     "Steuerfreie innergemeinschaftliche Lieferung nach § 4 Nr. 1 Buchst. b UStG"},
    {"Ausfuhr", "Ausfuhr in ein Drittland (§ 4 Nr. 1a UStG)", "G", "VATEX-EU-G",
     "Steuerfreie Ausfuhrlieferung nach § 4 Nr. 1 Buchst. a UStG"},
    {"Anderer", "Anderer Grund:", "E", "", ""},
}};

} // namespace

std::span<const Angabe<Verkaeufer>> VERKAEUFERANGABEN() {
    return kVerkaeufer;
}

std::span<const Angabe<Kaeufer>> KAEUFERANGABEN() {
    return kKaeufer;
}

std::span<const Befreiung> BEFREIUNGEN() {
    return kBefreiungen;
}

const Befreiung* BEFREIUNG(const std::string& schluessel) {
    const auto* const gefunden = std::find_if(kBefreiungen.begin(), kBefreiungen.end(),
                                              [&](const Befreiung& b) { return b.schluessel == schluessel; });
    return gefunden == kBefreiungen.end() ? nullptr : gefunden;
}

} // namespace quittika
