#include "print/druckseiten.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"

namespace quittika {

namespace {

std::string betrag(const Form1& form1, double wert) {
    return format_zahl(wert, form1.Check_000.ticked() ? "0.000" : "0.00");
}

} // namespace

std::string SUMME_SEITE(const Form1& form1, Zeilenbereich zeilen) {
    double summe = 0;
    for (int index = zeilen.von; index <= zeilen.bis; ++index) {
        summe += double_versuch(form1.List_Gesamtp.List(index)).value_or(0);
    }
    return betrag(form1, summe);
}

std::string ZWISCHENSUMME(const Form1& form1, Zeilenbereich zeilen, const std::string& uebertrag) {
    try {
        return betrag(form1, double_versuch(SUMME_SEITE(form1, zeilen)).value_or(0) +
                                 double_versuch(uebertrag).value_or(0));
    } catch (const Laufzeitfehler&) {
        return uebertrag; // a sum beyond all bounds must not cost the rest of the document
    }
}

std::vector<Druckseite> DRUCKSEITEN(const Form1& form1, const frm_einstellungen& einstellungen) {
    const std::vector<Zeilenbereich> bereiche =
        Seitenumbruch(form1.List_K.items(), ZEILENPROSEITE(einstellungen));
    std::vector<Druckseite> seiten;
    Druckseite seite;
    seite.anzahl = static_cast<int>(bereiche.size());
    for (const Zeilenbereich& zeilen : bereiche) {
        seite.zeilen = zeilen;
        seite.zwischensumme = ZWISCHENSUMME(form1, zeilen, seite.uebertrag);
        seiten.push_back(seite);
        ++seite.nummer;
        seite.uebertrag = seite.zwischensumme;
    }
    return seiten;
}

} // namespace quittika
