#include "print/druckvorschau.hpp"

#include "platform/recording.hpp"
#include "print/vorschaumass.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace quittika {

namespace {

constexpr int kRaste = 120;    ///< turn of the wheel from notch to notch
constexpr int kRollweg = 1080; ///< twips for a notch

/// Gives a scroll bar other bounds; `Min` never passes `Max` on the way.
void begrenzen(RangeControl& leiste, const Rollbereich& bereich) {
    if (bereich.min > leiste.Max()) {
        leiste.Max = bereich.max;
        leiste.Min = bereich.min;
    } else {
        leiste.Min = bereich.min;
        leiste.Max = bereich.max;
    }
}

/// Which part of the picture stands in the middle of the room.
double mitte(int anfang, int laenge, int raum) {
    return laenge == 0 ? 0 : (raum / 2.0 - anfang) / laenge;
}

/// Scrolls so that this part stands in the middle, as far as possible.
void zur_mitte(RangeControl& leiste, double anteil, int laenge, int raum) {
    const auto wert = static_cast<int>(std::lround(kBildanfang - raum / 2.0 + anteil * laenge));
    leiste.Value = std::clamp(wert, leiste.Min(), leiste.Max());
}

} // namespace

Druckvorschau::Druckvorschau(Form_Druckvorschau& form, const Vorschauzeichnung& zeichnung,
                             Druckauftrag& druckauftrag, Bildausgabe& bildausgabe, Pdfausgabe& pdfausgabe)
    : form_(form), zeichnung_(zeichnung) {
    form.Load = [this] { Form_Load(); };
    form.Timer_Stand.Tick = [this] {
        if (zeichnung_.VERALTET(form_.Picture1, seite_)) {
            seite_zeichnen(false); // a box about the design must not come between typing
        }
    };
    seiten_verdrahten();
    massstab_verdrahten();
    for (Control* drucken :
         {static_cast<Control*>(&form.Command_drucken), static_cast<Control*>(&form.m_drucken)}) {
        drucken->Click = [&druckauftrag] { druckauftrag.Command_printform_Click(); };
    }
    form.Command_PDF.Click = [&pdfausgabe] { pdfausgabe.m_Rechnung_pdf_export_Click(); };
    form.Command_SAVE_VORSCHAU.Click = [&bildausgabe] { bildausgabe.Command_SAVE_VORSCHAU_Click(); };
    form.Command_Close.Click = [&form] { form.Close(); };
}

void Druckvorschau::seiten_verdrahten() {
    for (Control* weiter : {static_cast<Control*>(&form_.cmd_ff), static_cast<Control*>(&form_.m_weiter)}) {
        weiter->Click = [this] { zur_seite(seite_.nummer + 1); };
    }
    for (Control* zurueck : {static_cast<Control*>(&form_.cmd_rr), static_cast<Control*>(&form_.m_zurueck)}) {
        zurueck->Click = [this] { zur_seite(seite_.nummer - 1); };
    }
    form_.m_erste.Click = [this] { zur_seite(1); };
    form_.m_letzte.Click = [this] { zur_seite(std::numeric_limits<int>::max()); };
    form_.VScroll1.Change = [this] { form_.Picture1.Top = kBildanfang - form_.VScroll1.Value(); };
    form_.HScroll1.Change = [this] { form_.Picture1.Left = kBildanfang - form_.HScroll1.Value(); };
    form_.Frame_Blatt.Resize = [this] { anordnen(); };
    form_.Frame_Blatt.MouseWheel = [this](const WheelEvent& rad) { rollen(rad); };
}

void Druckvorschau::massstab_verdrahten() {
    for (Control* ganz :
         {static_cast<Control*>(&form_.Command_Seite), static_cast<Control*>(&form_.m_ganze_Seite)}) {
        ganz->Click = [this] { massstab_setzen(Massstab::GanzeSeite); };
    }
    form_.Command_Breite.Click = [this] { massstab_setzen(Massstab::Seitenbreite); };
    form_.Command_100.Click = [this] { massstab_setzen(Massstab::Frei, 1); };
    for (Control* groesser :
         {static_cast<Control*>(&form_.Command_groesser), static_cast<Control*>(&form_.m_groesser)}) {
        groesser->Click = [this] { massstab_setzen(Massstab::Frei, NAECHSTE_STUFE(vergroesserung_, 1)); };
    }
    for (Control* kleiner :
         {static_cast<Control*>(&form_.Command_kleiner), static_cast<Control*>(&form_.m_kleiner)}) {
        kleiner->Click = [this] { massstab_setzen(Massstab::Frei, NAECHSTE_STUFE(vergroesserung_, -1)); };
    }
}

void Druckvorschau::Form_Load() {
    zur_seite(1);
    anordnen();
    form_.VScroll1.SetFocus();
}

void Druckvorschau::seite_zeichnen(bool design_lesen) {
    seite_ = zeichnung_.VORSCHAU_RECHNUNG(form_.Picture1, seite_.nummer, design_lesen);
    form_.Label_Seite.Caption =
        "Seite " + std::to_string(seite_.nummer) + "/" + std::to_string(seite_.seiten);
    form_.Label_Hinweis.Caption = seite_.hinweis;
    form_.Label_Hinweis.Visible = !seite_.hinweis.empty();
}

void Druckvorschau::zur_seite(int nummer) {
    const int vorher = std::exchange(seite_.nummer, nummer);
    auffrischen();
    if (seite_.nummer != vorher) {
        form_.VScroll1.Value = form_.VScroll1.Min();
    }
}

void Druckvorschau::massstab_setzen(Massstab massstab, double vergroesserung) {
    massstab_ = massstab;
    vergroesserung_ = vergroesserung;
    anordnen();
}

void Druckvorschau::anordnen() {
    const Paper blatt = form_.Picture1.page() == nullptr ? Paper() : form_.Picture1.page()->paper;
    const Vorschauraum raum{form_.Frame_Blatt.Width(), form_.Frame_Blatt.Height()};
    if (massstab_ != Massstab::Frei) {
        vergroesserung_ =
            massstab_ == Massstab::GanzeSeite ? AUF_GANZE_SEITE(blatt, raum) : AUF_SEITENBREITE(blatt, raum);
    }
    PictureBox& bild = form_.Picture1;
    const bool am_anfang = form_.VScroll1.Value() == form_.VScroll1.Min();
    const double mitte_x = mitte(bild.Left(), bild.Width(), raum.breite);
    const double mitte_y = mitte(bild.Top(), bild.Height(), raum.hoehe);
    const Bildmass mass = scrollerJustierung(blatt, raum, vergroesserung_);
    bild.Width = mass.breite;
    bild.Height = mass.hoehe;
    begrenzen(form_.HScroll1, mass.waagrecht);
    begrenzen(form_.VScroll1, mass.senkrecht);
    zur_mitte(form_.HScroll1, mitte_x, mass.breite, raum.breite);
    zur_mitte(form_.VScroll1, am_anfang ? 0 : mitte_y, mass.hoehe, raum.hoehe);
    bild.Left = kBildanfang - form_.HScroll1.Value();
    bild.Top = kBildanfang - form_.VScroll1.Value();
    form_.HScroll1.Visible = mass.waagrecht.min != mass.waagrecht.max;
    form_.Label_Zoom.Caption = std::to_string(std::lround(vergroesserung_ * 100)) + " %";
}

void Druckvorschau::rollen(const WheelEvent& rad) {
    raddrehung_ += rad.turn;
    const int richtung = rad.turn > 0 ? -1 : 1;
    const int ziel = form_.VScroll1.Value() - rad.turn * kRollweg / kRaste;
    const int wert = std::clamp(ziel, form_.VScroll1.Min(), form_.VScroll1.Max());
    const bool am_rand = wert == form_.VScroll1.Value();
    if (!rad.control_key && !am_rand) {
        raddrehung_ = 0;
        form_.VScroll1.Value = wert;
    } else if (std::abs(raddrehung_) >= kRaste) {
        raddrehung_ = 0;
        if (rad.control_key) {
            massstab_setzen(Massstab::Frei, NAECHSTE_STUFE(vergroesserung_, -richtung));
        } else {
            am_rand_blaettern(richtung);
        }
    }
}

void Druckvorschau::am_rand_blaettern(int richtung) {
    const int vorher = seite_.nummer;
    zur_seite(vorher + richtung);
    if (seite_.nummer < vorher) {
        form_.VScroll1.Value = form_.VScroll1.Max(); // who goes back reads upwards
    }
}

} // namespace quittika
