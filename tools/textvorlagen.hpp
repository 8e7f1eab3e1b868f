#pragma once

#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"
#include "tools/form_txt_vorlagen.hpp"

#include <string>

namespace quittika {

/// The text templates in their window: those of the text block that was chosen when it opened.
class Textvorlagen {
public:
    Textvorlagen(Form_txt_Vorlagen& form, Form1& form1, const Programmverzeichnis& verzeichnis,
                 Dialogs& dialogs);

private:
    void Form_Load();
    bool Laden();
    bool Command1_SAVE_Click();
    void Command1_choose_Click(std::size_t vorlage);
    void Seite_zeigen(std::size_t seite);
    void Text_Change(Form_txt_Vorlagen::Vorlage& vorlage, std::size_t zeile);
    void Form_QueryUnload(bool& abbrechen);

    Form_txt_Vorlagen& form_;
    Form1& form1_;
    Dialogs& dialogs_;
    int block_; ///< element of the invoice's text lines
    std::string pfad_;
    bool Vorlagen_geaendert_ = false;
};

/// Shows the templates until the window is closed.
void VORLAGEN_ZEIGEN(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                     Desktop& desktop);

} // namespace quittika
