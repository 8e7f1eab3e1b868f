#pragma once

#include "platform/print_surface.hpp"
#include "platform/recording.hpp"
#include "platform/text.hpp"
#include "print/belegdruck.hpp"
#include "tests/feste_schrift.hpp"
#include "tests/pruefstand.hpp"

#include <string>
#include <vector>

namespace quittika {

/// What has reached the paper; every path on it is a picture.
struct Papier : RecordedJob {
    Papier() : RecordedJob(PrintDocument{}) {}

    int seiten() const { return static_cast<int>(pages.size()); }
    const DrawnPage& seite(int nummer) const { return pages.at(static_cast<std::size_t>(nummer - 1)); }
    /// The first text of that beginning on a page, or null.
    const drawn::Text* finden(const std::string& anfang, int auf_seite = 1) const {
        for (const Drawing& d : seite(auf_seite).drawings) {
            if (const auto* text = std::get_if<drawn::Text>(&d); text && beginnt_mit(text->text, anfang)) {
                return text;
            }
        }
        return nullptr;
    }
    /// The texts, lines or pictures of a page.
    template <class Art> std::vector<Art> alle(int auf_seite = 1) const {
        std::vector<Art> gefunden;
        for (const Drawing& d : seite(auf_seite).drawings) {
            if (const auto* stueck = std::get_if<Art>(&d)) {
                gefunden.push_back(*stueck);
            }
        }
        return gefunden;
    }
};

inline double rechts(const drawn::Text* text) {
    return text->left + text->width;
}

/// Takes any path for a picture, or none.
struct Papierbilder : Pictures {
    int fehler = 0;
    PictureSize check(const std::string& /*path*/) override {
        return fehler == 0 ? PictureSize{} : throw Laufzeitfehler(fehler);
    }
};

/// Draws on paper that outlives it.
struct Papiergeraet {
    explicit Papiergeraet(Papier& papier)
        : geraet(std::shared_ptr<RecordedJob>(std::shared_ptr<void>(), &papier), bilder) {}
    operator PrintDevice&() { return geraet; }

    Papierbilder bilder;
    RecordingDevice geraet;
};

/// An invoice without print adjustment, drawn on paper that can be read.
struct Druckprobe : Pruefstand {
    FesteSchrift schrift;
    Designdatei designdatei{verzeichnis, dialoge, form1.Hinweise};
    Belegdruck druck{form1, einstellungen, werte, designdatei, [] { return std::nullopt; }};

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
