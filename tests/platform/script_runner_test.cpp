#include "tests/platform/script_conversation.hpp"

#include <gtest/gtest.h>

namespace quittika::script_test {
namespace {

struct Talk {
    const char* name;
    const char* text; ///< what follows the first start
};

void PrintTo(const Talk& talk, std::ostream* out) {
    *out << talk.name;
}

class ScriptTalk : public testing::TestWithParam<Talk> {};

TEST_P(ScriptTalk, GoesAsWritten) {
    const Conversation expected = std::string("start dir 2008-05-17T09:30:58\n") + GetParam().text;
    const Outcome outcome = play(expected);
    EXPECT_EQ(outcome.conversation, expected);
    EXPECT_EQ(outcome.status, expected.find("\n= error: ") == std::string::npos ? 0 : 1);
}

const Talk kWindows[] = {
    {"modal_over_modal", R"(controls Form_START
= Timer1|Timer
click form1.Modal
set Form_Notiz.Text offen
click Form_Notiz.Weiter
forms
= form1|Haupt|
= Form_Notiz|Notiz|modal
= Form_Zweite|Zweite\pFrage|modal
click Form_Notiz.Schliessen
= error: Vor dem Fenster Form_Notiz steht Form_Zweite
click Form_Zweite.Fehler
= error: oben\nunten
close Form_Zweite
close Form_Notiz
click Form_Notiz.Schliessen
= error: Das Fenster Form_Notiz ist nicht offen
items form1.Log
= Start dir
= Notiz raus
= Notiz entladen
= zurück: offen
)"},
    {"failure_behind_the_window_goes_to_the_closing_command", R"(click form1.Modal
set Form_Notiz.Text krach
close Form_Notiz
= error: Typen unverträglich
click form1.Modal
)"},
    {"quit_in_a_modal_window", R"(click form1.Modal
click Form_Notiz.Weiter
quit
)"},
    {"start_again_inside_a_modal_window", R"(answer yes
click form1.Modal
start anders 2009-01-01T00:00:00
forms
= form1|Haupt|
items form1.Log
= Start anders
opened
click form1.Fragen
boxes
= box|Hinweis|ok|information|Fertig|ok
= box|Frage|yesno|question|a\pb\nc|yes
= box|Frage|yesnocancel|exclamation|Ende?|no
)"},
    {"program_ends_out_of_a_modal_window", R"(click form1.Modal
set Form_Notiz.Text ende
get Form_Notiz.Text
= error: Es läuft kein Programm
start kaputt
= error: Pfad nicht gefunden
start
= error: Es fehlt das Programmverzeichnis
start neu
items form1.Log
= Start neu
)"},
};
INSTANTIATE_TEST_SUITE_P(Windows, ScriptTalk, testing::ValuesIn(kWindows),
                         [](const auto& p) { return p.param.name; });

const Talk kTimers[] = {
    {"switching_on_or_another_interval_counts_anew", R"(set form1.Feld(0) an
wait 300
set form1.Feld(0) aus
wait 1000
set form1.Feld(0) an
wait 300
set form1.Feld(0) lang
wait 599
get form1.Log.ListCount
= 1
wait 1
get form1.Log.ListCount
= 2
)"},
    {"modal_window_out_of_a_timer", R"(set form1.Feld(0) an
set form1.Feld(1) an
wait 1300
get form1.Log.ListCount
= 4
wait 1000
set form1.Feld(1) aus
= error: Vor dem Fenster form1 steht Form_Notiz
close Form_Notiz
items form1.Log
= Start dir
= schnell 58
= schnell 58
= langsam 59
= schnell 59
= schnell 59
= schnell 0
= Notiz entladen
)"},
    {"bad_times", R"(wait -1
= error: -1 liegt nicht zwischen 0 und 31622400000
wait bald
= error: "bald" ist keine ganze Zahl
clock 2008-02-30T10:00:00
= error: 2008-02-30T10:00:00 gibt es im Kalender nicht
clock morgen
= error: Die Zeit hat die Form jjjj-mm-ttThh:mm:ss
start dir 2008-13-01T00:00:00
= error: 2008-13-01T00:00:00 gibt es im Kalender nicht
get form1.Visible
= -1
)"},
};
INSTANTIATE_TEST_SUITE_P(Timers, ScriptTalk, testing::ValuesIn(kTimers),
                         [](const auto& p) { return p.param.name; });

const Talk kQueues[] = {
    {"boxes_by_queue_and_by_default", R"(answer cancel
answer ok
answer vielleicht
= error: Die Antwort ist yes, no, cancel oder ok, nicht "vielleicht"
click form1.Fragen
boxes
= box|Hinweis|ok|information|Fertig|ok
= box|Frage|yesno|question|a\pb\nc|no
= box|Frage|yesnocancel|exclamation|Ende?|cancel
click form1.Fragen
boxes
= box|Hinweis|ok|information|Fertig|ok
= box|Frage|yesno|question|a\pb\nc|no
= box|Frage|yesnocancel|exclamation|Ende?|no
)"},
    {"dialogs_take_what_fits", R"(printer 3
font Comic Sans MS
color 65535
file C:\\a b|c.bmp
fail 75
click form1.Dialoge
dialogs
= dialog|open|Bild\p*.bmp|||C:\\a b\pc.bmp
= dialog|save||x.txt|Sichern|fail 75
= dialog|color||||65535
= dialog|font||||Comic Sans MS
= dialog|printer||||3
cancel
file x
click form1.Dialoge
dialogs
= dialog|open|Bild\p*.bmp|||cancel
= dialog|save||x.txt|Sichern|x
= dialog|color||||cancel
= dialog|font||||cancel
= dialog|printer||||cancel
items form1.Log
= Start dir
= gewählt C:\\a b|c.bmp
= nichts
= gewählt 65535
= gewählt Comic Sans MS
= gewählt 3
= nichts
= gewählt x
= nichts
= nichts
= nichts
printer 999
printer 0
= error: 0 liegt nicht zwischen 1 und 999
printer 1000
= error: 1000 liegt nicht zwischen 1 und 999
color 16777216
= error: 16777216 liegt nicht zwischen 0 und 16777215
file
= error: Der Befehl braucht 1 Angabe
)"},
    {"odd_lines", "\n# nichts\nunsinn\n= error: Unbekannter Befehl unsinn\n"
                  "forms jetzt\n= error: Der Befehl forms steht allein\nclick form1.Spaeter\r\n"
                  "items form1.Log\n= Start dir\n= davor\n= danach\n"},
};
INSTANTIATE_TEST_SUITE_P(Queues, ScriptTalk, testing::ValuesIn(kQueues),
                         [](const auto& p) { return p.param.name; });

} // namespace
} // namespace quittika::script_test
