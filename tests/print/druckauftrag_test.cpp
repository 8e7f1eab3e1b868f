#include "print/druckauftrag.hpp"

#include "platform/script/script_desktop.hpp"
#include "platform/script/script_dialogs.hpp"
#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

class FalscherDrucker : public Printing {
public:
    FesteSchrift schrift;
    Papier papier;
    Papierbilder bilder;
    int annahmefehler = 0;
    int endfehler = 0;
    int gute = 0; ///< documents before the one that fails
    int enden = 0;

    const FontMetrics& metrics() const override { return schrift; }
    std::string output_file() const override { return {}; }
    std::unique_ptr<PrintDevice> printer(const PrintDocument& /*document*/) override {
        if (annahmefehler != 0) {
            throw Laufzeitfehler(annahmefehler, "Der Drucker GP ist angehalten.");
        }
        papier = {};
        std::shared_ptr<RecordedJob> auftrag(std::shared_ptr<void>(), &papier);
        return std::make_unique<RecordingDevice>(std::move(auftrag), bilder, [this] {
            if (enden == gute && endfehler != 0) {
                throw Laufzeitfehler(endfehler);
            }
            ++enden;
        });
    }
    std::unique_ptr<PrintDevice> pdf(const std::string&, const PrintDocument&) override { return {}; }
    std::unique_ptr<PrintDevice> archive(const PrintDocument&, TakeBytes) override { return {}; }
    std::unique_ptr<PrintDevice> picture(PictureControl&, const PrintDocument&) override { return {}; }
    void save_page(const DrawnPage&, const std::string&, int) override {}
    void save_charts(const ChartSheet&, const std::string&) override {}
};

struct Auftragsprobe : Pruefstand {
    ScriptDialogs druckdialoge;
    FalscherDrucker drucker;
    ScriptClock standuhr;
    ScriptDesktop desktop{standuhr};
    Lieferscheinoptionen optionen{form1, einstellungen, desktop};
    Designdatei designdatei{verzeichnis, druckdialoge, form1.Hinweise};
    Belegdruck belegdruck{form1, einstellungen, werte, designdatei, [] { return std::nullopt; }};
    Druckauftrag auftrag{form1, einstellungen, belegdruck, druckdialoge, drucker, optionen, [] {}};

    std::string drucken(const Choice& wahl = choice::Printer{1}) {
        druckdialoge.queue(wahl);
        auftrag.Command_printform_Click();
        return form1.StatusBar1[2].Caption();
    }
    std::string meldung() const { return form1.StatusBar1[3].Caption(); }
};

TEST(Druckauftrag, EinFehlerSagtSeinenGrundUndWasGedrucktIst) {
    const struct {
        const char* name;
        int exemplare;
        int annahme;
        int ende;
        int gute;
        const char* meldung;
    } faelle[] = {
        {"Drucker nimmt nichts an", 1, fehler::kDrucker, 0, 0, "Der Drucker GP ist angehalten."},
        {"zweites Exemplar", 3, 0, fehler::kDatentraegerVoll, 1,
         "Gedruckt: 1 von 3 Exemplaren. Der Datenträger ist voll: bitte Platz schaffen oder auf einem "
         "anderen "
         "speichern."},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Auftragsprobe p;
        p.drucker.annahmefehler = f.annahme;
        p.drucker.endfehler = f.ende;
        p.drucker.gute = f.gute;
        EXPECT_EQ(p.drucken(choice::Printer{f.exemplare}), "FEHLER BEIM DRUCKEN!");
        EXPECT_EQ(p.meldung(), f.meldung);
        EXPECT_TRUE(p.druckdialoge.take_boxes().empty());
        EXPECT_EQ(p.drucker.enden, f.gute);
        p.drucker.annahmefehler = p.drucker.endfehler = 0;
        p.drucken();
        EXPECT_EQ(p.meldung(), "") << "the reason goes with the next job that succeeds";
    }
}

TEST(Druckauftrag, OhneLayoutWirdNichtsGedruckt) {
    Auftragsprobe p;
    p.einstellungen.Option2_Layout.Value = false;
    EXPECT_EQ(p.drucken(), "DRUCKEN...");
    EXPECT_TRUE(p.drucker.enden == 0);
    EXPECT_EQ(p.meldung(), "Es ist kein Layout gewählt, deshalb wurde nichts gedruckt.");
}

TEST(Druckauftrag, WasSichUeberdecktOderNichtAufDasBlattPasstWirdGesagt) {
    const struct {
        const char* name;
        TextBox Form1::*feld;
        std::string text;
        const char* meldung;
    } faelle[] = {
        {"Titel im Lieferdatum", &Form1::Text_rechnung, std::string(77, 'R'),
         "Auf Seite 1 stehen \"LIEFERDATUM\" und \"RRRRRRRRRRRRRRRRRRRRRRRRRRRRRR...\" übereinander"},
        {"davor", &Form1::Text_rechnung, std::string(76, 'R'), ""},
        {"Kunde neben dem Blatt", &Form1::Text_Kunde_2, std::string(91, 'K'),
         "Auf Seite 1 ragt \"KKKKKKKKKKKKKKKKKKKKKKKKKKKKKK...\" über das Blatt hinaus"},
        {"bis zum Rand", &Form1::Text_Kunde_2, std::string(90, 'K'), ""},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Auftragsprobe p;
        p.form1.Text_RNnr.Text = "7";
        p.form1.Check_LIEFERDATUM.Value = 1;
        p.form1.Text_LIEFERDATUM.Text = "LIEFERDATUM";
        (p.form1.*f.feld).Text = f.text;
        p.drucken();
        const std::string rat =
            ": bitte Text kürzen, kleinere Schrift wählen oder eine Seite früher umbrechen.";
        EXPECT_EQ(p.meldung(), *f.meldung == 0 ? "" : f.meldung + rat);
    }
}

TEST(Druckauftrag, EinFehlendesBildKostetNurSichSelbst) {
    Auftragsprobe p;
    p.einstellungen.Picture1.Picture = "fehlt.bmp";
    p.drucker.bilder.fehler = fehler::kBild;
    EXPECT_EQ(p.drucken(), "DRUCKEN...");
    EXPECT_EQ(p.drucker.enden, 1);
    EXPECT_NE(p.drucker.papier.finden("MUSTERFIRMA"), nullptr);
    EXPECT_EQ(p.meldung(), "Ohne das Bild fehlt.bmp gedruckt.");
}

} // namespace
} // namespace quittika
