#include "print/belegausgabe.hpp"

#include "print/nachsichtiges_geraet.hpp"

namespace quittika {

namespace {

constexpr const char* kOhneGirocode = "Ohne GiroCode: Neben den Beträgen ist kein Platz dafür.";

} // namespace

std::string Zeichenbefund::hinweis(const std::string& getan) const {
    std::string saetze = fehlendes_bild.empty() ? "" : "Ohne das Bild " + fehlendes_bild + " " + getan + ".";
    for (const std::string& satz : {code_fehlt ? std::string(kOhneGirocode) : std::string(), ueberdruck}) {
        saetze += (saetze.empty() || satz.empty() ? "" : " ") + satz;
    }
    return saetze;
}

Zeichenbefund AUSGEBEN(PrintDevice& ziel, const PrintDocument& dokument, const FontMetrics& metrics,
                       std::string_view ausweg, const std::function<void(PrintSurface& surface)>& zeichnung) {
    NachsichtigesGeraet geraet(ziel, dokument.paper, dokument.first_page);
    PrintSurface surface(geraet, metrics);
    zeichnung(surface);
    return {geraet.fehlendes_bild(), geraet.ueberdruck().hinweis(ausweg), geraet.code_fehlt()};
}

} // namespace quittika
