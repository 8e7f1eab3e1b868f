#pragma once

#include <string>

namespace quittika {

/// Title of a message about an error with this number.
inline std::string FEHLERTITEL(int nummer) {
    return "Achtung!  Fehlernr.:" + std::to_string(nummer);
}

} // namespace quittika
