#pragma once

#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "print/druckoptionen.hpp"
#include "settings/frm_einstellungen.hpp"

namespace quittika {

/// Asks what a delivery note shows, in the window `Form_Lieferschein_opt`.
class Lieferscheinoptionen {
public:
    Lieferscheinoptionen(const Form1& form1, const frm_einstellungen& einstellungen, Desktop& desktop);

    /// The ticks that the window begins with.
    Lieferscheinangaben vorgabe() const;
    /// Asks for a delivery note; other documents show everything. The window begins with all ticks set, in
    /// the user's own design with none. Throws `Laufzeitfehler` 32755 when it is closed otherwise than by its
    /// button.
    Lieferscheinangaben check_LIEFERSCHEIN_PRINT() const;

private:
    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Desktop& desktop_;
};

} // namespace quittika
