#pragma once

#include "platform/platform.hpp"
#include "platform/qt/print_printing.hpp"
#include "platform/qt/printer_choice.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_dialogs.hpp"
#include "platform/qt/qt_progress.hpp"
#include "platform/qt/qt_shell.hpp"

namespace quittika {

/// The whole platform on real windows; one for the program, after its `QtApplication`.
class QtPlatform {
public:
    Platform platform() {
        return {desktop_, dialogs_, shell_, clock_, printing_, progress_, desktop_.tools().pictures};
    }
    QtDesktop& desktop() { return desktop_; }
    const QtPrinting& printing() const { return printing_; }

private:
    PrinterChoice printer_;
    QtDesktop desktop_;
    QtDialogs dialogs_{printer_};
    QtShell shell_;
    QtClock clock_;
    QtPrinting printing_{desktop_.tools(), [this] { return &printer_.printer(); }};
    QtProgress progress_{desktop_};
};

} // namespace quittika
