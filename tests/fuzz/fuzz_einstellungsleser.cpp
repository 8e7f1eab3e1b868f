#include "platform/text.hpp"
#include "tests/einstellungsstand.hpp"
#include "tests/fuzz/verlangen.hpp"

#include <cstdint>

namespace quittika {
namespace {

/// A file as the program writes it, what one line says replaced, as the first byte and the others say.
std::string veraendert(std::vector<std::string> texte, std::string_view bytes, const char* trenner) {
    if (!bytes.empty()) {
        texte[static_cast<unsigned char>(bytes.front()) % texte.size()] = aus_ansi(bytes.substr(1));
    }
    std::string text;
    for (const std::string& zeile : texte) {
        text += zeile + trenner;
    }
    return nach_ansi(text).bytes;
}

/// What was read is a file that is read to its end and then stays as it is.
void pruefen(Einstellungsstand& p) {
    for (int i = 0; i < 2; ++i) {
        verlangen(p.einstellungsleser.LETZTE_EINSTELLUNGEN_UEBERNEHMEN(
            EINSTELLUNGSTEXT(ZEILENTEXTE(p.einstellungstabelle)).bytes()));
    }
    const std::string bytes = EINSTELLUNGSTEXT(ZEILENTEXTE(p.einstellungstabelle)).bytes();
    verlangen(p.einstellungsleser.LETZTE_EINSTELLUNGEN_UEBERNEHMEN(bytes));
    verlangen(EINSTELLUNGSTEXT(ZEILENTEXTE(p.einstellungstabelle)).bytes() == bytes);
    p.logo.LayoutZeigen();
    p.vorgaben.uebernehmen();
    p.summen.jetztberechnen_List();
}

} // namespace
} // namespace quittika

/// Whatever bytes `prog_n.cfg` and `prog.cfg` hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zeiger, std::size_t anzahl) {
    using namespace quittika;
    static Einstellungsstand p;
    static const std::vector<std::string> entwurf = p.texte();
    const std::string_view bytes(reinterpret_cast<const char*>(zeiger), anzahl);
    for (const std::string& datei : {std::string(bytes), veraendert(entwurf, bytes, "\r\n")}) {
        p.einstellungsleser.LETZTE_EINSTELLUNGEN_UEBERNEHMEN(datei);
        pruefen(p);
    }
    for (const std::string& datei : {std::string(bytes), veraendert(entwurf, bytes, "#§#")}) {
        p.einstellungsleser.ALTE_EINSTELLUNGEN_UEBERNEHMEN(datei);
        pruefen(p);
    }
    return 0;
}
