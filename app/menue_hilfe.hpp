#pragma once

#include "app/ereignisse.hpp"
#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>

namespace quittika {

/// The menu "Hilfe" of the main window: manuals, web pages, about box; F1 in every window.
class MenueHilfe {
public:
    MenueHilfe(Form1& form1, const Ereignisse& ereignisse, const Programmverzeichnis& verzeichnis,
               const PROGRAMMEINSTELLUNG& werte, Shell& shell, Dialogs& dialogs, Desktop& desktop);

private:
    Ereignisse::Ereignis oeffnen(const std::string& dokument);

    Shell& shell_;
    Dialogs& dialogs_;
};

} // namespace quittika
