#pragma once

#include "platform/print_surface.hpp"
#include "print/exemplardruck.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quittika {

/// What stands in a block of lines on a pre-printed form. The heading is that of the sender.
enum class Wer : std::uint8_t { Ueberschrift, Absender, Kunde, Telefon };
inline constexpr std::size_t kWer = 4;

/// When a block is printed.
enum class Wann : std::uint8_t { Immer, MitBeleg, Breit, Schmal };

/// Lines that begin at `x`, `y` mm; a `y` of 0 is none.
struct Etikettblock {
    Wer wer;
    Wann wann;
    double x;
    std::array<double, 4> y;
};

/// A pre-printed form.
struct Etikett {
    const char* name;
    Druckworte worte;
    std::array<Etikettblock, 5> bloecke; ///< those of no line are none
    std::array<Paper, 2> bild;           ///< what its picture shows: the form, and the narrow one
};

namespace etikett {
extern const Etikett kPaket;
extern const Etikett kPaketH;
extern const Etikett kPaeckchen;
extern const Etikett kBrief;
} // namespace etikett

/// What goes on a form: the lines of each block, and which of the blocks.
struct Etiketteninhalt {
    std::array<std::vector<std::string>, kWer> zeilen;
    bool beleg = false;
    bool schmal = false;

    std::vector<std::string>& von(Wer wer) { return zeilen.at(static_cast<std::size_t>(wer)); }
    const std::vector<std::string>& von(Wer wer) const { return zeilen.at(static_cast<std::size_t>(wer)); }
    /// Whether nothing stands in any block.
    bool leer() const;
};

/// Prints the texts. The print adjustment is none of theirs: it was made for the pages of the program.
void DRUCKE_ETIKETT(PrintSurface& surface, const Etikett& etikett, const Etiketteninhalt& inhalt);

/// Draws the lines that the form itself has for them.
void ZEICHNE_FORMULAR(PrintSurface& surface, const Etikett& etikett, const Etiketteninhalt& inhalt);

} // namespace quittika
