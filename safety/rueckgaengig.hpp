#pragma once

#include "safety/schrittname.hpp"
#include "safety/standaufnahme.hpp"
#include "safety/verlauf.hpp"

#include <cstdint>

namespace quittika {

/// Undo and redo over the whole invoice. It watches the window instead of the commands: whatever is different
/// when a deed of the user has come to its end is a step, what he types in a field when he leaves it.
class Rueckgaengig {
public:
    static constexpr std::size_t kSchritte = 200;

    /// `alles`: idle when a deed of the user has come to its end.
    Rueckgaengig(Form1& form1, Rechnungszustand& zustand, Standaufnahme& aufnahme, Activity& alles);
    Rueckgaengig(const Rueckgaengig&) = delete;
    Rueckgaengig& operator=(const Rueckgaengig&) = delete;
    ~Rueckgaengig();

    /// From here on: what is in the window now cannot be taken back.
    void beginnen();
    /// A command begins: what was typed before is a step of its own.
    void vor_befehl();
    /// What is different since the last step is one.
    void erfassen();

    void m_rueckgaengig_Click();
    void m_wiederholen_Click();

    /// The step that would be taken back, or done again, next; null for none.
    const Schritt* naechster_zurueck() const { return verlauf_.naechster_zurueck(); }
    const Schritt* naechster_vor() const { return verlauf_.naechster_vor(); }

private:
    void ruhe();
    void halten();
    Schritt gehen(const Schritt& ziel);
    void menue_zeigen();

    Form1& form1_;
    Rechnungszustand& zustand_;
    Standaufnahme& aufnahme_;
    Activity& alles_;
    Verlauf<Schritt> verlauf_{kSchritte};
    Rechnungsstand stand_; ///< as the last step left it
    std::uint64_t letzte_kennung_ = 0;
    std::uint64_t gesehen_ = 0; ///< revision of the window
    std::uint64_t getippt_ = 0; ///< how often the user had typed then
    bool begonnen_ = false;
    bool bei_der_arbeit_ = false;
    bool haelt_ = false;     ///< something was typed in the field that has the focus
    bool verlassen_ = false; ///< a field was left in the deed under way
};

} // namespace quittika
