#include "print/leistungsspalte.hpp"

#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Leistungsspalte, SagtWieVieleZeichenAufDasPapierPassen) {
    struct Fall {
        const char* name;
        bool nummern;
        bool kommentar;
        const char* preis; ///< two millimetres a character, and two to keep off it
        std::size_t passt;
    };
    const Fall faelle[] = {
        {"mit Positionsnummern", true, false, "10,00", (147 - 10 - 2 - 40) / 2},
        {"ohne", false, false, "10,00", (141 - 10 - 2 - 33) / 2},
        {"breiter Preis", true, false, "12345,00", (147 - 16 - 2 - 40) / 2},
        {"Kommentar", true, true, "0,00", (184 - 40) / 2},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        Druckprobe p;
        p.einstellungen.Check_Positionendruck.Value = f.nummern ? 1 : 0;
        const Leistungsspalte spalte(p.form1, p.einstellungen, p.werte, p.schrift);
        for (const std::size_t laenge : {f.passt, f.passt + 1}) {
            std::string text;
            for (std::size_t i = 0; i < laenge; ++i) {
                text += "ß";
            }
            p.form1.Check_K.Value = f.kommentar ? 1 : 0;
            p.zeile("1", text, f.preis);
        }
        EXPECT_EQ(spalte.HINWEIS(0), "");
        EXPECT_EQ(spalte.HINWEIS(1), "Die Beschreibung ist für den Druck zu lang: Von " +
                                         std::to_string(f.passt + 1) + " Zeichen passen " +
                                         std::to_string(f.passt) +
                                         " in die Spalte, der Rest in eine Kommentarzeile.");
    }
}

} // namespace
} // namespace quittika
