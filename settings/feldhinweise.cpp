#include "settings/feldhinweise.hpp"

#include "invoice/zahleneingabe.hpp"
#include "platform/pruefziffern.hpp"
#include "platform/text.hpp"

#include <algorithm>

namespace quittika {

namespace {

bool ist_ziffer(char c) {
    return c >= '0' && c <= '9';
}

bool ist_buchstabe(char c) {
    return c >= 'A' && c <= 'Z';
}

/// Two letters of the country, two check digits, and the account.
bool hat_form(const std::string& nummer) {
    constexpr std::size_t kKuerzeste = 15;
    constexpr std::size_t kLaengste = 34;
    return nummer.size() >= kKuerzeste && nummer.size() <= kLaengste && ist_buchstabe(nummer[0]) &&
           ist_buchstabe(nummer[1]) && ist_ziffer(nummer[2]) && ist_ziffer(nummer[3]) &&
           std::all_of(nummer.begin(), nummer.end(),
                       [](char c) { return ist_ziffer(c) || ist_buchstabe(c); });
}

/// A line with a number behind one of the usual words.
bool nennt_steuernummer(const std::string& zeile) {
    const std::string text = " " + grossbuchstaben(zeile);
    const auto nennt = [&text](const char* wort) { return text.find(wort) != std::string::npos; };
    return (nennt(" STEUER") || nennt(" UST") || nennt(" ST.") || nennt(" STNR")) &&
           std::any_of(text.begin(), text.end(), ist_ziffer);
}

void zeigen(Label& hinweis, const std::string& text) {
    hinweis.Visible = !text.empty();
    hinweis.Caption = text;
}

} // namespace

std::string SATZHINWEIS(std::string_view satz) {
    if (ZAHL_LESEN(satz)) {
        return {};
    }
    return "Das ist keine Zahl wie 19 oder 19,5.";
}

std::string IBAN_NUMMER(std::string_view zeile) {
    constexpr std::string_view kWort = "IBAN";
    std::string text = ersetzen(grossbuchstaben(zeile), " ", "");
    if (beginnt_mit(text, kWort)) {
        text.erase(0, kWort.size());
    }
    if (beginnt_mit(text, ":")) {
        text.erase(0, 1);
    }
    return text;
}

std::string IBANHINWEIS(std::string_view zeile) {
    constexpr std::size_t kDeutsche = 22;
    constexpr std::size_t kVorn = 4;
    const std::string nummer = IBAN_NUMMER(zeile);
    if (nummer.empty()) {
        return {};
    }
    if (!hat_form(nummer)) {
        return "Das ist keine IBAN: sie beginnt wie DE12.";
    }
    if (beginnt_mit(nummer, "DE") && nummer.size() != kDeutsche) {
        return "Eine deutsche IBAN hat 22 Stellen, diese hat " + std::to_string(nummer.size()) + ".";
    }
    if (REST_97(nummer.substr(kVorn) + nummer.substr(0, kVorn)) != 1) {
        return "Die Prüfziffer passt nicht: wohl vertippt.";
    }
    return {};
}

std::string STEUERHINWEIS(const frm_einstellungen& e) {
    const std::string& eigene = e.Text_firma_7.Text();
    const auto andere = {&e.Text_firma_1, &e.Text_firma_2, &e.Text_firma_3, &e.Text_firma_4,
                         &e.Text_firma_5, &e.Text_firma_6, &e.Text_firma_8};
    const bool genannt = std::any_of(eigene.begin(), eigene.end(), ist_ziffer) ||
                         std::any_of(andere.begin(), andere.end(),
                                     [](const TextBox* zeile) { return nennt_steuernummer(zeile->Text()); });
    return genannt ? "" : "Auf Rechnungen muss die Steuernummer oder die USt-IdNr. stehen.";
}

void FELDHINWEISE_ZEIGEN(frm_einstellungen& e) {
    zeigen(e.Label_Hinweis_Steuernr, STEUERHINWEIS(e));
    zeigen(e.Label_Hinweis_IBAN, IBANHINWEIS(e.Text_IBAN.Text()));
    zeigen(e.Label_Hinweis_MwSt, SATZHINWEIS(e.Text_MwSt.Text()));
    zeigen(e.Label_Hinweis_MwSt2, SATZHINWEIS(e.Text_MwSt2.Text()));
}

} // namespace quittika
