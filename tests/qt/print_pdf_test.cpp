#include "platform/print_surface.hpp"
#include "platform/qt/print_page.hpp"
#include "platform/qt/print_paper.hpp"
#include "platform/qt/print_pdf.hpp"

#include <gtest/gtest.h>

#include <QtWidgets>

namespace quittika::test {
namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;

QString output_of(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(10000)) << program.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// Box of a word on a page of the PDF, in mm.
struct Word {
    double left = 0;
    double top = 0;
    double right = 0;
};

Word word_of(const QString& boxes, const QString& word) {
    const QRegularExpression pattern(
        "xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">" +
        QRegularExpression::escape(word) + "<");
    const QRegularExpressionMatch match = pattern.match(boxes);
    EXPECT_TRUE(match.hasMatch()) << word.toStdString();
    const auto millimetres = [&match](int group) {
        return match.captured(group).toDouble() / kPointsPerMillimetre;
    };
    return {millimetres(1), millimetres(2), millimetres(3)};
}

/// Where the ink ends on the right, in pixels; the last one counts by its darkness.
double ink_end(const QImage& page) {
    for (int x = page.width() - 1; x >= 0; --x) {
        int darkest = 255;
        for (int y = 0; y < page.height(); ++y) {
            darkest = std::min(darkest, qGray(page.pixel(x, y)));
        }
        if (darkest < 250) {
            return x + (255 - darkest) / 255.0;
        }
    }
    return -1;
}

class PdfTest : public ::testing::Test {
protected:
    QTemporaryDir folder;
    PaintTools tools;
    QString path = folder.filePath("probe.pdf");
};

TEST_F(PdfTest, WordsStandWhereTheyWereDrawn) {
    QtPdfDevice device(tools, path, {"Rechnung für Müller", {}, 1, "Möller & Söhne (Köln)"});
    PrintSurface surface(device, tools.metrics);
    surface.FontSize = 11;
    surface.CurrentX = 25;
    surface.CurrentY = 60;
    surface.PrintOn("Überweisung");
    const double width = surface.TextWidth("Überweisung");
    surface.NewPage();
    surface.FontBold = true;
    surface.CurrentX = 100;
    surface.CurrentY = 200;
    surface.Print("Größe");
    EXPECT_FALSE(QFile::exists(path)) << "a half-written document must not be taken for a whole one";
    surface.EndDoc();

    const QString info = output_of("pdfinfo", {path});
    EXPECT_TRUE(info.contains(QRegularExpression("Pages: +2\\n"))) << info.toStdString();
    EXPECT_TRUE(info.contains("(A4)")) << info.toStdString();
    EXPECT_TRUE(info.contains("Rechnung für Müller"));
    EXPECT_TRUE(info.contains("Möller & Söhne (Köln)")) << info.toStdString();
    EXPECT_TRUE(info.contains(QDate::currentDate().toString("yyyy"))) << "when it was made";
    const QString boxes = output_of("pdftotext", {"-bbox", path, "-"});
    const Word first = word_of(boxes, "Überweisung");
    EXPECT_NEAR(first.left, 29, 0.2);
    EXPECT_NEAR(first.right - first.left, width, 0.2) << "what was measured is what was drawn";
    EXPECT_NEAR(first.top, 66, 1.0);
    EXPECT_NEAR(word_of(boxes, "Größe").left, 104, 0.2) << "on every page";
}

TEST_F(PdfTest, ColumnsEndAtTheSamePlaceAsOnPictures) {
    constexpr int kDpi = 200;
    constexpr double kPixel = kMmPerInch / kDpi;
    constexpr int kRow = 80; ///< pixels
    const auto job = std::make_shared<RecordedJob>(PrintDocument{"x"});
    RecordingDevice record(job, tools.pictures);
    PrintSurface surface(record, tools.metrics);
    int rows = 0;
    for (const char* font : {"Arial", "Courier New"}) {
        for (const double size : {8.0, 9.5, 11.0}) {
            for (const char* text :
                 {"H", "1.234,56 H", "123 Stück je 1.234,56 EUR, 19,00 % MwSt. iiiillll HHHH"}) {
                surface.FontName = font;
                surface.FontSize = size;
                surface.CurrentX = 190 - surface.TextWidth(text);
                surface.CurrentY = rows++ * kRow * kPixel;
                surface.PrintOn(text);
            }
        }
    }
    QtPdfDevice pdf(tools, path, job->document);
    replay(*job, pdf);
    pdf.end_document();
    output_of("pdftoppm",
              {"-r", QString::number(kDpi), "-png", "-singlefile", path, folder.filePath("blatt")});
    const QImage paper(folder.filePath("blatt.png"));
    const QImage picture = page_image(job->pages.front(), paper.size(), tools);
    for (int row = 0; row < rows; ++row) {
        const auto end = [row](const QImage& page) {
            return ink_end(page.copy(0, row * kRow + 47, page.width(), kRow)) * kPixel;
        };
        EXPECT_NEAR(end(paper), 194 - 0.25, 0.25) << row;
        EXPECT_NEAR(end(picture), end(paper), 0.1) << row;
    }
}

TEST_F(PdfTest, EachPageHasThePaperOfItsDocument) {
    QtPdfDevice device(tools, path, {"x", {220, 110}});
    PrintSurface surface(device, tools.metrics);
    surface.CurrentX = 200;
    surface.CurrentY = 90;
    surface.Print("Ecke");
    device.new_page(Paper{});
    device.new_page(Paper{100, 150});
    device.end_document();
    // Points, 72 an inch.
    const QString info = output_of("pdfinfo", {"-l", "3", path});
    EXPECT_TRUE(info.contains(QRegularExpression("Page +1 size: +62[34][.0-9]* x 31[12]")))
        << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression("Page +2 size: +595 x 842"))) << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression("Page +3 size: +283[.0-9]* x 425"))) << info.toStdString();
    const Word corner = word_of(output_of("pdftotext", {"-bbox", path, "-"}), "Ecke");
    EXPECT_NEAR(corner.left, 204, 0.2);
    EXPECT_NEAR(corner.top, 96, 1.0);
}

TEST_F(PdfTest, ClearsWhatAKilledProgramLeft) {
    QFile left(folder.filePath(".quittika-999999999-0.neu"));
    ASSERT_TRUE(left.open(QFile::WriteOnly));
    QtPdfDevice device(tools, path, {"x"});
    PrintSurface(device, tools.metrics).EndDoc();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"probe.pdf"});
}

TEST_F(PdfTest, PicturesKeepTheirPixelsAndInGreyTheirTransparency) {
    QImage picture(40, 30, QImage::Format_ARGB32);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            picture.setPixel(x, y, qRgba(x * 6, y * 8, (x * 37 + y * 91) % 256, x < 20 ? 255 : y * 8));
        }
    }
    const QString source = folder.filePath("bild.png");
    ASSERT_TRUE(picture.save(source));
    for (const bool grey : {false, true}) {
        QtPdfDevice device(tools, path, {"x"}, grey);
        device.picture(10, 10, 40, 30, source.toStdString());
        device.end_document();
        output_of("pdfimages", {"-png", path, folder.filePath("aus")});
        const QImage colours(folder.filePath("aus-000.png"));
        const QImage mask(folder.filePath("aus-001.png"));
        ASSERT_EQ(colours.size(), picture.size());
        ASSERT_EQ(mask.size(), picture.size());
        for (const QPoint p : {QPoint(3, 4), QPoint(17, 29), QPoint(39, 20)}) {
            const QRgb full = picture.pixel(p);
            const int value = qGray(full);
            EXPECT_EQ(colours.pixel(p) & 0xFFFFFF, (grey ? qRgb(value, value, value) : full) & 0xFFFFFF);
            EXPECT_EQ(qGray(mask.pixel(p)), qAlpha(full));
        }
    }
}

} // namespace
} // namespace quittika::test
