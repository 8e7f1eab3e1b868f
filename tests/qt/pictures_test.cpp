#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_pdf.hpp"
#include "platform/qt/qt_pictures.hpp"
#include "platform/qt/widgets/contrast.hpp"
#include "print/nachsichtiges_geraet.hpp"
#include "tests/qt/shipped.hpp"
#include "tests/qt/test_form.hpp"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <ctime>
#include <fstream>

namespace quittika::test {
namespace {

QByteArray encoded(const char* format, QSize size = {40, 20}, QColor colour = Qt::red) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    for (int i = 0; i < 64; ++i) {
        image.setPixelColor(i % 8, i / 8, Qt::blue);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 90);
    return buffer.data();
}

QByteArray replaced(QByteArray bytes, int at, const char* hex) {
    const QByteArray given = QByteArray::fromHex(hex);
    return bytes.replace(at, given.size(), given);
}

/// 3 by 2 pixels.
const QByteArray kGif = QByteArray::fromHex("47494638396103000200f000000000ff00000021f90400000000002c0000"
                                            "000003000200000202845f003b");

/// 16 by 8 pixels of red in printing colours.
const QByteArray kCmyk = QByteArray::fromBase64(
    "/9j/7gAOQWRvYmUAZAAAAAAC/9sAQwADAgIDAgIDAwMDBAMDBAUIBQUEBAUKBwcGCAwKDAwLCgsLDQ4SEA0OEQ4LCxAWEBET"
    "FBUVFQwPFxgWFBgSFBUU/9sAQwEDBAQFBAUJBQUJFA0LDRQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQU"
    "FBQUFBQUFBQUFBQU/8AAFAgACAAQBAERAAIRAQMRAQQRAP/EABYAAQEBAAAAAAAAAAAAAAAAAAAICf/EABQQAQAAAAAAAAAA"
    "AAAAAAAAAAD/xAAWAQEBAQAAAAAAAAAAAAAAAAAABwn/xAAUEQEAAAAAAAAAAAAAAAAAAAAA/9oADgQBAAIRAxEEAAA/AKIX"
    "NlU1TAH/2Q==");

/// The camera lay on its side: a quarter turn to the right.
QByteArray turned() {
    const QByteArray orientation = QByteArray::fromHex("ffe10022457869660000"
                                                       "49492a00080000000100"
                                                       "120103000100000006000000"
                                                       "00000000");
    return encoded("jpg").insert(2, orientation);
}

/// As many passes over 4000 by 4000 pixels as a hundred scans make.
QByteArray slow() {
    QByteArray bytes = encoded("jpg");
    const qsizetype frame = bytes.indexOf("\xFF\xC0");
    bytes = replaced(bytes, static_cast<int>(frame) + 5, "0fa00fa0");
    return bytes.insert(bytes.size() - 2, QByteArray::fromHex("ffda0003").repeated(100));
}

struct Given {
    const char* what;
    QByteArray bytes;
    QSize size;          ///< empty for what is refused
    const char* says;    ///< part of the reason
    bool inside = false; ///< only decoding finds it out
};

const char* const kBroken = "beschädigt";
const char* const kHuge = "20000 x 20000 Bildpunkte";

std::vector<Given> given() {
    return {
        {"bmp", encoded("bmp"), {40, 20}, ""},
        {"png", encoded("png"), {40, 20}, ""},
        {"jpg", encoded("jpg"), {40, 20}, ""},
        {"gif", kGif, {3, 2}, ""},
        {"printing colours", kCmyk, {16, 8}, ""},
        {"turned camera", turned(), {20, 40}, ""},
        {"bmp cut off", encoded("bmp").chopped(1), {}, kBroken},
        {"png cut off", encoded("png").chopped(1), {}, kBroken},
        {"jpg cut off", encoded("jpg").chopped(2), {}, kBroken},
        {"gif cut off", kGif.chopped(2), {}, kBroken},
        {"no height", replaced(encoded("png"), 20, "00000000"), {}, kBroken},
        {"png damaged", replaced(encoded("png"), 60, "000000000000"), {}, kBroken, true},
        {"bmp of no sense", replaced(encoded("bmp"), 28, "0300"), {}, kBroken, true},
        {"huge bmp", replaced(encoded("bmp"), 18, "204e0000204e0000"), {}, kHuge},
        {"huge png", replaced(encoded("png"), 16, "00004e2000004e20"), {}, kHuge},
        {"deep png", replaced(encoded("png"), 16, "00000fa000000fa010"), {}, "10 Millionen"},
        {"transparent png", replaced(encoded("png"), 16, "00000fa000000fa00806"), {}, "10 Millionen"},
        {"huge gif", replaced(kGif, 6, "204e204e"), {}, kHuge},
        {"long png", replaced(encoded("png"), 16, "0000753100000001"), {}, "30001 x 1"},
        {"slow jpg", slow(), {}, "aufwendig"},
        {"needless chunk",
         encoded("png").insert(33, QByteArray::fromHex("000000004142434400000000")),
         {40, 20},
         ""},
        {"small picture in a large file", encoded("png").append(QByteArray(9000000, 0)), {}, "aufwendig"},
        {"text", "Das ist kein Bild.", {}, "BMP, GIF, JPG oder PNG"},
        {"nothing", "", {}, "BMP, GIF, JPG oder PNG"},
    };
}

class PictureTest : public ::testing::Test {
protected:
    std::string file(const char* name, const QByteArray& bytes) {
        QFile out(folder.filePath(name));
        EXPECT_TRUE(out.open(QFile::WriteOnly));
        out.write(bytes);
        return out.fileName().toStdString();
    }

    QTemporaryDir folder;
    QtPictures pictures;
    PictureHeaders headers;
};

TEST_F(PictureTest, AreJudgedByTheirContentAndToldWhy) {
    for (const Given& g : given()) {
        const std::string path = file("bild.jpg", g.bytes);
        for (Pictures* judge : std::initializer_list<Pictures*>{&pictures, &headers}) {
            if (judge == &headers && (g.inside || g.what == std::string("turned camera"))) {
                continue;
            }
            try {
                const PictureSize size = judge->check(path);
                EXPECT_EQ(QSize(size.width, size.height), g.size) << g.what;
            } catch (const Laufzeitfehler& f) {
                EXPECT_EQ(f.nummer(), fehler::kBild) << g.what;
                EXPECT_TRUE(g.size.isEmpty()) << g.what;
                EXPECT_NE(f.ort().find(g.says), std::string::npos) << g.what << ": " << f.ort();
            }
        }
    }
}

TEST_F(PictureTest, FilesThatCannotBeReadHaveTheirOwnNumbers) {
    const std::string pipe = folder.filePath("rohr").toStdString();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string large = file("gross.bmp", encoded("bmp"));
    QFile::resize(QString::fromStdString(large), kLargestPictureFile + 1);
    const std::pair<std::string, int> cases[] = {
        {folder.filePath("fehlt.bmp").toStdString(), fehler::kDateiFehlt},
        {folder.filePath("fehlt/logo.bmp").toStdString(), fehler::kPfadFehlt},
        {folder.path().toStdString(), fehler::kPfadZugriff},
        {pipe, fehler::kPfadZugriff},
        {"/dev/zero", fehler::kPfadZugriff},
        {large, fehler::kBild},
    };
    for (const auto& [path, number] : cases) {
        try {
            pictures.check(path);
            ADD_FAILURE() << path;
        } catch (const Laufzeitfehler& f) {
            EXPECT_EQ(f.nummer(), number) << path;
        }
    }
}

TEST_F(PictureTest, ColoursAndTurnsAreSeen) {
    const auto middle = [&](const std::string& path) {
        const QImage image = pictures.image(path);
        return image.pixelColor(image.rect().center());
    };
    const QColor red = middle(file("cmyk.jpg", kCmyk));
    EXPECT_GT(red.red(), 240);
    EXPECT_LT(red.green() + red.blue(), 30);
    const QImage upright = pictures.image(file("gedreht.jpg", turned()));
    EXPECT_GT(upright.pixelColor(19, 0).blue(), upright.pixelColor(0, 0).blue()) << "the corner moved right";
}

TEST_F(PictureTest, KeepTheirProportionsOrAreStretchedAndMissingOnesAreEmpty) {
    const std::string red = file("Löwe #1 %20.bmp", encoded("bmp"));
    Bound bound;
    auto& label = bound.widget<QLabel>("Picture");
    label.setAlignment(Qt::AlignCenter);
    label.setFixedSize(80, 80);
    const auto at = [&](int x, int y) { return QColor(label.grab().toImage().pixel(x, y)); };
    const QColor ground = at(40, 40);
    bound.form.Picture.Picture = folder.path().toStdString() + "\\Löwe #1 %20.bmp";
    EXPECT_EQ(at(40, 40), QColor(Qt::red));
    EXPECT_EQ(at(1, 50), QColor(Qt::red)) << "80 by 40 in the middle";
    EXPECT_EQ(at(40, 15), ground);
    file("Löwe #1 %20.bmp", encoded("bmp", {40, 20}, Qt::green));
    pictures.load(bound.form.Picture, red);
    EXPECT_EQ(at(40, 40), QColor(Qt::green)) << "the file is another one";
    label.setScaledContents(true);
    pictures.load(bound.form.Picture, red);
    EXPECT_EQ(at(40, 15), QColor(Qt::green));
    EXPECT_EQ(at(78, 78), QColor(Qt::green));
    bound.form.Picture.Picture = folder.filePath("fehlt.bmp").toStdString();
    EXPECT_EQ(at(40, 40), ground);
}

/// The most that a picture may hold, of what packs badly. `see_through`: with another colour behind it.
QByteArray heavy(const char* format, QSize size, bool see_through) {
    QImage image(size, see_through ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    std::uint32_t random = 1;
    for (int y = 0; y < size.height(); ++y) {
        auto* const line = reinterpret_cast<std::uint32_t*>(image.scanLine(y));
        std::generate_n(line, size.width(), [&] { return random = random * 1664525U + 1013904223U; });
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, see_through ? 100 : 75); // the best png is not packed at all
    return buffer.data();
}

#ifdef __has_feature
constexpr bool kKeepsWhatIsFreed = __has_feature(address_sanitizer);
#else
constexpr bool kKeepsWhatIsFreed = false;
#endif

long memory(const char* what) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != what) {
    }
    long kilobytes = 0;
    status >> kilobytes;
    return kilobytes / 1000;
}

TEST_F(PictureTest, APageIsPrintedWithOrWithoutItSoonAndInLittleMemory) {
    struct Printed {
        const char* name;
        QByteArray bytes;
        bool loads;
    };
    const Printed cases[] = {
        {"missing.png", {}, false},
        {"broken.jpg", encoded("jpg").chopped(2), false},
        {"damaged.png", replaced(encoded("png"), 60, "000000000000"), false},
        {"huge.png", replaced(encoded("png"), 16, "00004e2000004e20"), false},
        {"a text.bmp", "Das ist kein Bild.", false},
        {"a png.jpg", encoded("png"), true},
        {"a gif", kGif, true},
        {"printing colours.jpg", kCmyk, true},
        {"photo.jpg", heavy("jpg", {5000, 4000}, false), true},
        {"scan.png", heavy("png", {3160, 3160}, true), true},
        {"scan.bmp", heavy("bmp", {5000, 4000}, false), true},
    };
    for (const Printed& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string path =
            c.bytes.isEmpty() ? folder.filePath(c.name).toStdString() : file(c.name, c.bytes);
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak is counted from here on
        const long before = memory("VmRSS:");
        double seconds = 1;
        for (int attempt = 0; attempt < 3 && seconds >= 1; ++attempt) { // the machine may be busy
            const std::clock_t begin = std::clock();
            PaintTools tools;
            QtPdfDevice pdf(tools, folder.filePath("seite.pdf"), {"x"});
            NachsichtigesGeraet device(pdf, Paper{});
            device.text(20, 20, 10, {"Arial"}, color::kBlack, "Text");
            device.picture(0, 0, 210, 297, path);
            device.picture(0, 0, 45, 30, path);
            device.end_document();
            seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
            EXPECT_EQ(device.fehlendes_bild(), c.loads ? "" : path);
        }
        EXPECT_LT(seconds, 1);
        EXPECT_LT(memory("VmHWM:") - before, kKeepsWhatIsFreed ? 1000 : 300);
        EXPECT_LT(QFile(folder.filePath("seite.pdf")).size(), 40'000'000);
        EXPECT_TRUE(QFile::remove(folder.filePath("seite.pdf")));
    }
}

TEST_F(PictureTest, ThePageTemplatesCarryBlackText) {
    for (int number = 1; number <= 12; ++number) {
        const std::string path = shipped("DESIGN_A4/A4-1+" + std::to_string(number) + ".jpg");
        ASSERT_NE(path, "") << number;
        const QImage page = pictures.image(path);
        EXPECT_NEAR(page.width() * 297.0 / 210, page.height(), 1) << number;
        double least = 21;
        for (int y = 0; y < page.height(); y += 3) {
            for (int x = 0; x < page.width(); x += 3) {
                least = std::min(least, theme::contrast(page.pixelColor(x, y), Qt::black));
            }
        }
        EXPECT_GT(least, 9) << number;
        EXPECT_LT(least, 20) << number << " shows something";
        EXPECT_LT(std::filesystem::file_size(path), 60'000U) << number;
    }
}

} // namespace
} // namespace quittika::test
