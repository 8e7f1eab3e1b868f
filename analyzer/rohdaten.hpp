#pragma once

#include "analyzer/spalten.hpp"

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace quittika {

/// What is kept of the invoices, by column and row; a view of the lists that keep it.
class Rohdaten {
public:
    /// `listen`: the columns by their numbers, each with `items()`.
    template <class Listen> explicit Rohdaten(const Listen& listen) {
        for (int spalte = 0; spalte < rohdatum::kAnzahl; ++spalte) {
            spalten_[static_cast<std::size_t>(spalte)] = listen[spalte].items();
        }
    }

    int anzahl() const { return static_cast<int>(spalten_.front().size()); }
    const std::string& text(int spalte, int zeile) const {
        return spalten_.at(static_cast<std::size_t>(spalte))[static_cast<std::size_t>(zeile)];
    }
    bool bezahlt(int zeile) const { return text(rohdatum::kBezahlt, zeile) == kJa; }
    bool abgemahnt(int zeile) const { return text(rohdatum::kAbgemahnt, zeile) == kJa; }
    std::string nummer(int zeile) const {
        return text(rohdatum::kNummer, zeile) + text(rohdatum::kNummerzusatz, zeile);
    }

private:
    std::array<std::span<const std::string>, rohdatum::kAnzahl> spalten_;
};

} // namespace quittika
