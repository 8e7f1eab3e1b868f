#pragma once

#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/pictures.hpp"
#include "platform/printing.hpp"
#include "platform/progress.hpp"
#include "platform/shell.hpp"

namespace quittika {

/// Everything that the program expects of the place it runs on.
struct Platform {
    Desktop& desktop;
    Dialogs& dialogs;
    Shell& shell;
    Clock& clock;
    Printing& printing;
    Progress& progress;
    Pictures& pictures;
};

} // namespace quittika
