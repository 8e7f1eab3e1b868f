#pragma once

#include "platform/platform.hpp"
#include "platform/script/script_clock.hpp"
#include "platform/script/script_desktop.hpp"
#include "platform/script/script_dialogs.hpp"
#include "platform/script/script_printing.hpp"
#include "platform/script/script_progress.hpp"
#include "platform/script/script_shell.hpp"

#include <utility>

namespace quittika {

/// All parts of the scripted platform. It must outlive the program that runs on it.
struct ScriptPlatform {
    ScriptPlatform(const FontMetrics& metrics, Pictures& given_pictures, RealPrinting real)
        : pictures(given_pictures), printing(metrics, given_pictures, std::move(real)) {}

    ScriptClock clock;
    ScriptDesktop desktop{clock};
    ScriptDialogs dialogs;
    ScriptShell shell;
    Pictures& pictures;
    ScriptPrinting printing;
    ScriptProgress progress;

    Platform view() { return {desktop, dialogs, shell, clock, printing, progress, pictures}; }
};

} // namespace quittika
