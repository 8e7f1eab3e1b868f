#include "designer/designseite.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

struct Groessenfall {
    const char* name;
    const char* text;
    double anfang;
    double erwartet;
};

class Groessenfeld : public ::testing::TestWithParam<Groessenfall> {};

TEST_P(Groessenfeld, LiestMillimeter) {
    constexpr double kBisher = 77;
    EXPECT_DOUBLE_EQ(GROESSE_LESEN(GetParam().text, kBisher, GetParam().anfang, 210), GetParam().erwartet);
}

INSTANTIATE_TEST_SUITE_P(Faelle, Groessenfeld,
                         ::testing::Values(Groessenfall{"passt", "33,5", 10, 33.5},
                                           Groessenfall{"ragt_ueber_den_Rand", "209", 2, 209},
                                           Groessenfall{"so_breit_wie_die_Seite", "210", 2, 210},
                                           Groessenfall{"breiter_als_die_Seite", "250", 2, 208},
                                           Groessenfall{"weit_links_der_Seite", "250", -40, 250},
                                           Groessenfall{"rechts_der_Seite", "250", 230, 1},
                                           Groessenfall{"keine_Zahl", "zwölf", 0, 77},
                                           Groessenfall{"leer", "", 0, 77}, Groessenfall{"null", "0", 0, 77},
                                           Groessenfall{"negativ", "-20", 0, 77},
                                           Groessenfall{"riesig", "1e300", 0, 210}),
                         [](const auto& fall) { return fall.param.name; });

TEST(Designseite, HaeltJedenBlockAufSeinenMillimetern) {
    FORM_DESIGNER form;
    Designseite seite(form);
    Design design;
    design.X_KDNR = 150.3;
    design.Y_KDNR = 85.7;
    design.X_LISTE = 40;
    design.Y_LISTE = -12.4;
    design.B_LOGO = 33.3;
    design.H_LOGO = 21.9;
    seite.anordnen();
    seite.PLATZIEREN(design);
    for (const int breite : {9000, 5005, 31, 0, 14777}) { // any size of a window, too small ones too
        form.Frame_Tisch.Width.adopt(breite);
        form.Frame_Tisch.Height.adopt(breite + breite / 3);
        seite.anordnen();
    }
    form.Frame_Tisch.Width.adopt(6600);
    form.Frame_Tisch.Height.adopt(9210);
    seite.anordnen();
    EXPECT_EQ(form.Image_KDNR.Left(), 4509); // 30 twips a millimetre
    EXPECT_EQ(form.Image_KDNR.Top(), 2571);
    EXPECT_EQ(form.Image_LOGO.Width(), 999);
    EXPECT_EQ(form.Image_LISTE.Left(), 360);
    Design zurueck;
    seite.UEBERNEHMEN(zurueck);
    design.X_LISTE = kListenrand;
    EXPECT_EQ(zurueck, design);
}

} // namespace
} // namespace quittika
