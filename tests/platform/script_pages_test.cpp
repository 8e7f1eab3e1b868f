#include "tests/platform/script_conversation.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace quittika::script_test {
namespace {

constexpr const char* kTwoCopies = R"(job Blatt\t1
page 1
text 0.00 12.35 10.00 9.5 1 255 Nr. 1
page 2
line 0.00 1.00 210.00 1.00 0
enddoc
job Blatt\t1
page 1
text 0.00 12.35 10.00 9.5 1 255 Nr. 2
page 2
line 0.00 1.00 210.00 1.00 0
enddoc
)";

TEST(ScriptPages, KeepTheJobsOfTheLastPrintingCommand) {
    const std::string expected = std::string(R"(> start dir
ok
> click form1.Drucken
ok
> click form1.Spaeter
ok
> pages
)") + kTwoCopies + R"(ok
> click form1.Modal
ok
> click Form_Notiz.Drucken
ok
> pages
job Notiz
page 1
text 0.00 12.35 10.00 9.5 1 255 Nr. 1
page 2
line 0.00 1.00 210.00 1.00 0
enddoc
ok
)";
    EXPECT_EQ(play(expected).transcript, expected);
}

TEST(ScriptPages, PictureNeedsItsFile) {
    const std::string folder = testing::TempDir() + "script_pages";
    std::filesystem::create_directories(folder);
    const std::string picture = folder + "/logo.bmp";
    std::filesystem::remove(picture);
    const std::string start = "> start " + folder + "\nok\n";
    const std::string missing =
        start + "> click form1.Bild\nerror: Ungültiges Bild\n> pages\njob Bild\npage 1\nok\n";
    EXPECT_EQ(play(missing).transcript, missing);

    std::ofstream(picture) << "BM";
    const std::string there =
        start + "> click form1.Bild\nok\n> pages\njob Bild\npage 1\npicture 1.00 2.00 3.00 4.00 " + picture +
        "\nok\n";
    EXPECT_EQ(play(there).transcript, there);
}

/// Stands for the PDF surface: the whole document as text, kept when it is ended.
class PdfStand final : public PrintDevice {
public:
    PdfStand(std::string head, std::vector<std::string>& files) : document_(std::move(head)), files_(files) {}
    void text(double, double, double, const PrintFont&, Color, std::string_view text) override {
        document_ += "[" + std::string(text) + "]";
    }
    void line(double, double, double, double, Color) override { document_ += "-"; }
    void picture(double, double, double, double, const std::string&) override { document_ += "#"; }
    void new_page() override { document_ += "/"; }
    void end_document() override { files_.push_back(document_); }

private:
    std::string document_;
    std::vector<std::string>& files_;
};

TEST(ScriptPages, PrintToWritesAllJobsSinceIntoOneFile) {
    std::vector<std::string> files;
    const PdfFactory pdf = [&files](const std::string& path, const std::string& title) {
        return std::make_unique<PdfStand>(path + " " + title + ":", files);
    };
    play("> start d\n> click form1.Drucken\n> printto a b.pdf\n> click form1.Drucken\n> click form1.Modal\n"
         "> click Form_Notiz.Drucken\n> printto c.pdf\n> click Form_Notiz.Drucken\n",
         pdf);
    const std::vector<std::string> expected{
        "a b.pdf Blatt\t1:[Nr. 1]/-", "a b.pdf Blatt\t1:[Nr. 1]/-/[Nr. 2]/-",
        "a b.pdf Blatt\t1:[Nr. 1]/-/[Nr. 2]/-/[Nr. 1]/-", "c.pdf Notiz:[Nr. 1]/-"};
    EXPECT_EQ(files, expected);
}

TEST(ScriptPages, WithoutPdfSurfacePrintToIsRefused) {
    const char* const expected = "> printto x.pdf\nerror: Es gibt keine Ausgabe in PDF-Dateien\n";
    EXPECT_EQ(play(expected).transcript, expected);
}

TEST(ScriptPages, PreviewIsRecordedButNotPrinted) {
    const FakeMetrics metrics;
    std::vector<std::string> files;
    ScriptPrinting printing(
        metrics,
        [&files](const std::string&, const std::string&) { return std::make_unique<PdfStand>("", files); },
        {});
    printing.print_to("x.pdf");
    printing.begin_command();
    const auto preview = printing.record("Vorschau");
    preview->line(1, 2, 3, 4, 5);
    preview->end_document();
    ASSERT_EQ(printing.jobs().size(), 1U);
    EXPECT_EQ(listing(*printing.jobs().front()),
              (std::vector<std::string>{"job Vorschau", "page 1", "line 1.00 2.00 3.00 4.00 5", "enddoc"}));
    EXPECT_TRUE(files.empty());
}

} // namespace
} // namespace quittika::script_test
