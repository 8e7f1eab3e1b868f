#include "einvoice/erkennung.hpp"

#include "einvoice/kennungen.hpp"
#include "platform/text.hpp"
#include "settings/feldhinweise.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace quittika {

namespace {

bool ist_ziffer(char c) {
    return c >= '0' && c <= '9';
}

bool hat_ziffer(std::string_view text) {
    return std::any_of(text.begin(), text.end(), ist_ziffer);
}

/// What stands behind a word at the beginning of a line and the marks between them; nothing where the line
/// does not begin with it.
std::optional<std::string> hinter_wort(std::string_view zeile, std::string_view wort) {
    if (!beginnt_mit(grossbuchstaben(zeile), wort)) {
        return std::nullopt;
    }
    const std::string_view rest = zeile.substr(wort.size());
    const std::size_t anfang = rest.find_first_not_of(" .:-/#");
    return anfang == std::string_view::npos ? std::string() : gekuerzt(rest.substr(anfang));
}

/// Words that announce a value; longer ones stand before those that they begin with.
struct Merkwort {
    std::string_view wort;
    std::string Erkanntes::*ziel; ///< null: a line that says nothing of use
};

constexpr Merkwort kMerkworte[] = {
    {"TELEFAX", nullptr},
    {"FAXNR", nullptr},
    {"FAX", nullptr},
    {"HANDY", &Erkanntes::Telefon},
    {"MOBIL", &Erkanntes::Telefon},
    {"TELEFON", &Erkanntes::Telefon},
    {"TEL", &Erkanntes::Telefon},
    {"FON", &Erkanntes::Telefon},
    {"UST-IDNR", &Erkanntes::USt_IdNr},
    {"UST-ID-NR", &Erkanntes::USt_IdNr},
    {"UST.-IDNR", &Erkanntes::USt_IdNr},
    {"UST.-ID-NR", &Erkanntes::USt_IdNr},
    {"UST-ID", &Erkanntes::USt_IdNr},
    {"USTID", &Erkanntes::USt_IdNr},
    {"UID", &Erkanntes::USt_IdNr},
    {"UMSATZSTEUER-IDENTIFIKATIONSNUMMER", &Erkanntes::USt_IdNr},
    {"STEUERNUMMER", &Erkanntes::Steuernummer},
    {"STEUER-NR", &Erkanntes::Steuernummer},
    {"STEUERNR", &Erkanntes::Steuernummer},
    {"ST.-NR", &Erkanntes::Steuernummer},
    {"ST.NR", &Erkanntes::Steuernummer},
    {"ST-NR", &Erkanntes::Steuernummer},
    {"STNR", &Erkanntes::Steuernummer},
    {"IBAN", &Erkanntes::IBAN},
    {"SWIFT-BIC", &Erkanntes::BIC},
    {"SWIFT -BIC", &Erkanntes::BIC},
    {"SWIFT", &Erkanntes::BIC},
    {"BIC", &Erkanntes::BIC},
    {"INTERNET", nullptr},
    {"WWW", nullptr},
    {"HTTP", nullptr},
    {"BLZ", nullptr},
    {"KTO", nullptr},
};

/// A word that ends where it does: "TEL" begins "Tel.:" and "Tel 1", not "Teller GmbH".
bool wort_endet(std::string_view zeile, std::size_t laenge) {
    return zeile.size() == laenge ||
           std::string_view(" .:-/#0123456789+(").find(zeile[laenge]) != std::string_view::npos;
}

void fuellen(std::string& ziel, const std::string& wert) {
    if (ziel.empty()) {
        ziel = wert;
    }
}

/// The address in a line, without words and marks around it.
std::optional<std::string> e_mail_in(std::string_view zeile) {
    const std::size_t at = zeile.find('@');
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    constexpr std::string_view kGrenzen = " :;,<>()[]|\t";
    const std::size_t vor = at == 0 ? std::string_view::npos : zeile.find_last_of(kGrenzen, at - 1);
    const std::size_t anfang = vor == std::string_view::npos ? 0 : vor + 1;
    const std::string adresse(zeile.substr(anfang, zeile.find_first_of(kGrenzen, at) - anfang));
    return E_MAIL_FEHLER(adresse).empty() ? std::optional<std::string>(adresse) : std::nullopt;
}

bool wert_nehmen(const std::string& zeile, Erkanntes& e) {
    for (const Merkwort& m : kMerkworte) {
        const std::optional<std::string> wert = hinter_wort(zeile, m.wort);
        if (!wert || !wort_endet(zeile, m.wort.size())) {
            continue;
        }
        if (m.ziel != nullptr && hat_ziffer(*wert)) {
            fuellen(e.*m.ziel, *wert);
        } else if (m.ziel == &Erkanntes::BIC) {
            fuellen(e.BIC, *wert);
        }
        return true;
    }
    return false;
}

/// Digits of a postal code, in Germany five, in Austria and Switzerland four.
struct Ortszeile {
    std::string davor; ///< street in the same line
    std::string Land;
    std::string PLZ;
    std::string Ort;
};

/// A postal code with a town behind it, at the beginning of a part of a line.
std::optional<Ortszeile> ort_lesen(std::string_view text) {
    Ortszeile ort;
    std::size_t i = 0;
    const std::size_t strich = text.find('-');
    if (strich != std::string_view::npos && strich >= 1 && strich <= 3) {
        ort.Land = LANDESCODE(text.substr(0, strich));
        i = ort.Land.empty() ? 0 : strich + 1;
    }
    const std::size_t anfang = i;
    while (i < text.size() && ist_ziffer(text[i])) {
        ++i;
    }
    ort.PLZ = std::string(text.substr(anfang, i - anfang));
    ort.Ort = gekuerzt(text.substr(i));
    const bool laenge = ort.PLZ.size() == 5 || ort.PLZ.size() == 4;
    if (!laenge || i >= text.size() || text[i] != ' ' || ort.Ort.empty() || ist_ziffer(ort.Ort.front())) {
        return std::nullopt;
    }
    return ort;
}

std::optional<Ortszeile> ortszeile(const std::string& zeile) {
    if (std::optional<Ortszeile> ort = ort_lesen(zeile)) {
        return ort;
    }
    for (std::size_t i = zeile.find(','); i != std::string::npos; i = zeile.find(',', i + 1)) {
        if (std::optional<Ortszeile> ort = ort_lesen(gekuerzt(zeile.substr(i + 1)))) {
            ort->davor = gekuerzt(zeile.substr(0, i));
            return ort;
        }
    }
    return std::nullopt;
}

/// Name, additions and street out of the lines before the town; the last one is the street where there are
/// two.
void anschrift_verteilen(std::vector<std::string> zeilen, Erkanntes& e) {
    if (zeilen.empty()) {
        return;
    }
    e.Name = zeilen.front();
    if (zeilen.size() > 1 && (!e.Ort.empty() || hat_ziffer(zeilen.back()))) {
        e.Strasse = zeilen.back();
        zeilen.pop_back();
    }
    for (std::size_t i = 1; i < zeilen.size(); ++i) {
        e.Zusatz += (e.Zusatz.empty() ? "" : ", ") + zeilen[i];
    }
}

/// Parts of free bank lines: what stands between commas and bars, and before "IBAN" and "BIC".
std::vector<std::string> bankteile(std::span<const std::string> zeilen) {
    std::vector<std::string> teile;
    for (const std::string& zeile : zeilen) {
        std::string teil;
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            const std::string wort = grossbuchstaben(zeile.substr(i, 4));
            const bool trenner = zeile[i] == ',' || zeile[i] == ';' || zeile[i] == '|';
            if (trenner || wort == "IBAN" || beginnt_mit(wort, "BIC")) {
                teile.push_back(std::move(teil));
                teil.clear();
            }
            if (!trenner) {
                teil += zeile[i];
            }
        }
        teile.push_back(std::move(teil));
    }
    return teile;
}

std::string telefon(const std::string& text) {
    return gekuerzt(text.substr(0, text.find_first_of(";,|")));
}

} // namespace

Erkanntes ANGABEN_ERKENNEN(std::span<const std::string> zeilen) {
    Erkanntes e;
    std::vector<std::string> davor;
    for (const std::string& roh : zeilen) {
        const std::string zeile = gekuerzt(einzeilig(roh));
        if (const std::optional<std::string> adresse = e_mail_in(zeile)) {
            fuellen(e.E_Mail, *adresse);
        } else if (zeile.empty() || wert_nehmen(zeile, e)) {
            continue;
        } else if (const std::optional<Ortszeile> ort = e.Ort.empty() ? ortszeile(zeile) : std::nullopt) {
            e.PLZ = ort->PLZ;
            e.Ort = ort->Ort;
            e.Land = ort->Land;
            if (!ort->davor.empty()) {
                davor.push_back(ort->davor);
            }
        } else if (e.Ort.empty()) {
            davor.push_back(zeile);
        } else if (const std::string land = LANDESCODE(zeile); !land.empty()) {
            e.Land = land;
        }
    }
    if (!e.Ort.empty() && e.Land.empty()) {
        e.Land = e.PLZ.size() == 5 ? "DE" : "";
    }
    anschrift_verteilen(std::move(davor), e);
    e.Telefon = telefon(e.Telefon);
    return e;
}

Verkaeufer VERKAEUFER_VORSCHLAG(const Belegquelle& quelle) {
    const Erkanntes e = ANGABEN_ERKENNEN(quelle.Firma);
    const Erkanntes bank = ANGABEN_ERKENNEN(bankteile(quelle.Bankzeilen));
    Verkaeufer v;
    v.Name = e.Name;
    v.Strasse = e.Strasse;
    v.PLZ = e.PLZ;
    v.Ort = e.Ort;
    v.Land = e.Land.empty() ? "DE" : e.Land;
    v.USt_IdNr = e.USt_IdNr;
    v.Steuernummer = e.Steuernummer;
    v.Kontakt = e.Zusatz.empty() ? e.Name : e.Zusatz;
    v.Telefon = e.Telefon;
    v.E_Mail = e.E_Mail;
    v.IBAN = IBAN_NUMMER(!quelle.IBAN.empty() ? quelle.IBAN : !bank.IBAN.empty() ? bank.IBAN : e.IBAN);
    const std::array<std::string, 1> bic{quelle.BIC};
    const std::string eigene = ANGABEN_ERKENNEN(bic).BIC;
    v.BIC = !eigene.empty() ? eigene : !quelle.BIC.empty() ? quelle.BIC : bank.BIC;
    return v;
}

Kaeufer KAEUFER_VORSCHLAG(const Belegquelle& quelle) {
    const Erkanntes e = ANGABEN_ERKENNEN(quelle.Kunde);
    Kaeufer k;
    k.Name = e.Name;
    k.Zusatz = e.Zusatz;
    k.Strasse = e.Strasse;
    k.PLZ = e.PLZ;
    k.Ort = e.Ort;
    k.Land = e.Land;
    k.USt_IdNr = e.USt_IdNr;
    k.E_Mail = e.E_Mail;
    return k;
}

} // namespace quittika
