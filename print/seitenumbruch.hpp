#pragma once

#include "settings/frm_einstellungen.hpp"

#include <vector>

namespace quittika {

/// Sizes of the chunks of rows. A chunk is inclusive at both ends, so it holds one row more than its size.
struct Seitengroesse {
    int ZeilenErsteSeite = 0;
    int ZeilenFolgeseite = 0;
    bool operator==(const Seitengroesse&) const = default;
};

/// Rows `von` to `bis` of the position lists, counted from 0, both included; empty where `bis` < `von`.
struct Zeilenbereich {
    int von = 0;
    int bis = -1;
    bool operator==(const Zeilenbereich&) const = default;
};

/// Chunk sizes by what stands on every page: the whole head, the remarks, and on the pages
/// after the first one the logo with the company's address.
Seitengroesse ZEILENPROSEITE(bool kopf_alle_seiten, bool bemerkungen_alle_seiten, bool mit_logoadresse);
/// The same for the choices of the settings dialog.
Seitengroesse ZEILENPROSEITE(const frm_einstellungen& einstellungen);

/// The chunk of each page. Without rows there is one page with an empty chunk.
std::vector<Zeilenbereich> Seitenumbruch(int zeilen, Seitengroesse groesse);

/// Pages that `zeilen` rows need, at least 1.
int ANZAHL_DRUCKSEITEN(int zeilen, Seitengroesse groesse);
/// The same for `zeilen` rows with the choices of the settings dialog.
int ANZAHL_DRUCKSEITEN(int zeilen, const frm_einstellungen& einstellungen);

} // namespace quittika
