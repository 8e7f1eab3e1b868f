#pragma once

#include "settings/frm_einstellungen.hpp"

#include <array>
#include <string>

namespace quittika {

/// Logo and watermark of the settings: what the designer chose for them can be taken back.
class Bilderstand {
public:
    explicit Bilderstand(frm_einstellungen& einstellungen);

    /// What is in force now is what counts again after `zuruecknehmen`.
    void merken();
    /// The designer has just chosen a logo.
    void logo_gewaehlt() { plaetze_[0].gewaehlt = stand(plaetze_[0]); }
    void wasserzeichen_gewaehlt() { plaetze_[1].gewaehlt = stand(plaetze_[1]); }
    /// Gives back what stood there before; what was chosen elsewhere in the meantime stays.
    void zuruecknehmen();

private:
    struct Bild {
        std::string pfad; ///< as the settings write it
        std::string druckbild;
        std::string ansicht;
        bool operator==(const Bild&) const = default;
    };
    struct Platz {
        TextBox& pfad;
        PictureControl& druckbild;
        PictureControl& ansicht;
        Bild vorher{};
        Bild gewaehlt{};
    };
    static Bild stand(const Platz& platz);

    std::array<Platz, 2> plaetze_;
};

} // namespace quittika
