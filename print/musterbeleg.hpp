#pragma once

#include "designer/design.hpp"
#include "invoice/eingabezeile.hpp"
#include "invoice/file/dateistand.hpp"
#include "invoice/file/rechnungsleser.hpp"
#include "invoice/rechnung.hpp"
#include "invoice/summen.hpp"
#include "invoice/vorgaben.hpp"
#include "platform/pictures.hpp"
#include "platform/printing.hpp"
#include "platform/verzeichnis.hpp"
#include "print/rechnungsdruck.hpp"

#include <string>
#include <string_view>

namespace quittika {

/// The invoice and the settings once more, where nobody sees them, as they would be after a take-over: what
/// the settings dialog shows can be drawn without touching what is in force.
class Musterbeleg {
public:
    /// `dialogs` is never asked.
    Musterbeleg(const Form1& form1, const frm_einstellungen& einstellungen, const frm_Programm& programm,
                const PROGRAMMEINSTELLUNG& werte, const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                const Clock& uhr, const FontMetrics& metrics, Pictures& bilder);

    /// Takes what the windows show at present. An invoice without rows gives way to the sample invoice of the
    /// program folder, that of a new customer.
    void AUFNEHMEN();
    /// Takes the bytes of an invoice's file, with the settings in force. Returns whether they are an invoice.
    bool LESEN(std::string_view bytes);
    /// The invoice taken.
    const Form1& beleg() const { return muster_.form1; }
    /// Draws the first page in the page design chosen, or in `layout` (1 to 9). Returns what is wrong on it
    /// as a sentence, empty where all is right.
    std::string ZEICHNEN(PictureControl& bild, int layout = 0);
    /// What was taken: which invoice, and the page of how many.
    const std::string& beschreibung() const { return beschreibung_; }

private:
    bool Beispiel_Lesen();
    bool Uebernehmen(std::string_view bytes);
    Druckvorlage vorlage(std::string& hinweis) const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& werte_;
    const Programmverzeichnis& verzeichnis_;
    const FontMetrics& metrics_;
    Pictures& bilder_;
    std::string beschreibung_;

    struct {
        PROGRAMMEINSTELLUNG werte;
        Form1 form1;
        frm_einstellungen einstellungen;
        Rechnungszustand zustand;
        Dateistand stand;
    } muster_;
    Eingabezeile eingabezeile_;
    Rechnung rechnung_;
    Vorgaben vorgaben_;
    Summen summen_;
    Rechnungsleser leser_;
    Rechnungsdruck rechnungsdruck_;
};

} // namespace quittika
