#include "tools/vorlagendatei.hpp"

#include "platform/schluesselzeilen.hpp"
#include "platform/text.hpp"

#include <map>

namespace quittika {

namespace {

/// "Text3(12)" of line 2 in template 11.
std::string schluessel(std::size_t vorlage, std::size_t zeile) {
    return "Text" + std::to_string(zeile + 1) + "(" + std::to_string(vorlage + 1) + ")";
}

/// Calls `tun(key, text)` for each line of each template, in the order of the file.
template <class Texte, class Tun> void durchgehen(Texte& texte, const Tun& tun) {
    for (std::size_t vorlage = 0; vorlage < texte.size(); ++vorlage) {
        for (std::size_t zeile = 0; zeile < texte[vorlage].size(); ++zeile) {
            tun(schluessel(vorlage, zeile), texte[vorlage][zeile]);
        }
    }
}

} // namespace

Vorlagentexte VORLAGEN_LESEN(std::string_view bytes) {
    Vorlagentexte texte;
    std::map<std::string, std::string*> platz;
    durchgehen(texte, [&platz](const std::string& name, std::string& text) {
        platz[grossbuchstaben(name)] = &text;
    });
    SCHLUESSELZEILEN_DURCHGEHEN(bytes, [&platz](const std::string& name, const std::string& wert) {
        if (const auto gefunden = platz.find(name); gefunden != platz.end()) {
            *gefunden->second = wert;
        }
        return true;
    });
    return texte;
}

Textpuffer VORLAGEN_SCHREIBEN(const Vorlagentexte& texte) {
    Textpuffer puffer;
    durchgehen(texte, [&puffer](const std::string& name, const std::string& text) {
        puffer.zeile(name + ":" + einzeilig(text) + ";");
    });
    return puffer;
}

} // namespace quittika
