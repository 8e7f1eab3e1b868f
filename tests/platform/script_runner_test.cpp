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

const Talk kTalks[] = {
    {"modal_over_modal", R"(click form1.Modal
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
    {"start_again_inside_a_modal_window", R"(click form1.Modal
click Form_Notiz.Weiter
start anders
items form1.Log
= Start anders
opened
)"},
    {"program_ends_out_of_a_modal_window", R"(click form1.Modal
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
get form1.Log.ListCount
= 1
wait 1
get form1.Log.ListCount
= 2
)"},
    {"modal_window_out_of_a_timer", R"(set form1.Schalter langsam
wait 1300
get form1.Log.ListCount
= 4
wait 1000
set form1.Schalter aus
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
    {"dialogs_take_what_fits", R"(font Comic Sans MS
color 65535
file C:\\a b|c.bmp
fail 75
click form1.Dialoge
dialogs
= dialog|open|Bild\p*.bmp|||C:\\a b\pc.bmp
= dialog|save||x.txt|Sichern|fail 75
= dialog|color||||65535
= dialog|font||||Comic Sans MS
cancel
file x
click form1.Dialoge
dialogs
= dialog|open|Bild\p*.bmp|||cancel
= dialog|save||x.txt|Sichern|x
= dialog|color||||cancel
= dialog|font||||cancel
items form1.Log
= Start dir
= gewählt C:\\a b|c.bmp
= nichts
= gewählt 65535
= gewählt Comic Sans MS
= nichts
= gewählt x
= nichts
= nichts
)"},
    {"events_come_as_by_hand", R"(set form1.Text1  a b 
set form1.Text1
type form1.Text1 ä€
click form1.Text2
click form1.Modal
type Form_Notiz.Text zuletzt
= error: Das Fenster Form_Notiz ist nicht offen
type form1.Scanner 47\r\n8
get form1.Scanner
= 8
select form1.Liste 1
select form1.Liste 1
dblclick form1.Liste
select form1.Liste -1
dblclick form1.Liste
mouse form1.Ziel down 1 15 2
set form1.Offen neu
type form1.Offen er
get form1.Offen
= neuer
set form1.Rolle 9
set form1.Rolle 10
= error: form1.Rolle kann nicht "10" werden
set form1.Balken 1
= error: form1.Balken nimmt keinen Wert an
click form1.Spaeter
items form1.Log
= Start dir
= Text1 rein
= Text1= a b 
= Text1 raus
= Text1 rein
= Text1=
= Text1 raus
= Text1 rein
= Text1=ä
= Text1=ä€
= Text1 raus
= Text2 rein
= Text2 raus
= Notiz raus
= zurück: zu
= Code 47\r\n
= Liste Birne|Quitte
= Liste Birne|Quitte
= Liste Birne|Quitte
= Doppelt
= Liste 
= Doppelt
= Maus 2015
= Rolle 9
= davor
= danach
)"},
};
INSTANTIATE_TEST_SUITE_P(Talks, ScriptTalk, testing::ValuesIn(kTalks),
                         [](const auto& p) { return p.param.name; });

} // namespace
} // namespace quittika::script_test
