#pragma once

#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "settings/einstellungsuebernahme.hpp"

#include <functional>

namespace quittika {

/// The way from the settings dialog into the designer.
class Designeraufruf {
public:
    Designeraufruf(Einstellungsuebernahme& uebernahme, Dialogs& dialogs, const Clock& uhr,
                   std::function<void()> designer_oeffnen);

    /// Takes over all settings and opens the designer; on the 15th of a month a notice comes first.
    void CMD_DESIGNER_Click();

private:
    Einstellungsuebernahme& uebernahme_;
    Dialogs& dialogs_;
    const Clock& uhr_;
    std::function<void()> designer_oeffnen_;
};

} // namespace quittika
