#pragma once

#include "platform/datum.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// What the name of a version tells: "2026-11-23 14-32-53-000 1a2b3c4d.qk8". Names in their order are
/// versions in theirs.
struct Fassungsname {
    Zeitpunkt zeit;    ///< when it was put aside
    int zaehler = 0;   ///< among those of that second
    std::string marke; ///< of the content
    std::string endung;
};

std::string FASSUNGSNAME(const Fassungsname& teile);
/// Nothing for a name that is no version's.
std::optional<Fassungsname> FASSUNGSNAME_LESEN(std::string_view name);

/// Which of these versions, in their order, may go: the newest 50 stay, and for the last 90 days the newest
/// one of each day.
std::vector<std::string> ENTBEHRLICH(const std::vector<std::string>& namen, const Zeitpunkt& jetzt);

} // namespace quittika
