#pragma once

#include "platform/print_surface.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"
#include "print/belegdruck.hpp"
#include "tests/feste_schrift.hpp"
#include "tests/pruefstand.hpp"

#include <string>
#include <vector>

namespace quittika {

struct GezeichneterText {
    int seite;
    double links;
    double oben;
    double rechts;
    double groesse;
    bool fett;
    Color farbe;
    std::string text;
};

struct GezeichneteLinie {
    int seite;
    double x1;
    double y1;
    double x2;
    double y2;
    Color farbe;
};

/// What has reached the paper.
struct Papier {
    std::vector<GezeichneterText> texte;
    std::vector<GezeichneteLinie> linien;
    std::vector<std::string> bilder;
    int seite = 1;
    int enden = 0;

    /// The first text of that beginning on a page, or null.
    const GezeichneterText* finden(const std::string& anfang, int auf_seite = 1) const {
        for (const GezeichneterText& t : texte) {
            if (t.seite == auf_seite && beginnt_mit(t.text, anfang)) {
                return &t;
            }
        }
        return nullptr;
    }
};

/// Draws on paper that outlives the job.
class Papiergeraet : public PrintDevice {
public:
    /// `bildfehler` and `endfehler` are raised by pictures and at the end of the document, unless 0.
    explicit Papiergeraet(Papier& papier, int bildfehler = 0, int endfehler = 0)
        : papier_(papier), bildfehler_(bildfehler), endfehler_(endfehler) {}

    void text(double left, double top, double width, const PrintFont& font, Color color,
              std::string_view text) override {
        papier_.texte.push_back(
            {papier_.seite, left, top, left + width, font.size, font.bold, color, std::string(text)});
    }
    void line(double x1, double y1, double x2, double y2, Color color) override {
        papier_.linien.push_back({papier_.seite, x1, y1, x2, y2, color});
    }
    void picture(double left, double top, double width, double height, const std::string& path) override {
        melden(bildfehler_);
        papier_.bilder.push_back(path + " " + format_zahl(left, "0") + " " + format_zahl(top, "0") + " " +
                                 format_zahl(width, "0") + " " + format_zahl(height, "0.0"));
    }
    void new_page() override { ++papier_.seite; }
    void end_document() override {
        melden(endfehler_);
        ++papier_.enden;
    }

private:
    static void melden(int nummer) {
        if (nummer != 0) {
            throw Laufzeitfehler(nummer);
        }
    }

    Papier& papier_;
    int bildfehler_;
    int endfehler_;
};

/// An invoice without print adjustment, drawn on paper that can be read.
struct Druckprobe : Pruefstand {
    FesteSchrift schrift;
    Designdatei designdatei{verzeichnis, dialoge, form1.Hinweise};
    Belegdruck druck{form1, einstellungen, werte, designdatei};

    Druckprobe() {
        form1.Text_RNnr.Text = "7";
        form1.Text_leistung.Text = "Posten";
    }
    void zeilen(int anzahl) {
        for (int i = 0; i < anzahl; ++i) {
            zeile("1", "Posten", "10");
        }
    }
    Papier drucken(Druckjustierung just = {0, 0}, const Druckoptionen& optionen = {}) {
        Papier papier;
        Papiergeraet geraet(papier);
        PrintSurface flaeche(geraet, schrift);
        druck.vorbereiten(optionen).DRUCKEN(flaeche, just);
        return papier;
    }
};

} // namespace quittika
