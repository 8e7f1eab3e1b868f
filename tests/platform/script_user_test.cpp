#include "tests/platform/script_conversation.hpp"

#include <gtest/gtest.h>

namespace quittika::script_test {
namespace {

/// Acts on a fresh main window, and what the program noticed of them.
struct Acts {
    const char* name;
    const char* commands; ///< one a line
    const char* answers;  ///< what the runner wrote
    const char* log;      ///< the items of form1.Log behind the first
};

void PrintTo(const Acts& acts, std::ostream* out) {
    *out << acts.name;
}

class ScriptHands : public testing::TestWithParam<Acts> {};

TEST_P(ScriptHands, DoAsUsersDo) {
    const FakeMetrics metrics;
    std::istringstream in("start x 2008-05-17T09:30:00\n" + std::string(GetParam().commands) +
                          "items form1.Log\n");
    std::ostringstream out;
    Runner({fake_program, metrics}, in, out).run();
    EXPECT_EQ(out.str(), "ok\n" + std::string(GetParam().answers) + "Start x\n" + GetParam().log + "ok\n");
}

const Acts kActs[] = {
    {"set_text_field_and_leave_it", "set form1.Text1  a b \nget form1.Text1\n", "ok\n a b \nok\n",
     "Text1 rein\nText1= a b \nText1 raus\n"},
    {"escapes_both_ways", "set form1.Text1 a\\r\\nb\\t\\\\|\nget form1.Text1\n", "ok\na\\r\\nb\\t\\\\|\nok\n",
     "Text1 rein\nText1=a\\r\\nb\\t\\\\|\nText1 raus\n"},
    {"unknown_escapes", "set form1.Text1 a\\q\nset form1.Text1 a\\p\ntype form1.Text1 a\\\nget form1.Text1\n",
     "error: Unbekannte Umschreibung \\\\q\nerror: Unbekannte Umschreibung \\\\p\n"
     "error: Unbekannte Umschreibung \\\\\neins\nok\n",
     ""},
    {"locked_field", "set form1.Text2 x\ntype form1.Text2 x\nget form1.Text2.Locked\n",
     "error: form1.Text2 ist schreibgeschützt\nerror: form1.Text2 nimmt keine Eingabe an\n-1\nok\n", ""},
    {"typing_characters", "type form1.Text1 ä€\n", "ok\n", "Text1 rein\nText1=einsä\nText1=einsä€\n"},
    {"scanner_empties_the_field", "type form1.Scanner 47\\r\\n8\nget form1.Scanner\n", "ok\n8\nok\n",
     "Code 47\\r\\n\n"},
    {"focus_moves", "type form1.Text1\nclick form1.Text2\nclick form1.Spaeter\n", "ok\nok\nok\n",
     "Text1 rein\nText1 raus\nText2 rein\nText2 raus\ndavor\ndanach\n"},
    {"closed_window_loses_focus",
     "click form1.Modal\ntype Form_Notiz.Text x\nclose Form_Notiz\nclick form1.Text1\n", "ok\nok\nok\nok\n",
     "Notiz entladen\nNotiz raus\nzurück: x\nText1 rein\n"},
    {"typing_closes_the_window", "click form1.Modal\ntype Form_Notiz.Text zuletzt\nget Form_Notiz.Text\n",
     "ok\nerror: Das Fenster Form_Notiz ist nicht offen\nzu\nok\n", "Notiz raus\nzurück: zu\n"},
    {"check_box",
     "set form1.Haken 1\nset form1.Haken 1\nset form1.Haken 2\nset form1.Haken ja\nclick form1.Haken\n",
     "ok\nok\nerror: form1.Haken kann nicht \"2\" werden\nerror: \"ja\" ist keine ganze Zahl\nok\n",
     "Haken=1\nHaken=0\n"},
    {"option_buttons",
     "set form1.Option1 -1\nset form1.Option2 1\nget form1.Option1\nget form1.Option2\nset form1.Option2 0\n"
     "set form1.Option1 0\n",
     "ok\nok\n0\nok\n-1\nok\nerror: form1.Option2 kann nicht \"0\" werden\nok\n", "Option2\n"},
    {"list_selection",
     "get form1.Liste\nselect form1.Liste 1\nselect form1.Liste 1\nget form1.Liste\nselect form1.Liste 2\n"
     "items form1.Liste\nget form1.Liste.ListCount\n",
     "\nok\nok\nok\nBirne|Quitte\nok\nerror: form1.Liste hat keinen Eintrag "
     "2\nApfel\nBirne|Quitte\nok\n2\nok\n",
     "Liste Birne|Quitte\nListe Birne|Quitte\n"},
    {"double_click_on_list", "dblclick form1.Liste\nselect form1.Liste 0\ndblclick form1.Liste\n",
     "ok\nok\nok\n", "Doppelt\nListe Apfel\nListe Apfel\nDoppelt\n"},
    {"drop_down_list",
     "set form1.Wahl blau\nset form1.Wahl grün\nget form1.Wahl.ListIndex\ntype form1.Wahl x\n",
     "ok\nerror: form1.Wahl kann nicht \"grün\" werden\n1\nok\nerror: form1.Wahl nimmt keine Eingabe an\n",
     "Wahl blau\n"},
    {"editable_combo_box", "set form1.Offen neu\ntype form1.Offen er\nget form1.Offen\n",
     "ok\nok\nneuer\nok\n", ""},
    {"ranges",
     "set form1.Rolle 9\nset form1.Rolle 10\nset form1.Rolle 5x\nget form1.Rolle.Max\nset form1.Balken 1\n",
     "ok\nerror: form1.Rolle kann nicht \"10\" werden\nerror: \"5x\" ist keine ganze Zahl\n9\nok\n"
     "error: form1.Balken nimmt keinen Wert an\n",
     "Rolle 9\n"},
    {"keys", "key form1.Liste 46\nkey form1.Liste 0\nkey form1.Liste\n",
     "ok\nerror: 0 liegt nicht zwischen 1 und 255\nerror: Der Befehl braucht 2 Angaben\n", "Taste 46\n"},
    {"mouse",
     "mouse form1.Ziel down 1 15 2\nmouse form1.Ziel move 0 1 1\nmouse form1.Ziel down 0 1 1\n"
     "mouse form1.Ziel down 3 1 1\nmouse form1.Ziel drag 1 1 1\nmouse form1.Ziel down 1 1\n",
     "ok\nok\nerror: Zu down gehört eine Maustaste\nerror: 3 liegt nicht zwischen 0 und 2\n"
     "error: Die Maus kann down, move und up, nicht \"drag\"\nerror: Der Befehl braucht 5 Angaben\n",
     "Maus 2015\n"},
    {"failing_handler_and_disabled_button",
     "click form1.Fehler\nclick form1.Fehler\nget form1.Fehler.Enabled\n",
     "error: schief\nerror: form1.Fehler ist abgeschaltet\n0\nok\n", ""},
    {"names",
     "get form1.Foo\nget Foo.Text1\nget form1\nget form1.Text1.Interval\nget form1.Feld(1)\nget "
     "form1.Feld(2)\n"
     "get form1.Caption\nget Form_Notiz.Text\nget form1.Ziel\nget form1.Log.BackColor\nitems form1.Text1\n"
     "click form1.Text1.Text\ncontrols Foo\n",
     "error: Es gibt kein Steuerelement form1.Foo\nerror: Es gibt kein Fenster Foo\n"
     "Haupt\nok\nerror: form1.Text1 hat keine Eigenschaft Interval\n\nok\n"
     "error: Es gibt kein Steuerelement form1.Feld(2)\nHaupt\nok\n\nok\nhierher\nok\n255\nok\n"
     "error: form1.Text1 hat keine Einträge\nerror: Es gibt kein Steuerelement form1.Text1.Text\n"
     "error: Es gibt kein Fenster Foo\n",
     ""},
};
INSTANTIATE_TEST_SUITE_P(Acts, ScriptHands, testing::ValuesIn(kActs),
                         [](const auto& p) { return p.param.name; });

} // namespace
} // namespace quittika::script_test
