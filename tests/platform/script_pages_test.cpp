#include "tests/platform/script_conversation.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace quittika::script_test {
namespace {

TEST(ScriptPages, KeepTheJobsOfTheLastPrintingCommand) {
    const Conversation expected = R"(start dir
click form1.Drucken
click form1.Spaeter
pages
= job Blatt\t1
= page 1
= text 0.00 12.35 10.00 9.5 1 255 Nr. 1
= page 2
= line 0.00 1.00 210.00 1.00 0
= enddoc
= job Blatt\t1
= page 1
= text 0.00 12.35 10.00 9.5 1 255 Nr. 2
= page 2
= line 0.00 1.00 210.00 1.00 0
= enddoc
click form1.Modal
click Form_Notiz.Drucken
pages
= job Notiz
= page 1
= text 0.00 12.35 10.00 9.5 1 255 Nr. 1
= page 2
= line 0.00 1.00 210.00 1.00 0
= enddoc
printto x.pdf
= error: Es gibt keine Ausgabe in PDF-Dateien
)";
    EXPECT_EQ(play(expected).conversation, expected);
}

TEST(ScriptPages, PictureNeedsItsFile) {
    const std::string folder = testing::TempDir() + "script_pages";
    std::filesystem::create_directories(folder);
    const std::string picture = folder + "/logo.bmp";
    std::filesystem::remove(picture);
    const Conversation head = "start " + folder + "\nclick form1.Bild\n";
    const Conversation missing = head + "= error: Ungültiges Bild\npages\n= job Bild\n= page 1\n";
    EXPECT_EQ(play(missing).conversation, missing);

    std::ofstream(picture) << "BM";
    const Conversation there =
        head + "pages\n= job Bild\n= page 1\n= picture 1.00 2.00 3.00 4.00 " + picture + "\n";
    EXPECT_EQ(play(there).conversation, there);
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

TEST(ScriptPages, APreviewIsNotPrintedAndCopiesAreNotWrittenOneByOne) {
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
    for (int copy = 0; copy < 5; ++copy) {
        printing.printer("Blatt")->end_document();
    }
    EXPECT_EQ(files, std::vector<std::string>{""}) << "the first meets the errors of the surface";
    printing.end_command();
    EXPECT_EQ(files, (std::vector<std::string>{"", "////"}));
}

} // namespace
} // namespace quittika::script_test
