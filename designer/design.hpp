#pragma once

#include "platform/verzeichnis.hpp"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace quittika {

inline constexpr double kListenrand = 12; ///< `X_LISTE` always: the table cannot be moved sideways

inline constexpr int kTabellendesigns = 5;

/// The user's own page design: where each block begins, in millimetres from the page's left and top edge.
struct Design {
    double X_LOGO = 0;
    double Y_LOGO = 0;
    double B_LOGO = 0; ///< width
    double H_LOGO = 0; ///< height
    bool VISIBLE_LOGO = false;
    double X_WASSERZ = 0;
    double Y_WASSERZ = 0;
    double B_WASSERZ = 0;
    double H_WASSERZ = 0;
    bool VISIBLE_WASSERZ = false;
    double X_ADRESSEFIRMA = 0;
    double Y_ADRESSEFIRMA = 0;
    double X_ADRESSEKUNDE = 0;
    double Y_ADRESSEKUNDE = 0;
    double X_RN = 0; ///< title and number
    double Y_RN = 0;
    double X_DATUM = 0;
    double Y_DATUM = 0;
    double X_WERBESPRUCH = 0;
    double Y_WERBESPRUCH = 0;
    double X_LISTE = kListenrand; ///< positions table
    double Y_LISTE = 0;
    int LIST_OPTION = 0; ///< table style, 0 to 4
    double X_BEMERKUNG = 0;
    double Y_BEMERKUNG = 0;
    double X_SEITE = 0; ///< page number
    double Y_SEITE = 0;
    double X_BANKZEILE = 0;
    double Y_BANKZEILE = 0;
    double X_KDNR = 0; ///< customer number
    double Y_KDNR = 0;
    double X_BEMERKUNG_1 = 0; ///< cover text
    double Y_BEMERKUNG_1 = 0;
    double X_LIEFERDATUM = 0;
    double Y_LIEFERDATUM = 0;
    std::string IMG_WASSERZEICHEN; ///< path of the picture
    std::string IMG_LOGO;
    bool operator==(const Design&) const = default;
};

/// A line of the design file.
struct Designzeile {
    const char* schluessel; ///< as written; reading compares in capitals
    std::variant<double Design::*, bool Design::*, int Design::*, std::string Design::*> feld;
    double standard;
    const char* bild = nullptr; ///< standard of a path: a file of the program folder
};

/// All lines of the file, in the order in which they are written.
std::span<const Designzeile> DESIGNZEILEN();

/// The design of a program that has none of its own.
Design DESIGN_STANDARD(const Programmverzeichnis& verzeichnis);

/// What the bytes of a design file say, numbers rounded to whole ones. A line without ":" is skipped, so is a
/// key that is none.
struct Designlesung {
    Design design;
    std::string fehlt;      ///< first key that no line has; it counts as 0
    std::size_t fehlen = 0; ///< how many such keys
};
/// Throws `Laufzeitfehler` 13 or 6 for a value that is no 16-bit integer, 13 where not one key is known.
Designlesung DESIGN_LESEN(std::string_view bytes);

/// The bytes of a design file, numbers with their fractions, paths in the system's form.
struct Designtext {
    std::string bytes;
    std::string verloren; ///< a path that will not be read back as it is; empty if there is none
};
Designtext DESIGN_SCHREIBEN(const Design& design);

} // namespace quittika
