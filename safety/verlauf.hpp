#pragma once

#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace quittika {

/// What can be taken back and done again: states, or steps between them.
template <class Schritt> class Verlauf {
public:
    /// The oldest steps beyond `hoechstens` are forgotten.
    explicit Verlauf(std::size_t hoechstens = std::numeric_limits<std::size_t>::max())
        : hoechstens_(hoechstens) {}

    /// A step was done; `zurueck` leads to where it was before. What was taken back is forgotten.
    void merken(Schritt zurueck) {
        zurueck_.push_back(std::move(zurueck));
        if (zurueck_.size() > hoechstens_) {
            zurueck_.erase(zurueck_.begin());
        }
        vor_.clear();
    }
    /// The step that would be taken back, or done again, next; null for none.
    const Schritt* naechster_zurueck() const { return letzter(zurueck_); }
    const Schritt* naechster_vor() const { return letzter(vor_); }

    /// Takes the last step back: `gehen` goes where it leads to and answers the way back from there.
    template <class Gehen> void zurueck(Gehen gehen) { bewegen(zurueck_, vor_, std::move(gehen)); }
    /// Does again what was taken back last.
    template <class Gehen> void vor(Gehen gehen) { bewegen(vor_, zurueck_, std::move(gehen)); }

private:
    static const Schritt* letzter(const std::vector<Schritt>& schritte) {
        return schritte.empty() ? nullptr : &schritte.back();
    }

    template <class Gehen>
    static void bewegen(std::vector<Schritt>& von, std::vector<Schritt>& nach, Gehen gehen) {
        if (!von.empty()) {
            Schritt ziel = std::move(von.back());
            von.pop_back();
            nach.push_back(gehen(std::move(ziel)));
        }
    }

    std::size_t hoechstens_;
    std::vector<Schritt> zurueck_;
    std::vector<Schritt> vor_;
};

} // namespace quittika
