#include "print/druckauftrag.hpp"

#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

class FalscherDrucker : public Printing {
public:
    FesteSchrift schrift;
    Papier papier;
    std::vector<std::string> titel;
    int annahmefehler = 0;
    int bildfehler = 0;
    int endfehler = 0;

    const FontMetrics& metrics() const override { return schrift; }
    std::unique_ptr<PrintDevice> printer(const std::string& job_title) override {
        if (annahmefehler != 0) {
            throw Laufzeitfehler(annahmefehler);
        }
        titel.push_back(job_title);
        return std::make_unique<Papiergeraet>(papier, bildfehler, endfehler);
    }
};

class KeinDesktop : public Desktop {
public:
    std::vector<std::string> gezeigt; ///< names of the modal windows

    void adopt(Form& form) override { form.attach(*this, nullptr); }
    void release(Form&) override {}
    void show(Form& form, Modality modality) override {
        if (modality == Modality::Modal) {
            gezeigt.push_back(form.name());
            static_cast<CommandButton*>(form.find("CMD_weiter"))->Click();
        }
    }
    void hide(Form&) override {}
    void raise(Form&) override {}
    void set_focus(Control&) override {}
    int screen_width() const override { return 0; }
    int screen_height() const override { return 0; }
    void beep() override {}
    void later(std::function<void()>) override {}
    void end() override {}
};

struct Druckerdialoge : FalscheDialoge {
    int exemplare = 1;
    int fehlernummer = 0;
    int choose_printer(int) override {
        if (fehlernummer != 0) {
            throw Laufzeitfehler(fehlernummer);
        }
        return exemplare;
    }
};

struct Auftragsprobe : Pruefstand {
    Druckerdialoge druckdialoge;
    FalscherDrucker drucker;
    KeinDesktop desktop;
    int berechnet = 0;
    Druckauftrag auftrag{form1,   einstellungen,          werte, druckdialoge, drucker,
                         desktop, [this] { ++berechnet; }};
    std::string drucken() {
        auftrag.Command_printform_Click();
        return form1.StatusBar1[2].Caption();
    }
};

TEST(Druckauftrag, JedesExemplarIstEinEigenerAuftrag) {
    Auftragsprobe p;
    p.form1.Text_RNnr.Text = "12";
    p.druckdialoge.exemplare = 3;
    EXPECT_EQ(p.drucken(), "DRUCKEN...");
    EXPECT_EQ(p.drucker.titel, std::vector<std::string>(3, "QK-> Name, Vorname RECHNUNG 12"));
    EXPECT_EQ(p.drucker.papier.enden, 3);
    EXPECT_EQ(p.form1.Text1.Text(), "3");
    EXPECT_EQ(p.berechnet, 1);
}

TEST(Druckauftrag, AbbruchUndFehlerStehenInDerStatuszeile) {
    struct Fall {
        const char* name;
        int dialog;
        int annahme;
        int ende;
        const char* status;
    };
    const Fall faelle[] = {
        {"abgebrochen", fehler::kDialogAbgebrochen, 0, 0, "DRUCKEN ABGEBROCHEN."},
        {"Dialog gestört", fehler::kGeraet, 0, 0, "FEHLER BEIM DRUCKEN!"},
        {"Drucker nimmt nichts an", 0, fehler::kDrucker, 0, "FEHLER BEIM DRUCKEN!"},
        {"Abschluss misslingt", 0, 0, fehler::kDrucker, "FEHLER BEIM DRUCKEN!"},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        Auftragsprobe p;
        p.druckdialoge.fehlernummer = f.dialog;
        p.drucker.annahmefehler = f.annahme;
        p.drucker.endfehler = f.ende;
        EXPECT_EQ(p.drucken(), f.status);
        EXPECT_TRUE(p.druckdialoge.boxen.empty());
        EXPECT_EQ(p.drucker.papier.enden, 0);
    }
}

TEST(Druckauftrag, NurFuerEinenLieferscheinWirdGefragt) {
    Auftragsprobe p;
    p.drucken();
    EXPECT_TRUE(p.desktop.gezeigt.empty());
    for (OptionButton* art : {&p.form1.Option_LIEFERSCHEIN, &p.form1.Option_LIEFERSCHEIN_KOPIE}) {
        art->Value = true;
        EXPECT_EQ(p.drucken(), "DRUCKEN...");
        EXPECT_EQ(p.desktop.gezeigt, std::vector<std::string>{"Form_Lieferschein_opt"});
        EXPECT_FALSE(p.auftrag.lieferschein_opt().shown());
        p.desktop.gezeigt.clear();
    }
    EXPECT_NE(p.drucker.papier.finden("Rechnungsbetrag"), nullptr) << "on paper it shows its prices";
}

TEST(Druckauftrag, OhneLayoutWirdNichtsGedruckt) {
    Auftragsprobe p;
    p.einstellungen.Option2_Layout.Value = false;
    EXPECT_EQ(p.drucken(), "DRUCKEN...");
    EXPECT_TRUE(p.drucker.titel.empty());
}

TEST(Druckauftrag, EinFehlendesBildKostetNurSichSelbst) {
    Auftragsprobe p;
    p.einstellungen.Picture1.Picture = "fehlt.bmp";
    p.drucker.bildfehler = fehler::kBild;
    EXPECT_EQ(p.drucken(), "DRUCKEN...");
    EXPECT_EQ(p.drucker.papier.enden, 1);
    EXPECT_NE(p.drucker.papier.finden("MUSTERFIRMA"), nullptr);
}

} // namespace
} // namespace quittika
