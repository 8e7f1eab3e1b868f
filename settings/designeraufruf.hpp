#pragma once

#include "platform/dialogs.hpp"
#include "platform/shell.hpp"

#include <functional>

namespace quittika {

/// The way from the settings dialog into the designer.
class Designeraufruf {
public:
    /// `uebernehmen` takes over all settings and leaves the dialog open.
    Designeraufruf(Dialogs& dialogs, const Clock& uhr, std::function<void()> uebernehmen,
                   std::function<void()> designer_oeffnen);

    /// Takes over all settings and opens the designer; on the 15th of a month a notice comes first.
    void CMD_DESIGNER_Click();

private:
    Dialogs& dialogs_;
    const Clock& uhr_;
    std::function<void()> uebernehmen_;
    std::function<void()> designer_oeffnen_;
};

} // namespace quittika
