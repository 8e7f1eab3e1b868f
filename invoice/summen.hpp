#pragma once

#include "invoice/berechnung.hpp"
#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/shell.hpp"
#include "settings/frm_einstellungen.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quittika {

/// Turns the position lists and the options of the main window into all amounts that it shows.
class Summen {
public:
    /// `ANZAHL_DRUCKSEITEN`: pages that the present list prints on.
    Summen(Form1& form1, const frm_einstellungen& einstellungen, Rechnungszustand& zustand,
           Eingabezeile& eingabezeile, const Clock& uhr, std::function<int()> ANZAHL_DRUCKSEITEN);

    /// Recalculates and shows everything. An amount that cannot be calculated is shown as 0; panel 3 names
    /// the reason until one succeeds.
    void jetztberechnen_List();

    /// The split of the shipping costs that holds where the ticks demand none, such as that of a file.
    void VersandMerken(Versandaufteilung versand) { versand_ = versand; }
    const Versandaufteilung& Versand() const { return versand_; }

    /// Renumbers `List_pos`: rows of kind "-" count, all others get a blank. Keeps the selection.
    void PositionenNummerieren();

private:
    void SatzLesen(TextBox& feld, double& variable);
    void UngezaehltesMelden();
    int VersandAufteilen();
    std::optional<double> ListensummeBerechnen();
    Rechenergebnis BetraegeBerechnen(Mwst_Modus modus);
    Mwst_Modus mwst_modus() const;
    void Anzeigen(const Rechenergebnis& ergebnis);
    std::string Grund(int fehler_versand, int fehler_betraege) const;

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Rechnungszustand& zustand_;
    Eingabezeile& eingabezeile_;
    const Clock& uhr_;
    std::function<int()> anzahl_druckseiten_;

    double MwSt_Satz = 0;
    double Rabattprozent = 0;
    double Versand_Eingabe = 0;
    Versandaufteilung versand_;
    double Listensumme = 0;
    /// The sum of the rows as it was calculated last, good as long as the lists are those.
    struct {
        std::uint64_t betraege = 0;
        std::uint64_t arten = 0;
        std::optional<double> summe = 0;
    } gemerkt_;
    int Waechter = 2; ///< kept within 1 to 9
};

} // namespace quittika
