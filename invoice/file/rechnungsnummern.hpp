#pragma once

#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dateisperre.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/frm_einstellungen.hpp"

#include <optional>
#include <string>

namespace quittika {

/// What RN.txt holds.
struct Zaehlerstand {
    std::optional<int> wert;
    bool unlesbar = false; ///< the file is there and holds no number of 32 bits
};

/// The counter in RN.txt, which is the next number; without a value where there is none.
Zaehlerstand ZAEHLERSTAND(const Programmverzeichnis& verzeichnis);

/// Invoice numbers from the counter in RN.txt.
class Rechnungsnummern {
public:
    Rechnungsnummern(Form1& form1, frm_einstellungen& einstellungen, Rechnungszustand& zustand,
                     const Programmverzeichnis& verzeichnis, Dialogs& dialogs);

    /// Counter from RN.txt, or the settings' start value where that holds none; then its number is shown. A
    /// counter that cannot be read is told in panel 3.
    void RNStartLesen();
    /// Puts the next number into `Text_RNnr`; with numbering by hand a zero. Not an edit by the user.
    /// Automatic numbers follow the counter of another running program.
    void RNNUMMERZUWEISEN();
    /// Whether the invoice in hand shows a number that it has not used up yet.
    bool IstVorlaeufig() const;
    /// Gives a new invoice another number where another program has used up its own since. Answers what to
    /// tell of it, which panel 3 says already; empty where the number stays.
    std::string NummerErneuern();
    /// The start value of the settings becomes the counter, is written to RN.txt, and its number is shown. A
    /// text that is no number of 32 bits is told in a box and changes nothing.
    void Command_RNSTartwertSET_Click();
    /// Shows the next number after its form, or the kind of numbering, has changed. An invoice that has its
    /// own number, typed or out of its file, keeps it.
    void NummerAuffrischen();
    /// The same, and the counter in the settings.
    void ZaehlerAuffrischen();
    /// Uses up a number before its invoice is written, if numbering is automatic: raises the higher of the
    /// counter and the one in RN.txt and writes it, while no other program can. A new invoice gets another
    /// number where its own was used up meanwhile; what to tell of that is answered, as by `NummerErneuern`.
    std::string NummerVerbrauchen();
    /// The invoice was not written: its number is free again, unless another program has raised the counter.
    void NummerZurueckgeben();

private:
    bool automatisch() const { return einstellungen_.Check_RN_automatisch.ticked(); }
    std::string Nummer() const;
    /// Whether the invoice in hand shows the number that was put there last, and has not used it up.
    bool ZeigtNaechste() const;
    /// Takes over the counter in RN.txt where it is higher.
    Zaehlerstand ZaehlerNachlesen();
    void LesbarkeitMelden(const Zaehlerstand& stand);
    void NummerZeigen();
    void ZaehlerZeigen();
    void ZaehlerSchreiben();
    void ZaehlerHeben();
    std::optional<Dateisperre> Sperren() const;

    Form1& form1_;
    frm_einstellungen& einstellungen_;
    Rechnungszustand& zustand_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    int zaehler_ = 1;
    std::string gezeigt_;     ///< the number that was put into `Text_RNnr` last
    bool verbraucht_ = false; ///< a file that was written has it, or the one that is being written
};

} // namespace quittika
