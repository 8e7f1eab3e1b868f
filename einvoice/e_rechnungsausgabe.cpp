#include "einvoice/e_rechnungsausgabe.hpp"

#include "einvoice/cii.hpp"
#include "einvoice/zugferd.hpp"
#include "invoice/file/hindernis.hpp"
#include "print/belegausgabe.hpp"
#include "print/dokumentnamen.hpp"

#include <charconv>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

namespace quittika {

namespace {

/// The numbers behind the word "line" in what the schema check reports.
std::set<int> zeilen_in(std::string_view meldungen) {
    constexpr std::string_view kWort = "line ";
    std::set<int> zeilen;
    for (std::size_t fund = meldungen.find(kWort); fund != std::string_view::npos;
         fund = meldungen.find(kWort, fund)) {
        fund += kWort.size();
        int zeile = 0;
        const auto gelesen =
            std::from_chars(meldungen.data() + fund, meldungen.data() + meldungen.size(), zeile);
        if (gelesen.ec == std::errc{}) {
            zeilen.insert(zeile);
        }
    }
    return zeilen;
}

} // namespace

E_Rechnungsausgabe::E_Rechnungsausgabe(Form1& form1, const frm_einstellungen& einstellungen,
                                       const PROGRAMMEINSTELLUNG& werte, const Angabenspeicher& speicher,
                                       Belegdruck& belegdruck, Printing& printing)
    : form1_(form1),
      einstellungen_(einstellungen),
      werte_(werte),
      speicher_(speicher),
      belegdruck_(belegdruck),
      printing_(printing) {}

Belegquelle E_Rechnungsausgabe::quelle() const {
    return BELEGQUELLE(form1_, einstellungen_, werte_);
}

std::string E_Rechnungsausgabe::kennzeichen() const {
    return form1_.Text_rechnung.Text() + "\n" + form1_.Text_RNnr.Text();
}

Bezug E_Rechnungsausgabe::bezug() const {
    return bezug_von_ == kennzeichen() ? bezug_ : Bezug{};
}

void E_Rechnungsausgabe::BEZUG_MERKEN(const Bezug& bezug) {
    bezug_ = bezug;
    bezug_von_ = kennzeichen();
}

E_Rechnung E_Rechnungsausgabe::BESTAETIGTE_RECHNUNG(E_Format format) const {
    const Belegquelle beleg = quelle();
    return E_RECHNUNG(beleg, speicher_.verkaeufer(),
                      speicher_.kaeufer(KUNDENSCHLUESSEL(beleg)).value_or(Kaeufer{}), bezug(), format);
}

std::string E_Rechnungsausgabe::ZUGFERD_PDF(const Rechnungsbeleg& beleg) {
    const std::string xml = CII_XML(beleg, E_Format::ZUGFeRD);
    const PrintDocument dokument{
        DOKUMENTTITEL(form1_, einstellungen_), {}, 1, einstellungen_.Text_firma_1.Text()};
    std::string pdf;
    const std::unique_ptr<PrintDevice> geraet =
        printing_.archive(dokument, [&pdf](std::string bytes) { pdf = std::move(bytes); });
    const Druckvorlage vorlage = belegdruck_.vorbereiten();
    const auto zeichnen = [&](PrintSurface& surface) {
        vorlage.DRUCKEN(surface, JUSTIERUNG_LESEN(einstellungen_));
    };
    const Zeichenbefund befund = AUSGEBEN(*geraet, dokument, printing_.metrics(), kAusweg, zeichnen);
    form1_.Hinweise.melden(befund.hinweis("gespeichert"));
    return ZUGFERD(pdf, xml);
}

std::string E_Rechnungsausgabe::XRECHNUNG(const Rechnungsbeleg& beleg) {
    return CII_XML(beleg, E_Format::XRechnung);
}

std::string ANGABENHINDERNIS(const Laufzeitfehler& fehler) {
    return "Diese Datei lässt sich nicht lesen: " + fehler.ort() +
           " Bitte ihre Rechte prüfen oder sie umbenennen.";
}

std::string E_RECHNUNGSHINDERNIS(const Laufzeitfehler& fehler) {
    if (fehler.nummer() != fehler::kUngueltigerAufruf) {
        return fehler.nummer() == fehler::kDrucker && !fehler.ort().empty() ? fehler.ort()
                                                                            : SPEICHERHINDERNIS(fehler);
    }
    std::string text;
    for (const int zeile : zeilen_in(fehler.ort())) {
        text += (text.empty() ? " (Zeile " : ", ") + std::to_string(zeile);
    }
    return "Die Rechnung passt so nicht in das Format der E-Rechnung" + text +
           (text.empty() ? "" : " des XML)") +
           ". Es wurde nichts gespeichert: Bitte ungewöhnlich lange Texte, Mengen und Preise prüfen.";
}

} // namespace quittika
