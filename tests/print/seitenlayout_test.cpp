#include "platform/zahlen.hpp"
#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quittika {
namespace {

constexpr int kX = -4; ///< the print adjustment
constexpr int kY = 3;

/// Where a text begins (or ends, where `x` is negative), mm without the adjustment.
struct Stelle {
    const char* text;
    double x;
    double y;
};
using Stellen = std::vector<Stelle>;

/// Logo and sender of a built-in design; the first line with and without logo.
const struct {
    const char* logo; ///< as it reaches the paper
    Stelle mit;
    Stelle ohne;
} kAbsender[] = {
    {"logo 141 11 45 30,0", {"MUSTERFIRMA", -140, 8}, {"MUSTERFIRMA", -190, 8}},
    {"logo 8 11 45 30,0", {"MUSTERFIRMA", 62, 7}, {"MUSTERFIRMA", 17, 8}},
    {"logo 141 11 45 30,0", {"MUSTERFIRMA", 17, 8}, {"MUSTERFIRMA", 17, 8}},
    {"logo 96 11 90 30,0", {"MUSTERFIRMA", 17, 8}, {"MUSTERFIRMA", 17, 8}},
    {"logo 8 11 45 30,0", {"MUSTERFIRMA", -190, 8}, {"MUSTERFIRMA", -190, 8}},
    {"logo 169 9 23 45,0", {"MUSTERFIRMA", -168, 8}, {"MUSTERFIRMA", -145, 8}},
    {"logo 2 8 190 35,0", {"MUSTERFIRMA", -195, 45}, {"MUSTERFIRMA", -195, 45}},
    {"logo 145 11 45 30,0", {"MUSTERFIRMA", -191, 43}, {"MUSTERFIRMA", -191, 43}},
};
const Stellen kKopf = {{"05.03.2008", 172, 123},     {"12345 Ort", 29, 63},   {"Kundennr: 8", 29, 79},
                       {"Ihr Werbespruch", 12, 105}, {"RECHNUNG 7", 12, 125}, {"LIEFERDATUM", -190, 127}};
const Stellen kEigenerKopf = {{"MUSTERFIRMA", 11, 15},  {"05.03.2008", 179, 59},     {"12345 Ort", 11, 82},
                              {"Kundennr: 8", 150, 85}, {"Ihr Werbespruch", 62, 56}, {"RECHNUNG 7", 150, 93},
                              {"Anrede", 12, 120},      {"LIEFERDATUM", 150, 100}};

constexpr int kVorlage = 1, kIban = 2, kZeile2 = 4, kZeile3 = 8;
const struct {
    int schalter;
    double grundlinie;
} kFuesse[] = {{kVorlage, 272}, {kVorlage + kIban, 272}, {0, 272},
               {kZeile2, 267},  {kZeile3, 267},          {kZeile2 + kZeile3, 262}};
/// Built-in designs below the base line, then the own design below its bank line.
const std::pair<Stellen, Stellen> kFussfelder[] = {
    {{{"INST", 21, 7}, {"BLZ", 88, 7}, {"KTO", 149, 7}}, {{"INST", 14, 0}, {"BLZ", 81, 0}, {"KTO", 142, 0}}},
    {{{"INST", 10, 7}, {"BLZ", 45, 7}, {"KTO", 70, 7}, {"IBAN", 99, 7}, {"BIC", 150, 7}},
     {{"INST", 14, 0}, {"BLZ", 49, 0}, {"KTO", 74, 0}, {"IBAN", 103, 0}, {"BIC", 154, 0}}},
    {{{"Zeile A", 10, 7}}, {{"Zeile A", 14, 0}}},
    {{{"Zeile A", 10, 7}, {"Zeile B", 10, 11}}, {{"Zeile A", 14, 0}, {"Zeile B", 14, 4}}},
    {{{"Zeile A", 10, 7}, {"Zeile C", 10, 15}}, {{"Zeile A", 14, 0}, {"Zeile C", 14, 4}}},
    {{{"Zeile A", 10, 7}, {"Zeile B", 10, 11}, {"Zeile C", 10, 15}},
     {{"Zeile A", 14, 0}, {"Zeile B", 14, 4}, {"Zeile C", 14, 8}}},
};

struct Fall {
    int layout;
    bool logo;      ///< with logo
    int kopf;       ///< 0 full on every page, 1 following pages with logo and sender, 2 without
    bool bemerkung; ///< remarks on every page
    int fuss;
    bool eigenes() const { return layout == 9; }
};

void einstellen(frm_einstellungen& e, const Fall& f) {
    const int fuss = kFuesse[f.fuss].schalter;
    e.Layouts().at(static_cast<std::size_t>(f.layout - 1))->Value = true;
    e.Check_keinlogo.Value = f.logo ? 0 : 1;
    (f.kopf == 0 ? e.Option_RN_Kopf_alleSeiten : e.Option_RN_RK_Kopf_nurErsteSeite).Value = true;
    e.Check_MitLogoadresseFFSeite.Value = f.kopf == 1 ? 1 : 0;
    (f.bemerkung ? e.Option_RN_BM_alleSeite : e.Option_RN_BM_nurletzte_Seite).Value = true;
    ((fuss & kVorlage) != 0 ? e.Option_BankVerb_Vorgabe : e.Option_BankVerb_ZweiZeile).Value = true;
    e.Check_mit_IBAN_BIC_Drucken.Value = (fuss & kIban) != 0 ? 1 : 0;
    e.Check_Bankverb_Zeile2.Value = (fuss & kZeile2) != 0 ? 1 : 0;
    e.Check_Bankverb_Zeile3.Value = (fuss & kZeile3) != 0 ? 1 : 0;
}

/// The head of a page, and where its table begins.
std::pair<Stellen, double> kopf(const Fall& f, bool voll) {
    if (f.eigenes()) {
        const double datum = f.kopf == 1 ? 15 + 8 * 4 + 6 : 30;
        return voll ? std::pair{kEigenerKopf, 148.0}
                    : std::pair{Stellen{{"05.03.2008", 179, datum}, {"RECHNUNG 7", 150, datum + 4}},
                                datum + 8};
    }
    const Stelle& absender = f.logo ? kAbsender[f.layout - 1].mit : kAbsender[f.layout - 1].ohne;
    const double datum = f.kopf == 1 ? absender.y + 8 * 4 + 12 + kY : 30;
    Stellen stellen = voll ? kKopf // below, the adjustment counts twice
                           : Stellen{{"05.03.2008", 172, datum}, {"RECHNUNG 7", 12, datum + 4 + kY}};
    if (voll || f.kopf == 1) {
        stellen.insert(stellen.end(), {absender, {"Faxnr", absender.x, absender.y + 16}});
    }
    return {stellen, voll ? 133 : datum + 8 + kY};
}

std::vector<std::string> bilder_auf(const Papier& papier, int seite) {
    std::vector<std::string> bilder;
    for (const drawn::Picture& b : papier.alle<drawn::Picture>(seite)) {
        bilder.push_back(b.path + " " + format_zahl(b.left, "0") + " " + format_zahl(b.top, "0") + " " +
                         format_zahl(b.width, "0") + " " + format_zahl(b.height, "0.0"));
    }
    return bilder;
}

void pruefen(const Papier& papier, int seite, const Fall& f) {
    auto [stellen, tabelle] = kopf(f, seite == 1 || f.kopf == 0);
    for (const Stelle& s : {Stelle{"Pos.", -20, 4},
                            {"Menge", -35, 4},
                            {"Leistung", 40, 4},
                            {"Einzelpreis", -150, 4},
                            {"Gesamtpreis", -187, 4},
                            {"Posten", 40, 12},
                            {"10,00", -147, 12}}) {
        stellen.push_back({s.text, s.x, tabelle + s.y});
    }
    const double bank = f.eigenes() ? 273 : kFuesse[f.fuss].grundlinie;
    for (const Stelle& s : f.eigenes() ? kFussfelder[f.fuss].second : kFussfelder[f.fuss].first) {
        stellen.push_back({s.text, s.x, bank + s.y});
    }
    const std::string seitenzahl = "Seite " + std::to_string(seite) + "/" + std::to_string(papier.seiten());
    stellen.push_back({seitenzahl.c_str(), f.eigenes() ? 187.0 : 100.0 - 9, f.eigenes() ? 268 : bank});
    for (const Stelle& s : stellen) {
        const drawn::Text* text = papier.finden(s.text, seite);
        ASSERT_NE(text, nullptr) << s.text;
        EXPECT_NEAR(s.x < 0 ? rechts(text) : text->left, kX + std::abs(s.x), 0.01) << s.text;
        EXPECT_NEAR(text->top, kY + s.y, 0.01) << s.text;
    }
    const drawn::Text* bemerkung = papier.finden("Bemerkung", seite);
    ASSERT_EQ(bemerkung != nullptr, f.bemerkung || seite == papier.seiten());
    EXPECT_TRUE(bemerkung == nullptr || bemerkung->left == kX + (f.eigenes() ? 64 : 12));
    EXPECT_EQ(papier.finden("MUSTERFIRMA", seite) == nullptr, seite > 1 && f.kopf == 2);
    const double erste = std::nearbyint(kY + tabelle + 2);
    const double banklinie = kY + (f.eigenes() ? 272 : bank + 5);
    const auto linien = papier.alle<drawn::Line>(seite);
    for (const auto& [x1, y1, x2, y2] :
         {std::array{12.0, erste, 188.0, erste + 1}, {0.0, banklinie, 297.0, banklinie}}) {
        EXPECT_TRUE(
            std::any_of(linien.begin(), linien.end(),
                        [&, von = kX + x1, bis = kX + x2, oben = y1, unten = y2](const drawn::Line& l) {
                            return l.x1 == von && l.x2 == bis && std::abs(l.y1 - oben) < 0.01 &&
                                   std::abs(l.y2 - unten) < 0.01;
                        }))
            << "rule at " << y1;
    }
}

TEST(Seitenlayout, AlleLayoutsStehenAufIhrenZahlen) {
    Druckprobe p;
    frm_einstellungen& e = p.einstellungen;
    e.Picture1.Picture = "logo";
    e.Picture_wasserz.Picture = "wz";
    e.Check_mit_Wasserz.Value = 1;
    e.Check_BANKLINIE.Value = 1;
    for (const auto& [feld, text] : {std::pair<TextBox&, const char*>{e.Text_Institut, "INST"},
                                     {e.Text_BLZ, "BLZ"},
                                     {e.Text_KTO, "KTO"},
                                     {e.Text_IBAN, "IBAN"},
                                     {e.Text_BIC, "BIC"},
                                     {e.Text_Bankverb1, "Zeile A"},
                                     {e.Text_Bankverb2, "Zeile B"},
                                     {e.Text_Bankverb3, "Zeile C"},
                                     {p.form1.Text_Kunde_3, "12345 Ort"},
                                     {p.form1.Text_KundennrK, "Kundennr: 8"},
                                     {p.form1.Text_LIEFERDATUM, "LIEFERDATUM: 1.3."},
                                     {p.form1.Text_Bemerkung1[0], "Anrede"},
                                     {p.form1.Text_Bemerkung1[1], "Bemerkung"}}) {
        feld.Text = text;
    }
    p.form1.Check_LIEFERDATUM.Value = 1;
    p.designdatei.DESIGN_STANDARD();
    p.designdatei.design.IMG_LOGO = "logo";
    p.designdatei.design.IMG_WASSERZEICHEN = "wz";
    p.designdatei.DESIGN_SPEICHERN();
    p.zeilen(45);
    const int seiten[3][2] = {{4, 5}, {2, 3}, {2, 2}}; // by head, and remarks on the last or on every page
    for (int n = 0; n < 9 * 6 * 12; ++n) {
        const Fall f{n % 9 + 1, n / 9 % 2 == 0, n / 18 % 3, n / 54 % 2 == 0, n / 108};
        SCOPED_TRACE("Layout " + std::to_string(f.layout) + (f.logo ? " mit" : " ohne") + " Logo, Kopf " +
                     std::to_string(f.kopf) + (f.bemerkung ? ", alle" : ", letzte") + ", Fuss " +
                     std::to_string(f.fuss));
        einstellen(e, f);
        const Papier papier = p.drucken({kX, kY});
        ASSERT_EQ(papier.seiten(), seiten[f.kopf][f.bemerkung ? 1 : 0]);
        for (int seite = 1; seite <= papier.seiten(); ++seite) {
            SCOPED_TRACE("Seite " + std::to_string(seite));
            pruefen(papier, seite, f);
            std::vector<std::string> bilder{f.eigenes() ? "wz -2 1 205 296,0" : "wz 0 0 206 299,1"};
            if ((f.eigenes() || f.logo) && (seite == 1 || f.kopf < 2)) {
                bilder.emplace_back(f.eigenes() ? "logo 59 17 140 30,0" : kAbsender[f.layout - 1].logo);
            }
            EXPECT_EQ(bilder_auf(papier, seite), bilder);
        }
        if (HasFailure()) {
            return;
        }
    }
}

} // namespace
} // namespace quittika
