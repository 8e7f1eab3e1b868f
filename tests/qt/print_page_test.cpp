#include "platform/laufzeitfehler.hpp"
#include "platform/print_surface.hpp"
#include "platform/qt/print_printing.hpp"
#include "platform/recording.hpp"
#include "tests/qt/test_form.hpp"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTemporaryDir>

namespace quittika::test {
namespace {

/// Smallest box around everything of that colour, in pixels.
QRect extent(const QImage& page, const QColor& colour) {
    QRect box;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (page.pixelColor(x, y) == colour) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

class PageTest : public ::testing::Test {
protected:
    /// A page with a blue picture at 12, 8 of 45 by 30 mm, a red text ending at 190 and a rule at 20.
    void draw(const PrintDocument& document = {"Vorschau"}) {
        const auto device = printing.picture(bound.form.Picture, document);
        PrintSurface surface(*device, printing.metrics());
        surface.ForeColor = color::rgb(255, 0, 0);
        surface.FontSize = 20;
        surface.CurrentX = 190 - surface.TextWidth("HHHH");
        surface.CurrentY = 100;
        surface.PrintOn("HHHH");
        surface.Line(10, 20, 30, 20, color::rgb(0, 255, 0));
        surface.PaintPicture(blue, 12, 8, 45, 30);
        surface.EndDoc();
    }
    QImage saved(const char* name, int dpi) {
        const QString path = folder.filePath(name);
        printing.save_page(*bound.form.Picture.page(), path.toStdString(), dpi);
        return QImage(path);
    }
    void SetUp() override {
        QImage image(3, 2, QImage::Format_RGB32);
        image.fill(Qt::blue);
        ASSERT_TRUE(image.save(QString::fromStdString(blue)));
    }

    QTemporaryDir folder;
    std::string blue = folder.filePath("blau.bmp").toStdString();
    Bound bound;
    QtPrinting printing{bound.tools, [] { return nullptr; }};
};

TEST_F(PageTest, IsSavedInMillimetresOfItsSheet) {
    draw();
    const QImage page = saved("seite.bmp", 254); // ten pixels a millimetre
    EXPECT_EQ(page.size(), QSize(2100, 2970));
    EXPECT_EQ(page.dotsPerMeterX(), 10000);
    const QRect text = extent(page, Qt::red);
    EXPECT_NEAR(text.right(), 1940, 12);
    EXPECT_GT(text.top(), 1060);
    const QRect line = extent(page, Qt::green);
    EXPECT_NEAR(line.left(), 140, 1);
    EXPECT_NEAR(line.center().y(), 260, 1);
    EXPECT_LE(line.height(), 3) << "a rule is 0.2 mm thick";
    const QRect picture = extent(page, Qt::blue);
    EXPECT_NEAR(picture.left(), 160, 1);
    EXPECT_NEAR(picture.bottom(), 440, 2);

    const QRect small = extent(saved("seite.PNG", 200), Qt::red);
    EXPECT_NEAR(small.right(), 1940 / 10.0 / 25.4 * 200, 10);
    draw({"Umschlag", {220, 110}});
    EXPECT_EQ(saved("umschlag.bmp", 254).size(), QSize(2200, 1100));
    for (const int dpi : {0, 1201}) {
        EXPECT_THROW(saved("falsch.bmp", dpi), Laufzeitfehler);
    }
}

TEST_F(PageTest, IsShownSharpInAnyBoxAndWipedOutAgain) {
    auto& label = bound.widget<QLabel>("Picture");
    label.setAlignment(Qt::AlignCenter);
    draw();
    for (const int scale : {1, 2, 5}) {
        label.setFixedSize(230 * scale, 297 * scale); // ten pixels on each side are not paper
        const QImage shown = label.grab().toImage();
        EXPECT_NE(shown.pixelColor(5, 5), QColor(Qt::white));
        EXPECT_EQ(shown.pixelColor(12 * scale, 2), QColor(Qt::white));
        const QRect picture = extent(shown, Qt::blue);
        EXPECT_NEAR(picture.left(), 26 * scale, 1);
        EXPECT_NEAR(picture.width(), 45 * scale, 2);
    }
    const auto blue_is_shown = [&] { return extent(label.grab().toImage(), Qt::blue).isValid(); };
    const auto unfinished = printing.picture(bound.form.Picture, {"x"});
    unfinished->line(0, 0, 10, 10, 0);
    EXPECT_TRUE(blue_is_shown()) << "a page shows when its document ends";
    unfinished->new_page();
    unfinished->end_document();
    EXPECT_FALSE(blue_is_shown());
    EXPECT_TRUE(bound.form.Picture.page()->drawings.empty()) << "the new page wiped the first one out";
    draw();
    bound.form.Picture.Cls();
    EXPECT_FALSE(blue_is_shown());
    draw();
    bound.form.Picture.show_picture("");
    EXPECT_FALSE(blue_is_shown()) << "a picture takes the place of the page";
}

TEST_F(PageTest, APartOfAPageIsGlassAndAsLargeAsItsControlIsWide) {
    auto& label = bound.widget<QLabel>("Picture");
    QPalette yellow;
    yellow.setColor(QPalette::Window, Qt::yellow);
    label.setPalette(yellow);
    label.setAutoFillBackground(true);
    const drawn::Line rule{10 - kOriginLeft, 10 - kOriginTop, 20 - kOriginLeft, 10 - kOriginTop, 0x0000FF};
    bound.form.Picture.show_page(std::make_shared<DrawnPage>(DrawnPage{{30, 20}, {rule}, true}));
    label.setFixedSize(30 * 20, 20 * 20 - 7); // a height rounded down changes no letter's size
    const QImage shown = label.grab().toImage();
    const QRect line = extent(shown, Qt::red);
    EXPECT_NEAR(line.left(), 200, 1);
    EXPECT_NEAR(line.right(), 400, 1);
    EXPECT_NEAR(line.center().y(), 200, 1);
    EXPECT_EQ(shown.pixelColor(1, 1), QColor(Qt::yellow));
}

TEST_F(PageTest, TellsWhatCannotBeDrawnAndLivesWithWhatGoesLater) {
    const auto device = printing.picture(bound.form.Picture, {"x"});
    EXPECT_THROW(device->picture(0, 0, 10, 10, folder.filePath("fehlt.bmp").toStdString()), Laufzeitfehler);
    draw();
    QFile::remove(QString::fromStdString(blue));
    const QImage page = saved("seite.png", 50);
    EXPECT_FALSE(extent(page, Qt::blue).isValid());
    EXPECT_TRUE(extent(page, Qt::red).isValid());
}

} // namespace
} // namespace quittika::test
