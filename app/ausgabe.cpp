#include "app/ausgabe.hpp"

namespace quittika {

Ausgabe::Ausgabe(Form1& form1, const Ereignisse& ereignisse, Summen& summen, Vorschauzeichnung& zeichnung,
                 Vorschaufenster& vorschau, Bildausgabe& bildausgabe, Pdfausgabe& pdfausgabe)
    : summen_(summen), zeichnung_(zeichnung), vorschau_(vorschau) {
    for (Control* zeigen :
         {static_cast<Control*>(&form1.m_Vorschau), static_cast<Control*>(&form1.Command_Druckvorschau)}) {
        zeigen->Click = ereignisse.befehl([this] { Command_Druckvorschau_Click(); });
    }
    for (Control* bild :
         {static_cast<Control*>(&form1.m_Rechnung_bmp_export), static_cast<Control*>(&form1.CMD_AS_BILD)}) {
        bild->Click = ereignisse.befehl([&bildausgabe] { bildausgabe.Command_SAVE_VORSCHAU_Click(); });
    }
    form1.m_Rechnung_pdf_export.Click =
        ereignisse.befehl([&pdfausgabe] { pdfausgabe.m_Rechnung_pdf_export_Click(); });
}

void Ausgabe::Command_Druckvorschau_Click() {
    summen_.jetztberechnen_List();
    zeichnung_.ENTWURF({}); // the document, not what the designer tries
    if (Druckvorschau* offen = vorschau_.module()) {
        offen->auffrischen();
    }
    vorschau_.open();
}

} // namespace quittika
