#pragma once

#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"

namespace quittika {

/// Reminds of unsaved changes by letting the save and print buttons blink, five times at most.
class Erinnerung {
public:
    Erinnerung(Form1& form1, const Rechnungszustand& zustand);

private:
    void Timer_blink_Timer();
    void Timer_chronjob_Timer();
    void Faerben(Color farbe);

    Form1& form1_;
    const Rechnungszustand& zustand_;
    int blinkzaehler_ = 0; ///< full cycles since the invoice was last found unchanged
    bool hervorgehoben_ = false;
};

} // namespace quittika
