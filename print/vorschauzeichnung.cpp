#include "print/vorschauzeichnung.hpp"

#include "platform/recording.hpp"
#include "print/belegausgabe.hpp"
#include "print/dokumentnamen.hpp"

#include <algorithm>
#include <memory>

namespace quittika {

namespace {

constexpr double kXGesamt = 185; ///< mm

constexpr const char* kEntwurf =
    "Entwurf aus dem Designer. Gedruckt wird, was gespeichert ist, mit dem Layout "
    "aus den Rechnungsdaten.";

std::string mit_entwurf(const std::string& hinweis) {
    return hinweis.empty() ? kEntwurf : kEntwurf + std::string("\r\n") + hinweis;
}

} // namespace

Vorschauzeichnung::Vorschauzeichnung(const Form1& form1, const frm_einstellungen& einstellungen,
                                     Belegdruck& belegdruck, const Lieferscheinoptionen& lieferscheinoptionen,
                                     Printing& printing, Pictures& pictures)
    : form1_(form1),
      einstellungen_(einstellungen),
      belegdruck_(belegdruck),
      lieferscheinoptionen_(lieferscheinoptionen),
      printing_(printing),
      pictures_(pictures) {}

Druckvorlage Vorschauzeichnung::vorlage(bool design_lesen) const {
    Druckoptionen optionen;
    optionen.lieferschein = lieferscheinoptionen_.vorgabe();
    optionen.lieferschein.preise = false;
    optionen.x_gesamt = kXGesamt;
    return entwurf_ ? belegdruck_.vorbereiten(optionen, *entwurf_)
                    : belegdruck_.vorbereiten(optionen, design_lesen);
}

std::string Vorschauzeichnung::zeichnen(PrintDevice& geraet, const PrintDocument& dokument,
                                        const Druckvorlage& vorlage) const {
    const auto seite = [&](PrintSurface& surface) {
        Blatt blatt{surface, JUSTIERUNG_LESEN(einstellungen_)};
        vorlage.SEITE_DRUCKEN(blatt, dokument.first_page);
        surface.EndDoc();
    };
    return AUSGEBEN(geraet, dokument, printing_.metrics(), kAusweg, seite).hinweis("gezeichnet");
}

Vorschauseite Vorschauzeichnung::VORSCHAU_RECHNUNG(PictureControl& bild, int wunsch,
                                                   bool design_lesen) const {
    const Druckvorlage jetzt = vorlage(design_lesen);
    const PrintDocument dokument{AUFTRAGSTITEL(form1_), {}, std::clamp(wunsch, 1, jetzt.seiten())};
    const std::unique_ptr<PrintDevice> geraet = printing_.picture(bild, dokument);
    const std::string hinweis = zeichnen(*geraet, dokument, jetzt);
    const bool entwurf = entwurf_.has_value();
    return {dokument.first_page, jetzt.seiten(), entwurf ? mit_entwurf(hinweis) : hinweis, entwurf};
}

bool Vorschauzeichnung::VERALTET(const PictureControl& bild, const Vorschauseite& seite) const {
    const Druckvorlage jetzt = vorlage(false);
    if (jetzt.seiten() != seite.seiten || seite.entwurf != entwurf_.has_value() || bild.page() == nullptr) {
        return true;
    }
    const auto probe = std::make_shared<RecordedJob>(PrintDocument{{}, {}, seite.nummer});
    RecordingDevice geraet(probe, pictures_);
    zeichnen(geraet, probe->document, jetzt);
    return !(probe->pages.front() == *bild.page());
}

} // namespace quittika
