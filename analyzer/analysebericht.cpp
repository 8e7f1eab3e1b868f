#include "analyzer/analysebericht.hpp"

#include "platform/text.hpp"

namespace quittika {

namespace {

constexpr std::size_t kBreite = 96;
constexpr int kStrichpaare = 48;

std::string GESTRICHELT() {
    std::string linie = "-";
    for (int i = 1; i < kStrichpaare; ++i) {
        linie += " -";
    }
    return linie;
}

} // namespace

Textpuffer ANALYSEBERICHT(const Form_Analyzer& form) {
    Textpuffer bericht;
    for (const std::string& zeile : form.List_Zusammenfassung.items()) {
        bericht.zeile(einzeilig(zeile));
    }
    bericht.zeile(std::string(kBreite, '*'));
    bericht.zeile("");
    bericht.zeile("Es folgt nun eine Auflistung aller berücksichtigten Rechnungsdateien");
    bericht.zeile(std::string(kBreite, '-'));
    for (const Label& kopf : form.Label_BESCHRIFTUNG_LISTE) {
        bericht.zeile(kopf.Caption());
    }
    bericht.zeile(GESTRICHELT());
    for (int i = 0; i < form.List_ANSICHT.ListCount(); ++i) {
        bericht.zeile(einzeilig(form.List_ANSICHT.List(i)));
        bericht.zeile("[" + einzeilig(form.List_dateien.List(i)) + "]");
        bericht.zeile("");
    }
    return bericht;
}

} // namespace quittika
