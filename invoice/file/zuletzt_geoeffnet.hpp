#pragma once

#include "invoice/form1.hpp"
#include "settings/einstellungsschreiber.hpp"

#include <string>

namespace quittika {

/// The three invoice files used last, newest first.
class ZuletztGeoeffnet {
public:
    ZuletztGeoeffnet(Form1& form1, PROGRAMMEINSTELLUNG& einstellung, Einstellungsschreiber& schreiber);

    /// Puts a path in front and saves the settings; an empty one is ignored. The same file may stand in
    /// several places.
    void ZuletztGeoeffnetMerken(const std::string& pfad);
    /// Path in place `n`, 1 to 3; empty if there is none.
    std::string Eintrag(int n) const;
    /// Menu entries show their paths; those without a file are hidden.
    void Zeigen();

private:
    Form1& form1_;
    PROGRAMMEINSTELLUNG& einstellung_;
    Einstellungsschreiber& schreiber_;
};

} // namespace quittika
