#include "print/belegausgabe.hpp"
#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace quittika {
namespace {

constexpr int kModule = 21;
const SquareGrid kCode{kModule, 4, std::vector<bool>(std::size_t{kModule} * kModule, true)};

/// What a device for paper does with a grid of 25 mm at 12, 100, after something else was drawn.
struct Gedruckt {
    bool code;
    bool gemeldet;
    bool operator==(const Gedruckt&) const = default;
};

Gedruckt drucken(const std::function<void(PrintSurface&)>& davor, double oben = 100) {
    Papier papier;
    Papiergeraet geraet(papier);
    const FesteSchrift schrift;
    const Zeichenbefund befund = AUSGEBEN(geraet, {}, schrift, kAusweg, [&](PrintSurface& flaeche) {
        davor(flaeche);
        flaeche.PaintSquares(kCode, 12, oben, 25);
    });
    const auto& gezeichnet = papier.seite(papier.seiten()).drawings;
    return {std::any_of(gezeichnet.begin(), gezeichnet.end(),
                        [](const Drawing& d) { return std::holds_alternative<drawn::Squares>(d); }),
            befund.hinweis("gedruckt").find("GiroCode") != std::string::npos};
}

constexpr Gedruckt kDa{true, false};
constexpr Gedruckt kFehlt{false, true};

// Its quiet zone reaches from 7.24 to 41.76 and from 95.24 to 129.76 mm.
TEST(Girodruck, StehtNieUeberAnderem) {
    const auto text = [](double x, double y) {
        return [=](PrintSurface& flaeche) {
            flaeche.CurrentX = x;
            flaeche.CurrentY = y;
            flaeche.PrintOn("Text");
        };
    };
    const auto linie = [](double y) {
        return [=](PrintSurface& flaeche) { flaeche.Line(0, y, 200, y, color::kBlack); };
    };
    const auto bild = [](double x, double y, double breite, double hoehe) {
        return [=](PrintSurface& flaeche) { flaeche.PaintPicture("bild.png", x, y, breite, hoehe); };
    };
    EXPECT_EQ(drucken([](PrintSurface&) {}), kDa);
    EXPECT_EQ(drucken(text(42, 110)), kDa);
    EXPECT_EQ(drucken(text(41, 110)), kFehlt);
    EXPECT_EQ(drucken(text(20, 90)), kDa);
    EXPECT_EQ(drucken(text(20, 129)), kFehlt);
    EXPECT_EQ(drucken(linie(95.2)), kDa);
    EXPECT_EQ(drucken(linie(95.3)), kFehlt);
    EXPECT_EQ(drucken(bild(0, 0, 210, 297)), kDa) << "the ground of the page";
    EXPECT_EQ(drucken(bild(40, 90, 60, 60)), kFehlt);
    EXPECT_EQ(drucken([](PrintSurface&) {}, 297 - 6 - 25 - 4.7), kFehlt) << "over the edge of the sheet";
    EXPECT_EQ(drucken([&](PrintSurface& flaeche) {
                  text(20, 110)(flaeche);
                  flaeche.NewPage();
              }),
              kDa);
}

struct Giroprobe : Druckprobe {
    Belegdruck mit_code{form1, einstellungen, werte, designdatei, [] { return kCode; }};
    /// Place of the code on the last page; nothing where the device left it out.
    std::optional<double> oben(int anzahl) {
        zeilen(anzahl);
        summen.jetztberechnen_List();
        Papier papier;
        Papiergeraet geraet(papier);
        const Zeichenbefund befund = AUSGEBEN(geraet, {}, schrift, kAusweg, [this](PrintSurface& flaeche) {
            mit_code.vorbereiten().DRUCKEN(flaeche, {});
        });
        for (const Drawing& d : papier.seite(papier.seiten()).drawings) {
            if (const auto* code = std::get_if<drawn::Squares>(&d)) {
                EXPECT_EQ(code->left, 12);
                EXPECT_EQ(code->size, 25);
                EXPECT_EQ(befund.ueberdruck, "");
                return code->top;
            }
        }
        EXPECT_TRUE(befund.code_fehlt);
        return std::nullopt;
    }
};

TEST(Girodruck, StehtNebenDenBetraegenWoPlatzIst) {
    const auto neben = [](int zeilen) { return Giroprobe().oben(zeilen); };
    ASSERT_TRUE(neben(1) && neben(2));
    EXPECT_NEAR(*neben(2) - *neben(1), 4, 1) << "a row further down";
    EXPECT_TRUE(neben(20)) << "on the second page";
    Giroprobe tief;
    tief.form1.Text_Bemerkung1[1].Text = "Danke";
    EXPECT_TRUE(tief.oben(3)) << "the remarks make room";
}

} // namespace
} // namespace quittika
