#pragma once

#include "einvoice/angaben.hpp"
#include "einvoice/belegquelle.hpp"
#include "platform/verzeichnis.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// Lines "Name=Wert" below headings "[Abschnitt]", the first ones below none. Every line that is not changed
/// stays as it is, whatever it holds.
class Abschnittsdatei {
public:
    Abschnittsdatei() = default;
    explicit Abschnittsdatei(std::vector<std::string> zeilen) : zeilen_(std::move(zeilen)) {}

    bool hat(std::string_view abschnitt) const;
    /// Of several lines of one name the first counts. Nothing where there is none.
    std::optional<std::string> wert(std::string_view abschnitt, std::string_view name) const;
    /// Line ends in a value become blanks. A section that is not there is put at the end.
    void setzen(const std::string& abschnitt, const std::string& name, const std::string& wert);
    const std::vector<std::string>& zeilen() const { return zeilen_; }

private:
    struct Bereich {
        std::size_t anfang; ///< first line below the heading
        std::size_t ende;
    };
    std::optional<Bereich> bereich(std::string_view abschnitt) const;
    std::optional<std::size_t> stelle(Bereich in, std::string_view name) const;

    std::vector<std::string> zeilen_;
};

/// The key under which the data of a customer are kept: the customer number, without one name and town; empty
/// where the invoice has neither.
std::string KUNDENSCHLUESSEL(const Belegquelle& quelle);

/// `e_rechnung.cfg` and `e_rechnung_kunden.txt` in the program directory: Windows-1252 with CR LF like the
/// other files there. Both are read at each call, so that changes of an editor count. A missing file reads as
/// an empty one; one that cannot be read or replaced throws its `Laufzeitfehler`.
class Angabenspeicher {
public:
    explicit Angabenspeicher(const Programmverzeichnis& verzeichnis);

    Verkaeufer verkaeufer() const;
    /// Replaces the file; returns how many characters the code page lacks.
    std::size_t verkaeufer_merken(const Verkaeufer& angaben) const;
    /// Nothing for a customer that was never confirmed and for an empty key.
    std::optional<Kaeufer> kaeufer(const std::string& schluessel) const;
    /// The same as for the seller. With an empty key nothing is kept.
    std::size_t kaeufer_merken(const std::string& schluessel, const Kaeufer& angaben) const;

private:
    std::string verkaeuferpfad_;
    std::string kundenpfad_;
};

} // namespace quittika
