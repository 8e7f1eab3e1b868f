#pragma once

#include "platform/text.hpp"
#include "tools/vorlagendatei.hpp"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace quittika {

/// The lines of a file as a plain reader of its description takes them.
inline std::vector<std::string> Modellzeilen(const std::string& bytes) {
    std::vector<std::string> zeilen(1);
    for (const char c : bytes) {
        if (c != '\n') {
            zeilen.back() += c;
        } else {
            if (!zeilen.back().empty() && zeilen.back().back() == '\r') {
                zeilen.back().pop_back();
            }
            zeilen.emplace_back();
        }
    }
    return zeilen;
}

/// All keys of a file in capitals, each with what its last line says.
inline std::map<std::string, std::string> Modellvorlagen(const std::string& bytes) {
    std::map<std::string, std::string> werte;
    for (const std::string& ansi : Modellzeilen(bytes)) {
        const std::string text = aus_ansi(ansi);
        const std::size_t mitte = text.find(':');
        if (mitte != std::string::npos) {
            const std::size_t ende = std::min(text.size(), text.find(';', mitte));
            werte[grossbuchstaben(text.substr(0, mitte))] = text.substr(mitte + 1, ende - mitte - 1);
        }
    }
    return werte;
}

/// What the reader of template files makes of these bytes against the model, and after writing them once;
/// empty where all is well.
inline std::string Vorlagenbefund(const std::string& bytes) {
    const Vorlagentexte texte = VORLAGEN_LESEN(bytes);
    std::map<std::string, std::string> modell = Modellvorlagen(bytes);
    for (int vorlage = 1; vorlage <= kTextvorlagen; ++vorlage) {
        for (int zeile = 1; zeile <= kVorlagenzeilen; ++zeile) {
            const std::string& text =
                texte.at(static_cast<std::size_t>(vorlage - 1)).at(static_cast<std::size_t>(zeile - 1));
            const std::string name = "TEXT" + std::to_string(zeile) + "(" + std::to_string(vorlage) + ")";
            if (text != modell[name]) {
                return name;
            }
        }
    }
    const std::string geschrieben = VORLAGEN_SCHREIBEN(texte).bytes();
    return VORLAGEN_SCHREIBEN(VORLAGEN_LESEN(geschrieben)).bytes() == geschrieben ? "" : "nach dem Schreiben";
}

} // namespace quittika
