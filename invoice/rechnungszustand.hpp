#pragma once

#include <functional>
#include <string>
#include <utility>

namespace quittika {

inline constexpr const char* kZeilenwechsel = "#$§$#"; ///< a line break of a note, in its file

/// What the program knows of the invoice in hand besides its controls.
class Rechnungszustand {
public:
    std::string ZuletztGeoeffnet; ///< file chosen last in the open dialog
    std::string Notiztext;        ///< note; a line break stands as `kZeilenwechsel`
    bool OhneRueckfrage = false;  ///< "Neu" does not ask whether to save

    /// Called when the file in hand, or whether there are unsaved changes, may be another than before.
    std::function<void()> Gewechselt;

    /// Called before another invoice takes the place of the one in the window.
    std::function<void()> VorNeuemBeleg;
    /// Another invoice begins in the window.
    void NeuerBeleg() {
        if (VorNeuemBeleg) {
            VorNeuemBeleg();
        }
        beleg_ = ++belege_;
    }
    /// The invoice `beleg` is in the window again.
    void BelegWiederholen(int beleg) { beleg_ = beleg; }
    /// Tells the invoices apart that were in the window since the start.
    int Beleg() const { return beleg_; }

    /// File that the invoice was saved to or opened from; empty for none.
    const std::string& AktuellerPfad() const { return pfad_; }
    /// Whether the invoice in the window is the one in `AktuellerPfad`.
    bool IstDateiDesPfads() const { return ist_datei_; }
    /// The invoice in the window is the one in this file; an empty path is none.
    void DateiSetzen(std::string pfad) {
        pfad_ = std::move(pfad);
        ist_datei_ = !pfad_.empty();
        melden();
    }
    /// The invoice in the window is another than the one in `AktuellerPfad`.
    void DateiLoesen() {
        ist_datei_ = false;
        melden();
    }

    /// True after a change by the user that is not saved yet.
    bool geaendert() const { return geaendert_; }
    /// Notes a change by the user.
    void aendern() {
        if (!geaendert_) {
            geaendert_ = true;
            melden();
        }
    }
    void als_gespeichert_merken() {
        geaendert_ = false;
        melden();
    }

    /// True while the program fills the controls: what their events do for a user must not happen then.
    bool gesperrt() const { return sperren_ > 0; }

    /// Keeps the events of the controls quiet for its lifetime.
    class Sperre {
    public:
        explicit Sperre(Rechnungszustand& zustand) : zustand_(zustand) { ++zustand_.sperren_; }
        Sperre(const Sperre&) = delete;
        Sperre& operator=(const Sperre&) = delete;
        ~Sperre() { --zustand_.sperren_; }

    private:
        Rechnungszustand& zustand_;
    };

private:
    void melden() const {
        if (Gewechselt) {
            Gewechselt();
        }
    }

    std::string pfad_;
    bool ist_datei_ = false;
    bool geaendert_ = false;
    int beleg_ = 0;
    int belege_ = 0;
    int sperren_ = 0;
};

} // namespace quittika
