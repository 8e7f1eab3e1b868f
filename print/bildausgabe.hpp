#pragma once

#include "platform/dialogs.hpp"
#include "platform/progress.hpp"
#include "platform/shell.hpp"
#include "print/vorschauzeichnung.hpp"

#include <functional>
#include <string>

namespace quittika {

/// Saves the pages of the document in hand as picture files, as the preview shows them.
class Bildausgabe {
public:
    /// `jetztberechnen_List` brings the result fields of the main window up to date.
    Bildausgabe(Form1& form1, const Vorschauzeichnung& zeichnung, Printing& printing, Dialogs& dialogs,
                Shell& shell, Progress& progress, std::function<void()> jetztberechnen_List);

    /// Asks for a name, saves a file for each page and offers to open the first. Says what went wrong.
    void Command_SAVE_VORSCHAU_Click();

private:
    void speichern(const std::string& name);
    int seiten_speichern(PictureControl& bild, const std::string& name, int seiten);

    Form1& form1_;
    const Vorschauzeichnung& zeichnung_;
    Printing& printing_;
    Dialogs& dialogs_;
    Shell& shell_;
    Progress& progress_;
    std::function<void()> jetztberechnen_List_;
};

} // namespace quittika
