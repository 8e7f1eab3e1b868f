#pragma once

#include "tests/einvoice/musterrechnung.hpp"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

namespace quittika {

class Zufall {
public:
    explicit Zufall(unsigned saat) : quelle_(saat) {}
    int bis(int groesste) { return std::uniform_int_distribution<int>(0, groesste)(quelle_); }
    template <class T, std::size_t N> T aus(const T (&werte)[N]) {
        return werte[bis(static_cast<int>(N) - 1)];
    }

private:
    std::mt19937 quelle_;
};

struct Fall {
    Verkaeufer verkaeufer = MUSTERVERKAEUFER();
    Kaeufer kaeufer = MUSTERKAEUFER();
    Bezug bezug;
    Belegquelle quelle;
};

inline void zeilen_wuerfeln(Musterrechnung& m, Zufall& z, int anzahl) {
    const bool drei = z.bis(3) == 0;
    m.form1.Check_000.Value = drei ? 1 : 0;
    for (int i = 0; i < anzahl; ++i) {
        if (z.bis(9) == 0) {
            m.kommentar("Hinweis <" + std::to_string(i) + "> & mehr");
        }
        if (z.bis(19) == 0) {
            m.positionen.Command_Trennzeile_Click();
        }
        const char* mengen[] = {"1", "2", "3", "0,5", "1,25", "0,125", "12,3456", "1000", "-1"};
        const std::string preis = std::to_string(z.bis(200)) + "," + std::to_string(100 + z.bis(899));
        m.zeile(z.aus(mengen), "Leistung " + std::to_string(i), (z.bis(30) == 0 ? "-" : "") + preis);
    }
}

/// Fills an invoice: each number another one, always the same.
inline Fall FALL(Musterrechnung& m, unsigned nummer) {
    Zufall z(nummer);
    Fall f;
    const char* saetze[] = {"19", "7", "16", "10,7"};
    const char* versand[] = {"4,90", "5,95", "0", "12,34"};
    const char* gruende[] = {"Kleinunternehmer", "Reverse-Charge", "Innergemeinschaftlich", "Ausfuhr",
                             "Anderer"};
    const Mwst_Modus modi[] = {Mwst_Modus::Plus, Mwst_Modus::Inklusive, Mwst_Modus::Minus, Mwst_Modus::Ohne};
    m.form1.Text_MwSt.Text = z.aus(saetze);
    m.einstellungen.Text_MwSt.Text = z.bis(2) == 0 ? "7" : "19";
    m.modus(modi[nummer % 4]);
    zeilen_wuerfeln(m, z, nummer % 10 == 9 ? 1 + z.bis(199) : 1 + z.bis(20));
    m.form1.Check_RABATT.Value = z.bis(1);
    m.form1.Text_Rabatt.Text = std::to_string(z.bis(30)) + "," + std::to_string(z.bis(99));
    m.form1.Check_Versandkosten.Value = z.bis(1);
    m.form1.Text_PreisVersankostenEingabe.Text = z.aus(versand);
    m.form1.Check_VersandMwStEXTRA.Value = z.bis(1);
    m.form1.Check_VersandINKL_MwSt.Value = z.bis(2) == 0 ? 1 : 0;
    f.verkaeufer.Befreiungsgrund = z.aus(gruende);
    f.verkaeufer.Befreiungstext = "Steuerfrei nach § 4 Nr. 21 UStG";
    f.verkaeufer.Skonto_Prozent = z.bis(2) == 0 ? "2,5" : "";
    f.verkaeufer.Skonto_Tage = f.verkaeufer.Skonto_Prozent.empty() ? "" : "10";
    if (z.bis(5) == 0 && f.verkaeufer.Befreiungsgrund == "Kleinunternehmer") {
        f.verkaeufer.USt_IdNr.clear();
    }
    if (z.bis(4) == 0) {
        m.form1.Text_rechnung.Text = "GUTSCHRIFT";
        f.bezug = {z.bis(1) == 0 ? Belegart::Gutschrift : Belegart::Korrektur, "2026-16", "1.11.2026"};
    }
    f.quelle = m.quelle();
    return f;
}

/// Folder of the validation kit; empty where it is not there.
inline std::string PRUEFKIT() {
    const char* const genannt = std::getenv("E_RECHNUNG_PRUEFWERKZEUG");
    const std::string ordner = genannt != nullptr ? genannt : PRUEFWERKZEUG;
    return datei_vorhanden(ordner + "/pruefe") ? ordner : "";
}

/// What a command of it says, its warnings left out; empty for nothing.
inline std::string FATALE_BEFUNDE(const std::string& befehl) {
    std::string befunde;
    FILE* const ausgabe = popen((befehl + " 2>&1").c_str(), "r");
    std::array<char, 4096> puffer{};
    while (std::fgets(puffer.data(), puffer.size(), ausgabe) != nullptr) {
        const std::string zeile = puffer.data();
        befunde += zeile.find(": [warning]") == std::string::npos ? zeile : "";
    }
    const int ende = pclose(ausgabe);
    return ende == 0 || !befunde.empty() ? befunde : "exit " + std::to_string(ende);
}

} // namespace quittika
