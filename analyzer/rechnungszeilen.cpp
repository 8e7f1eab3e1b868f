#include "analyzer/rechnungszeilen.hpp"

#include "platform/text.hpp"
#include "platform/textdatei.hpp"

namespace quittika {

Rechnungszeilen::Rechnungszeilen(std::string_view bytes) {
    int nummer = 0;
    int versatz = 0;
    zeilen_teilen(bytes, [&](std::string_view text) {
        if (nummer == 0 && text != kDateikennung) {
            versatz = 1;
        }
        if (!beginnt_mit(text, kListenmarke)) {
            ZEILEN_.at(static_cast<std::size_t>(nummer + versatz)) = text;
        }
        ++nummer;
        return nummer + versatz <= kLetzte;
    });
}

bool Rechnungszeilen::REICHT(std::string_view bytes) {
    int fehlend = kLetzte + 1;
    for (std::size_t ende = bytes.find('\n'); ende != std::string_view::npos && --fehlend > 0;) {
        ende = bytes.find('\n', ende + 1);
    }
    return fehlend == 0;
}

std::string Rechnungszeilen::text(int nummer) const {
    return aus_ansi(bytes(nummer));
}

} // namespace quittika
