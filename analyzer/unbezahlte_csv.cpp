#include "analyzer/unbezahlte_csv.hpp"

#include "analyzer/betragssumme.hpp"
#include "platform/text.hpp"

#include <initializer_list>
#include <string_view>

namespace quittika {

namespace {

/// In quotation marks where the text would be read as something else without them.
std::string feld(std::string_view text) {
    const bool rand = !text.empty() && (text.front() == ' ' || text.back() == ' ');
    if (!rand && text.find_first_of(";\"\r\n\t") == std::string_view::npos) {
        return std::string(text);
    }
    return '"' + ersetzen(text, "\"", "\"\"") + '"';
}

std::string betragsfeld(std::string_view text) {
    if (!BETRAG_LESEN(text)) {
        return feld(text);
    }
    Betragssumme betrag;
    betrag.dazu(text);
    return betrag.text();
}

std::string zeile(std::initializer_list<std::string> felder) {
    std::string text;
    for (const std::string& eines : felder) {
        text += eines + ';';
    }
    text.pop_back();
    return text + "\r\n";
}

} // namespace

Csvinhalt UNBEZAHLTE_CSV(const Rechnungstabelle& daten, const std::vector<std::string>& dateien,
                         Zeichensatz zeichensatz) {
    using namespace rohdatum;
    Csvinhalt inhalt;
    std::string text = "Datum;Rechnungsnummer;Kundennummer;Kundenname;versendet;abgemahnt;Mahnstufe;Netto;"
                       "MwSt;Brutto;Notiz;Datei\r\n";
    for (int i = 0; i < daten.anzahl(); ++i) {
        if (daten.bezahlt(i)) {
            continue;
        }
        const auto wort = [&](std::size_t spalte) { return feld(daten.text(spalte, i)); };
        const auto betrag = [&](std::size_t spalte) { return betragsfeld(daten.text(spalte, i)); };
        text += zeile({wort(kDatum), feld(daten.nummer(i)), wort(kKundennummer), wort(kKundenname),
                       wort(kVersendet), wort(kAbgemahnt), wort(kMahnstufe), betrag(kNetto), betrag(kMwSt),
                       betrag(kBrutto), feld(daten.notiz(i)), feld(dateien.at(static_cast<std::size_t>(i)))});
        ++inhalt.rechnungen;
    }
    if (zeichensatz == Zeichensatz::Utf8) {
        inhalt.bytes = "\xEF\xBB\xBF" + text;
    } else {
        inhalt.ersetzt = ansi_anhaengen(inhalt.bytes, text);
    }
    return inhalt;
}

} // namespace quittika
