#include "print/tabellenstil.hpp"

#include "designer/design.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace quittika {

namespace {

constexpr double kLinks = 12;
constexpr double kRechts = 188;
constexpr double kAbstand = 2;       ///< mm above and below a rule
constexpr double kStrich = 0.1;      ///< mm from line to line of an area, half a line's width
constexpr double kSpaltenluft = 2.2; ///< mm between a column and its upright rule
constexpr double kPositionsende = 20;
constexpr double kGesamtbreite = 30; ///< mm that heading and amounts of the last column take
constexpr double kPreisbreite = 28;
constexpr int kSchatten = 30; ///< how much darker than white a shade is, of 255

/// What a style draws besides the texts.
struct Stil {
    bool rahmen = false;       ///< box and upright rules
    bool balken = false;       ///< headings on the line colour
    bool zebra = false;        ///< every second row on a shade
    bool zeilenlinien = false; ///< a light rule between rows
    bool kopflinie = false;
    bool schlusslinie = false;
    bool fetter_kopf = false;
};

constexpr std::array<Stil, kTabellendesigns> kStile{{
    {},
    {.rahmen = true, .kopflinie = true, .schlusslinie = true},
    {.zebra = true, .kopflinie = true, .schlusslinie = true, .fetter_kopf = true},
    {.balken = true, .zeilenlinien = true, .schlusslinie = true, .fetter_kopf = true},
    {.kopflinie = true, .fetter_kopf = true},
}};

int anteil(Color farbe, int stelle) {
    return (farbe >> (8 * stelle)) & 0xFF;
}

int helligkeit(Color farbe) {
    return (anteil(farbe, 0) * 3 + anteil(farbe, 1) * 6 + anteil(farbe, 2)) / 10;
}

/// The colour thinned with white, dark or light ones to the same shade: it can be seen on every printer.
Color hell(Color farbe) {
    const int dunkel = std::max(255 - helligkeit(farbe), kSchatten);
    const auto teil = [&](int stelle) { return 255 - (255 - anteil(farbe, stelle)) * kSchatten / dunkel; };
    return color::rgb(teil(0), teil(1), teil(2));
}

/// What can be read on the colour, on paper without colours too.
Color schrift_auf(Color farbe) {
    return helligkeit(farbe) < 140 ? color::rgb(255, 255, 255) : color::kBlack;
}

class Tabellenzeichner {
public:
    Tabellenzeichner(Blatt& blatt, const Drucktabelle& tabelle, const Stil& stil, Color farbe)
        : blatt_(blatt), surface_(blatt.surface), tabelle_(tabelle), stil_(stil), farbe_(farbe) {}

    void drucken(Zeilenbereich zeilen) {
        surface_.CurrentY += kAbstand;
        const double oben = surface_.CurrentY;
        kopf();
        const double kopfende = surface_.CurrentY;
        surface_.CurrentY += kAbstand;
        reihen(zeilen);
        surface_.CurrentY += kAbstand;
        const double unten = surface_.CurrentY;
        if (stil_.kopflinie) {
            waagrecht(kopfende, farbe_);
        }
        if (stil_.schlusslinie) {
            waagrecht(unten, farbe_);
        }
        if (stil_.rahmen) {
            waagrecht(oben, farbe_);
            senkrecht(kLinks, oben, unten);
            senkrecht(kRechts, oben, unten);
            for (const double x : spaltenlinien()) {
                spaltenlinie(x, oben, kopfende, unten);
            }
        }
        surface_.CurrentY += kAbstand;
    }

private:
    void kopf() {
        const double hoehe = 2 * kAbstand + surface_.TextHeight();
        if (stil_.balken) {
            flaeche(surface_.CurrentY, surface_.CurrentY + hoehe, farbe_);
            surface_.ForeColor = schrift_auf(farbe_);
        }
        surface_.CurrentY += kAbstand;
        surface_.FontBold = stil_.fetter_kopf;
        tabelle_.UEBERSCHRIFTEN(blatt_);
        surface_.FontBold = false;
        surface_.ForeColor = color::kBlack;
        surface_.CurrentY += kAbstand;
    }

    void reihen(Zeilenbereich zeilen) {
        int gedruckt = 0;
        for (int index = zeilen.von; index <= zeilen.bis; ++index) {
            if (!tabelle_.DRUCKT(index)) {
                continue;
            }
            const double y = surface_.CurrentY;
            if (stil_.zebra && gedruckt % 2 == 0) {
                flaeche(y, y + surface_.TextHeight(), hell(farbe_));
            }
            if (stil_.zeilenlinien && gedruckt > 0) {
                waagrecht(y, hell(farbe_));
            }
            tabelle_.ZEILE(blatt_, index);
            textende_ = std::max(textende_, tabelle_.TEXTENDE(surface_, index));
            ++gedruckt;
        }
    }

    std::vector<double> spaltenlinien() const {
        const Spalten& s = tabelle_.spalten();
        std::vector<double> stellen{s.X_Leistung - kSpaltenluft};
        if (tabelle_.zeigt_positionen()) {
            stellen.push_back(kPositionsende + 1.2);
        }
        if (tabelle_.zeigt_preise()) {
            stellen.push_back(s.X_Gesamt + 3 - kGesamtbreite);
            stellen.push_back(s.X_Einzelpreis + 3 - kPreisbreite);
        }
        return stellen;
    }

    void waagrecht(double y, Color farbe) { surface_.Line(blatt_.X(kLinks), y, blatt_.X(kRechts), y, farbe); }
    void senkrecht(double x, double von, double bis) {
        surface_.Line(blatt_.X(x), von, blatt_.X(x), bis, farbe_);
    }
    /// Ends below the headings where a long description would run across it.
    void spaltenlinie(double x, double oben, double kopfende, double unten) {
        const bool frei = x < tabelle_.spalten().X_Leistung || textende_ < x;
        senkrecht(x, oben, frei ? unten : kopfende);
    }
    void flaeche(double oben, double unten, Color farbe) {
        const int striche = static_cast<int>((unten - oben) / kStrich);
        for (int i = 1; i < striche; ++i) {
            waagrecht(oben + i * kStrich, farbe);
        }
    }

    Blatt& blatt_;
    PrintSurface& surface_;
    const Drucktabelle& tabelle_;
    const Stil& stil_;
    Color farbe_;
    double textende_ = 0; ///< of the longest description, mm, not adjusted
};

} // namespace

void DRUCKE_TABELLE(Blatt& blatt, const Drucktabelle& tabelle, Zeilenbereich zeilen, int stil, Color farbe) {
    if (stil < 1 || stil >= static_cast<int>(kStile.size())) {
        tabelle.DRUCKE_POSITIONEN(blatt, zeilen);
        return;
    }
    Tabellenzeichner(blatt, tabelle, kStile.at(static_cast<std::size_t>(stil)), farbe).drucken(zeilen);
}

} // namespace quittika
