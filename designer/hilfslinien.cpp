#include "designer/hilfslinien.hpp"

#include <span>

namespace quittika {

namespace {

/// What DIN 5008 puts on a letter, mm.
struct DinForm {
    Kasten anschrift;
    double falz_oben;
    double falz_unten;
};
constexpr DinForm kFormA{{20, 27, 105, 72}, 87, 192};
constexpr DinForm kFormB{{20, 45, 105, 90}, 105, 210};

constexpr double kLuft = 1; ///< mm between a block's letters and its red frame

void waagrecht(Line& linie, int top, const Frame& seite) {
    linie.Left = 0;
    linie.Width = seite.Width();
    linie.Height = kTwipsPerPixel;
    linie.Top = top;
}

void senkrecht(Line& linie, int left, const Frame& seite) {
    linie.Top = 0;
    linie.Height = seite.Height();
    linie.Width = kTwipsPerPixel;
    linie.Left = left;
}

} // namespace

Hilfslinien::Hilfslinien(FORM_DESIGNER& form, const Designseite& seite) : form_(form), seite_(seite) {
    for (CheckBox* haken : {&form.Check_HILFSLINIEN, &form.Check_DIN_A, &form.Check_DIN_B}) {
        haken->Click = [this] { anordnen(); };
    }
    form.Shape_Auswahl.Visible = false;
    for (Shape& rahmen : form.Shape_Kollision) {
        rahmen.Visible = false;
    }
}

void Hilfslinien::anordnen() {
    const auto din = [this](const CheckBox& haken, const DinForm& mass, Shape& anschrift,
                            ControlArray<Line, 2>& falz) {
        LEGEN(anschrift, mass.anschrift, seite_.FAKTOR());
        waagrecht(falz[0], TWIPS(mass.falz_oben, seite_.FAKTOR()), form_.Frame_A4);
        waagrecht(falz[1], TWIPS(mass.falz_unten, seite_.FAKTOR()), form_.Frame_A4);
        for (Control* teil : {static_cast<Control*>(&anschrift), static_cast<Control*>(&falz[0]),
                              static_cast<Control*>(&falz[1])}) {
            teil->Visible = haken.ticked();
        }
    };
    din(form_.Check_DIN_A, kFormA, form_.Shape_Anschrift[0], form_.Line_Falz_A);
    din(form_.Check_DIN_B, kFormB, form_.Shape_Anschrift[1], form_.Line_Falz_B);
    for (Line* linie : {&form_.VLINE, &form_.HLINE, &form_.VLINE2, &form_.HLINE2}) {
        linie->Visible = form_.Check_HILFSLINIEN.ticked();
    }
    folgen(zuletzt_);
}

void Hilfslinien::folgen(std::size_t nummer) {
    zuletzt_ = nummer;
    if (!form_.Check_HILFSLINIEN.ticked()) {
        return;
    }
    const Image& bild = seite_.element(nummer).bild;
    senkrecht(form_.VLINE, bild.Left(), form_.Frame_A4);
    waagrecht(form_.HLINE, bild.Top(), form_.Frame_A4);
    senkrecht(form_.VLINE2, bild.Left() + bild.Width(), form_.Frame_A4);
    waagrecht(form_.HLINE2, bild.Top() + bild.Height(), form_.Frame_A4);
}

void Hilfslinien::auswahl_zeigen(std::size_t nummer) {
    const Image& bild = seite_.element(nummer).bild;
    Shape& rahmen = form_.Shape_Auswahl;
    rahmen.Width = bild.Width();
    rahmen.Height = bild.Height();
    rahmen.Left = bild.Left();
    rahmen.Top = bild.Top();
    rahmen.Visible = bild.Visible();
}

void Hilfslinien::kollisionen_zeigen(const std::array<Blocklage, kDesignbloecke>& lagen) {
    for (std::size_t i = 0; i < kDesignelemente; ++i) {
        const Designelement& e = seite_.element(i);
        Shape& rahmen = form_.Shape_Kollision[static_cast<int>(i)];
        const Blocklage lage = e.block ? lagen.at(static_cast<std::size_t>(*e.block)) : Blocklage{};
        if (lage.im_weg) {
            const Kasten& k = lage.kasten;
            LEGEN(rahmen, {k.links - kLuft, k.oben - kLuft, k.rechts + kLuft, k.unten + kLuft},
                  seite_.FAKTOR());
        }
        rahmen.Visible = lage.im_weg;
    }
}

void Hilfslinien::kollision_verbergen(std::size_t nummer) {
    form_.Shape_Kollision[static_cast<int>(nummer)].Visible = false;
}

} // namespace quittika
