#pragma once

#include "invoice/file/rechnungsnummern.hpp"
#include "invoice/file/rechnungsschreiber.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dateisperre.hpp"
#include "platform/shell.hpp"
#include "platform/verzeichnis.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// A draft that a program left behind which ended without being asked.
struct Entwurfsfund {
    Dateisperre sperre; ///< nobody else takes it
    std::string pfad;
    std::string bytes;
};

/// Whether a file is the draft of a program that runs.
bool IST_ENTWURF_IN_ARBEIT(const std::string& ort);

/// Puts the unsaved invoice in hand on disk again and again: when the user pauses, at the latest 16 seconds
/// after a change, and when the program loses the keyboard. Several programs have a draft each.
class Entwurf {
public:
    Entwurf(Form1& form1, Rechnungszustand& zustand, Rechnungsschreiber& schreiber,
            const Rechnungsnummern& nummern, const Programmverzeichnis& verzeichnis, const Clock& uhr);

    /// Writes at once what is not on disk yet.
    void Sichern();
    /// There is nothing unsaved any more, or the user lets it go.
    void Verwerfen();
    /// The next draft that a program has left behind, if it can be read. One whose invoice was saved in the
    /// program's last moment is taken away.
    std::optional<Entwurfsfund> Finden();
    /// The draft found is the one of the invoice in hand from now on.
    void Uebernehmen(Entwurfsfund fund);
    /// The present invoice as it goes to disk.
    std::string Abbild() const;

private:
    void Timer_entwurf_Timer();
    void Schreiben(std::size_t stand);
    std::size_t Stand() const;
    bool PlatzNehmen();
    std::string pfad(int nummer) const;
    /// Notes what is being saved: a program that ends before it takes its draft away has saved it or not.
    void Vormerken(const std::string& ziel, std::string_view bytes);
    void Misslungen(const Laufzeitfehler& fehler);

    Form1& form1_;
    Rechnungszustand& zustand_;
    Rechnungsschreiber& schreiber_;
    const Rechnungsnummern& nummern_;
    const Programmverzeichnis& verzeichnis_;
    const Clock& uhr_;
    std::optional<Dateisperre> platz_; ///< for a draft of this program
    std::string pfad_;                 ///< of that draft
    bool liegt_ = false;               ///< there is one
    std::size_t auf_platte_ = 0;       ///< what it holds, hash
    std::string marke_;                ///< of its bytes
    bool gemeldet_ = false;            ///< that it cannot be written
    std::size_t gesehen_ = 0;          ///< the invoice at the last tick
    int wartet_ = 0;                   ///< ticks since something was found that is not on disk
};

} // namespace quittika
