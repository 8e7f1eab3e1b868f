#include "einvoice/erkennung.hpp"

#include "einvoice/kennungen.hpp"
#include "platform/text.hpp"
#include "settings/feldhinweise.hpp"

#include <algorithm>
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

/// What stands behind the word that a text begins with and the marks between them.
std::string hinter_wort(std::string_view text, std::string_view wort) {
    const std::string_view rest = text.substr(wort.size());
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

constexpr std::size_t kLaengstesWort = 36;

/// A word that ends where it does: "TEL" begins "Tel.:" and "Tel 1", not "Teller GmbH".
bool wort_endet(std::string_view zeile, std::size_t laenge) {
    return zeile.size() == laenge ||
           std::string_view(" .:-/#0123456789+(").find(zeile[laenge]) != std::string_view::npos;
}

/// The word that a text begins with; none where it begins with another one.
const Merkwort* merkwort(std::string_view text) {
    const std::string gross = grossbuchstaben(text.substr(0, kLaengstesWort));
    const auto* const wort =
        std::find_if(std::begin(kMerkworte), std::end(kMerkworte), [&](const Merkwort& m) {
            return beginnt_mit(gross, m.wort) && wort_endet(text, m.wort.size());
        });
    return wort == std::end(kMerkworte) ? nullptr : wort;
}

/// Parts of a line that holds several values: between commas, semicolons and bars, and before those words.
std::vector<std::string> teile(std::string_view zeile) {
    std::vector<std::string> teile(1);
    for (std::size_t i = 0; i < zeile.size(); ++i) {
        const bool trenner = zeile[i] == ',' || zeile[i] == ';' || zeile[i] == '|';
        const bool wortanfang = i > 0 && zeile[i - 1] == ' ' && merkwort(zeile.substr(i)) != nullptr;
        if (trenner || wortanfang) {
            teile.back() = gekuerzt(teile.back());
            teile.emplace_back();
        }
        if (!trenner) {
            teile.back() += zeile[i];
        }
    }
    teile.back() = gekuerzt(teile.back());
    return teile;
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

/// Takes a value that its word or its form announces; false for every other text.
bool wert_nehmen(const std::string& teil, Erkanntes& e) {
    if (const std::optional<std::string> adresse = e_mail_in(teil)) {
        fuellen(e.E_Mail, *adresse);
        return true;
    }
    const Merkwort* const wort = merkwort(teil);
    if (wort == nullptr) {
        return false;
    }
    const std::string wert = hinter_wort(teil, wort->wort);
    if (wort->ziel != nullptr && (hat_ziffer(wert) || wort->ziel == &Erkanntes::BIC)) {
        fuellen(e.*wort->ziel, wert);
    }
    return true;
}

bool werte_nehmen(const std::string& zeile, Erkanntes& e) {
    if (merkwort(zeile) == nullptr && zeile.find('@') == std::string::npos) {
        return false;
    }
    bool genommen = false;
    for (const std::string& teil : teile(zeile)) {
        genommen = wert_nehmen(teil, e) || genommen;
    }
    return genommen;
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

const std::string& erster(const std::string& a, const std::string& b) {
    return a.empty() ? b : a;
}

} // namespace

Erkanntes ANGABEN_ERKENNEN(std::span<const std::string> zeilen) {
    Erkanntes e;
    std::vector<std::string> davor;
    for (const std::string& roh : zeilen) {
        const std::string zeile = gekuerzt(einzeilig(roh));
        if (zeile.empty() || werte_nehmen(zeile, e)) {
            continue;
        }
        if (const std::optional<Ortszeile> ort = e.Ort.empty() ? ortszeile(zeile) : std::nullopt) {
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
    return e;
}

Verkaeufer VERKAEUFER_VORSCHLAG(const Belegquelle& quelle) {
    const Erkanntes e = ANGABEN_ERKENNEN(quelle.Firma);
    Erkanntes bank;
    for (const std::string& zeile : quelle.Bankzeilen) {
        for (const std::string& teil : teile(einzeilig(zeile))) {
            wert_nehmen(teil, bank);
        }
    }
    Verkaeufer v;
    v.Name = e.Name;
    v.Strasse = e.Strasse;
    v.PLZ = e.PLZ;
    v.Ort = e.Ort;
    v.Land = erster(e.Land, "DE");
    v.USt_IdNr = erster(e.USt_IdNr, bank.USt_IdNr);
    v.Steuernummer = erster(e.Steuernummer, bank.Steuernummer);
    v.Kontakt = erster(e.Zusatz, e.Name);
    v.Telefon = erster(e.Telefon, bank.Telefon);
    v.E_Mail = erster(e.E_Mail, bank.E_Mail);
    v.IBAN = IBAN_NUMMER(erster(quelle.IBAN, erster(bank.IBAN, e.IBAN)));
    const Merkwort* const wort = merkwort(quelle.BIC);
    const std::string bic = wort == nullptr ? quelle.BIC : hinter_wort(quelle.BIC, wort->wort);
    v.BIC = erster(bic, erster(bank.BIC, e.BIC));
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
