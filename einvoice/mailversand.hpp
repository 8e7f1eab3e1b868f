#pragma once

#include "einvoice/e_rechnungsausgabe.hpp"
#include "einvoice/mailvorlage.hpp"
#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "platform/verzeichnis.hpp"
#include "print/lieferscheinoptionen.hpp"
#include "print/pdfausgabe.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// Hands the document in hand to the mail program: as ZUGFeRD where the data are complete and confirmed, else
/// as a plain PDF. The files lie in the folder "E-Mail" of the program directory.
class Mailversand {
public:
    /// `vor_der_ausgabe` brings the result fields of the main window up to date and may tell something.
    Mailversand(Form1& form1, const frm_einstellungen& einstellungen, E_Rechnungsausgabe& ausgabe,
                Pdfausgabe& pdfausgabe, const Lieferscheinoptionen& lieferscheinoptionen,
                const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Shell& shell,
                std::function<void()> vor_der_ausgabe);

    /// Says what went wrong; where there is no mail program, the folder with the file is shown.
    void m_Mail_Click();

private:
    /// What a mail is made of.
    struct Grundlage {
        E_Rechnung rechnung;
        std::vector<std::string> vorlage;
    };
    std::optional<Grundlage> lesen() const;
    std::string anhang() const;
    void anhang_schreiben(const std::string& pfad, const E_Rechnung& rechnung);
    Mail mail(const Grundlage& grundlage) const;
    void uebergeben(const Mail& mail, const std::string& pfad);

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    E_Rechnungsausgabe& ausgabe_;
    Pdfausgabe& pdfausgabe_;
    const Lieferscheinoptionen& lieferscheinoptionen_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    Shell& shell_;
    std::function<void()> vor_der_ausgabe_;
};

} // namespace quittika
