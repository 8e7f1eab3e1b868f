#include "designer/design.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/schluesselzeilen.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"

#include <array>
#include <type_traits>
#include <utility>

namespace quittika {

namespace {

constexpr std::array<Designzeile, 37> kZeilen{{
    {"X_Logo", &Design::X_LOGO, 63},
    {"Y_Logo", &Design::Y_LOGO, 14},
    {"B_Logo", &Design::B_LOGO, 140},
    {"H_Logo", &Design::H_LOGO, 30},
    {"VISIBLE_Logo", &Design::VISIBLE_LOGO, 1},
    {"X_Wasserz", &Design::X_WASSERZ, 2},
    {"Y_Wasserz", &Design::Y_WASSERZ, -2},
    {"B_Wasserz", &Design::B_WASSERZ, 205},
    {"H_Wasserz", &Design::H_WASSERZ, 296},
    {"VISIBLE_Wasserz", &Design::VISIBLE_WASSERZ, 1},
    {"X_ADRESSEFIRMA", &Design::X_ADRESSEFIRMA, 11},
    {"Y_ADRESSEFIRMA", &Design::Y_ADRESSEFIRMA, 15},
    {"X_ADRESSEKUNDE", &Design::X_ADRESSEKUNDE, 11},
    {"Y_ADRESSEKUNDE", &Design::Y_ADRESSEKUNDE, 74},
    {"X_RN", &Design::X_RN, 150},
    {"Y_RN", &Design::Y_RN, 93},
    {"X_DATUM", &Design::X_DATUM, 179},
    {"Y_DATUM", &Design::Y_DATUM, 59},
    {"X_WERBESPRUCH", &Design::X_WERBESPRUCH, 62},
    {"Y_WERBESPRUCH", &Design::Y_WERBESPRUCH, 56},
    {"X_LISTE", &Design::X_LISTE, kListenrand},
    {"Y_LISTE", &Design::Y_LISTE, 148},
    {"LIST_OPTION", &Design::LIST_OPTION, 0},
    {"X_BEMERKUNG", &Design::X_BEMERKUNG, 64},
    {"Y_BEMERKUNG", &Design::Y_BEMERKUNG, 242},
    {"X_SEITE", &Design::X_SEITE, 187},
    {"Y_SEITE", &Design::Y_SEITE, 268},
    {"X_BANKZEILE", &Design::X_BANKZEILE, 14},
    {"Y_BANKZEILE", &Design::Y_BANKZEILE, 273},
    {"X_KDNR", &Design::X_KDNR, 150},
    {"Y_KDNR", &Design::Y_KDNR, 85},
    {"X_BEMERKUNG_1", &Design::X_BEMERKUNG_1, 12},
    {"Y_BEMERKUNG_1", &Design::Y_BEMERKUNG_1, 120},
    {"X_LIEFERDATUM", &Design::X_LIEFERDATUM, 150},
    {"Y_LIEFERDATUM", &Design::Y_LIEFERDATUM, 100},
    {"IMG_WASSERZEICHEN", &Design::IMG_WASSERZEICHEN, 0, "\\wasserzqk2008.bmp"},
    {"IMG_LOGO", &Design::IMG_LOGO, 0, "\\ihrlogo.bmp"},
}};

template <class Wert> Wert wert_aus(const std::string& text) {
    if constexpr (std::is_same_v<Wert, std::string>) {
        return text;
    } else if constexpr (std::is_same_v<Wert, bool>) {
        return nach_int16(text) != 0;
    } else {
        return nach_int16(text);
    }
}

void setzen(Design& design, const Designzeile& zeile, const std::string& text) {
    std::visit([&](auto feld) { design.*feld = wert_aus<std::decay_t<decltype(design.*feld)>>(text); },
               zeile.feld);
}

std::string text_von(double wert) {
    return zahl_text(wert);
}
std::string text_von(bool wert) {
    return wert ? "-1" : "0";
}
std::string text_von(int wert) {
    return std::to_string(wert);
}
std::string text_von(const std::string& wert) {
    return systempfad(wert);
}

} // namespace

std::span<const Designzeile> DESIGNZEILEN() {
    return kZeilen;
}

Design DESIGN_STANDARD(const Programmverzeichnis& verzeichnis) {
    Design design;
    for (const Designzeile& zeile : kZeilen) {
        std::visit(
            [&](auto feld) {
                using Wert = std::decay_t<decltype(design.*feld)>;
                if constexpr (std::is_same_v<Wert, std::string>) {
                    design.*feld = verzeichnis.pfad(zeile.bild);
                } else {
                    design.*feld = static_cast<Wert>(zeile.standard);
                }
            },
            zeile.feld);
    }
    return design;
}

Designlesung DESIGN_LESEN(std::string_view bytes) {
    Designlesung lesung;
    std::array<bool, kZeilen.size()> gelesen{};
    SCHLUESSELZEILEN_DURCHGEHEN(bytes, [&](const std::string& schluessel, const std::string& wert) {
        for (std::size_t i = 0; i < kZeilen.size(); ++i) {
            if (schluessel != grossbuchstaben(kZeilen.at(i).schluessel)) {
                continue;
            }
            gelesen.at(i) = true;
            if (schluessel != "X_LISTE") {
                setzen(lesung.design, kZeilen.at(i), wert);
            }
        }
        return true;
    });
    for (std::size_t i = kZeilen.size(); i-- > 0;) {
        if (!gelesen.at(i)) {
            lesung.fehlt = grossbuchstaben(kZeilen.at(i).schluessel);
            ++lesung.fehlen;
        }
    }
    if (lesung.fehlen == kZeilen.size()) {
        throw Laufzeitfehler(fehler::kFalscherTyp);
    }
    return lesung;
}

Designtext DESIGN_SCHREIBEN(const Design& design) {
    Textpuffer puffer;
    for (const Designzeile& zeile : kZeilen) {
        puffer.zeile(zeile.schluessel + std::string(":") +
                     std::visit([&design](auto feld) { return text_von(design.*feld); }, zeile.feld) + ";");
    }
    Designtext text{puffer.bytes(), {}};
    SCHLUESSELZEILEN_DURCHGEHEN(text.bytes, [&](const std::string& schluessel, const std::string& wert) {
        for (const auto& [name, pfad] :
             {std::pair<const char*, const std::string&>{"IMG_LOGO", design.IMG_LOGO},
              {"IMG_WASSERZEICHEN", design.IMG_WASSERZEICHEN}}) {
            if (schluessel == name && wert != systempfad(pfad)) {
                text.verloren = pfad;
            }
        }
        return true;
    });
    return text;
}

} // namespace quittika
