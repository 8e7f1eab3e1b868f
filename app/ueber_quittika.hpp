#pragma once

#include "platform/desktop.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// Shows the about box until it is closed.
void UEBER_QUITTIKA_ZEIGEN(const PROGRAMMEINSTELLUNG& werte, Desktop& desktop);

} // namespace quittika
