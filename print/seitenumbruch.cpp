#include "print/seitenumbruch.hpp"

#include <cstddef>

namespace quittika {

Seitengroesse ZEILENPROSEITE(bool kopf_alle_seiten, bool bemerkungen_alle_seiten, bool mit_logoadresse) {
    const int erste = bemerkungen_alle_seiten ? 12 : 16;
    if (kopf_alle_seiten) {
        return {erste, 9};
    }
    if (mit_logoadresse) {
        return {erste, 27};
    }
    return {erste, bemerkungen_alle_seiten ? 37 : 40};
}

Seitengroesse ZEILENPROSEITE(const frm_einstellungen& einstellungen) {
    return ZEILENPROSEITE(einstellungen.Option_RN_Kopf_alleSeiten.Value(),
                          einstellungen.Option_RN_BM_alleSeite.Value(),
                          einstellungen.Check_MitLogoadresseFFSeite.ticked());
}

std::vector<Zeilenbereich> Seitenumbruch(const std::vector<std::string>& arten, Seitengroesse groesse) {
    std::vector<Zeilenbereich> seiten{{}};
    int frei = groesse.ZeilenErsteSeite + 1;
    bool begonnen = false; // only breaks stand before the first row that prints
    for (int zeile = 0; zeile < static_cast<int>(arten.size()); ++zeile) {
        const bool umbruch = arten[static_cast<std::size_t>(zeile)] == "T";
        if (!umbruch && frei == 0) {
            seiten.push_back({zeile, zeile});
            frei = groesse.ZeilenFolgeseite + 1;
        }
        seiten.back().bis = zeile;
        begonnen = begonnen || !umbruch;
        if (!umbruch) {
            --frei;
        } else if (begonnen) {
            frei = 0;
        }
    }
    return seiten;
}

int ANZAHL_DRUCKSEITEN(const std::vector<std::string>& arten, const frm_einstellungen& einstellungen) {
    return static_cast<int>(Seitenumbruch(arten, ZEILENPROSEITE(einstellungen)).size());
}

} // namespace quittika
