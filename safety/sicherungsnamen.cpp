#include "safety/sicherungsnamen.hpp"

#include "platform/text.hpp"
#include "platform/utf8.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>

namespace quittika {

namespace {

bool endet_mit(std::string_view text, std::string_view ende) {
    return text.size() >= ende.size() && text.substr(text.size() - ende.size()) == ende;
}

bool endet_mit_einem(std::string_view text, std::initializer_list<std::string_view> enden) {
    return std::any_of(enden.begin(), enden.end(),
                       [text](std::string_view ende) { return endet_mit(text, ende); });
}

/// The names of the files in the program folder itself, in capitals: beginning, end, group. The first that
/// fits counts.
struct Namensregel {
    std::string_view anfang;
    std::string_view ende;
    Programmgruppe gruppe;
};

constexpr std::array kRegeln{
    Namensregel{"PROG", ".CFG", Programmgruppe::Einstellungen},
    Namensregel{"SICHERUNG VON PROG", "", Programmgruppe::Einstellungen},
    Namensregel{"", ".LLD", Programmgruppe::Einstellungen},
    Namensregel{"ANALYSE_QUELLE.TXT", "", Programmgruppe::Einstellungen},
    Namensregel{"E_RECHNUNG.CFG", "", Programmgruppe::Einstellungen},
    Namensregel{"RN.TXT", "", Programmgruppe::Nummern},
    Namensregel{"E_RECHNUNG_KUNDEN.TXT", "", Programmgruppe::Kunden},
    Namensregel{"KUNDENLISTE.TXT", "", Programmgruppe::Kunden},
    Namensregel{"BACKUP_KUNDENLISTE.TXT", "", Programmgruppe::Kunden},
    Namensregel{"ARTIKELLISTE.TXT", "", Programmgruppe::Artikel},
    Namensregel{"BACKUP_ARTIKELLISTE.TXT", "", Programmgruppe::Artikel},
    Namensregel{"", ".DSG", Programmgruppe::Design},
    Namensregel{"", ".VLG", Programmgruppe::Textvorlagen},
    Namensregel{"E_MAIL_VORLAGE.TXT", "", Programmgruppe::Textvorlagen},
    Namensregel{"", ".QK8", Programmgruppe::Rechnungen},
    Namensregel{"", ".TXT", Programmgruppe::Weitere},
    Namensregel{"", ".CFG", Programmgruppe::Weitere},
    Namensregel{"", ".XPT", Programmgruppe::Weitere},
    Namensregel{"", ".EXP", Programmgruppe::Weitere},
    Namensregel{"SICHERUNG ", "", Programmgruppe::Weitere},
};

bool ist_hex(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

bool ist_kodiert(std::string_view text, std::size_t i) {
    return i + 2 < text.size() && text[i] == '%' && ist_hex(text[i + 1]) && ist_hex(text[i + 2]);
}

void kodieren(std::string& ziel, char byte) {
    constexpr std::string_view kZiffern = "0123456789ABCDEF";
    const auto wert = static_cast<unsigned char>(byte);
    ziel += {'%', kZiffern[wert >> 4U], kZiffern[wert & 15U]};
}

bool steuert(char byte) {
    const auto wert = static_cast<unsigned char>(byte);
    return wert < 0x20 || wert == 0x7F;
}

} // namespace

const char* GRUPPENNAME(Programmgruppe gruppe) {
    constexpr std::array<const char*, kProgrammgruppen> kNamen{"Einstellungen",
                                                               "Rechnungszähler",
                                                               "Kunden",
                                                               "Artikel",
                                                               "Design",
                                                               "Textvorlagen",
                                                               "Rechnungen beim Programm",
                                                               "Frühere Fassungen",
                                                               "Weitere Dateien"};
    return kNamen.at(static_cast<std::size_t>(gruppe));
}

bool IST_BILDNAME(std::string_view name) {
    return endet_mit_einem(grossbuchstaben(name), {".BMP", ".GIF", ".JPG", ".JPEG", ".PNG", ".SVG"});
}

std::optional<Programmgruppe> PROGRAMMGRUPPE(std::string_view pfad) {
    if (beginnt_mit(pfad, "Sicherung/")) {
        return Programmgruppe::Fassungen;
    }
    if (beginnt_mit(pfad, "DESIGN_A4/")) {
        return IST_BILDNAME(pfad) ? std::optional(Programmgruppe::Design) : std::nullopt;
    }
    if (pfad.find('/') != std::string_view::npos || pfad == "fenster.cfg" || pfad == kMerkerdatei) {
        return std::nullopt;
    }
    if (IST_BILDNAME(pfad)) {
        return Programmgruppe::Design;
    }
    const std::string name = grossbuchstaben(pfad);
    const auto regel = std::find_if(kRegeln.begin(), kRegeln.end(), [&name](const Namensregel& r) {
        return beginnt_mit(name, r.anfang) && endet_mit(name, r.ende);
    });
    return regel == kRegeln.end() ? std::nullopt : std::optional(regel->gruppe);
}

bool IST_AUSGENOMMEN(std::string_view name) {
    return name.empty() || name.front() == '.' ||
           (beginnt_mit(name, "Quittika Datensicherung") && endet_mit(name, ".zip"));
}

std::string NAME_SCHREIBEN(std::string_view pfad) {
    std::string name;
    for (std::size_t i = 0; i < pfad.size();) {
        const Utf8Zeichen zeichen = utf8_zeichen(pfad, i);
        if (zeichen.wert == kKeinZeichen || steuert(pfad[i]) || pfad[i] == '\\' || ist_kodiert(pfad, i)) {
            kodieren(name, pfad[i]);
            ++i;
        } else {
            name += pfad.substr(i, zeichen.laenge);
            i += zeichen.laenge;
        }
    }
    return name;
}

std::string NAME_LESEN(std::string_view name) {
    std::string pfad;
    for (std::size_t i = 0; i < name.size(); ++i) {
        char byte = name[i];
        if (ist_kodiert(name, i)) {
            unsigned wert = 0;
            std::from_chars(name.data() + i + 1, name.data() + i + 3, wert, 16);
            byte = static_cast<char>(wert);
            i += 2;
        }
        pfad += byte == '\\' ? '-' : byte;
    }
    return pfad;
}

std::string NAME_AUSWEICHEN(std::string_view name) {
    const std::size_t anfang = name.rfind('/') + 1; // of the last part; 0 where there is but one
    std::string anders(name.substr(0, anfang));
    kodieren(anders, name[anfang]);
    return anders.append(name.substr(anfang + 1));
}

bool FUEHRT_HINEIN(std::string_view pfad) {
    constexpr std::size_t kLaengsterName = 255; // bytes
    while (true) {
        const std::size_t ende = pfad.find('/');
        const std::string_view teil = pfad.substr(0, ende);
        if (teil.empty() || teil.front() == '.' || teil.size() > kLaengsterName ||
            teil.find('\0') != std::string_view::npos) {
            return false;
        }
        if (ende == std::string_view::npos) {
            return true;
        }
        pfad.remove_prefix(ende + 1);
    }
}

} // namespace quittika
