#pragma once

#include "platform/verzeichnis.hpp"

#include <string>
#include <vector>

namespace quittika {

/// What the placeholders of a template stand for.
struct Mailwerte {
    std::string Titel;   ///< {Titel}
    std::string Nummer;  ///< {Nummer}
    std::string Datum;   ///< {Datum}
    std::string Betrag;  ///< {Betrag}, with the currency
    std::string Faellig; ///< {Faellig}
    std::string Kunde;   ///< {Kunde}
    std::string Firma;   ///< {Firma}
};

struct Mail {
    std::string an;
    std::string betreff; ///< a single line
    std::string text;    ///< lines end with LF
};

/// The lines that ship: "Betreff: ..." first, then the text.
std::vector<std::string> MAILVORLAGE();

/// The lines of `e_mail_vorlage.txt` in the program directory; where it is missing it is made of those that
/// ship. Throws the `Laufzeitfehler` of a file that cannot be read.
std::vector<std::string> MAILVORLAGE_LESEN(const Programmverzeichnis& verzeichnis);

/// Fills a template in. Placeholders that it does not know stay as they are.
Mail MAIL_AUFSETZEN(const std::vector<std::string>& vorlage, const Mailwerte& werte, const std::string& an);

} // namespace quittika
