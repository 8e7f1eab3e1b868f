#pragma once

#include "invoice/form1.hpp"
#include "invoice/zahleneingabe.hpp"
#include "platform/dialogs.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// The input line of the main window: a position or comment on its way into the lists.
class Eingabezeile {
public:
    Eingabezeile(Form1& form1, Dialogs& dialogs);

    /// Reads quantity and price, rewrites both in their formats and shows the row's total. Tells in a box,
    /// once a text, when the quantity is none, in panel 3 what was read otherwise than typed.
    void lesen();
    /// The box about input that is none.
    void beanstanden();
    /// Tells in panel 3 what cannot be read, without a box and without rewriting it.
    void ungelesenes_melden();
    /// Shows the row's total of what is being typed and leaves everything else alone.
    void mitrechnen();

    /// Quantity and price as `lesen` takes them; nothing if they are none.
    std::optional<double> Menge() const;
    std::optional<double> Preis() const;
    /// Whether the quantity is a number at all, too big or not.
    bool MengeIstZahl() const;
    /// A field that keeps the row from being added, and why.
    struct Ablehnung {
        TextBox* feld;
        std::string grund;
    };
    /// The first field whose text is no number, or makes the total none; nothing where all is well.
    std::optional<Ablehnung> pruefen() const;
    /// Why the quantity 0 deletes no row: another one was typed and rounded. Empty where none was.
    std::string nullgrund() const;
    /// Whether the row total was a number at the last reading.
    bool SummeGueltig() const { return summe_gueltig_; }

    /// The first field whose text was no number at the last reading, null for none.
    TextBox* abgelehntes_feld() const { return abgelehnt_; }

    /// Moves the focus into `feld` and marks what stands there.
    static void hingehen(TextBox& feld);
    /// Moves the focus to where a row begins.
    void anwaehlen();
    /// Puts the fields back to their start values; no row is being changed.
    void leeren();
    /// Shows what a position needs, hides it for a comment.
    void felder_zeigen();

    /// Row of the lists that is being changed, counted from 0; -1 for none: the input line is a new row.
    int zeile() const { return zeile_; }
    /// Says which row is being changed: panel 3 and the buttons follow.
    void zeile_setzen(int zeile);
    /// The focus comes into the line or leaves it: marks the button that the Return key means there.
    void fokus(bool da);

private:
    bool gefuellt(const TextBox& feld) const;
    std::optional<Feldwert> menge_lesen() const;
    std::optional<Feldwert> preis_lesen() const;
    std::string_view betragsformat() const { return form1_.Check_000.ticked() ? "0.000" : "0.00"; }
    std::string grund(const TextBox& feld) const;
    double uebernehmen(TextBox& feld, const std::optional<Feldwert>& gelesen);
    void ungelesenes_melden(TextBox& feld, bool lesbar);
    void summe_zeigen(double menge, double preis);
    void standardknopf_zeigen();

    Form1& form1_;
    Dialogs& dialogs_;
    bool summe_gueltig_ = true;
    bool auf_null_gerundet_ = false; ///< the quantity shown is 0, but none that the user typed
    TextBox* abgelehnt_ = nullptr;
    std::optional<std::string> beanstandet_; ///< quantity that the box told of last, as its field shows it
    int zeile_ = -1;
    bool fokus_ = false;
};

/// Count of digits behind the decimal comma; 0 without one.
int NachkommastellenZaehlen(std::string_view text);

/// Number format for a typed quantity: by its digits behind the comma in decimal mode (1 to 4), else the
/// mode's own.
std::string_view MENGENFORMAT(std::string_view text, bool dezimal);

} // namespace quittika
