#include "einvoice/kennungen.hpp"

#include "platform/pruefziffern.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace quittika {

namespace {

bool ist_ziffer(char c) {
    return c >= '0' && c <= '9';
}

bool ist_buchstabe(char c) {
    return c >= 'A' && c <= 'Z';
}

/// What follows the two letters of a country: "9" a digit, "A" a letter, "X" either; "|" parts the forms.
struct Ust_Form {
    const char* land;
    const char* formen;
    const char* beispiel;
};

constexpr Ust_Form kUstFormen[] = {
    {"AT", "A99999999", "ATU12345678"},
    {"BE", "9999999999", "BE0123456789"},
    {"BG", "999999999|9999999999", "BG123456789"},
    {"CY", "99999999A", "CY12345678L"},
    {"CZ", "99999999|999999999|9999999999", "CZ12345678"},
    {"DE", "999999999", "DE123456788"},
    {"DK", "99999999", "DK12345678"},
    {"EE", "999999999", "EE123456789"},
    {"EL", "999999999", "EL123456789"},
    {"ES", "X9999999X", "ESX1234567X"},
    {"FI", "99999999", "FI12345678"},
    {"FR", "XX999999999", "FR12123456789"},
    {"HR", "99999999999", "HR12345678901"},
    {"HU", "99999999", "HU12345678"},
    {"IE", "9X99999A|9X99999AA", "IE1234567A"},
    {"IT", "99999999999", "IT12345678901"},
    {"LT", "999999999|999999999999", "LT123456789"},
    {"LU", "99999999", "LU12345678"},
    {"LV", "99999999999", "LV12345678901"},
    {"MT", "99999999", "MT12345678"},
    {"NL", "XXXXXXXXXXXX", "NL123456789B01"},
    {"PL", "9999999999", "PL1234567890"},
    {"PT", "999999999", "PT123456789"},
    {"RO", "99|999|9999|99999|999999|9999999|99999999|999999999|9999999999", "RO1234567890"},
    {"SE", "999999999999", "SE123456789001"},
    {"SI", "99999999", "SI12345678"},
    {"SK", "9999999999", "SK1234567890"},
    {"XI", "999999999|999999999999", "XI123456789"},
};

bool passt(std::string_view text, std::string_view form) {
    return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char c, char art) {
        return (art != 'A' && ist_ziffer(c)) || (art != '9' && ist_buchstabe(c));
    });
}

bool passt_einer(std::string_view text, std::string_view formen) {
    while (true) {
        const std::size_t ende = formen.find('|');
        if (passt(text, formen.substr(0, ende))) {
            return true;
        }
        if (ende == std::string_view::npos) {
            return false;
        }
        formen.remove_prefix(ende + 1);
    }
}

/// Parts of a Leitweg-ID: all but the check digits, and those.
struct Leitweg {
    std::string vorn;
    std::string pruefziffern;
};

bool leitweg_teil(std::string_view teil, std::size_t laengster, bool buchstaben) {
    return !teil.empty() && teil.size() <= laengster && std::all_of(teil.begin(), teil.end(), [&](char c) {
        return ist_ziffer(c) || (buchstaben && ist_buchstabe(c));
    });
}

bool leitweg_lesen(std::string_view kennung, Leitweg& leitweg) {
    constexpr std::size_t kGrob = 12;
    constexpr std::size_t kFein = 30;
    const std::string text = grossbuchstaben(gekuerzt(kennung));
    const std::size_t erster = text.find('-');
    const std::size_t letzter = text.rfind('-');
    if (erster == std::string::npos) {
        return false;
    }
    const std::string grob = text.substr(0, erster);
    const std::string fein = letzter > erster ? text.substr(erster + 1, letzter - erster - 1) : "";
    leitweg = {grob + fein, text.substr(letzter + 1)};
    return leitweg_teil(grob, kGrob, false) && grob.size() >= 2 &&
           (letzter == erster || leitweg_teil(fein, kFein, true)) &&
           leitweg_teil(leitweg.pruefziffern, 2, false) && leitweg.pruefziffern.size() == 2;
}

/// ISO 3166, two letters each.
constexpr std::string_view kLaender =
    " AD AE AF AG AI AL AM AO AQ AR AS AT AU AW AX AZ BA BB BD BE BF BG BH BI BJ BL BM BN BO BQ BR BS BT BV "
    "BW BY "
    "BZ CA CC CD CF CG CH CI CK CL CM CN CO CR CU CV CW CX CY CZ DE DJ DK DM DO DZ EC EE EG EH ER ES ET FI "
    "FJ FK "
    "FM FO FR GA GB GD GE GF GG GH GI GL GM GN GP GQ GR GS GT GU GW GY HK HM HN HR HT HU ID IE IL IM IN IO "
    "IQ IR "
    "IS IT JE JM JO JP KE KG KH KI KM KN KP KR KW KY KZ LA LB LC LI LK LR LS LT LU LV LY MA MC MD ME MF MG "
    "MH MK "
    "ML MM MN MO MP MQ MR MS MT MU MV MW MX MY MZ NA NC NE NF NG NI NL NO NP NR NU NZ OM PA PE PF PG PH PK "
    "PL PM "
    "PN PR PS PT PW PY QA RE RO RS RU RW SA SB SC SD SE SG SH SI SJ SK SL SM SN SO SR SS ST SV SX SY SZ TC "
    "TD TF "
    "TG TH TJ TK TL TM TN TO TR TT TV TW TZ UA UG UM US UY UZ VA VC VE VG VI VN VU WF WS YE YT ZA ZM ZW ";

/// ISO 4217: those that a shop in Europe meets.
constexpr std::string_view kWaehrungen =
    " EUR CHF GBP USD DKK SEK NOK PLN CZK HUF RON BGN ISK TRY AUD CAD JPY CNY ";

bool enthaelt_wort(std::string_view liste, std::string_view wort) {
    return liste.find(" " + std::string(wort) + " ") != std::string_view::npos;
}

constexpr std::pair<std::string_view, const char*> kLandnamen[] = {
    {"D", "DE"},
    {"DEUTSCHLAND", "DE"},
    {"GERMANY", "DE"},
    {"A", "AT"},
    {"ÖSTERREICH", "AT"},
    {"AUSTRIA", "AT"},
    {"SCHWEIZ", "CH"},
    {"SWITZERLAND", "CH"},
    {"SUISSE", "CH"},
    {"LIECHTENSTEIN", "LI"},
    {"L", "LU"},
    {"LUXEMBURG", "LU"},
    {"F", "FR"},
    {"FRANKREICH", "FR"},
    {"FRANCE", "FR"},
    {"B", "BE"},
    {"BELGIEN", "BE"},
    {"NIEDERLANDE", "NL"},
    {"HOLLAND", "NL"},
    {"DÄNEMARK", "DK"},
    {"POLEN", "PL"},
    {"TSCHECHIEN", "CZ"},
    {"I", "IT"},
    {"ITALIEN", "IT"},
    {"E", "ES"},
    {"SPANIEN", "ES"},
    {"SCHWEDEN", "SE"},
    {"UNGARN", "HU"},
    {"GROSSBRITANNIEN", "GB"},
    {"ENGLAND", "GB"},
    {"USA", "US"},
};

} // namespace

std::string KENNUNG(std::string_view nummer) {
    std::string ergebnis;
    for (const char c : grossbuchstaben(nummer)) {
        if (ist_ziffer(c) || ist_buchstabe(c)) {
            ergebnis += c;
        }
    }
    return ergebnis;
}

std::string UST_ID_FEHLER(std::string_view nummer) {
    const std::string text = KENNUNG(nummer);
    if (gekuerzt(nummer).empty()) {
        return {};
    }
    const std::string land = text.substr(0, 2);
    const auto* const form = std::find_if(std::begin(kUstFormen), std::end(kUstFormen),
                                          [&](const Ust_Form& f) { return land == f.land; });
    if (form == std::end(kUstFormen)) {
        constexpr std::size_t kLaengste = 17;
        if (enthaelt_wort(kLaender, land) && land != "GR" && text.size() > 4 && text.size() <= kLaengste) {
            return {}; // outside of the EU each country has its own forms
        }
        return "Eine USt-IdNr. beginnt mit den zwei Buchstaben eines Landes, wie DE123456788.";
    }
    const std::string ziffern = text.substr(2);
    if (!passt_einer(ziffern, form->formen)) {
        return std::string("Das ist keine USt-IdNr. dieses Landes: sie sieht aus wie ") + form->beispiel +
               ".";
    }
    if (land == "DE" && PRUEFZIFFER_11_10(std::string_view(ziffern).substr(0, 8)) != ziffern.back() - '0') {
        return "Die Prüfziffer der USt-IdNr. passt nicht: wohl vertippt.";
    }
    return {};
}

bool IST_WIE_LEITWEG(std::string_view kennung) {
    Leitweg leitweg;
    return leitweg_lesen(kennung, leitweg);
}

std::string LEITWEG_FEHLER(std::string_view kennung) {
    if (gekuerzt(kennung).empty()) {
        return {};
    }
    Leitweg leitweg;
    if (!leitweg_lesen(kennung, leitweg)) {
        return "Das ist keine Leitweg-ID: sie sieht aus wie 04011000-1234512345-06.";
    }
    if (REST_97(leitweg.vorn + leitweg.pruefziffern) != 1) {
        return "Die Prüfziffern der Leitweg-ID passen nicht: wohl vertippt.";
    }
    return {};
}

std::string E_MAIL_FEHLER(std::string_view adresse) {
    const std::string text = gekuerzt(adresse);
    if (text.empty()) {
        return {};
    }
    const std::size_t at = text.find('@');
    const bool zeichen = std::none_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) <= ' ' || c == ',' || c == ';' || c == '<' || c == '>' ||
               c == '"';
    });
    const bool eines = at != std::string::npos && at > 0 && text.find('@', at + 1) == std::string::npos;
    const std::string rechner = eines ? text.substr(at + 1) : "";
    const bool punkte = rechner.find('.') != std::string::npos && rechner.front() != '.' &&
                        rechner.back() != '.' && text.find("..") == std::string::npos &&
                        text.front() != '.' && text[at - 1] != '.';
    return zeichen && eines && punkte ? "" : "Das ist keine E-Mail-Adresse wie name@firma.de.";
}

std::string BIC_FEHLER(std::string_view bic) {
    const std::string text = KENNUNG(bic);
    if (gekuerzt(bic).empty() || passt_einer(text, "AAAAAAXX|AAAAAAXXXXX")) {
        return {};
    }
    return "Eine BIC hat 8 oder 11 Stellen, wie MARKDEF1100.";
}

std::string LAND_FEHLER(std::string_view land) {
    const std::string text = gekuerzt(land);
    if (text.empty() || (text.size() == 2 && enthaelt_wort(kLaender, text))) {
        return {};
    }
    return "Ein Land steht als zwei Großbuchstaben da, wie DE, AT oder CH.";
}

std::string WAEHRUNGSCODE(std::string_view waehrung) {
    const std::string text = grossbuchstaben(gekuerzt(waehrung));
    if (text == "€" || text == "EURO" || text == "EUROS") {
        return "EUR";
    }
    return text.size() == 3 && enthaelt_wort(kWaehrungen, text) ? text : std::string();
}

std::string LANDESCODE(std::string_view land) {
    const std::string text = grossbuchstaben(gekuerzt(land));
    for (const auto& [name, code] : kLandnamen) {
        if (text == name) {
            return code;
        }
    }
    return text.size() == 2 && enthaelt_wort(kLaender, text) ? text : std::string();
}

} // namespace quittika
