#include "analyzer/analyzer.hpp"
#include "platform/dateisuche.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <array>
#include <map>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace quittika {
namespace {

/// An invoice of 1 to 60 rows as the program writes it.
std::string rechnung(int nummer) {
    constexpr int kHoechstzeilen = 60;
    std::array<std::string, 1002> zeilen;
    zeilen.fill("#**#");
    const std::string n = std::to_string(nummer);
    const std::map<std::size_t, std::string> felder{{0, "qk8"},
                                                    {1, "RECHNUNG 2008 -"},
                                                    {2, "05.03.2008"},
                                                    {3, "K\xF6hler & S\xF6hne " + n},
                                                    {4, "Hauptstra\xDF"
                                                        "e 17"},
                                                    {7, "Kundennr: " + n},
                                                    {39, "vielen Dank f\xFCr Ihren Auftrag. Wir berechnen:"},
                                                    {52, n + ",20"},
                                                    {53, "54,96"},
                                                    {54, n + ",71"},
                                                    {56, "1"},
                                                    {57, nummer % 3 == 0 ? "1" : "0"},
                                                    {58, nummer % 5 == 0 ? "1" : "0"},
                                                    {59, "2"},
                                                    {75, n + ",25"},
                                                    {80, n},
                                                    {218, "Es liegen keine Notizen vor..."},
                                                    {219, "1,80"},
                                                    {220, "9,50"}};
    for (const auto& [zeile, text] : felder) {
        zeilen.at(zeile) = text;
    }
    std::string bytes;
    for (const std::string& zeile : zeilen) {
        bytes += zeile + "\r\n";
    }
    for (int i = 0; i <= nummer % kHoechstzeilen; ++i) {
        bytes += "#qk8LIST#;001;-;2,00;Montage eines Regals, Anfahrt inbegriffen;12,50;25,00\r\n";
    }
    return bytes;
}

/// A folder with so many invoices; it stays for all benchmarks.
const Probenordner& rechnungen(int anzahl) {
    static std::map<int, Probenordner> ordner;
    const auto [stelle, neu] = ordner.try_emplace(anzahl);
    for (int i = 1; neu && i <= anzahl; ++i) {
        stelle->second.schreiben("2008-03-05+RECHNUNG 2008 - " + std::to_string(i) + ".qk8", rechnung(i));
    }
    return stelle->second;
}

/// The analyzer in its window over such a folder.
struct Analysestand {
    explicit Analysestand(int anzahl) {
        programm.schreiben("analyse_quelle.txt", rechnungen(anzahl).ordner() + "\r\n");
        plattform.desktop().adopt(form);
        form.Show();
        QApplication::processEvents();
    }
    void analysieren() {
        form.CMD_START_ANALYSE.Click();
        QApplication::processEvents();
    }

    Probenordner programm;
    Programmverzeichnis verzeichnis{programm.ordner()};
    QtPlatform plattform;
    Platform p = plattform.platform();
    Form_Analyzer form;
    Analyzer analyzer{form,      verzeichnis, p.desktop,
                      p.dialogs, p.printing,  p.shell,
                      p.clock,   p.progress,  [](const std::string&) {}};
};

/// What the lists hold, in bytes of text.
std::size_t listentext(const Form_Analyzer& form) {
    std::size_t bytes = 0;
    const auto dazu = [&bytes](const ListBox& liste) {
        for (const std::string& text : liste.items()) {
            bytes += text.size();
        }
    };
    std::for_each(form.List_rohdata.begin(), form.List_rohdata.end(), dazu);
    dazu(form.List_ANSICHT);
    dazu(form.List_dateien);
    return bytes;
}

void analyse(benchmark::State& state, int anzahl) {
    Analysestand s(anzahl);
    const auto belegt = [] { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd); };
    const double vorher = belegt();
    for (auto _ : state) {
        s.analysieren();
    }
    if (s.form.List_ANSICHT.ListCount() != anzahl) {
        state.SkipWithError("not read");
    }
    state.counters["B/Rechnung"] =
        (belegt() - vorher - static_cast<double>(listentext(s.form))) / static_cast<double>(anzahl);
}
BENCHMARK_CAPTURE(analyse, 100, 100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(analyse, 10000, 10000)->Unit(benchmark::kMillisecond);

/// The same files from the first byte to the last, to nothing.
void analyse_grundlage(benchmark::State& state) {
    const std::string& ordner = rechnungen(10000).ordner();
    constexpr std::size_t kPuffer = 131072;
    static std::array<char, kPuffer> puffer;
    for (auto _ : state) {
        for (const std::string& name : DATEIEN_SUCHEN(ordner, "*.qk8")) {
            const int datei = open((ordner + "/" + name).c_str(), O_RDONLY | O_CLOEXEC);
            while (read(datei, puffer.data(), puffer.size()) > 0) {
            }
            close(datei);
        }
    }
}
BENCHMARK(analyse_grundlage)->Unit(benchmark::kMillisecond);

void rechnung_markieren(benchmark::State& state) {
    constexpr int kAnzahl = 10000;
    Analysestand s(kAnzahl);
    s.analysieren();
    int zeile = 0;
    for (auto _ : state) {
        zeile = (zeile + 7919) % kAnzahl;
        s.form.List_ANSICHT.user_select(zeile);
        QApplication::processEvents();
    }
}
BENCHMARK(rechnung_markieren)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
