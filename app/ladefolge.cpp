#include "app/ladefolge.hpp"

#include "platform/datum.hpp"
#include "platform/forms/twips.hpp"
#include "platform/textdatei.hpp"

#include <array>
#include <string>

namespace quittika {

namespace {

constexpr int kEigenesLayout = 9;
constexpr int kRahmen = twips(40); ///< title bar and the desktop's own bar

/// Picture of the main window in which a page design shows its logo.
Image& Logobild(Form1& f, int layout) {
    switch (layout) {
    case 4:
        return f.logo600x200Pixel;
    case 6:
        return f.Logo200x400;
    case 7:
        return f.logo760x140Pixel;
    default:
        return f.logo;
    }
}

} // namespace

int GEWAEHLTES_LAYOUT(frm_einstellungen& einstellungen) {
    const auto layouts = einstellungen.Layouts();
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        if (layouts.at(i)->Value()) {
            return static_cast<int>(i) + 1;
        }
    }
    return 0;
}

Ladefolge::Ladefolge(Ziele ziele) : z_(ziele) {}

void Ladefolge::Form_Load() {
    if (geladen_) {
        return;
    }
    {
        const Rechnungszustand::Sperre still(z_.zustand);
        KonstantenSetzen();
        BilderLaden();
        LayoutZeigen();
        VorgabenUebernehmen();
        z_.rechnung.NotizSetzen(vorgabe::kNotiz);
        Zentrieren();
        z_.einstellungen.ensure_loaded();
        z_.programm.ensure_loaded();
        z_.zuletzt.Zeigen();
        z_.nummern.RNStartLesen();
        z_.dateibefehle.CMD_Seite1_Click(0);
        BUTTON_SEITENFREIGABE();
        SchriftgroessenPruefen();
        FarbenSetzen();
        z_.summen.jetztberechnen_List();
    }
    geladen_ = true;
    z_.zustand.als_gespeichert_merken();
}

void Ladefolge::KonstantenSetzen() {
    z_.einstellungen.Label_preis.Caption = "Einzelpreis[" + z_.werte.WAEHRUNG + "]";
    z_.einstellungen.Label_gesamtp.Caption = "Gesamtpreis[" + z_.werte.WAEHRUNG + "]";
}

void Ladefolge::BilderLaden() {
    const std::string logo = z_.verzeichnis.pfad("\\ihrlogo.bmp");
    if (z_.einstellungen.Picture1.Picture().empty() && datei_vorhanden(logo)) {
        z_.einstellungen.Picture1.Picture = systempfad(logo);
    }
    const std::string wasserzeichen = z_.verzeichnis.pfad("\\wasserzqk2008.bmp");
    if (z_.einstellungen.Picture_wasserz.Picture().empty() && datei_vorhanden(wasserzeichen)) {
        z_.einstellungen.Picture_wasserz.Picture = systempfad(wasserzeichen);
    }
}

void Ladefolge::LayoutZeigen() {
    int layout = GEWAEHLTES_LAYOUT(z_.einstellungen);
    if (layout == 0) {
        z_.einstellungen.Option9_Layout.Value = true;
        layout = kEigenesLayout;
    }
    z_.werte.LAYOUTNUMMER = layout;
    const bool ohne = z_.einstellungen.Check_keinlogo.ticked() || layout == kEigenesLayout;
    const Image* sichtbar = ohne ? nullptr : &Logobild(z_.form1, layout);
    const std::string& bild = z_.einstellungen.Picture1.Picture();
    for (Image* logo :
         {&z_.form1.logo, &z_.form1.logo600x200Pixel, &z_.form1.Logo200x400, &z_.form1.logo760x140Pixel}) {
        logo->Picture = bild;
        logo->Visible = logo == sichtbar;
    }
    z_.form1.Image_WASSERZ.Picture = z_.einstellungen.Picture_wasserz.Picture();
}

void Ladefolge::VorgabenUebernehmen() {
    Form1& f = z_.form1;
    z_.vorgaben.uebernehmen();
    f.Text_rechnung.Text = z_.einstellungen.Text_rechnung.Text();
    f.Text_Datum.Text = datum_text(z_.platform.clock.now());
}

void Ladefolge::Zentrieren() {
    Form1& f = z_.form1;
    const int breite = z_.platform.desktop.screen_width();
    const int hoehe = z_.platform.desktop.screen_height();
    f.Width = std::min(breite, f.Width());
    f.Height = std::min(hoehe - kRahmen, f.Height());
    f.Left = (breite - f.Width()) / 2;
    f.Top = (hoehe - f.Height()) / 2;
}

void Ladefolge::SchriftgroessenPruefen() {
    struct Groesse {
        HScrollBar& regler;
        int& wert;
        int vorgabe;
    };
    frm_einstellungen& e = z_.einstellungen;
    PROGRAMMEINSTELLUNG& w = z_.werte;
    const std::array<Groesse, 6> groessen{{{e.HScroll_GROESSE_RECHNUNG, w.GROESSE_RECHNUNG, 10},
                                           {e.HScroll_GROESSE_WERBUNG, w.GROESSE_WERBUNG, 10},
                                           {e.HScroll_GROESSE_ANSCHREIBEN, w.GROESSE_ANSCHREIBEN, 11},
                                           {e.HScroll_GROESSE_BEMERKUNGEN, w.GROESSE_BEMERKUNGEN, 10},
                                           {e.HScroll_GROESSE_ZUSATZ_1, w.GROESSE_ZUSATZ_1, 10},
                                           {e.HScroll_GROESSE_ZUSATZ_2, w.GROESSE_ZUSATZ_2, 10}}};
    for (const Groesse& g : groessen) {
        if (g.regler.Value() <= 0) {
            g.regler.Value = g.vorgabe;
        }
        g.wert = g.regler.Value();
    }
}

void Ladefolge::FarbenSetzen() {
    z_.form1.Text_LIEFERDATUM.Text = " ";
    z_.form1.Text_LIEFERDATUM.BackColor = color::kGrey;
}

} // namespace quittika
