#include "platform/schluesselzeilen.hpp"

#include "platform/text.hpp"
#include "platform/textdatei.hpp"

namespace quittika {

void SCHLUESSELZEILEN_DURCHGEHEN(
    std::string_view bytes,
    const std::function<bool(const std::string& schluessel, const std::string& wert)>& weiter) {
    zeilen_durchgehen(bytes, [&weiter](std::string_view zeile) {
        const std::size_t mitte = zeile.find(':');
        if (mitte == std::string_view::npos) {
            return true;
        }
        const std::string_view rest = zeile.substr(mitte + 1);
        return weiter(grossbuchstaben(zeile.substr(0, mitte)), std::string(rest.substr(0, rest.find(';'))));
    });
}

} // namespace quittika
