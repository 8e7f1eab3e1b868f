#pragma once

#include "platform/laufzeitfehler.hpp"

namespace quittika {

/// Number of the error that `tun` raises, 0 for none.
template <class Tun> int fehlernummer(Tun tun) {
    try {
        tun();
    } catch (const Laufzeitfehler& f) {
        return f.nummer();
    }
    return 0;
}

} // namespace quittika
