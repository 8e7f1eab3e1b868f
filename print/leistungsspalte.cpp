#include "print/leistungsspalte.hpp"

#include "platform/text.hpp"
#include "print/drucktabelle.hpp"

namespace quittika {

namespace {

constexpr double kLuecke = 2; ///< mm before a price

} // namespace

std::size_t PASSENDE_ZEICHEN(const FontMetrics& metrics, const PrintFont& schrift, std::string_view text,
                             double breite) {
    std::size_t passt = 0;
    std::size_t zu_viel = zeichenzahl(text) + 1;
    while (passt + 1 < zu_viel) {
        const std::size_t mitte = passt + (zu_viel - passt) / 2;
        (metrics.text_width(schrift, links(text, mitte)) <= breite ? passt : zu_viel) = mitte;
    }
    return passt;
}

std::string Leistungsspalte::HINWEIS(int zeile) const {
    const std::string& art = form1_.List_K.List(zeile);
    if (art != "-" && art != "K") {
        return {};
    }
    const PrintFont schrift{programm_.RECHNUNGSSCHRIFT, kSchriftTabelle, false};
    const Spalten spalten = Drucktabelle(form1_, einstellungen_, programm_, {}).spalten();
    const double ende =
        art == "K"
            ? spalten.X_Gesamt
            : spalten.X_Einzelpreis - metrics_.text_width(schrift, form1_.List_Preis.List(zeile)) - kLuecke;
    const std::string& text = form1_.List_Leistung.List(zeile);
    const std::size_t laenge = zeichenzahl(text);
    const std::size_t passt = PASSENDE_ZEICHEN(metrics_, schrift, text, ende - spalten.X_Leistung);
    if (passt >= laenge) {
        return {};
    }
    return "Die Beschreibung ist für den Druck zu lang: Von " + std::to_string(laenge) + " Zeichen passen " +
           std::to_string(passt) + " in die Spalte, der Rest in eine Kommentarzeile.";
}

} // namespace quittika
