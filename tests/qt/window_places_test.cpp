#include "app/form_ueber_quittika.hpp"
#include "invoice/form1.hpp"
#include "platform/forms/twips.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/window_places.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

namespace quittika::test {
namespace {

TEST(WindowPlaces, FitWhollyOnOneScreen) {
    const QList<QRect> one{{0, 0, 1920, 1080}};
    const QList<QRect> two{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    const QList<QRect> small{{0, 0, 960, 540}}; // the first one at twice the scale
    const struct {
        const char* what;
        QList<QRect> screens;
        WindowPlace wanted;
        WindowPlace fit;
    } cases[] = {
        {"as it was", one, {{600, 400}, QPoint(700, 500)}, {{600, 400}, QPoint(700, 500)}},
        {"over the edges", one, {{600, 400}, QPoint(1700, 900)}, {{600, 400}, QPoint(1320, 640)}},
        {"second screen", two, {{600, 400}, QPoint(2500, 100)}, {{600, 400}, QPoint(2500, 100)}},
        {"second screen is gone", one, {{600, 400}, QPoint(2500, 100)}, {{600, 400}, QPoint(1320, 100)}},
        {"between two screens", two, {{600, 400}, QPoint(1800, 700)}, {{600, 400}, QPoint(1920, 584)}},
        {"scale changed", small, {{1200, 800}, QPoint(300, 200)}, {{960, 500}, QPoint(0, 0)}},
        {"maximised", small, {{1200, 300}, QPoint(9, 0), true}, {{960, 300}, QPoint(0, 0), true}},
        {"size alone", small, {{1200, 300}, std::nullopt}, {{960, 300}, std::nullopt}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fitted(c.wanted, c.screens), c.fit) << c.what;
    }
}

TEST(WindowPlaces, BrokenLinesCountForNothing) {
    const Probenordner folder;
    const WindowPlaces places(folder.schreiben(
        "fenster.cfg", "a;600;400\r\nb;0;400\r\nc;600\r\nd;600;4x\r\ne;600;400;1\nf;600;400;-5;7\n"
                       "g;600;99999999999\r\n;600;400\r\n\xFF\x81;;;;\r\nh;1;2;3;4;5\r\ni;6;4;max\nj;"
                       "max\nmax\nk;6;max;4\n"));
    EXPECT_EQ(places.find("a"), (WindowPlace{{600, 400}, std::nullopt}));
    EXPECT_EQ(places.find("i"), (WindowPlace{{6, 4}, std::nullopt, true}));
    EXPECT_EQ(places.find("f"), (WindowPlace{{600, 400}, QPoint(-5, 7)}));
    for (const char* broken : {"b", "c", "d", "e", "g", "", "h", "j", "max", "k"}) {
        EXPECT_FALSE(places.find(broken).has_value()) << broken;
    }
}

/// Opens both windows, lets `change` do something to them and ends.
void session(const std::string& file, const std::function<void(Form&, Form&)>& change) {
    QtDesktop desktop;
    desktop.remember_places(file);
    Form1 form1;
    Form_ueber_QUITTIKA about;
    desktop.adopt(form1);
    desktop.adopt(about);
    desktop.run([&] {
        form1.Show();
        about.Show();
        change(form1, about);
        about.Hide();
        desktop.later([&] { desktop.end(); });
    });
}

TEST(WindowPlaces, WindowsComeBackWhereTheyWere) {
    const Probenordner folder;
    const std::string file = folder.pfad("fenster.cfg");
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    session(file, [&](Form& form1, Form& about) {
        EXPECT_FALSE(std::filesystem::exists(file)) << "written at the end only";
        form1.Height = twips(450);
        about.Left = 150;
        about.Top = 300;
        about.Width = twips(500);
        about.WindowState = window_state::kMaximised;
    });
    EXPECT_NE(folder.lesen("fenster.cfg").find("Form_ueber_QUITTIKA;500;"), std::string::npos);
    session(file, [&](Form& form1, Form& about) {
        EXPECT_EQ(form1.Height(), twips(450));
        EXPECT_EQ(about.Left(), 150);
        EXPECT_EQ(about.Top(), 300);
        EXPECT_EQ(about.Width(), twips(500));
        EXPECT_EQ(about.WindowState(), window_state::kMaximised);
        std::filesystem::remove(file);
    });
    EXPECT_FALSE(std::filesystem::exists(file)) << "nothing was changed";
    folder.schreiben("fenster.cfg", "form1;9000;9000\r\nForm_ueber_QUITTIKA;500;300;-4000;9000\r\n");
    session(file, [&](Form& form1, Form& about) {
        EXPECT_LE(form1.Height(), twips(room.height()));
        EXPECT_EQ(about.Left(), 0);
        EXPECT_LE(about.Top() + about.Height(), twips(room.height()));
    });
    session("/gibt/es/nicht/fenster.cfg", [](Form&, Form&) {}); // nobody is bothered
}

} // namespace
} // namespace quittika::test
