#include "invoice/file/exporttext.hpp"

#include "invoice/belegtexte.hpp"
#include "invoice/kundenfelder.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <optional>
#include <utility>

namespace quittika {

namespace {

constexpr std::size_t kBreite = 118;
constexpr std::size_t kTrennlinie = 55;

class Exportseite {
public:
    Exportseite(const Form1& form1, const frm_einstellungen& einstellungen)
        : form1_(form1), einstellungen_(einstellungen) {}

    Exporttext schreiben() {
        kopf();
        titel();
        bemerkungen();
        positionen();
        summen();
        return std::move(text_);
    }

private:
    void zeile(std::string text) { text_.zeilen.push_back(std::move(text)); }
    void leerzeilen(std::size_t anzahl) { text_.zeilen.resize(text_.zeilen.size() + anzahl); }
    void rechts(const std::string& text) {
        text_.gekuerzt = text_.gekuerzt || zeichenzahl(text) > kBreite;
        zeile(ExportSpalte(Spaltenart::Rechts, text, kBreite));
    }
    void betrag(const std::string& bezeichnung, const TextBox& wert) {
        rechts(bezeichnung + "  " + wert.Text());
    }

    void kopf() {
        const frm_einstellungen& e = einstellungen_;
        for (const TextBox* firma : {&e.Text_firma_5, &e.Text_firma_6, &e.Text_firma_7, &e.Text_firma_8,
                                     &e.Text_firma_1, &e.Text_firma_2, &e.Text_firma_3, &e.Text_firma_4}) {
            zeile(firma->Text());
        }
        leerzeilen(2);
        const Form1& f = form1_;
        for (const TextBox* kunde : KUNDENFELDER(f)) {
            zeile(KUNDENTEXT(f, *kunde));
        }
        leerzeilen(2);
    }

    void titel() {
        zeile(form1_.Text_rechnung.Text() + form1_.Text_RNnr.Text());
        if (form1_.Check_LIEFERDATUM.ticked()) {
            zeile(form1_.Text_LIEFERDATUM.Text());
        }
        leerzeilen(2);
        rechts(form1_.Text_Datum.Text());
        zeile("EXPORTDATEI - " + form1_.Text_rechnung.Text());
        leerzeilen(2);
        zeile(einstellungen_.Text_Werbung.Text());
        leerzeilen(3);
    }

    void bemerkungen() {
        const int block = form1_.Option_anschreiben.Value() ? 0 : 1;
        for (const auto* bemerkung : {&form1_.Text_Bemerkung1, &form1_.Text_Bemerkung2,
                                      &form1_.Text_Bemerkung3, &form1_.Text_Bemerkung4}) {
            zeile((*bemerkung)[block].Text());
        }
        leerzeilen(2);
    }

    void positionen() {
        const Form1& f = form1_;
        zeile(f.Label_Pos.Caption() + leerzeichen(4) + f.Label_Menge.Caption() + leerzeichen(33) +
              f.Label_Leistung.Caption() + leerzeichen(28) + f.Label_preis.Caption() + leerzeichen(2) +
              f.Label_gesamtp.Caption());
        zeile(std::string(kBreite, '*'));
        const std::vector<std::string>& zeilen = f.List_DARSTELLUNG.items();
        text_.zeilen.insert(text_.zeilen.end(), zeilen.begin(), zeilen.end());
        zeile(std::string(kBreite, '*'));
    }

    void summen() {
        const Form1& f = form1_;
        betrag(SUMMENBEZEICHNUNG(f), f.Text_summe);
        if (f.Check_RABATT.ticked()) {
            betrag("Rabatt (" + f.Text_Rabatt.Text() + " %):", f.Text_summeRabatt);
            betrag(f.Label_summeNACHRABATT.Caption(), f.Text_summeNACHRABATT);
        }
        if (f.Check_mwst.ticked()) {
            betrag("MwSt. (" + f.Text_MwSt.Text() + " %):", f.Text_summemwst);
        }
        if (f.Check_Versandkosten.ticked()) {
            versandkosten();
        }
        betrag(f.Label_gesamtbetrag.Caption(), f.Text_gesamtbetrag);
    }

    void versandkosten() {
        const Form1& f = form1_;
        betrag(f.Label_Versandkosten.Caption(), f.Text_PreisVersankosten);
        rechts(std::string(kTrennlinie, '*'));
        if (f.Check_VersandMwStEXTRA.ticked() || f.Check_VersandINKL_MwSt.ticked()) {
            betrag(f.Label_VersandkostenMWST.Caption(), f.Text_PreisVersankostenMwST);
            rechts(std::string(kTrennlinie, '*'));
        }
    }

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Exporttext text_;
};

} // namespace

std::string ExportSpalte(Spaltenart art, std::string_view text, std::size_t breite) {
    std::string inhalt(text);
    if (const auto zahl = art == Spaltenart::Zahl ? double_versuch(text) : std::nullopt) {
        inhalt = format_zahl(*zahl, "000");
    }
    if (zeichenzahl(inhalt) > breite) {
        inhalt = links(inhalt, breite < 2 ? 0 : breite - 2) + links("..", breite);
    }
    const std::size_t rest = breite - zeichenzahl(inhalt);
    const std::size_t davor = art == Spaltenart::Links ? 0 : art == Spaltenart::Rechts ? rest : rest / 2;
    return leerzeichen(davor) + inhalt + leerzeichen(rest - davor);
}

Exporttext EXPORTTEXT(const Form1& form1, const frm_einstellungen& einstellungen) {
    return Exportseite(form1, einstellungen).schreiben();
}

} // namespace quittika
