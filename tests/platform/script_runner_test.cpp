#include "platform/script/runner.hpp"

#include "platform/forms/controls.hpp"
#include "platform/script/listing.hpp"
#include "platform/script/protocol.hpp"
#include "tests/feste_schrift.hpp"
#include "tests/platform/script_fake_program.hpp"
#include "tests/workbench.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace quittika::script_test {
namespace {

struct Conversation {
    std::string commands;
    std::string answers;
};

/// Commands and what is answered to each: behind "= " and without the closing "ok".
Conversation read(const std::string& talk) {
    Conversation c;
    std::istringstream lines(talk);
    std::string line;
    bool more = static_cast<bool>(std::getline(lines, line));
    while (more) {
        c.commands += line + '\n';
        bool good = true;
        while ((more = static_cast<bool>(std::getline(lines, line))) && line.starts_with("= ")) {
            c.answers += line.substr(2) + '\n';
            good = !line.starts_with("= error: ");
        }
        c.answers += good ? "ok\n" : "";
    }
    return c;
}

struct Talk {
    const char* name;
    const char* text; ///< what follows the first start
    ProgramFactory program = fake_program;
};

void PrintTo(const Talk& talk, std::ostream* out) {
    *out << talk.name;
}

class ScriptTalk : public testing::TestWithParam<Talk> {};

TEST_P(ScriptTalk, GoesAsWritten) {
    const Conversation expected = read(std::string("start dir 2008-05-17T09:30:58\n") + GetParam().text);
    const FesteSchrift metrics;
    std::istringstream in(expected.commands);
    std::ostringstream out;
    Runner runner({GetParam().program, metrics}, in, out);
    const int status = runner.run();
    EXPECT_EQ(out.str(), expected.answers);
    EXPECT_EQ(status, expected.answers.find("error: ") == std::string::npos ? 0 : 1);
}

std::shared_ptr<void> workbench(const Platform& platform, const std::string& /*directory*/) {
    return std::make_shared<test::Workbench>(platform.desktop, platform.progress);
}

const Talk kTalks[] = {
    {"modal_over_modal_and_failures_go_to_the_command", R"(click form1.Modal
set Form_Notiz.Text krach
click Form_Notiz.Weiter
forms
= form1|Haupt|
= Form_Notiz|Notiz|modal
= Form_Zweite|Zweite\pFrage|modal
click Form_Zweite.Fehler
= error: oben\nunten
close Form_Zweite
close Form_Notiz
= error: Typen unverträglich
get form1.Log
= ; Start dir; Notiz raus; Notiz entladen; zurück: krach
click form1.Modal
)"},
    {"a_start_or_the_end_leaves_a_modal_window", R"(click form1.Modal
click Form_Notiz.Weiter
start anders
get form1.Log
= ; Start anders
opened
click form1.Modal
set Form_Notiz.Text ende
get Form_Notiz.Text
= error: Es läuft kein Programm
)"},
    {"switching_on_or_another_interval_counts_anew", R"(set form1.Schalter schnell
wait 300
set form1.Schalter aus
wait 1000
set form1.Schalter schnell
wait 300
set form1.Schalter lang
wait 599
clock 2008-05-17T09:31:07
wait 1
get form1.Log
= ; Start dir; schnell 7
)"},
    {"modal_window_out_of_a_timer", R"(set form1.Schalter langsam
wait 1300
wait 1000
close Form_Notiz
get form1.Log
= ; Start dir; schnell 58; schnell 58; langsam 59; schnell 59; schnell 59; schnell 0; Notiz entladen
)"},
    {"dialogs_take_what_fits", R"(font Comic Sans MS
color 65535
file C:\\a b|c.bmp
fail 75
click form1.Dialoge
get form1.Log
= ; Start dir; gewählt C:\\a b|c.bmp; nichts; gewählt 65535; gewählt Comic Sans MS
dialogs
= dialog|open|Bild\p*.bmp|||C:\\a b\pc.bmp
= dialog|save||5-08 x.txt|Sichern|fail 75
= dialog|color||||65535
= dialog|font||||Comic Sans MS
cancel
file x
click form1.Dialoge
dialogs
= dialog|open|Bild\p*.bmp|||cancel
= dialog|save||5-08 x.txt|Sichern|x
= dialog|color||||cancel
= dialog|font||||cancel
)"},
    {"events_come_as_by_hand", R"(set form1.Text1  a b 
type form1.Text1 ä€
click form1.Text2
get form1.Log
= ; Start dir; Text1 rein; Text1= a b ; Text1 raus; Text1 rein; Text1= a b ä; Text1= a b ä€; Text1 raus; Text2 rein
click form1.Log
click form1.Modal
type Form_Notiz.Text zuletzt
= error: Das Fenster Form_Notiz ist nicht offen
get form1.Log
= ; Text2 raus; Notiz raus; zurück: zu
click form1.Log
type form1.Scanner 47\r\n8
get form1.Scanner
= 8
select form1.Liste 1
select form1.Liste 1
dblclick form1.Liste
select form1.Liste -1
dblclick form1.Liste
get form1.Log
= ; Code 47\r\n; Liste Birne|Quitte; Liste Birne|Quitte; Liste Birne|Quitte; Doppelt; Liste ; Doppelt
click form1.Log
set form1.Offen neu
type form1.Offen er
get form1.Offen
= neuer
set form1.Rolle 9
set form1.Rolle 10
= error: form1.Rolle kann nicht "10" werden
click form1.Spaeter
get form1.Log
= ; Rolle 9; davor; danach
)"},
    {"directories_are_chosen_as_by_hand", R"(set form1.Laufwerk /
set form1.Laufwerk /usr
= error: form1.Laufwerk kann nicht "/usr" werden
get form1.Laufwerk
= /
set form1.Ordner /usr/../usr/
set form1.Ordner /gibt/es/nicht
= error: form1.Ordner kann nicht "/gibt/es/nicht" werden
get form1.Ordner
= /usr
)"},
    {"workbench", R"(mouse Workbench.Block move 1 330 165
set Workbench.Movable 1
mouse Workbench.Block move 0 30 15
mouse Workbench.Block move 1 330 -45
mouse Workbench.Block up 1 30 15
mouse Workbench.Block up 1 1500 15
mouse Workbench.Block up 2 30 15
get Workbench.Block.Left
= 750
get Workbench.Block.Top
= 540
get Workbench.Sheet.Width
= 6000
select Workbench.Log -1
= error: Workbench.Log ist nicht sichtbar
drop Workbench.Service Nagel
= error: Workbench.Service nimmt nichts an
click Workbench.Open
select Articles.List 2
drop Workbench.Service Nagel 6 mm
get Workbench.Tabs
= &Felder && Farben
click Workbench.Open
click Workbench.Open
forms
= Workbench|Werkbank|
= Articles|Artikel|
click Articles.Done
click Articles.Done
= error: Es gibt kein Fenster Articles
click Workbench.Open
select Articles.List 1
dblclick Articles.List
type Workbench.Service !
set Workbench.Block 1
= error: Workbench.Block nimmt keinen Wert an
select Workbench.Tabs 0
get Workbench.Service
= Nagel 4 mm!
set Workbench.Red 255
get Workbench.Patch.BackColor
= 255
click Workbench.Work
abort
get Workbench.Result
= gezählt
click Workbench.Work
progress
= progress|Nägel werden gezählt|done
= progress|Nägel werden gezählt|aborted
get Workbench.Result
= abgebrochen
items Workbench.Log
= Bild
= gewählt Nagel 6 mm
= Blatt 1
= genommen (Nägel)
= Artikel zerstört
= Artikel zerstört
= gewählt Nagel 4 mm
= gewählt Nagel 4 mm
= genommen (Nägel)
= Artikel zerstört
= Feld verlassen
= Blatt 0
= Blatt 1
= Rot 255
= Blatt 2
)",
     workbench},
};
INSTANTIATE_TEST_SUITE_P(Talks, ScriptTalk, testing::ValuesIn(kTalks),
                         [](const auto& p) { return p.param.name; });

TEST(ScriptPrinting, APreviewIsNotPrintedAndCopiesAreNotWrittenOneByOne) {
    struct Preview : Form {
        Preview() : Form("Vorschau", "") {}
        PictureBox Picture1{*this, "Picture1"};
    } form;
    const FesteSchrift metrics;
    PictureHeaders pictures;
    std::vector<std::size_t> files; ///< documents in each file written
    ScriptPrinting printing(
        metrics, pictures,
        {[&files](const std::string&, const RecordedJobs& jobs) { files.push_back(jobs.size()); }, {}});
    printing.print_to("x.pdf");
    printing.begin_command();
    const auto preview = printing.picture(form.Picture1, {"Vor\tschau", {}, 2});
    preview->line(-0.001, 12.345678, 3, 4, 5);
    preview->text(1, 2, 10, {"Arial", 9.5, true}, 255, "Nr. 1");
    EXPECT_EQ(form.Picture1.page(), nullptr);
    preview->end_document();
    ASSERT_EQ(printing.jobs().size(), 1U);
    EXPECT_EQ(listing(*printing.jobs().front()),
              (std::vector<std::string>{"job Vor\\tschau", "page 2", "line 0.00 12.35 3.00 4.00 5",
                                        "text 1.00 2.00 10.00 9.5 1 255 Nr. 1", "enddoc"}));
    ASSERT_NE(form.Picture1.page(), nullptr);
    EXPECT_EQ(form.Picture1.page()->drawings.size(), 2U);
    EXPECT_TRUE(files.empty());
    EXPECT_THROW(printing.save_page(*form.Picture1.page(), "x.bmp", 200), CommandError);
    for (int copy = 0; copy < 5; ++copy) {
        printing.printer({"Blatt"})->end_document();
    }
    EXPECT_EQ(files, std::vector<std::size_t>{1}) << "the first meets the errors of the surface";
    printing.end_command();
    EXPECT_EQ(files, (std::vector<std::size_t>{1, 5}));
}

} // namespace
} // namespace quittika::script_test
