#pragma once

#include "analyzer/spalten.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/text.hpp"

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace quittika {

/// What is kept of the invoices, by column and row; a view of the lists that keep it.
class Rechnungstabelle {
public:
    /// `listen`: the columns by their numbers, each with `items()`.
    template <class Listen> explicit Rechnungstabelle(const Listen& listen) {
        for (std::size_t spalte = 0; spalte < rohdatum::kAnzahl; ++spalte) {
            spalten_[spalte] = listen[static_cast<int>(spalte)].items();
        }
    }

    int anzahl() const { return static_cast<int>(spalten_.front().size()); }
    const std::string& text(std::size_t spalte, int zeile) const {
        return spalten_.at(spalte)[static_cast<std::size_t>(zeile)];
    }
    bool bezahlt(int zeile) const { return text(rohdatum::kBezahlt, zeile) == kJa; }
    bool abgemahnt(int zeile) const { return text(rohdatum::kAbgemahnt, zeile) == kJa; }
    std::string nummer(int zeile) const {
        return text(rohdatum::kNummer, zeile) + text(rohdatum::kNummerzusatz, zeile);
    }
    /// On one line.
    std::string notiz(int zeile) const {
        return einzeilig(ersetzen(text(rohdatum::kNotiz, zeile), kZeilenwechsel, " "));
    }

private:
    std::array<std::span<const std::string>, rohdatum::kAnzahl> spalten_;
};

} // namespace quittika
