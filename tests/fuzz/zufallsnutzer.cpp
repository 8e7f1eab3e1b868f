#include "tests/fuzz/zufallsnutzer.hpp"

#include "platform/forms/controls.hpp"
#include "platform/script/lookup.hpp"
#include "platform/script/protocol.hpp"

#include <map>

namespace quittika::fuzz {
namespace {

using Zeilen = std::vector<std::string>;

// In all these, %z becomes a number, %t a text, %d a file, %w an index, %n two digits.
const std::string kZahlen[] = {"%n",      "%n%n",       "%n,%n%n",
                               "%n%n,%n", "0",          "1",
                               "-3",      "1.999,99",   "12.345.678,90",
                               "1e5",     "1e308",      "9e20",
                               "1E400",   "0,00000001", "99999999999999999999",
                               "-100",    "nan",        "inf",
                               "33,333",  "32767,5",    "999999,99",
                               "1,2,3",   ",",          "-",
                               "1.200",   "0,005",      "4711€"};
const std::string kTexte[] = {"%z",
                              "%z",
                              "",
                              " ",
                              "Stuhl",
                              "Öl; 3 Liter",
                              "äöüßÄÖÜ€",
                              "\xF0\x9F\x98\x80 Łódź 漢字",
                              "a\r\nb\tc",
                              "\x01\x02\x1B\x7F",
                              "\xFF\xC3",
                              "#qk8LIST#;1;-;1;x;1;1",
                              "#**#",
                              "#$§$#",
                              "4711\r\n",
                              "%s \"..\\x\" &&",
                              "05.03.2008",
                              "31.2.2008",
                              std::string(10000, 'x')};
const std::string kDateien[] = {"a.qk8",    "b.qk8",      "ü ö.qk8",        "kurz.qk8",
                                "halb.qk8", "ordner.qk8", "kein/ordner.qk8"};

/// What hands do together, in the main window alone; the first ones more often.
const Zeilen kGriffe[] = {
    {"set form1.Text_Menge %z", "set form1.Text_leistung %t", "set form1.Text_preis %z",
     "click form1.Cmd_Add_To_list"},
    {"set form1.Text_Menge %n", "set form1.Text_preis %z", "key form1.Text_preis 13"},
    {"file @ORDNER@/%d", "answer yes", "click form1.m_speichern"},
    {"file @ORDNER@/%d", "cancel", "answer yes", "click form1.m_oeffnen"},
    {"answer yes", "answer yes", "click form1.m_speichern_direkt"},
    {"file @ORDNER@/%d", "answer no", "click form1.m_neu"},
    {"printer %n", "click form1.m_Drucken"},
    {"fail 482", "click form1.Command_printform"},
    {"click form1.m_R1"},
    {"drop form1 @ORDNER@/%d"},
    {"answer no"},
    {"answer cancel"},
    {"file @ORDNER@/%d"},
    {"wait %n%n"},
    {"#$ printf 'qk8\\nTITEL\\n05.03.2008\\nKunde\\n#qk8LIST#;1;-;2;drin;3,50;7,00\\n' >kurz.qk8"},
    {"#$ printf 'qk7\\r\\nALT\\r\\n#qk8LIST#;1;-;1;Rest;2,00\\r\\n' >kurz.qk8"},
    {"#$ mkdir -p ordner.qk8"},
    {"#$ printf 'Ding$\\xa7$2.50$\\xa7$4711$\\xa7$\\r\\n' >>Artikelliste.txt", "click form1.Cmd_Barcode"},
    {"#$ [ -f a.qk8 ] && head -c 1500 a.qk8 >halb.qk8"},
    {"#$ [ -f a.qk8 ] && tail -c 200 a.qk8 >>halb.qk8"},
    {"#$ echo x >>b.qk8; rm -f a.qk8"},
    {"#$ printf 'Nagel$\\247$0.10$\\247$4711$\\247$\\r\\nab\\nQ#*#' >>Artikelliste.txt"},
    {"answer yes", "file @ORDNER@/%d", "click form1.Command_KD_Add", "click form1.Command_PLUS_LIST"},
    {"#$ printf 99999999999 >RN.txt"},
    {"#$ printf '7\\r\\n' >RN.txt"}};

/// What can be done to a control of a kind (to any, where it is empty); %c is its name.
const std::pair<std::string_view, std::string> kHandgriffe[] = {{"TextBox", "set %c %t"},
                                                                {"TextBox", "set %c %t"},
                                                                {"TextBox", "set %c %z"},
                                                                {"TextBox", "type %c %z"},
                                                                {"ListBox", "select %c %w"},
                                                                {"ComboBox", "select %c %w"},
                                                                {"", "click %c"},
                                                                {"", "click %c"},
                                                                {"", "click %c"},
                                                                {"", "dblclick %c"},
                                                                {"", "drop %c %t"},
                                                                {"", "mouse %c down 1 15 15"},
                                                                {"", "key %c 13"},
                                                                {"", "key %c 27"},
                                                                {"", "key %c 46"},
                                                                {"", "key %c 38"},
                                                                {"", "key %c 113"}};

} // namespace

std::string Zufallsnutzer::ausgefuellt(std::string_view vorlage) {
    std::string zeile;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        const char art = vorlage[i] == '%' && i + 1 < vorlage.size() ? vorlage[i + 1] : ' ';
        ++i;
        switch (art) {
        case 'z':
            zeile += ausgefuellt(eines(kZahlen));
            break;
        case 't':
            zeile += protocol::encode(ausgefuellt(eines(kTexte)));
            break;
        case 'd':
            zeile += eines(kDateien);
            break;
        case 'w':
            zeile += std::to_string(bis(6) - 1);
            break;
        case 'n':
            zeile += std::to_string(1 + bis(99));
            break;
        default:
            zeile += vorlage[--i];
        }
    }
    return zeile;
}

Zeilen Zufallsnutzer::naechste_zeilen(const ScriptDesktop& desktop) {
    const auto fenster = desktop.windows();
    if (fenster.empty()) {
        return {"start @ORDNER@ 2008-03-05T10:20:30"};
    }
    if (bis(300) == 0) {
        return {"close " + fenster.back()->name()};
    }
    if (fenster.size() > 1 || bis(4) != 0) {
        return {handgriff(*fenster.back())};
    }
    Zeilen zeilen;
    for (const std::string& vorlage : kGriffe[std::min(bis(std::size(kGriffe)), bis(std::size(kGriffe)))]) {
        zeilen.push_back(ausgefuellt(vorlage));
    }
    return zeilen;
}

/// A frame first and then a control in it: else the grid with its 200 fields would be most of what happens.
std::string Zufallsnutzer::handgriff(const Form& fenster) {
    std::map<std::string, std::vector<const Control*>> gruppen;
    for (const Control* steuerelement : fenster.controls()) {
        if (steuerelement->effectively_visible() && steuerelement->effectively_enabled() &&
            steuerelement->kind() != "Timer") {
            const Control* rahmen = steuerelement->container().container_control();
            gruppen[rahmen == nullptr ? "" : rahmen->name()].push_back(steuerelement);
        }
    }
    if (gruppen.empty()) {
        return "close " + fenster.name();
    }
    return handgriff(*eines(std::next(gruppen.begin(), bis(gruppen.size()))->second));
}

std::string Zufallsnutzer::handgriff(const Control& steuerelement) {
    for (;;) {
        const auto& [art, vorlage] = eines(kHandgriffe);
        if (art.empty() || art == steuerelement.kind()) {
            const std::size_t name = vorlage.find("%c");
            return vorlage.substr(0, name) + lookup::full_name(steuerelement) +
                   ausgefuellt(vorlage.substr(name + 2));
        }
    }
}

} // namespace quittika::fuzz
