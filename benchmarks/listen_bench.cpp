#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "masterdata/artikelverwaltung.hpp"
#include "masterdata/kundenverwaltung.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <QWidget>
#include <benchmark/benchmark.h>

namespace quittika {
namespace {

std::string kundendatei() {
    std::string bytes;
    for (int i = 0; i < Kundenverwaltung::kHoechstens; ++i) {
        const std::string n = std::to_string(i);
        bytes += "Kunde " + n +
                 ", Anna...Hauptstra\xDF"
                 "e " +
                 n + "...01067 Dresden...Tel.: 0351 " + n + "...K" + n + "...\r\n";
    }
    return bytes;
}

std::string artikeldatei() {
    std::string bytes;
    for (int i = 0; i < Artikeltabelle::kHoechstens; ++i) {
        const std::string n = std::to_string(i);
        bytes += "Artikel aus St\xFC"
                 "ck " +
                 n + "$\xA7$" + n + ".50$\xA7$" + "40000" + n + "$\xA7$\r\n";
    }
    return bytes;
}

/// The program with both lists at their limits.
struct VolleListen {
    VolleListen() {
        ordner.schreiben("Kundenliste.txt", kundendatei());
        ordner.schreiben("Artikelliste.txt", artikeldatei());
        programm.hauptfenster_zeigen();
        QApplication::processEvents();
    }
    Form1& form1() { return dynamic_cast<Form1&>(programm.hauptfenster()); }
    static void schliessen(const char* name) {
        for (QWidget* fenster : QApplication::topLevelWidgets()) {
            if (fenster->objectName() == QLatin1String(name)) {
                fenster->close();
            }
        }
        QApplication::processEvents();
    }

    Probenordner ordner;
    QtPlatform plattform;
    Programm programm{plattform.platform(), ordner.ordner()};
};

void oeffnen(benchmark::State& state, Menu Form1::*eintrag, const char* name) {
    VolleListen listen;
    for (auto _ : state) {
        (listen.form1().*eintrag).Click();
        QApplication::processEvents();
        state.PauseTiming();
        VolleListen::schliessen(name);
        state.ResumeTiming();
    }
}
void kundenliste_oeffnen(benchmark::State& state) {
    oeffnen(state, &Form1::m_Kundenliste, "Form_Kundenverwaltung");
}
BENCHMARK(kundenliste_oeffnen)->Unit(benchmark::kMillisecond);
void artikelliste_oeffnen(benchmark::State& state) {
    oeffnen(state, &Form1::m_Artikelliste, "Form_Artikelverwaltung");
}
BENCHMARK(artikelliste_oeffnen)->Unit(benchmark::kMillisecond);

/// Modules over the lists, without windows.
struct Listenstand {
    Listenstand() {
        p.ordner.schreiben("Kundenliste.txt", kundendatei());
        p.ordner.schreiben("Artikelliste.txt", artikeldatei());
    }
    Pruefstand p;
    Artikelzustand zustand{p.verzeichnis};
    Artikeltabelle ARTIKEL{zustand};
    Form_Kundenverwaltung kundenform;
    Kundenverwaltung kunden{kundenform, p.form1, zustand, p.verzeichnis, p.dialoge};
    Form_Artikelverwaltung artikelform;
    Artikelverwaltung artikel{
        artikelform, Artikelverwaltung::Zweck::Beistellen, p.form1, zustand, ARTIKEL, p.verzeichnis,
        p.dialoge};
};

void kunde_loeschen(benchmark::State& state) {
    Listenstand s;
    const std::string pfad = s.p.verzeichnis.pfad("\\Kundenliste.txt");
    for (auto _ : state) {
        state.PauseTiming();
        s.p.ordner.schreiben("Kundenliste.txt", kundendatei());
        s.kunden.Kundenliste_laden(pfad);
        s.kundenform.List_Kundenverwaltung.ListIndex = 3000;
        state.ResumeTiming();
        s.kundenform.Command_delete.Click();
    }
}
BENCHMARK(kunde_loeschen)->Unit(benchmark::kMillisecond);

void artikel_loeschen(benchmark::State& state) {
    Listenstand s;
    for (auto _ : state) {
        state.PauseTiming();
        s.p.ordner.schreiben("Artikelliste.txt", artikeldatei());
        s.artikel.Artikelliste_fuellen();
        s.artikelform.List_Artikelnverwaltung.ListIndex = 3000;
        state.ResumeTiming();
        s.artikelform.Command_delete.Click();
    }
}
BENCHMARK(artikel_loeschen)->Unit(benchmark::kMillisecond);

/// A key in the search field that leads to the last of 7,000 customers, the list folded anew.
void kunde_suchen(benchmark::State& state) {
    Listenstand s;
    s.kunden.Kundenliste_laden(s.p.verzeichnis.pfad("\\Kundenliste.txt"));
    for (auto _ : state) {
        state.PauseTiming();
        s.kundenform.Text_suchen.Text = "";
        s.kundenform.List_Kundenverwaltung.AddItem("");
        s.kundenform.List_Kundenverwaltung.RemoveItem(Kundenverwaltung::kHoechstens);
        state.ResumeTiming();
        s.kundenform.Text_suchen.Text = "STRASSE 6999";
    }
}
BENCHMARK(kunde_suchen)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
