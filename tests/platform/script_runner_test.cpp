#include "platform/script/runner.hpp"

#include "platform/forms/controls.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/platform.hpp"
#include "platform/script/listing.hpp"
#include "platform/script/protocol.hpp"
#include "platform/script/script_desktop.hpp"
#include "tests/feste_schrift.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <stdexcept>

namespace quittika::script_test {
namespace {

/// A program small enough to be read, with what the real one does not do to the runner: failures that nobody
/// catches, a modal window over a modal one and out of a timer. A caption tells what happened; a click
/// empties it.
class FakeProgram {
public:
    explicit FakeProgram(const Platform& platform) : platform_(platform) {
        for (Form* form : std::initializer_list<Form*>{&haupt_, &notiz_, &zweite_}) {
            platform_.desktop.adopt(*form);
        }
        haupt_.Modal.Click = [this] {
            try {
                notiz_.Show(Modality::Modal);
            } catch (const std::exception&) {
                platform_.shell.open("aufgehalten");
            }
            log("zurück");
            throw Laufzeitfehler(fehler::kFalscherTyp);
        };
        notiz_.Weiter.Click = [this] { zweite_.Show(Modality::Modal); };
        notiz_.Ende.Click = [this] { platform_.desktop.end(); };
        notiz_.Unload = [this] { log("entladen"); };
        zweite_.Fehler.Click = [] { throw std::runtime_error("oben\nunten"); };
        haupt_.Spaeter.Click = [this] {
            platform_.desktop.later([this] { log("danach"); });
            log("davor");
        };
        haupt_.Schalter.Change = [this] {
            const std::string& wahl = haupt_.Schalter.Text();
            haupt_.Schnell.Enabled = wahl != "aus";
            haupt_.Schnell.Interval = wahl == "lang" ? 600 : 400;
            haupt_.Langsam.Enabled = wahl == "langsam";
        };
        haupt_.Schnell.Tick = [this] { log("schnell " + std::to_string(platform_.clock.now().sekunde)); };
        haupt_.Langsam.Tick = [this] {
            log("langsam " + std::to_string(platform_.clock.now().sekunde));
            notiz_.Show(Modality::Modal);
        };
        haupt_.Show();
    }

private:
    struct Haupt : Form {
        Haupt() : Form("form1", "Haupt") {}
        Label Log{*this, "Log"};
        TextBox Schalter{*this, "Schalter"}; ///< "schnell", "lang" and "langsam" switch a timer on
        CommandButton Modal{*this, "Modal"};
        CommandButton Spaeter{*this, "Spaeter"};
        Timer Schnell{*this, "Schnell", 400, false};
        Timer Langsam{*this, "Langsam", 1000, false};
    };
    struct Notiz : Form {
        Notiz() : Form("Form_Notiz", "Notiz") {}
        CommandButton Weiter{*this, "Weiter"};
        CommandButton Ende{*this, "Ende"};
    };
    struct Zweite : Form {
        Zweite() : Form("Form_Zweite", "Zweite|Frage") {}
        CommandButton Fehler{*this, "Fehler"};
    };

    void log(const std::string& text) { haupt_.Log.Caption = haupt_.Log.Caption() + "; " + text; }

    Platform platform_;
    Haupt haupt_;
    Notiz notiz_;
    Zweite zweite_;
};

std::shared_ptr<void> fake_program(const Platform& platform, const std::string& /*directory*/) {
    return std::make_shared<FakeProgram>(platform);
}

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
    Runner runner({fake_program, metrics}, in, out);
    const int status = runner.run();
    EXPECT_EQ(out.str(), expected.answers);
    EXPECT_EQ(status, expected.answers.find("error: ") == std::string::npos ? 0 : 1);
}

const Talk kTalks[] = {
    {"modal_over_modal_and_failures_go_to_the_command", R"(click form1.Modal
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
click form1.Spaeter
get form1.Log
= ; entladen; zurück; davor; danach
)"},
    {"a_start_or_the_end_leaves_a_modal_window", R"(click form1.Modal
click Form_Notiz.Weiter
start anders
forms
= form1|Haupt|
opened
click form1.Modal
click Form_Notiz.Ende
= error: Typen unverträglich
get form1.Log
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
= ; schnell 7
)"},
    {"modal_window_out_of_a_timer", R"(set form1.Schalter langsam
wait 1300
wait 1000
close Form_Notiz
get form1.Log
= ; schnell 58; schnell 58; langsam 59; schnell 59; schnell 59; schnell 0; entladen
)"},
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

TEST(ScriptWindows, ComeToTheFrontAsFarAsNoModalOneIsThere) {
    ScriptClock clock;
    ScriptDesktop desktop(clock);
    Form first("first", "");
    Form second("second", "");
    Form modal("modal", "");
    for (Form* form : {&first, &second, &modal}) {
        desktop.adopt(*form);
    }
    first.Show();
    second.Show();
    first.ZOrder();
    EXPECT_EQ(desktop.windows(), (std::vector<Form*>{&second, &first}));
    desktop.on_modal([&](const std::function<bool()>& /*open*/) { second.ZOrder(); });
    modal.Show(Modality::Modal);
    EXPECT_EQ(desktop.windows(), (std::vector<Form*>{&second, &first, &modal}));
}

} // namespace
} // namespace quittika::script_test
