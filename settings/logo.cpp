#include "settings/logo.hpp"

#include <string>

namespace quittika {

namespace {

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

Logo::Logo(Form1& form1, frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte)
    : form1_(form1), einstellungen_(einstellungen), werte_(werte) {}

void Logo::BilderNehmen() {
    const std::string& bild = einstellungen_.Picture1.Picture();
    for (Image* logo : {&form1_.logo, &form1_.Logo200x400, &form1_.logo600x200Pixel, &form1_.logo760x140Pixel,
                        &einstellungen_.logotab}) {
        logo->Picture = bild;
    }
}

void Logo::LayoutZeigen() {
    if (LAYOUT_GEWAEHLT(einstellungen_) == 0) {
        einstellungen_.Option9_Layout.Value = true;
    }
    const int layout = LAYOUT_GEWAEHLT(einstellungen_);
    werte_.LAYOUTNUMMER = layout;
    const bool ohne = einstellungen_.Check_keinlogo.ticked() || layout == kEigenesLayout;
    const Image* sichtbar = ohne ? nullptr : &Logobild(form1_, layout);
    BilderNehmen();
    for (Image* logo :
         {&form1_.logo, &form1_.logo600x200Pixel, &form1_.Logo200x400, &form1_.logo760x140Pixel}) {
        logo->Visible = logo == sichtbar;
    }
    for (Image* wasserzeichen : {&form1_.Image_WASSERZ, &einstellungen_.Image_WASSERZ}) {
        wasserzeichen->Picture = einstellungen_.Picture_wasserz.Picture();
    }
}

} // namespace quittika
