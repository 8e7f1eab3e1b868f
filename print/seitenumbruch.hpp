#pragma once

#include "settings/frm_einstellungen.hpp"

#include <string>
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

/// The chunk of each page for rows of these kinds ("T" ends its page). Break rows without a row to print
/// before them on their page break nothing, and a full page takes those that follow it, so no page is
/// empty. Without rows there is one page with an empty chunk.
std::vector<Zeilenbereich> Seitenumbruch(const std::vector<std::string>& arten, Seitengroesse groesse);

/// Pages that rows of these kinds need, at least 1, with the choices of the settings dialog.
int ANZAHL_DRUCKSEITEN(const std::vector<std::string>& arten, const frm_einstellungen& einstellungen);

} // namespace quittika
