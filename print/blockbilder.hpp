#pragma once

#include "designer/design.hpp"
#include "invoice/form1.hpp"
#include "platform/recording.hpp"
#include "print/satzspiegel.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <array>
#include <cstddef>
#include <memory>

namespace quittika {

/// The blocks of the user's own design that are drawn. Logo and watermark are picture files.
enum class Designblock {
    Kunde,
    Datum,
    Lieferdatum,
    Liste,
    Bankzeile,
    Werbespruch,
    Bemerkungen,
    Absender,
    Kundennummer,
    Titel,
    Seitenzahl,
    Anschreiben
};
inline constexpr std::size_t kDesignbloecke = 12;

/// Where the design keeps a block's left and top edge.
struct Blockstelle {
    double Design::*x;
    double Design::*y;
};
Blockstelle BLOCKSTELLE(Designblock block);

/// Size of the picture of the table in mm: from its left edge to the end of its longest rule, and as high as
/// some rows with their amounts.
inline constexpr Paper kListenbild{188, 73.5};

/// A block as it will print; its place in the design is the picture's upper left corner.
struct Blockbild {
    std::shared_ptr<const DrawnPage> seite; ///< for `PictureControl::show_page`; `paper` is the size in mm
    bool platzhalter = false;               ///< the invoice has no text for it: nothing prints there
};

/// Where a block stands.
struct Blocklage {
    Kasten kasten{}; ///< mm on the sheet, around the letters; all 0 where nothing prints
    /// It runs over another block, the sheet's edge or more than the rim of the logo: there it cannot print
    /// where it stands, or cannot be read.
    bool im_weg = false;
};

/// Draws the blocks of the user's own design one by one, with the routines that print them, from the
/// settings in force and the invoice in hand.
class Blockbilder {
public:
    Blockbilder(const Form1& form1, const frm_einstellungen& einstellungen,
                const PROGRAMMEINSTELLUNG& programm, const FontMetrics& metrics)
        : form1_(form1), einstellungen_(einstellungen), programm_(programm), metrics_(metrics) {}

    /// A block without text gives grey words in its place; a table without rows some that show its style; one
    /// too long for its picture leaves rows out. Of `design` count the table style and, for the bank line,
    /// its place: near the right edge it breaks into lines.
    Blockbild ZEICHNEN(Designblock block, const Design& design);
    /// All blocks of the first page, by `Designblock`; the table down to the end of its amounts.
    std::array<Blocklage, kDesignbloecke> LAGEN(const Design& design);
    /// The sheet with what prints on it beside the blocks: fold marks and the rule above the bank data.
    std::shared_ptr<const DrawnPage> BLATTGRUND(const Design& design) const;

private:
    DrawnPage text_zeichnen(Designblock block, const Design& design, bool& platzhalter) const;
    DrawnPage liste_zeichnen(const Design& design, bool& platzhalter);
    bool ohne_zeilen() const { return form1_.List_K.ListCount() == 0; }
    const Form1& mit_zeilen();

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
    const FontMetrics& metrics_;
    std::unique_ptr<Form1> beispiel_; ///< the invoice with rows where it has none
};

} // namespace quittika
