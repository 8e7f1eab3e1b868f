#pragma once

#include "app/ereignisse.hpp"
#include "app/hauptfenster.hpp"
#include "app/kopf.hpp"
#include "app/raster.hpp"
#include "einvoice/e_rechnungsfenster.hpp"
#include "einvoice/mailversand.hpp"
#include "invoice/file/dateibefehle.hpp"
#include "invoice/file/textexport.hpp"
#include "print/druckauftrag.hpp"
#include "safety/fassungsfenster.hpp"

#include <string>
#include <vector>

namespace quittika {

/// The menu "Datei" of the main window, the buttons that stand for its commands, and files dropped on the
/// window.
class MenueDatei {
public:
    MenueDatei(Form1& form1, const Ereignisse& ereignisse, Dateibefehle& dateibefehle, Textexport& textexport,
               Druckauftrag& druckauftrag, ERechnungsfenster& e_rechnung, Mailversand& mailversand,
               Hauptfenster& hauptfenster, Fassungsfenster& fassungsfenster, Kopf& kopf, Raster& raster);

private:
    void OeffnenVerdrahten(const Ereignisse& ereignisse, Raster& raster);
    void SpeichernVerdrahten(const Ereignisse& ereignisse);
    void Form_FilesDropped(const std::vector<std::string>& pfade);

    Form1& form1_;
    Dateibefehle& dateibefehle_;
};

} // namespace quittika
