#pragma once

#include "einvoice/rechnungsbeleg.hpp"

#include <optional>
#include <vector>

namespace quittika {

/// A position as it stands on paper.
struct Position {
    Menge menge;
    Preis preis;  ///< gross where the invoice is
    Preis gesamt; ///< the row total, gross where the invoice is
};

/// What an invoice is calculated from.
struct Rechengrundlage {
    Prozent enthalten; ///< rate of the VAT that the prices contain, 0 for none
    Steuerart steuer;  ///< of the positions and the discount
    std::vector<Position> positionen;
    Prozent rabatt;
    Cent versand; ///< gross
    Steuerart versandsteuer;
    Cent gesamt; ///< amount due on paper
};

/// The amounts of EN 16931, each to the cent.
struct Rechenwerte {
    std::vector<Preis> einzelpreise; ///< net
    std::vector<Cent> betraege;      ///< net
    Cent rabatt;                     ///< net
    Cent versand;                    ///< net
    std::vector<Steuergruppe> steuern;
    Belegsummen summen; ///< without the split of allowances and charges
};

/// Most that rounding may leave.
inline constexpr Cent kGroessteRundung{2};

/// Each amount is rounded by itself. Where that leaves more than 2 cents of the amount due on paper, the rows
/// are rounded one with the other, so that their sum is right: then a row may be a cent off its price times
/// quantity. What is left goes into `summen.rundung`, however much it is.
/// Throws `Laufzeitfehler` 6 for amounts too large, 11 for a rate of -100.
Rechenwerte BELEG_RECHNEN(const Rechengrundlage& grundlage);

} // namespace quittika
