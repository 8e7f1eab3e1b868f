#include "designer/bilderstand.hpp"

namespace quittika {

Bilderstand::Bilderstand(frm_einstellungen& einstellungen)
    : plaetze_{{{einstellungen.Text_logopath, einstellungen.Picture1, einstellungen.logotab},
                {einstellungen.Text_bildpath, einstellungen.Picture_wasserz, einstellungen.Image_WASSERZ}}} {}

Bilderstand::Bild Bilderstand::stand(const Platz& platz) {
    return {platz.pfad.Text(), platz.druckbild.Picture(), platz.ansicht.Picture()};
}

void Bilderstand::merken() {
    for (Platz& platz : plaetze_) {
        platz.vorher = stand(platz);
        platz.gewaehlt = platz.vorher;
    }
}

void Bilderstand::zuruecknehmen() {
    for (Platz& platz : plaetze_) {
        if (stand(platz) == platz.gewaehlt && platz.gewaehlt != platz.vorher) {
            platz.pfad.Text = platz.vorher.pfad;
            platz.druckbild.show_picture(platz.vorher.druckbild);
            platz.ansicht.show_picture(platz.vorher.ansicht);
        }
    }
}

} // namespace quittika
