#include "print/musterbeleg.hpp"

#include "designer/designdatei.hpp"
#include "platform/datei.hpp"
#include "platform/forms/form_copy.hpp"
#include "platform/recording.hpp"
#include "platform/textdatei.hpp"
#include "print/belegausgabe.hpp"
#include "print/eigenes_layout.hpp"
#include "print/seitenumbruch.hpp"
#include "settings/belegeinstellung.hpp"
#include "settings/druckfarben.hpp"
#include "settings/schriftgroessen.hpp"

#include <cstddef>
#include <memory>

namespace quittika {

namespace {

constexpr std::size_t kGroesstesBeispiel = 1'000'000; ///< bytes

bool leer(const Form1& form1) {
    return form1.List_K.ListCount() == 0;
}

void anfuegen(std::string& text, const std::string& satz) {
    text += (text.empty() || satz.empty() ? "" : " ") + satz;
}

/// Says that the picture in force is another than the field names. A design file that is missing leaves no
/// path.
std::string bildhinweis(const char* was, const TextBox& pfad, const PictureBox& bild) {
    const std::string& text = pfad.Text();
    const bool keiner = text.empty() || text == "ERROR";
    return keiner || systempfad(text) == bild.Picture()
               ? std::string()
               : std::string("Als ") + was + " gilt noch das bisherige Bild: >>" + text +
                     "<< ist nicht geladen.";
}

} // namespace

Musterbeleg::Musterbeleg(const Form1& form1, const frm_einstellungen& einstellungen,
                         const frm_Programm& programm, const PROGRAMMEINSTELLUNG& werte,
                         const Programmverzeichnis& verzeichnis, Dialogs& dialogs, const Clock& uhr,
                         const FontMetrics& metrics, Pictures& bilder)
    : form1_(form1),
      einstellungen_(einstellungen),
      werte_(werte),
      verzeichnis_(verzeichnis),
      metrics_(metrics),
      bilder_(bilder),
      eingabezeile_(muster_.form1, dialogs),
      rechnung_(muster_.form1, muster_.zustand, eingabezeile_, uhr),
      vorgaben_(muster_.form1, muster_.einstellungen, programm, muster_.werte),
      summen_(muster_.form1, muster_.einstellungen, muster_.zustand, eingabezeile_, uhr,
              [this] { return ANZAHL_DRUCKSEITEN(muster_.form1.List_K.items(), muster_.einstellungen); }),
      leser_(muster_.form1, muster_.werte, muster_.zustand, rechnung_, muster_.stand, dialogs),
      rechnungsdruck_(muster_.form1, muster_.einstellungen, muster_.werte) {}

void Musterbeleg::AUFNEHMEN() {
    copy_controls(einstellungen_, muster_.einstellungen);
    muster_.werte = werte_;
    const bool beispiel = leer(form1_) && Beispiel_Lesen();
    if (beispiel) {
        for (CheckBox& auch_im_beleg : muster_.einstellungen.check_uebern_f_aktuellerechnung) {
            auch_im_beleg.Value = 1;
        }
        muster_.werte.RECHNUNGSSCHRIFT = werte_.DRUCKERSCHRIFT;
    } else {
        copy_controls(form1_, muster_.form1);
    }
    BELEG_EINSTELLEN(muster_.form1, muster_.einstellungen, muster_.werte, vorgaben_);
    DRUCKFARBEN_UEBERNEHMEN(muster_.werte, muster_.einstellungen);
    SCHRIFTGROESSEN_UEBERNEHMEN(muster_.werte, muster_.einstellungen);
    summen_.jetztberechnen_List();
    const int seiten = ANZAHL_DRUCKSEITEN(muster_.form1.List_K.items(), muster_.einstellungen);
    beschreibung_ = beispiel ? "Muster mit der Beispielrechnung" : "Muster mit der Rechnung in Arbeit";
    beschreibung_ += seiten > 1 ? ", Seite 1 von " + std::to_string(seiten) : std::string();
}

/// Returns whether there is a sample invoice that can be read.
bool Musterbeleg::Beispiel_Lesen() {
    try {
        return Uebernehmen(bytes_lesen(verzeichnis_.pfad("\\Beispielrechnung.qk8"), kGroesstesBeispiel));
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

bool Musterbeleg::Uebernehmen(std::string_view bytes) {
    bool lesbar = false;
    zeilen_durchgehen(bytes, [&lesbar](std::string_view erste) {
        lesbar = erste == kDateikennung;
        return false;
    });
    if (lesbar) {
        leser_.InhaltUebernehmen(bytes);
        lesbar = leser_.DateiDatenAnzeigen();
        summen_.VersandMerken(leser_.VersandGelesen());
    }
    return lesbar;
}

bool Musterbeleg::LESEN(std::string_view bytes) {
    copy_controls(einstellungen_, muster_.einstellungen);
    muster_.werte = werte_;
    if (!Uebernehmen(bytes)) {
        return false;
    }
    DRUCKFARBEN_UEBERNEHMEN(muster_.werte, muster_.einstellungen);
    SCHRIFTGROESSEN_UEBERNEHMEN(muster_.werte, muster_.einstellungen);
    summen_.jetztberechnen_List();
    return true;
}

Druckvorlage Musterbeleg::vorlage(std::string& hinweis) const {
    const auto& [werte, form1, einstellungen, zustand, stand] = muster_;
    if (LAYOUT_GEWAEHLT(einstellungen) != kEigenesLayout) {
        if (!einstellungen.Check_keinlogo.ticked()) {
            anfuegen(hinweis, bildhinweis("Logo", einstellungen.Text_logopath, einstellungen.Picture1));
        }
        if (einstellungen.Check_mit_Wasserz.ticked()) {
            anfuegen(hinweis, bildhinweis("Wasserzeichen", einstellungen.Text_bildpath,
                                          einstellungen.Picture_wasserz));
        }
        return rechnungsdruck_.vorbereiten();
    }
    Druckoptionen optionen;
    optionen.lieferschein = {false, false, false, false};
    Design design = DESIGN_STANDARD(verzeichnis_);
    try {
        design = DESIGN_EINLESEN(verzeichnis_).design;
    } catch (const Laufzeitfehler& fehler) {
        hinweis = fehler.nummer() == fehler::kDateiFehlt
                      ? "Es ist noch kein eigenes Layout gespeichert: gezeigt wird das Standard-Design."
                      : "Das eigene Layout in design.dsg ist nicht lesbar: gezeigt wird das Standard-Design.";
    }
    return DRUCKE_EIGENESLAYOUT(form1, einstellungen, werte, design, optionen);
}

std::string Musterbeleg::ZEICHNEN(PictureControl& bild, int layout) {
    const auto knoepfe = muster_.einstellungen.Layouts();
    const int gewaehlt = LAYOUT_GEWAEHLT(einstellungen_);
    const int gezeigt = layout != 0 ? layout : gewaehlt != 0 ? gewaehlt : kEigenesLayout;
    knoepfe.at(static_cast<std::size_t>(gezeigt - 1))->Value = true;

    std::string hinweis;
    const Druckvorlage jetzt = vorlage(hinweis);
    const auto blatt = std::make_shared<RecordedJob>(PrintDocument{});
    RecordingDevice geraet(blatt, bilder_);
    const Zeichenbefund befund =
        AUSGEBEN(geraet, blatt->document, metrics_, kAusweg, [&](PrintSurface& surface) {
            Blatt seite{surface, JUSTIERUNG_LESEN(muster_.einstellungen)};
            jetzt.SEITE_DRUCKEN(seite, 1);
        });
    anfuegen(hinweis, befund.hinweis("gezeichnet"));
    if (bild.page() == nullptr || !(*bild.page() == blatt->pages.front())) {
        bild.show_page(std::make_shared<DrawnPage>(blatt->pages.front()));
    }
    return hinweis;
}

} // namespace quittika
