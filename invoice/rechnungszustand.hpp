#pragma once

#include <string>

namespace quittika {

/// What the program knows of the invoice in hand besides its controls.
class Rechnungszustand {
public:
    std::string AktuellerPfad;     ///< file that the invoice was saved to or opened from; empty for none
    std::string ZuletztGeoeffnet;  ///< file chosen last in the open dialog
    std::string Notiztext;         ///< note; a line break stands as "#$§$#"
    bool IstDateiDesPfads = false; ///< the invoice in the window is the one in `AktuellerPfad`
    bool OhneRueckfrage = false;   ///< "Neu" does not ask whether to save

    /// True after a change by the user that is not saved yet.
    bool geaendert() const { return geaendert_; }
    /// Notes a change by the user; nothing while the program itself fills the controls.
    void aendern() {
        if (sperren_ == 0) {
            geaendert_ = true;
        }
    }
    void als_gespeichert_merken() { geaendert_ = false; }

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
    bool geaendert_ = false;
    int sperren_ = 0;
};

} // namespace quittika
