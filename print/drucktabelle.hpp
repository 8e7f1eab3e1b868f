#pragma once

#include "invoice/form1.hpp"
#include "print/blatt.hpp"
#include "print/druckoptionen.hpp"
#include "print/seitenumbruch.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>
#include <string_view>

namespace quittika {

inline constexpr double kSchriftTabelle = 9; ///< points, of the rows and all that follows them

/// Column positions of the table in mm, not adjusted.
struct Spalten {
    double X_Menge;
    double X_Leistung;
    double X_Einzelpreis;
    double X_Gesamt; ///< the total edge
};

/// Rules and lines that table and totals share, and the rows of the position lists.
/// The lists are read by index; their selections stay as they are.
class Drucktabelle {
public:
    Drucktabelle(const Form1& form1, const frm_einstellungen& einstellungen,
                 const PROGRAMMEINSTELLUNG& programm, const Druckoptionen& optionen);

    const Spalten& spalten() const { return spalten_; }
    bool zeigt_preise() const { return preise_; }
    bool zeigt_positionen() const { return einstellungen_.Check_Positionendruck.ticked(); }

    /// Prints headings and rows; a row prints on one line, however long its text is.
    void DRUCKE_POSITIONEN(Blatt& blatt, Zeilenbereich zeilen) const;
    /// The parts of it: the line of headings, and one row, which takes no line where it prints nothing.
    void UEBERSCHRIFTEN(Blatt& blatt) const;
    void ZEILE(Blatt& blatt, int index) const;
    bool DRUCKT(int index) const; ///< whether the row prints at all
    /// Where the description of a row ends, mm, not adjusted.
    double TEXTENDE(const PrintSurface& surface, int index) const;
    /// Prints the amount carried from the pages before.
    void DRUCKE_UEBERTRAG(Blatt& blatt, const std::string& uebertrag) const;
    /// Prints the sum so far.
    void DRUCKE_ZWISCHENSUMME(Blatt& blatt, const std::string& zwischensumme) const;

private:
    void position(Blatt& blatt, int index) const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
    Spalten spalten_;
    bool preise_;
};

/// Prints `text` ending at the total edge and goes to the next line.
void SUMMENZEILE(Blatt& blatt, std::string_view text, double x_gesamt);

} // namespace quittika
