#include "print/etikett.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr double kSchrift = 12;
constexpr double kLinienlaenge = 60;
constexpr double kUnterlaenge = 5.5; ///< from the top of a text to the line below it
constexpr Color kFormularfarbe = color::rgb(190, 190, 190);
constexpr const char* kAusweg = "bitte Text kürzen.";
constexpr double kAbsenderX = 10; ///< on the envelope

constexpr Paper kA4{};
constexpr Paper kLang{220, 110};
constexpr Paper kKurz{162, 114};

using enum Wer;
using enum Wann;

bool gilt(Wann wann, const Etiketteninhalt& inhalt) {
    switch (wann) {
    case MitBeleg:
        return inhalt.beleg;
    case Breit:
        return !inhalt.schmal;
    case Schmal:
        return inhalt.schmal;
    case Immer:
        break;
    }
    return true;
}

bool LEER(const std::vector<std::string>& zeilen) {
    return std::all_of(zeilen.begin(), zeilen.end(), [](const std::string& zeile) { return zeile.empty(); });
}

/// Line `n` of a block; empty if there is none.
std::string text_von(const Etiketteninhalt& inhalt, Wer wer, std::size_t n) {
    if (wer == Ueberschrift) {
        return LEER(inhalt.von(Absender)) ? "" : "Absender:";
    }
    const std::vector<std::string>& zeilen = inhalt.von(wer);
    return n < zeilen.size() ? zeilen[n] : std::string();
}

/// Calls `tun` with block and number of each line that the form has for the given contents.
template <class Tun> void zeilen_durchgehen(const Etikett& etikett, const Etiketteninhalt& inhalt, Tun tun) {
    for (const Etikettblock& block : etikett.bloecke) {
        for (std::size_t n = 0; n < block.y.size() && block.y.at(n) > 0 && gilt(block.wann, inhalt); ++n) {
            tun(block, n);
        }
    }
}

} // namespace

constexpr Etikett etikett::kPaket{"Paketschein",
                                  {"BEDRUCKE PAKET...BLATT: ", "PAKET BEDRUCKEN ABGEBROCHEN.", kAusweg},
                                  {{{Absender, Immer, 70, {14, 21, 28}},
                                    {Kunde, Immer, 140, {67, 75, 83, 90}},
                                    {Absender, MitBeleg, 70, {205, 211, 217}},
                                    {Kunde, MitBeleg, 140, {258, 264, 270, 276}}}},
                                  {kA4, kA4}};

constexpr Etikett etikett::kPaketH{"Paketschein H-Versand",
                                   {"BEDRUCKE PAKET...BLATT: ", "PAKET BEDRUCKEN ABGEBROCHEN.", kAusweg},
                                   {{{Absender, Immer, 112, {19, 29, 39, 50}},
                                     {Kunde, Immer, 112, {61, 72, 83, 93}},
                                     {Telefon, Immer, 143, {19}},
                                     {Absender, MitBeleg, 112, {225, 231, 237}},
                                     {Kunde, MitBeleg, 112, {258, 264, 270, 276}}}},
                                   {kA4, kA4}};

constexpr Etikett etikett::kPaeckchen{
    "Päckchenschein",
    {"BEDRUCKE PÄCKCHEN...BLATT: ", "PÄCKCHEN BEDRUCKEN ABGEBROCHEN.", kAusweg},
    {{{Absender, Immer, 70, {14, 21, 28}}, {Kunde, Immer, 140, {61, 75, 83, 92}}}},
    {kA4, kA4}};

constexpr Etikett etikett::kBrief{
    "Briefumschlag",
    {"BEDRUCKE BRIEFUMSCHLAG...BLATT: ", "BRIEFUMSCHLAG BEDRUCKEN ABGEBROCHEN.", kAusweg},
    {{{Ueberschrift, Immer, kAbsenderX, {4}},
      {Absender, Immer, kAbsenderX, {10, 16, 22}},
      {Kunde, Breit, 95, {65, 73, 81, 89}},
      {Kunde, Schmal, 80, {65, 73, 81, 89}}}},
    {kLang, kKurz}};

bool Etiketteninhalt::leer() const {
    return std::all_of(zeilen.begin(), zeilen.end(), LEER);
}

void DRUCKE_ETIKETT(PrintSurface& surface, const Etikett& etikett, const Etiketteninhalt& inhalt) {
    surface.FontSize = kSchrift;
    zeilen_durchgehen(etikett, inhalt, [&](const Etikettblock& block, std::size_t n) {
        const std::string text = text_von(inhalt, block.wer, n);
        if (!text.empty()) {
            surface.CurrentX = block.x;
            surface.CurrentY = block.y.at(n);
            surface.PrintOn(text);
        }
    });
    surface.EndDoc();
}

void ZEICHNE_FORMULAR(PrintSurface& surface, const Etikett& etikett, const Etiketteninhalt& inhalt) {
    zeilen_durchgehen(etikett, inhalt, [&](const Etikettblock& block, std::size_t n) {
        if (block.wer != Ueberschrift) {
            const double y = block.y.at(n) + kUnterlaenge;
            surface.Line(block.x, y, block.x + kLinienlaenge, y, kFormularfarbe);
        }
    });
}

} // namespace quittika
