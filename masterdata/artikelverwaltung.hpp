#pragma once

#include "invoice/form1.hpp"
#include "masterdata/artikel.hpp"
#include "masterdata/form_artikelverwaltung.hpp"
#include "masterdata/listendatei.hpp"
#include "masterdata/listensuche.hpp"
#include "platform/verzeichnis.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// The article list in its window.
class Artikelverwaltung {
public:
    /// Where the article goes: the window waits for it, or stands beside the main window.
    enum class Zweck { Auswahl, Beistellen };

    /// `gewaehlt` runs behind "OK", when the window is closed.
    Artikelverwaltung(Form_Artikelverwaltung& form, Zweck zweck, Form1& form1, Artikelzustand& zustand,
                      Artikeltabelle& ARTIKEL, const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                      std::function<void()> gewaehlt = {});

    /// Reads the file anew and rebuilds the list. Nothing is selected then.
    void Artikelliste_fuellen();
    /// Selects the first item whose field `feld` is this text; fields are parted by `ArtikelTrenner`.
    bool suchen(std::string_view barcode, int feld);
    /// The line of the selected article if `text` is its description or the line itself.
    std::optional<std::string> Gezogen(std::string_view text) const;
    void Schliessen() { form_.Close(); }
    /// Takes the colours that the main window has now.
    void FarbenUebernehmen();

private:
    void KnoepfeVerdrahten();
    void EingabeVerdrahten();
    void ListeVerdrahten();
    void Form_Load(Zweck zweck);
    void Form_Unload();
    void Auffrischen();
    int Satznummer(int eintrag) const;
    const Artikel& markiert() const {
        return ARTIKEL_[Satznummer(form_.List_Artikelnverwaltung.ListIndex())];
    }

    void Command_OK_Click();
    void Command_Abbrechen_Click();
    void List_Artikelnverwaltung_DblClick();
    void Text_such_Barcode_Change();
    void Command_neuerArtikel_Click();
    void EingabeMarkieren();
    void Text_preis_LostFocus();
    void Command_Artikelhinzufuegen_Click();
    bool BarcodeVergeben(const std::string& barcode);
    bool Anhaengen();
    void Command_delete_Click();

    Form_Artikelverwaltung& form_;
    Form1& form1_;
    Artikelzustand& zustand_;
    Artikeltabelle& ARTIKEL_;
    std::string sicherung_;
    Dialogs& dialogs_;
    std::function<void()> gewaehlt_;
    Listentransfer transfer_;
    Listensuche suche_;
};

} // namespace quittika
