#include "print/seitenumbruch.hpp"

#include <algorithm>

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

std::vector<Zeilenbereich> Seitenumbruch(int zeilen, Seitengroesse groesse) {
    const int letzte = zeilen - 1;
    std::vector<Zeilenbereich> seiten{{0, std::min(groesse.ZeilenErsteSeite, letzte)}};
    while (seiten.back().bis < letzte) {
        const int von = seiten.back().bis + 1;
        seiten.push_back({von, std::min(von + groesse.ZeilenFolgeseite, letzte)});
    }
    return seiten;
}

int ANZAHL_DRUCKSEITEN(int zeilen, Seitengroesse groesse) {
    return static_cast<int>(Seitenumbruch(zeilen, groesse).size());
}

int ANZAHL_DRUCKSEITEN(int zeilen, const frm_einstellungen& einstellungen) {
    return ANZAHL_DRUCKSEITEN(zeilen, ZEILENPROSEITE(einstellungen));
}

} // namespace quittika
