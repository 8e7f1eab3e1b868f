#pragma once

#include "app/form_start.hpp"
#include "platform/shell.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/programmeinstellung.hpp"

#include <functional>

namespace quittika {

/// The splash: shows a picture while its timer counts, then calls for the main window.
class Startfenster {
public:
    Startfenster(Form_START& form, const PROGRAMMEINSTELLUNG& einstellung,
                 const Programmverzeichnis& verzeichnis, const Clock& uhr, std::function<void()> weiter);

private:
    void Form_Load();
    void Timer1_Timer();

    Form_START& form_;
    const PROGRAMMEINSTELLUNG& einstellung_;
    const Programmverzeichnis& verzeichnis_;
    const Clock& uhr_;
    std::function<void()> weiter_;
    int zaehler_ = 0;
};

} // namespace quittika
