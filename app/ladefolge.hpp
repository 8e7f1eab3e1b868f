#pragma once

#include "app/raster.hpp"
#include "invoice/erste_rechnung.hpp"
#include "platform/desktop.hpp"
#include "settings/einstellungsstart.hpp"
#include "settings/logo.hpp"

namespace quittika {

/// Fills the main window when it is loaded.
class Ladefolge {
public:
    Ladefolge(Form1& form1, Rechnungszustand& zustand, const Desktop& desktop,
              const Programmverzeichnis& verzeichnis, Einstellungsstart& einstellungsstart, Logo& logo,
              ErsteRechnung& erste_rechnung, Raster& raster, Summen& summen);

    /// The whole sequence; it runs once.
    void Form_Load();

private:
    void Zentrieren();

    Form1& form1_;
    Rechnungszustand& zustand_;
    const Desktop& desktop_;
    const Programmverzeichnis& verzeichnis_;
    Einstellungsstart& einstellungsstart_;
    Logo& logo_;
    ErsteRechnung& erste_rechnung_;
    Raster& raster_;
    Summen& summen_;
    bool geladen_ = false;
};

} // namespace quittika
