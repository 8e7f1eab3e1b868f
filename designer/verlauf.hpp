#pragma once

#include <utility>
#include <vector>

namespace quittika {

/// What can be taken back and done again.
template <class Stand> class Verlauf {
public:
    /// Before a step: where it can be taken back to.
    void merken(Stand vorher) {
        zurueck_.push_back(std::move(vorher));
        vor_.clear();
    }
    bool kann_zurueck() const { return !zurueck_.empty(); }
    bool kann_vor() const { return !vor_.empty(); }
    /// The state before the last step; `jetzt` if there is none.
    Stand zurueck(Stand jetzt) { return gehen(zurueck_, vor_, std::move(jetzt)); }
    /// The state that was taken back last.
    Stand vor(Stand jetzt) { return gehen(vor_, zurueck_, std::move(jetzt)); }

private:
    static Stand gehen(std::vector<Stand>& von, std::vector<Stand>& nach, Stand jetzt) {
        if (von.empty()) {
            return jetzt;
        }
        nach.push_back(std::move(jetzt));
        Stand ziel = std::move(von.back());
        von.pop_back();
        return ziel;
    }

    std::vector<Stand> zurueck_;
    std::vector<Stand> vor_;
};

} // namespace quittika
