#pragma once

#include "designer/design.hpp"
#include "designer/form_designer.hpp"
#include "designer/seitenmass.hpp"
#include "print/blockbilder.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <span>

namespace quittika {

/// What a right click on a block is taken for.
namespace selektor {
inline constexpr int kLogo = 1;
inline constexpr int kNichts = 2;
inline constexpr int kWasserzeichen = 3;
inline constexpr int kListe = 4;
inline constexpr int kBankzeile = 5;
inline constexpr int kWerbespruch = 6;
inline constexpr int kBemerkungen = 7;
inline constexpr int kAbsender = 8;
inline constexpr int kKundennummer = 9;
inline constexpr int kTitel = 10;
inline constexpr int kSeitenzahl = 11;
inline constexpr int kAnschreiben = 12;
} // namespace selektor

inline constexpr std::size_t kDesignelemente = 14;

/// A block on screen and where the design keeps its place.
struct Designelement {
    const char* name; ///< for the user
    Image& bild;
    double Design::*x; ///< null: never moves sideways
    double Design::*y;
    double Design::*b = nullptr; ///< null: its picture says how big it is
    double Design::*h = nullptr;
    int selektor;
    std::optional<Designblock> block = {}; ///< none for logo and watermark

    bool nur_senkrecht() const { return x == nullptr; }
};

/// The sheet on screen. It keeps every block's place in millimetres; twips are made from them, so that
/// another size of the window moves nothing.
class Designseite {
public:
    explicit Designseite(FORM_DESIGNER& form);

    /// Twips per millimetre.
    double FAKTOR() const { return mass_.FAKTOR(); }
    /// Makes the page as large as its room allows and places everything on it.
    void anordnen();

    std::span<const Designelement> elemente() const { return elemente_; }
    const Designelement& element(std::size_t nummer) const { return elemente_.at(nummer); }
    const Blockmasse& masse(std::size_t nummer) const { return stand_.at(nummer); }
    std::size_t nummer_von(int selektor) const;

    using Stand = std::array<Blockmasse, kDesignelemente>;
    const Stand& stand() const { return stand_; }
    void setzen(const Stand& stand);
    void setzen(std::size_t nummer, const Blockmasse& masse);
    /// Moves a block to a place on the page in twips.
    void ziehen(std::size_t nummer, double left, double top);

    /// Shows the picture of a block, which is as big as it says. Returns whether it is another one.
    bool zeigen(std::size_t nummer, const DrawnPage& gezeichnet);

    /// Places all blocks where the design wants them.
    void PLATZIEREN(const Design& design);
    /// Takes the places of all blocks into the design, unrounded.
    void UEBERNEHMEN(Design& design) const;

private:
    void platzieren(std::size_t nummer);

    FORM_DESIGNER& form_;
    std::array<Designelement, kDesignelemente> elemente_;
    Stand stand_{};
    Seitenmass mass_;
};

/// Twips of so many millimetres.
int TWIPS(double mm, double FAKTOR);

/// Puts a control on a page, all in millimetres.
void LEGEN(Control& control, const Kasten& mm, double FAKTOR);

} // namespace quittika
