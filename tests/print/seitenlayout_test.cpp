#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quittika {
namespace {

/// Where a text begins (or ends, where `x` is negative), mm without the adjustment.
struct Stelle {
    const char* text;
    double x;
    double y;
};

/// Logo and sender of a built-in design; the first line with and without logo.
struct Absender {
    const char* logo;
    double x_mit;
    double y_mit;
    double x_ohne;
    double y_ohne;
};
constexpr Absender kAbsender[] = {
    {"logo 141 11 45 30,0", -140, 8, -190, 8}, {"logo 8 11 45 30,0", 62, 7, 17, 8},
    {"logo 141 11 45 30,0", 17, 8, 17, 8},     {"logo 96 11 90 30,0", 17, 8, 17, 8},
    {"logo 8 11 45 30,0", -190, 8, -190, 8},   {"logo 169 9 23 45,0", -168, 8, -145, 8},
    {"logo 2 8 190 35,0", -195, 45, -195, 45}, {"logo 145 11 45 30,0", -191, 43, -191, 43},
};
constexpr Stelle kKopf[] = {{"05.03.2008", 172, 123}, {"12345 Ort", 29, 55 + 8},
                            {"Kundennr: 8", 29, 79},  {"Ihr Werbespruch", 12, 105},
                            {"RECHNUNG 7", 12, 125},  {"LIEFERDATUM", -190, 127}};
constexpr Stelle kEigenerKopf[] = {
    {"MUSTERFIRMA", 11, 15},   {"Faxnr", 11, 15 + 16},    {"05.03.2008", 179, 59},
    {"12345 Ort", 11, 74 + 8}, {"Kundennr: 8", 150, 85},  {"Ihr Werbespruch", 62, 56},
    {"RECHNUNG 7", 150, 93},   {"LIEFERDATUM", 150, 100}, {"Anrede", 12, 120}};

struct Fuss {
    const char* name;
    bool vorlage;
    int iban, zeile2, zeile3;
    double grundlinie;
    std::vector<Stelle> felder; ///< y below the base line
    std::vector<Stelle> eigene; ///< y below the design's bank line
};
const Fuss kFuesse[] = {
    {"Vorlage",
     true,
     0,
     0,
     0,
     272,
     {{"INST", 21, 7}, {"BLZ", 88, 7}, {"KTO", 149, 7}},
     {{"INST", 14, 0}, {"BLZ", 81, 0}, {"KTO", 142, 0}}},
    {"IBAN",
     true,
     1,
     0,
     0,
     272,
     {{"INST", 10, 7}, {"BLZ", 45, 7}, {"KTO", 70, 7}, {"IBAN", 99, 7}, {"BIC", 150, 7}},
     {{"INST", 14, 0}, {"BLZ", 49, 0}, {"KTO", 74, 0}, {"IBAN", 103, 0}, {"BIC", 154, 0}}},
    {"eine Zeile", false, 0, 0, 0, 272, {{"Zeile A", 10, 7}}, {{"Zeile A", 14, 0}}},
    {"zweite",
     false,
     0,
     1,
     0,
     267,
     {{"Zeile A", 10, 7}, {"Zeile B", 10, 11}},
     {{"Zeile A", 14, 0}, {"Zeile B", 14, 4}}},
    {"dritte",
     false,
     0,
     0,
     1,
     267,
     {{"Zeile A", 10, 7}, {"Zeile C", 10, 15}},
     {{"Zeile A", 14, 0}, {"Zeile C", 14, 4}}},
    {"alle",
     false,
     0,
     1,
     1,
     262,
     {{"Zeile A", 10, 7}, {"Zeile B", 10, 11}, {"Zeile C", 10, 15}},
     {{"Zeile A", 14, 0}, {"Zeile B", 14, 4}, {"Zeile C", 14, 8}}},
};

struct Fall {
    int layout;
    bool logo;      ///< with logo
    int kopf;       ///< 0 full on every page, 1 following pages with logo and sender, 2 without
    bool bemerkung; ///< remarks on every page
    const Fuss& fuss;
};

/// The pages of one case against the numbers of the designs.
class Seitenprobe {
public:
    Seitenprobe(Druckprobe& p, const Fall& fall) : fall_(fall) {
        frm_einstellungen& e = p.einstellungen;
        e.Layouts().at(static_cast<std::size_t>(fall.layout - 1))->Value = true;
        e.Check_keinlogo.Value = fall.logo ? 0 : 1;
        (fall.kopf == 0 ? e.Option_RN_Kopf_alleSeiten : e.Option_RN_RK_Kopf_nurErsteSeite).Value = true;
        e.Check_MitLogoadresseFFSeite.Value = fall.kopf == 1 ? 1 : 0;
        (fall.bemerkung ? e.Option_RN_BM_alleSeite : e.Option_RN_BM_nurletzte_Seite).Value = true;
        (fall.fuss.vorlage ? e.Option_BankVerb_Vorgabe : e.Option_BankVerb_ZweiZeile).Value = true;
        e.Check_mit_IBAN_BIC_Drucken.Value = fall.fuss.iban;
        e.Check_Bankverb_Zeile2.Value = fall.fuss.zeile2;
        e.Check_Bankverb_Zeile3.Value = fall.fuss.zeile3;
        papier_ = p.drucken({kX, kY});
    }

    void pruefen(const std::vector<int>& zeilen_je_seite, const std::string& eigenes_logo) {
        ASSERT_EQ(papier_.seite, static_cast<int>(zeilen_je_seite.size()));
        std::vector<std::string> bilder;
        for (seite_ = 1; seite_ <= papier_.seite; ++seite_) {
            SCOPED_TRACE("Seite " + std::to_string(seite_));
            const bool voll = seite_ == 1 || fall_.kopf == 0;
            const double tabelle = eigenes() ? eigener_kopf(voll) : kopf(voll);
            erste_linie(tabelle);
            bilder.push_back("wz " + std::string(eigenes() ? "-2 1 205 296,0" : "0 0 206 299,1"));
            if (voll || fall_.kopf == 1) {
                if (eigenes()) {
                    bilder.push_back(eigenes_logo);
                } else if (fall_.logo) {
                    bilder.emplace_back(absender().logo);
                }
            }
            const bool bemerkung = fall_.bemerkung || seite_ == papier_.seite;
            EXPECT_EQ(papier_.finden("Bemerkung", seite_) != nullptr, bemerkung);
            if (bemerkung) {
                EXPECT_NEAR(papier_.finden("Bemerkung", seite_)->links, kX + (eigenes() ? 64 : 12), 0.01);
            }
            fuss();
            EXPECT_EQ(
                std::count_if(papier_.texte.begin(), papier_.texte.end(),
                              [this](const auto& t) { return t.seite == seite_ && t.text == "Posten"; }),
                zeilen_je_seite[static_cast<std::size_t>(seite_ - 1)]);
        }
        EXPECT_EQ(papier_.bilder, bilder);
    }

private:
    static constexpr int kX = -4;
    static constexpr int kY = 3;

    bool eigenes() const { return fall_.layout == 9; }
    const Absender& absender() const { return kAbsender[fall_.layout - 1]; }

    void steht(const Stelle& s, double y) {
        const GezeichneterText* text = papier_.finden(s.text, seite_);
        ASSERT_NE(text, nullptr) << s.text;
        EXPECT_NEAR(s.x < 0 ? text->rechts : text->links, kX + std::abs(s.x), 0.01) << s.text;
        EXPECT_NEAR(text->oben, kY + y, 0.01) << s.text;
    }

    /// Head of a built-in design; returns where the table begins.
    double kopf(bool voll) {
        const double y = fall_.logo ? absender().y_mit : absender().y_ohne;
        const double x = fall_.logo ? absender().x_mit : absender().x_ohne;
        if (voll || fall_.kopf == 1) {
            steht({"MUSTERFIRMA", x, 0}, y);
            steht({"Faxnr", x, 0}, y + 16); // the eighth field stands fifth
        } else {
            EXPECT_EQ(papier_.finden("MUSTERFIRMA", seite_), nullptr);
        }
        if (voll) {
            for (const Stelle& s : kKopf) {
                steht(s, s.y);
            }
            return 133;
        }
        const double datum = fall_.kopf == 1 ? y + 8 * 4 + 12 + kY : 30;
        steht({"05.03.2008", 172, 0}, datum);
        steht({"RECHNUNG 7", 12, 0}, datum + 4 + kY); // the adjustment counts twice
        return datum + 4 + kY + 4;
    }

    double eigener_kopf(bool voll) {
        if (voll) {
            for (const Stelle& s : kEigenerKopf) {
                steht(s, s.y);
            }
            return 148;
        }
        if (fall_.kopf == 1) {
            steht({"MUSTERFIRMA", 11, 0}, 15);
        }
        const double datum = fall_.kopf == 1 ? 15 + 8 * 4 + 6 : 30;
        steht({"05.03.2008", 179, 0}, datum);
        steht({"RECHNUNG 7", 150, 0}, datum + 4);
        EXPECT_EQ(papier_.finden("Anrede", seite_), nullptr);
        return datum + 8;
    }

    void erste_linie(double tabelle) {
        const double y = std::nearbyint(kY + tabelle + 2);
        const auto linie = std::find_if(papier_.linien.begin(), papier_.linien.end(),
                                        [&](const auto& l) { return l.seite == seite_ && l.y2 == l.y1 + 1; });
        ASSERT_NE(linie, papier_.linien.end());
        EXPECT_NEAR(linie->x1, kX + 12, 0.01);
        EXPECT_NEAR(linie->x2, kX + 188, 0.01);
        EXPECT_NEAR(linie->y1, y, 0.01);
        const double kopfzeile = kY + tabelle + 4;
        for (const Stelle& s : {Stelle{"Pos.", -20, 0},
                                {"Menge", -35, 0},
                                {"Leistung", 40, 0},
                                {"Einzelpreis", -150, 0},
                                {"Gesamtpreis", -187, 0}}) {
            steht(s, kopfzeile - kY);
        }
        for (const Stelle& s : {Stelle{"Posten", 40, 0}, {"10,00", -147, 0}}) {
            steht(s, kopfzeile - kY + 4 + 4);
        }
    }

    void fuss() {
        const double bank = eigenes() ? 273 : fall_.fuss.grundlinie;
        for (const Stelle& s : eigenes() ? fall_.fuss.eigene : fall_.fuss.felder) {
            steht(s, bank + s.y);
        }
        const std::string seitenzahl =
            "Seite " + std::to_string(seite_) + "/" + std::to_string(papier_.seite);
        if (eigenes()) {
            steht({seitenzahl.c_str(), 187, 0}, 268);
        } else {
            steht({seitenzahl.c_str(), 100.0 - static_cast<double>(seitenzahl.size()), 0}, bank);
        }
        const auto linie = std::find_if(papier_.linien.begin(), papier_.linien.end(), [this](const auto& l) {
            return l.seite == seite_ && l.x2 == kX + 297;
        });
        ASSERT_NE(linie, papier_.linien.end());
        EXPECT_NEAR(linie->y1, kY + (eigenes() ? 272 : bank + 5), 0.01);
    }

    const Fall& fall_;
    Papier papier_;
    int seite_ = 1;
};

TEST(Seitenlayout, AlleLayoutsStehenAufIhrenZahlen) {
    Druckprobe p;
    p.einstellungen.Picture1.Picture = "logo";
    p.einstellungen.Picture_wasserz.Picture = "wz";
    p.einstellungen.Check_mit_Wasserz.Value = 1;
    p.einstellungen.Check_BANKLINIE.Value = 1;
    const std::pair<TextBox frm_einstellungen::*, const char*> bank[] = {
        {&frm_einstellungen::Text_Institut, "INST"},     {&frm_einstellungen::Text_BLZ, "BLZ"},
        {&frm_einstellungen::Text_KTO, "KTO"},           {&frm_einstellungen::Text_IBAN, "IBAN"},
        {&frm_einstellungen::Text_BIC, "BIC"},           {&frm_einstellungen::Text_Bankverb1, "Zeile A"},
        {&frm_einstellungen::Text_Bankverb2, "Zeile B"}, {&frm_einstellungen::Text_Bankverb3, "Zeile C"}};
    for (const auto& [feld, text] : bank) {
        (p.einstellungen.*feld).Text = text;
    }
    p.form1.Text_Kunde_3.Text = "12345 Ort";
    p.form1.Text_KundennrK.Text = "Kundennr: 8";
    p.form1.Check_LIEFERDATUM.Value = 1;
    p.form1.Text_LIEFERDATUM.Text = "LIEFERDATUM: 1.3.";
    p.form1.Text_Bemerkung1[0].Text = "Anrede";
    p.form1.Text_Bemerkung1[1].Text = "Bemerkung";
    p.designdatei.DESIGN_STANDARD();
    p.designdatei.design.IMG_LOGO = "logo";
    p.designdatei.design.IMG_WASSERZEICHEN = "wz";
    p.designdatei.DESIGN_SPEICHERN();
    p.zeilen(45);
    // Rows a page by head and by remarks on every page.
    const std::vector<int> zeilen[3][2] = {
        {{17, 10, 10, 8}, {13, 10, 10, 10, 2}}, {{17, 28}, {13, 28, 4}}, {{17, 28}, {13, 32}}};
    for (int layout = 1; layout <= 9; ++layout) {
        for (const Fuss& fuss : kFuesse) {
            for (int rest = 0; rest < 12; ++rest) {
                const Fall fall{layout, rest % 2 == 0, rest / 4, rest / 2 % 2 == 0, fuss};
                SCOPED_TRACE("Layout " + std::to_string(layout) + (fall.logo ? " mit" : " ohne") +
                             " Logo, Kopf " + std::to_string(fall.kopf) +
                             (fall.bemerkung ? ", alle" : ", letzte") + ", Fuss " + fuss.name);
                Seitenprobe(p, fall).pruefen(zeilen[fall.kopf][fall.bemerkung ? 1 : 0],
                                             "logo 59 17 140 30,0");
                if (HasFailure()) {
                    return;
                }
            }
        }
    }
}

} // namespace
} // namespace quittika
