#pragma once

#include "analyzer/form_analyzer.hpp"
#include "analyzer/spalten.hpp"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace quittika {

/// What is kept of an invoice, by `rohdatum`.
using Probenrechnung = std::array<const char*, rohdatum::kAnzahl>;

/// Six invoices of two months, one without a date.
inline const std::vector<Probenrechnung> kProbenrechnungen{
    {"05.11.2008", "RN-", "10", "K7", "Müller", "JA", "NEIN", "0", "JA", "100,00", "19,00", "119,00", ""},
    {"2.1.2009", "RN-", "9", "K12", "Ähre GmbH", "JA", "JA", "1", "NEIN", "1000,00", "190,00", "1190,00",
     "ruft an"},
    {"irgendwann", "RN-", "11", "K7", "Mueller & Sohn", "NEIN", "NEIN", "0", "NEIN", "10,00", "1,90", "11,90",
     ""},
    {"28.11.2008", "RN-", "100", "", "Zander", "JA", "JA", "0", "NEIN", "-20,00", "-3,80", "-23,80", ""},
    {"01.11.08", "RN-", "2", "K3", "Otto; \"Rolf\"", "JA", "NEIN", "0", "NEIN", "keine", "", "59,5",
     "Preis in \xE2\x82\xAC \xE2\x9C\x93"},
    {"30.11.2008", "RN-", "8", "K3", "Otto", "JA", "NEIN", "0", "JA", "200,00", "38,00", "238,00", ""},
};

/// Fills the lists as an analysis does.
inline void PROBE_EINTRAGEN(Form_Analyzer& form, const std::vector<Probenrechnung>& rechnungen) {
    for (const Probenrechnung& rechnung : rechnungen) {
        for (std::size_t i = 0; i < rohdatum::kAnzahl; ++i) {
            form.List_rohdata[static_cast<int>(i)].AddItem(rechnung.at(i));
        }
        const auto spalte = [&rechnung](int rohspalte, int art, std::size_t breite) {
            return SPALTE_FORMAT(art, rechnung.at(static_cast<std::size_t>(rohspalte)), breite);
        };
        form.List_ANSICHT.AddItem(
            spalte(0, 0, 12) + SPALTE_FORMAT(2, std::string(rechnung[1]) + rechnung[2], 21) + " " +
            spalte(3, 0, 23) + " " + spalte(4, 0, 17) + spalte(5, 0, 7) + spalte(6, 0, 5) + spalte(7, 0, 3) +
            spalte(8, 0, 5) + spalte(9, 2, 11) + spalte(10, 2, 11) + spalte(11, 2, 11));
        form.List_dateien.AddItem(std::string("R") + rechnung[2] + ".qk8");
    }
}

} // namespace quittika
