#pragma once

#include "invoice/form1.hpp"
#include "masterdata/artikel.hpp"
#include "platform/dialogs.hpp"
#include "platform/textdatei.hpp"

#include <string>

namespace quittika {

/// Replaces a list file by these lines after its old content went byte for byte into `sicherung`; without a
/// line the file goes. At any moment there is the old file or the new one. A copy that fails stops nothing.
/// Throws `Laufzeitfehler` for a file that cannot be read or replaced; it is as it was then.
void LISTE_NEU_SCHREIBEN(const std::string& pfad, const std::string& sicherung, const Textpuffer& zeilen);

/// Takes a list out of the program and into it, as a file.
class Listentransfer {
public:
    /// Title of the box about a failed import.
    enum class Importtitel { MitFehlernummer, Einfach };

    /// `name`: "Kundenliste" for Kundenliste.txt, which lies in `pfad`.
    Listentransfer(Form1& form1, Artikelzustand& zustand, Dialogs& dialogs, std::string name,
                   std::string pfad, Importtitel importtitel);

    /// Copies the list to a file that the user chooses. Unlike at an import, a cancelled choice is told.
    void Exportieren();
    /// Copies a file that the user chooses over the list, after a question. Returns whether it did.
    bool Importieren();

private:
    void ExportfehlerMelden(int nummer, const std::string& ziel);
    void ImportfehlerMelden(int nummer, const std::string& quelle);

    Form1& form1_;
    Artikelzustand& zustand_;
    Dialogs& dialogs_;
    std::string name_;
    std::string pfad_;
    Importtitel importtitel_;
};

} // namespace quittika
