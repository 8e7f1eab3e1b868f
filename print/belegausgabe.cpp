#include "print/belegausgabe.hpp"

#include "print/nachsichtiges_geraet.hpp"

namespace quittika {

std::string Zeichenbefund::hinweis(const std::string& getan) const {
    if (fehlendes_bild.empty()) {
        return ueberdruck;
    }
    return "Ohne das Bild " + fehlendes_bild + " " + getan + "." + (ueberdruck.empty() ? "" : " ") +
           ueberdruck;
}

Zeichenbefund AUSGEBEN(PrintDevice& ziel, const PrintDocument& dokument, const FontMetrics& metrics,
                       std::string_view ausweg, const std::function<void(PrintSurface& surface)>& zeichnung) {
    NachsichtigesGeraet geraet(ziel, dokument.paper, dokument.first_page);
    PrintSurface surface(geraet, metrics);
    zeichnung(surface);
    return {geraet.fehlendes_bild(), geraet.ueberdruck().hinweis(ausweg)};
}

} // namespace quittika
