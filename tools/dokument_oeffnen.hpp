#pragma once

#include "platform/dialogs.hpp"
#include "platform/shell.hpp"

#include <string>

namespace quittika {

/// Opens a file, web page or mail address in the system's program for it; a box tells that there is none.
void DOKUMENT_OEFFNEN(const std::string& dokument, Shell& shell, Dialogs& dialogs);

/// Asks whether to open a file that was just written, and does. `name`: how the question calls it.
void OEFFNEN_ANBIETEN(const std::string& name, const std::string& pfad, Dialogs& dialogs, Shell& shell);

} // namespace quittika
