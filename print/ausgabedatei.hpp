#pragma once

#include "invoice/form1.hpp"
#include "platform/dialogs.hpp"
#include "platform/laufzeitfehler.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// A path without this ending, in capitals or not.
std::string OHNE_ENDUNG(const std::string& pfad, std::string_view endung);

/// Asks before files that exist are replaced. Returns whether they may be; true where none exists.
bool ERSETZEN_ERLAUBT(const std::vector<std::string>& dateien, Dialogs& dialogs);

/// Tells why a file could not be written; a cancelled dialog is no reason to say anything.
void AUSGABEFEHLER_MELDEN(const Laufzeitfehler& fehler, Form1& form1, Dialogs& dialogs);

} // namespace quittika
