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
    ScriptPlatform(const FontMetrics& metrics, PdfFactory pdf, PictureTest picture_test)
        : printing(metrics, std::move(pdf), std::move(picture_test)) {}

    ScriptClock clock;
    ScriptDesktop desktop{clock};
    ScriptDialogs dialogs;
    ScriptShell shell;
    ScriptPrinting printing;
    ScriptProgress progress;

    Platform view() { return {desktop, dialogs, shell, clock, printing, progress}; }
};

} // namespace quittika
