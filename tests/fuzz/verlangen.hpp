#pragma once

#include <cstdlib>

namespace quittika {

inline void verlangen(bool erfuellt) {
    if (!erfuellt) {
        std::abort();
    }
}

} // namespace quittika
