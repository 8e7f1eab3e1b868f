#include "tests/fuzz/zufallsnutzer.hpp"

#include "platform/forms/controls.hpp"
#include "platform/script/lookup.hpp"
#include "platform/script/protocol.hpp"

#include <map>

namespace quittika::fuzz {

namespace {

constexpr const char* kZahlen[] = {"0",     "1",     "2,5",  "-3",     "1.999,99",   "12.345.678,90",
                                   "1e5",   "1e308", "9e20", "1E400",  "0,00000001", "99999999999999999999",
                                   "-100",  "nan",   "inf",  "33,333", "32767,5",    "999999,99",
                                   "1,2,3", ",",     "-",    "1.200",  "0,005",      "4711€"};
constexpr const char* kTexte[] = {"",
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
                                  "%s%n \"..\\x\" &&",
                                  "05.03.2008",
                                  "31.2.2008"};
constexpr const char* kDateien[] = {"a.qk8",    "b.qk8",      "ü ö.qk8",   "kurz.qk8",
                                    "halb.qk8", "ordner.qk8", "fehlt.qk8", "kein/ordner.qk8"};
constexpr const char* kShell[] = {
    "printf 'qk8\\nTITEL\\n05.03.2008\\nKunde\\n#qk8LIST#;1;-;2;drin;3,50;7,00\\n' >kurz.qk8",
    "printf 'qk7\\r\\nALT\\r\\n#qk8LIST#;1;-;1;Rest;2,00\\r\\n' >kurz.qk8",
    "mkdir -p ordner.qk8",
    "[ -f a.qk8 ] && head -c 1500 a.qk8 >halb.qk8",
    "[ -f a.qk8 ] && tail -c 200 a.qk8 >>halb.qk8",
    "echo x >>b.qk8",
    "rm -f a.qk8",
    "printf 99999999999 >RN.txt",
    "printf '' >RN.txt",
    "printf '7\\r\\n' >RN.txt"};
constexpr int kTasten[] = {13, 27, 46, 38, 40, 113, 9, 65};

bool erreichbar(const Control& steuerelement) {
    return steuerelement.effectively_visible() && steuerelement.effectively_enabled();
}

std::string befehl(const char* name, const Control& steuerelement, const std::string& wert) {
    return std::string(name) + " " + lookup::full_name(steuerelement) + " " + protocol::encode(wert);
}

} // namespace

std::string Zufallsnutzer::zahl() {
    if (bis(3) == 0) {
        return eines(kZahlen);
    }
    return std::to_string(bis(bis(2) == 0 ? 20 : 100000)) +
           (bis(2) == 0 ? "," + std::to_string(bis(1000)) : "");
}

std::string Zufallsnutzer::text() {
    if (bis(40) == 0) {
        return std::string(10000, "x9ä;"[bis(5) % 2]);
    }
    return bis(2) == 0 ? zahl() : std::string(eines(kTexte));
}

/// Something that waits for the next box or dialog.
std::string Zufallsnutzer::vorrat() {
    switch (bis(6)) {
    case 0:
        return "cancel";
    case 1:
        return std::string("fail ") + (bis(2) == 0 ? "482" : "57");
    case 2:
        return "printer " + std::to_string(1 + bis(3));
    case 3:
        return std::string("file @ORDNER@/") + eines(kDateien);
    default:
        return std::string("answer ") + (bis(2) == 0 ? "yes" : bis(2) == 0 ? "no" : "cancel");
    }
}

std::vector<std::string> Zufallsnutzer::zeile_eingeben() {
    return {"set form1.Text_Menge " + zahl(), "set form1.Text_leistung " + protocol::encode(text()),
            "set form1.Text_preis " + zahl(),
            bis(3) == 0 ? "key form1.Text_preis 13" : "click form1.Cmd_Add_To_list"};
}

std::vector<std::string> Zufallsnutzer::dateibefehl() {
    const char* const befehle[] = {"m_speichern", "m_oeffnen", "m_speichern_kurz", "m_speichern_direkt",
                                   "m_R1",        "m_neu",     "m_Drucken"};
    return {std::string("file @ORDNER@/") + eines(kDateien), vorrat(), "answer yes",
            std::string("click form1.") + eines(befehle)};
}

std::vector<std::string> Zufallsnutzer::naechste_zeilen(const ScriptDesktop& desktop) {
    const auto fenster = desktop.windows();
    if (fenster.empty()) {
        return {"start @ORDNER@ 2008-03-05T10:20:30"};
    }
    const int wahl = bis(100);
    if (wahl < 8 && fenster.size() == 1) {
        return zeile_eingeben();
    }
    if (wahl < 14 && fenster.size() == 1) {
        return dateibefehl();
    }
    if (wahl < 18) {
        return {vorrat()};
    }
    if (wahl < 20) {
        return {std::string("#$ ") + eines(kShell)};
    }
    if (wahl < 21) {
        return {"wait " + std::to_string(bis(3000))};
    }
    return {bis(300) == 0 ? "close " + fenster.back()->name() : handgriff(*fenster.back())};
}

/// A frame first and then a control in it: else the grid with its 200 fields would be most of what happens.
std::string Zufallsnutzer::handgriff(const Form& fenster) {
    std::map<std::string, std::vector<const Control*>> gruppen;
    for (const Control* steuerelement : fenster.controls()) {
        if (erreichbar(*steuerelement) && steuerelement->kind() != "Timer") {
            const Control* rahmen = steuerelement->container().container_control();
            gruppen[rahmen == nullptr ? "" : rahmen->name()].push_back(steuerelement);
        }
    }
    if (gruppen.empty()) {
        return "close " + fenster.name();
    }
    const auto& gruppe = std::next(gruppen.begin(), bis(static_cast<int>(gruppen.size())))->second;
    return handgriff(*eines(gruppe));
}

std::string Zufallsnutzer::handgriff(const Control& steuerelement) {
    const std::string name = lookup::full_name(steuerelement);
    const int art = bis(20);
    if (art == 0) {
        return "key " + name + " " + std::to_string(eines(kTasten));
    }
    if (art == 1) {
        return befehl("drop", steuerelement, text());
    }
    if (art == 2) {
        return "dblclick " + name;
    }
    if (art == 3) {
        return "mouse " + name + " down " + std::to_string(1 + bis(2)) + " 15 15";
    }
    if (steuerelement.kind() == "TextBox") {
        return art < 7 ? befehl("type", steuerelement, zahl()) : befehl("set", steuerelement, text());
    }
    if (const auto* liste = dynamic_cast<const ListBox*>(&steuerelement)) {
        return "select " + name + " " + std::to_string(bis(liste->ListCount() + 1) - 1);
    }
    if (const auto* auswahl = dynamic_cast<const ComboBox*>(&steuerelement)) {
        return "select " + name + " " + std::to_string(bis(auswahl->ListCount() + 1) - 1);
    }
    return "click " + name;
}

} // namespace quittika::fuzz
