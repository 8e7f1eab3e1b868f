#pragma once

#include "app/ereignisse.hpp"
#include "print/druckvorschau.hpp"

namespace quittika {

/// The commands of the main window that show or save the pages of the document: preview, pictures, PDF.
class Ausgabe {
public:
    Ausgabe(Form1& form1, const Ereignisse& ereignisse, Summen& summen, Vorschauzeichnung& zeichnung,
            Vorschaufenster& vorschau, Bildausgabe& bildausgabe, Pdfausgabe& pdfausgabe);

private:
    void Command_Druckvorschau_Click();

    Summen& summen_;
    Vorschauzeichnung& zeichnung_;
    Vorschaufenster& vorschau_;
};

} // namespace quittika
