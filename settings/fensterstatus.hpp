#pragma once

#include "platform/forms/form.hpp"
#include "platform/verzeichnis.hpp"

namespace quittika {

// The window's state between two runs, in `prog_WS.cfg`.

/// Gives the window the state that it had; one that was minimised comes back maximised. Without a state that
/// can be understood it stays as designed.
void FENSTERSTATUS_LADEN(Form& fenster, const Programmverzeichnis& verzeichnis);
/// Writes the state; that it cannot be written is told nobody.
void FENSTERSTATUS_SPEICHERN(const Form& fenster, const Programmverzeichnis& verzeichnis);

} // namespace quittika
