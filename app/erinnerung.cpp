#include "app/erinnerung.hpp"

namespace quittika {

namespace {

constexpr Color kHervor = 14466189;
constexpr int kHoechstens = 5;

} // namespace

Erinnerung::Erinnerung(Form1& form1, const Rechnungszustand& zustand) : form1_(form1), zustand_(zustand) {
    form1_.Timer_blink.Tick = [this] { Timer_blink_Timer(); };
    form1_.Timer_chronjob.Tick = [this] { Timer_chronjob_Timer(); };
}

void Erinnerung::Faerben(Color farbe) {
    form1_.Command_printform.BackColor = farbe;
    form1_.Command_jetztSpeichern.BackColor = farbe;
}

void Erinnerung::Timer_blink_Timer() {
    if (!zustand_.geaendert() || blinkzaehler_ >= kHoechstens) {
        return;
    }
    hervorgehoben_ = !hervorgehoben_;
    Faerben(hervorgehoben_ ? kHervor : color::kLightGrey);
    if (!hervorgehoben_) {
        ++blinkzaehler_;
    }
    form1_.StatusBar1[2].Caption = "Die Rechnung wurde seit der letzten Änderung nicht mehr gespeichert.";
}

void Erinnerung::Timer_chronjob_Timer() {
    if (zustand_.geaendert()) {
        return;
    }
    blinkzaehler_ = 0;
    hervorgehoben_ = false;
    Faerben(color::kLightGrey);
}

} // namespace quittika
