#include "app/startfenster.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

Startfenster::Startfenster(Form_START& form, const PROGRAMMEINSTELLUNG& einstellung,
                           const Programmverzeichnis& verzeichnis, const Clock& uhr,
                           std::function<void()> weiter)
    : form_(form),
      einstellung_(einstellung),
      verzeichnis_(verzeichnis),
      uhr_(uhr),
      weiter_(std::move(weiter)) {
    form_.Load = [this] { Form_Load(); };
    form_.Timer1.Tick = [this] { Timer1_Timer(); };
}

void Startfenster::Form_Load() {
    form_.ProgressBar1.Value = 0;
    form_.Image_Start.Picture = verzeichnis_.pfad(uhr_.now().sekunde > 29 ? "\\start2.png" : "\\start1.png");
    form_.Label_Version.Caption = einstellung_.VERSIONSTEXT;
    form_.Caption = "QUITTIKA 2008  -  " + einstellung_.VERSIONSTEXT;
}

void Startfenster::Timer1_Timer() {
    constexpr int kLetzterSchritt = 10;
    ++zaehler_;
    form_.ProgressBar1.Value = std::min(zaehler_ * 10 / 2, form_.ProgressBar1.Max());
    if (zaehler_ > kLetzterSchritt) {
        form_.Timer1.Enabled = false;
        form_.Close();
        weiter_();
    }
}

} // namespace quittika
