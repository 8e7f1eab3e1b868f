#include "tests/platform/script_conversation.hpp"

#include <gtest/gtest.h>

namespace quittika::script_test {
namespace {

struct Conversation {
    const char* name;
    const char* text; ///< what follows the first start; commands begin with "> "
};

void PrintTo(const Conversation& conversation, std::ostream* out) {
    *out << conversation.name;
}

constexpr const char* kStart = "> start dir 2008-05-17T09:30:58\nok\n";

class ScriptTalk : public testing::TestWithParam<Conversation> {};

TEST_P(ScriptTalk, GoesAsWritten) {
    const std::string expected = std::string(kStart) + GetParam().text;
    const Outcome outcome = play(expected);
    EXPECT_EQ(outcome.transcript, expected);
    EXPECT_EQ(outcome.status, expected.find("\nerror: ") == std::string::npos ? 0 : 1);
}

const Conversation kWindows[] = {
    {"splash_is_over_and_clock_stands", R"(> forms
form1|Haupt|
ok
> items form1.Log
Start dir
ok
> get Form_START.Visible
0
ok
> controls Form_START
Timer1|Timer
ok
)"},
    {"modal_window_answers_while_open", R"(> click form1.Modal
ok
> forms
form1|Haupt|
Form_Notiz|Notiz|modal
ok
> click form1.Fragen
error: Vor dem Fenster form1 steht Form_Notiz
> close form1
error: Vor dem Fenster form1 steht Form_Notiz
> set Form_Notiz.Text offen
ok
> get form1.Log.ListCount
2
ok
> click Form_Notiz.Schliessen
ok
> items form1.Log
Start dir
Notiz raus
zurück: offen
ok
> click Form_Notiz.Schliessen
error: Das Fenster Form_Notiz ist nicht offen
)"},
    {"modal_over_modal", R"(> click form1.Modal
ok
> click Form_Notiz.Weiter
ok
> forms
form1|Haupt|
Form_Notiz|Notiz|modal
Form_Zweite|Zweite\pFrage|modal
ok
> click Form_Notiz.Schliessen
error: Vor dem Fenster Form_Notiz steht Form_Zweite
> click Form_Zweite.Fehler
error: oben\nunten
> close Form_Zweite
ok
> close Form_Notiz
ok
> items form1.Log
Start dir
Notiz entladen
zurück: 
ok
)"},
    {"failure_behind_the_window_goes_to_the_closing_command", R"(> click form1.Modal
ok
> set Form_Notiz.Text krach
ok
> close Form_Notiz
error: Typen unverträglich
> click form1.Modal
ok
)"},
    {"quit_in_a_modal_window", R"(> click form1.Modal
ok
> click Form_Notiz.Weiter
ok
> quit
ok
)"},
    {"input_ends_in_a_modal_window", R"(> click form1.Modal
ok
)"},
    {"start_again_inside_a_modal_window", R"(> answer yes
ok
> click form1.Modal
ok
> start anders 2009-01-01T00:00:00
ok
> forms
form1|Haupt|
ok
> items form1.Log
Start anders
ok
> opened
ok
> click form1.Fragen
ok
> boxes
box|Hinweis|ok|information|Fertig|ok
box|Frage|yesno|question|a\pb\nc|yes
box|Frage|yesnocancel|exclamation|Ende?|no
ok
)"},
    {"program_ends_out_of_a_modal_window", R"(> click form1.Modal
ok
> set Form_Notiz.Text ende
ok
> get Form_Notiz.Text
error: Es läuft kein Programm
)"},
    {"closing_the_main_window_ends_the_program", R"(> set form1.Haken 1
ok
> close form1
ok
> get form1.Visible
-1
ok
> set form1.Haken 0
ok
> close form1
ok
> get form1.Text1
error: Es läuft kein Programm
> forms
ok
> start kaputt
error: Pfad nicht gefunden
> start neu
ok
> items form1.Log
Start neu
ok
)"},
};
INSTANTIATE_TEST_SUITE_P(Windows, ScriptTalk, testing::ValuesIn(kWindows),
                         [](const auto& p) { return p.param.name; });

const Conversation kTimers[] = {
    {"ticks_in_order_on_the_moved_clock", R"(> set form1.Feld(0) an
ok
> wait 399
ok
> get form1.Log.ListCount
1
ok
> wait 1
ok
> wait 1700
ok
> items form1.Log
Start dir
schnell 58
schnell 58
schnell 59
schnell 59
schnell 0
ok
)"},
    {"switching_on_counts_anew", R"(> set form1.Feld(0) an
ok
> wait 300
ok
> set form1.Feld(0) aus
ok
> wait 1000
ok
> set form1.Feld(0) an
ok
> wait 399
ok
> get form1.Log.ListCount
1
ok
> wait 1
ok
> get form1.Log.ListCount
2
ok
)"},
    {"another_interval_counts_anew", R"(> set form1.Feld(0) an
ok
> wait 300
ok
> set form1.Feld(0) lang
ok
> wait 599
ok
> get form1.Log.ListCount
1
ok
> wait 1
ok
> get form1.Log.ListCount
2
ok
)"},
    {"modal_window_out_of_a_timer", R"(> set form1.Feld(0) an
ok
> set form1.Feld(1) an
ok
> wait 1300
ok
> get form1.Log.ListCount
4
ok
> wait 1000
ok
> set form1.Feld(1) aus
error: Vor dem Fenster form1 steht Form_Notiz
> close Form_Notiz
ok
> items form1.Log
Start dir
schnell 58
schnell 58
langsam 59
schnell 59
schnell 59
schnell 0
Notiz entladen
ok
)"},
    {"bad_times", R"(> wait -1
error: -1 liegt nicht zwischen 0 und 31622400000
> wait bald
error: "bald" ist keine ganze Zahl
> wait
error: "" ist keine ganze Zahl
> clock 2008-02-30T10:00:00
error: 2008-02-30T10:00:00 gibt es im Kalender nicht
> clock morgen
error: Die Zeit hat die Form jjjj-mm-ttThh:mm:ss
> start dir 2008-13-01T00:00:00
error: 2008-13-01T00:00:00 gibt es im Kalender nicht
> get form1.Visible
-1
ok
> clock 2008-02-29T10:00:07
ok
> set form1.Feld(0) an
ok
> wait 400
ok
> select form1.Log 1
ok
> get form1.Log
schnell 7
ok
)"},
    {"later_work_comes_before_the_answer", R"(> click form1.Spaeter
ok
> items form1.Log
Start dir
davor
danach
ok
)"},
};
INSTANTIATE_TEST_SUITE_P(Timers, ScriptTalk, testing::ValuesIn(kTimers),
                         [](const auto& p) { return p.param.name; });

const Conversation kQueues[] = {
    {"boxes_by_queue_and_by_default", R"(> answer cancel
ok
> answer ok
ok
> answer vielleicht
error: Die Antwort ist yes, no, cancel oder ok, nicht "vielleicht"
> click form1.Fragen
ok
> boxes
box|Hinweis|ok|information|Fertig|ok
box|Frage|yesno|question|a\pb\nc|no
box|Frage|yesnocancel|exclamation|Ende?|cancel
ok
> boxes
ok
> click form1.Fragen
ok
> boxes
box|Hinweis|ok|information|Fertig|ok
box|Frage|yesno|question|a\pb\nc|no
box|Frage|yesnocancel|exclamation|Ende?|no
ok
)"},
    {"dialogs_take_what_fits", R"(> printer 3
ok
> font Comic Sans MS
ok
> color 65535
ok
> file C:\\a b|c.bmp
ok
> fail 75
ok
> click form1.Dialoge
ok
> dialogs
dialog|open|Bild\p*.bmp|||C:\\a b\pc.bmp
dialog|save||x.txt|Sichern|fail 75
dialog|color||||65535
dialog|font||||Comic Sans MS
dialog|printer||||3
ok
> cancel
ok
> file x
ok
> click form1.Dialoge
ok
> dialogs
dialog|open|Bild\p*.bmp|||cancel
dialog|save||x.txt|Sichern|x
dialog|color||||cancel
dialog|font||||cancel
dialog|printer||||cancel
ok
> items form1.Log
Start dir
gewählt C:\\a b|c.bmp
nichts
gewählt 65535
gewählt Comic Sans MS
gewählt 3
nichts
gewählt x
nichts
nichts
nichts
ok
> printer 0
error: 0 liegt nicht zwischen 1 und 2147483647
> color 16777216
error: 16777216 liegt nicht zwischen 0 und 16777215
> file
error: Der Befehl braucht 1 Angabe
)"},
    {"opened_documents", R"(> click form1.Oeffnen
ok
> opened
C:\\hilfe.pdf
ok
> opened
ok
)"},
    {"odd_lines", "> \n> # nichts\n> unsinn\nerror: Unbekannter Befehl unsinn\n"
                  "> forms jetzt\nerror: Der Befehl forms steht allein\n> click form1.Spaeter\r\nok\n"
                  "> get form1.Log.ListCount\n3\nok\n"},
};
INSTANTIATE_TEST_SUITE_P(Queues, ScriptTalk, testing::ValuesIn(kQueues),
                         [](const auto& p) { return p.param.name; });

TEST(ScriptRunner, WithoutAProgramOnlyControlsAreMissing) {
    const char* const expected = R"(> get form1.Text1
error: Es läuft kein Programm
> forms
ok
> answer yes
ok
> pages
ok
> start
error: Es fehlt das Programmverzeichnis
)";
    EXPECT_EQ(play(expected).transcript, expected);
}

} // namespace
} // namespace quittika::script_test
