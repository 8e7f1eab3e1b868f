#pragma once

#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <functional>
#include <vector>

namespace quittika {

/// What the invoice settings hold at one moment, to come back to it.
class Ruecknahme {
public:
    /// Notes every field of the window, and what its fields change besides.
    Ruecknahme(frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte);

    /// Gives all of it back. The caller keeps the events of the controls quiet.
    void zuruecknehmen() const;

private:
    template <class T> void merken(Property<T>& wert);
    void merken(int& zahl);
    void merken(Control& feld);
    void schrift_merken(PROGRAMMEINSTELLUNG& werte);

    std::vector<std::function<void()>> schritte_;
};

} // namespace quittika
