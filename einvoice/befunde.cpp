#include "einvoice/befunde.hpp"

#include "platform/text.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr std::size_t kZeile = 100; // characters of a line of the list
constexpr std::size_t kEinzug = 4;  // of those that go on

int rang(const Mangelbefund& befund) {
    return befund.zugferd && befund.xrechnung ? 0 : befund.zugferd || befund.xrechnung ? 1 : 2;
}

void aufnehmen(std::vector<Mangelbefund>& befunde, const Maengel& maengel, bool Mangelbefund::*format) {
    for (const Mangel& mangel : maengel) {
        auto befund = std::find_if(befunde.begin(), befunde.end(), [&mangel](const Mangelbefund& b) {
            return b.mangel.feld == mangel.feld && b.mangel.text == mangel.text &&
                   b.mangel.zeile == mangel.zeile;
        });
        if (befund == befunde.end()) {
            befund = befunde.insert(befunde.end(), Mangelbefund{mangel});
        }
        if (mangel.schwere == Schwere::Fatal) {
            (*befund).*format = true;
            befund->mangel.schwere = Schwere::Fatal;
        }
    }
}

std::string anzahl(std::ptrdiff_t fehlend) {
    return fehlend == 0   ? "Es ist alles da."
           : fehlend == 1 ? "Es fehlt noch eine Angabe."
                          : "Es fehlen noch " + std::to_string(fehlend) + " Angaben.";
}

} // namespace

std::vector<std::string> Mangelbefund::zeilen() const {
    const char* const vorsatz = zugferd && xrechnung ? ""
                                : zugferd            ? "ZUGFeRD: "
                                : xrechnung          ? "XRechnung: "
                                                     : "Hinweis: ";
    std::vector<std::string> zeilen;
    std::string rest = vorsatz + mangel.text;
    while (zeichenzahl(rest) > kZeile) {
        const std::size_t wortende = links(rest, kZeile + 1).rfind(' ');
        const std::size_t ende =
            wortende == std::string::npos || wortende < kEinzug ? links(rest, kZeile).size() : wortende;
        zeilen.push_back(rest.substr(0, ende));
        rest = leerzeichen(kEinzug) + gekuerzt(rest.substr(ende));
    }
    zeilen.push_back(rest);
    return zeilen;
}

std::vector<Mangelbefund> BEFUNDE(const Maengel& zugferd, const Maengel& xrechnung) {
    std::vector<Mangelbefund> befunde;
    aufnehmen(befunde, zugferd, &Mangelbefund::zugferd);
    aufnehmen(befunde, xrechnung, &Mangelbefund::xrechnung);
    std::stable_sort(befunde.begin(), befunde.end(),
                     [](const Mangelbefund& a, const Mangelbefund& b) { return rang(a) < rang(b); });
    return befunde;
}

std::string STAND(const std::vector<Mangelbefund>& befunde) {
    const auto fehlend = [&befunde](bool Mangelbefund::*format) {
        return std::count_if(befunde.begin(), befunde.end(),
                             [format](const Mangelbefund& b) { return b.*format; });
    };
    return "ZUGFeRD-PDF: " + anzahl(fehlend(&Mangelbefund::zugferd)) +
           " XRechnung: " + anzahl(fehlend(&Mangelbefund::xrechnung));
}

} // namespace quittika
