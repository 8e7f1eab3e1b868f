#pragma once

#include "einvoice/mangel.hpp"

#include <string>
#include <vector>

namespace quittika {

/// A finding of both formats or of one.
struct Mangelbefund {
    Mangel mangel;
    bool zugferd = false;   ///< stands in the way of a ZUGFeRD PDF
    bool xrechnung = false; ///< stands in the way of an XRechnung

    /// As the list shows it, in lines that fit: of which format it is where not of both, and whether it is a
    /// hint only.
    std::vector<std::string> zeilen() const;
    bool operator==(const Mangelbefund&) const = default;
};

/// What both formats find, each finding once: what stands in the way of both, of one, of none.
std::vector<Mangelbefund> BEFUNDE(const Maengel& zugferd, const Maengel& xrechnung);

/// What can be saved and what is still missing, in a sentence.
std::string STAND(const std::vector<Mangelbefund>& befunde);

} // namespace quittika
