#pragma once

#include "invoice/berechnung.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "settings/frm_einstellungen.hpp"

#include <functional>
#include <optional>

namespace quittika {

/// Turns the position lists and the options of the main window into all amounts that it shows.
class Summen {
public:
    /// `ANZAHL_DRUCKSEITEN`: pages that the present list prints on.
    Summen(Form1& form1, const frm_einstellungen& einstellungen, Rechnungszustand& zustand, Dialogs& dialogs,
           const Clock& uhr, std::function<int()> ANZAHL_DRUCKSEITEN);

    /// Recalculates and shows everything. An arithmetic fault ends it without a message and leaves the
    /// amounts.
    void jetztberechnen_List();

    /// Recalculates when a field of the input line is left; what is no number yet has no row total.
    void EingabezeileVerlassen();

    /// Whether the row total of the input line was a number at the last calculation.
    bool ZeilensummeGueltig() const { return zeilensumme_gueltig_; }

    /// The split of the shipping costs that holds where the ticks demand none, such as that of a file.
    void VersandMerken(Versandaufteilung versand) { versand_ = versand; }

    /// Renumbers `List_pos`: rows of kind "-" count, all others get a blank. Keeps the selection.
    void PositionenNummerieren();

    /// The quantity typed, as the quantity mode reads it; nothing if it is no quantity.
    std::optional<double> Menge() const;
    /// Whether the quantity typed is a number at all, too big or not.
    bool MengeIstZahl() const;
    /// The unit price typed; nothing if it is no number.
    std::optional<double> Preis() const;

private:
    void MengeLesen();
    void PreisLesen();
    void SatzLesen(TextBox& feld, double& variable);
    void VersandAufteilen();
    void ZeilensummeBerechnen();
    double ListensummeBerechnen() const;
    Mwst_Modus mwst_modus() const;
    void Anzeigen(const Rechenergebnis& ergebnis);
    void rechnen();
    bool dezimalmengen() const { return form1_.Check_mengenartDECIMAL.ticked(); }

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Rechnungszustand& zustand_;
    Dialogs& dialogs_;
    const Clock& uhr_;
    std::function<int()> anzahl_druckseiten_;

    double Mengenwert = 0;
    double Preiswert = 0;
    double MwSt_Satz = 0;
    double Rabattprozent = 0;
    double Versand_Eingabe = 0;
    Versandaufteilung versand_;
    double Zeilensumme = 0;
    bool zeilensumme_gueltig_ = true;
    double Listensumme = 0;
    int Waechter = 2; ///< kept within 1 to 9
};

/// Count of digits behind the decimal comma; 0 without one.
int NachkommastellenZaehlen(std::string_view text);

/// Number format for a typed quantity: by its digits behind the comma in decimal mode (1 to 4), else the
/// mode's own.
std::string_view MENGENFORMAT(std::string_view text, bool dezimal);

} // namespace quittika
