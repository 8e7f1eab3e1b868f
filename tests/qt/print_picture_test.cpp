#include "platform/laufzeitfehler.hpp"
#include "platform/print_surface.hpp"
#include "platform/qt/print_picture.hpp"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace quittika::test {

namespace {

constexpr int kDpi = 254; ///< ten pixels a millimetre

/// Smallest box around everything of that colour, in pixels.
QRect extent(const QImage& page, QRgb colour) {
    QRect box;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (page.pixel(x, y) == colour) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

TEST(PictureDevice, DrawsInMillimetresOnPagesOfA4) {
    const QtFontMetrics metrics;
    QtPictureDevice device(metrics, kDpi);
    PrintSurface surface(device, metrics);
    surface.ForeColor = color::rgb(255, 0, 0);
    surface.FontSize = 20;
    surface.CurrentX = 50;
    surface.CurrentY = 100;
    surface.PrintOn("HHHH");
    const double right = surface.CurrentX;
    surface.NewPage();
    surface.Line(10, 20, 30, 20, color::rgb(0, 0, 255));
    surface.EndDoc();

    ASSERT_EQ(device.pages().size(), 2U);
    EXPECT_EQ(device.pages()[0].size(), QSize(2100, 2970));
    const QRect text = extent(device.pages()[0], qRgb(255, 0, 0));
    EXPECT_NEAR(text.left(), 540, 12);
    EXPECT_NEAR(text.right(), right * 10 + 40, 12);
    EXPECT_GT(text.top(), 1060);
    EXPECT_LT(text.bottom(), 1060 + surface.TextHeight() * 10);
    const QRect line = extent(device.pages()[1], qRgb(0, 0, 255));
    EXPECT_NEAR(line.left(), 140, 1);
    EXPECT_NEAR(line.right(), 339, 1);
    EXPECT_NEAR(line.center().y(), 260, 1);
    EXPECT_LE(line.height(), 3) << "a rule is 0.2 mm thick";
}

TEST(PictureDevice, StretchesAPictureAndReportsOneThatIsMissing) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("blau.bmp");
    QImage blue(3, 2, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    ASSERT_TRUE(blue.save(path));
    const QtFontMetrics metrics;
    QtPictureDevice device(metrics, kDpi);
    device.picture(12, 8, 45, 30, path.toStdString());
    try {
        device.picture(0, 0, 10, 10, folder.filePath("fehlt.bmp").toStdString());
        FAIL() << "no error";
    } catch (const Laufzeitfehler& f) {
        EXPECT_EQ(f.nummer(), fehler::kBild);
    }
    device.end_document();
    const QRect box = extent(device.pages().at(0), qRgb(0, 0, 255));
    EXPECT_NEAR(box.left(), 160, 1);
    EXPECT_NEAR(box.top(), 140, 1);
    EXPECT_NEAR(box.width(), 450, 2);
    EXPECT_NEAR(box.height(), 300, 2);
}

TEST(PictureDevice, KeepsOnlyTheWantedPage) {
    const QtFontMetrics metrics;
    QtPictureDevice device(metrics, kDpi, 2);
    PrintSurface surface(device, metrics);
    for (int page = 1; page <= 3; ++page) {
        if (page > 1) {
            surface.NewPage();
        }
        surface.Line(10 * page, 50, 10 * page + 5, 50, color::kBlack);
    }
    surface.EndDoc();
    ASSERT_EQ(device.pages().size(), 1U);
    EXPECT_NEAR(extent(device.pages()[0], qRgb(0, 0, 0)).left(), 240, 1);
}

} // namespace

} // namespace quittika::test
