#pragma once

#include "platform/laufzeitfehler.hpp"

#include <string>

namespace quittika {

/// Why a file could not be written, and the way out, for the status bar.
std::string SPEICHERHINDERNIS(const Laufzeitfehler& fehler);

/// The same for a file that could not be opened.
std::string OEFFNUNGSHINDERNIS(const Laufzeitfehler& fehler);

} // namespace quittika
