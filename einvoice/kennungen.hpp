#pragma once

#include <string>
#include <string_view>

namespace quittika {

// Each says in a sentence what is wrong with a number as typed; empty for nothing and for an empty text.

/// VAT id: the form of the country, for Germany the check digit, too.
std::string UST_ID_FEHLER(std::string_view nummer);
/// Leitweg-ID of public buyers.
std::string LEITWEG_FEHLER(std::string_view kennung);
/// Whether a text has the form of a Leitweg-ID at all, its check digits aside.
bool IST_WIE_LEITWEG(std::string_view kennung);
std::string E_MAIL_FEHLER(std::string_view adresse);
std::string BIC_FEHLER(std::string_view bic);
/// Country: two capital letters of a country that there is.
std::string LAND_FEHLER(std::string_view land);

/// Capitals and digits alone, as numbers are written in data: "de 136.695-976" becomes "DE136695976".
std::string KENNUNG(std::string_view nummer);

/// "EUR" for the words that mean it, three letters of a currency as they are; empty for everything else.
std::string WAEHRUNGSCODE(std::string_view waehrung);

/// Two letters for a country's German name, its letters or its sign on cars; empty for everything else.
std::string LANDESCODE(std::string_view land);

} // namespace quittika
