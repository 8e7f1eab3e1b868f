#include "invoice/file/exporttext.hpp"
#include "invoice/file/textexport.hpp"
#include "platform/script/script_shell.hpp"
#include "tests/pruefstand.hpp"
#include "tests/stoerung.hpp"

#include <gtest/gtest.h>

#include <cerrno>

namespace quittika {
namespace {

TEST(Textexport, EineSpalteFuelltKuerztUndZaehltZeichen) {
    struct Fall {
        Spaltenart art;
        const char* text;
        std::size_t breite;
        const char* spalte;
    };
    const Fall faelle[] = {
        {Spaltenart::Links, "ab", 5, "ab   "},     {Spaltenart::Rechts, "Größe", 7, "  Größe"},
        {Spaltenart::Mitte, "abc", 6, " abc  "},   {Spaltenart::Mitte, "7", 3, " 7 "},
        {Spaltenart::Zahl, "7", 3, "007"},         {Spaltenart::Zahl, "x", 3, " x "},
        {Spaltenart::Rechts, "Größe", 5, "Größe"}, {Spaltenart::Rechts, "Größen", 5, "Grö.."},
        {Spaltenart::Links, "abcdef", 2, ".."},    {Spaltenart::Mitte, "", 2, "  "},
        {Spaltenart::Zahl, "1234567", 4, "12.."},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(ExportSpalte(f.art, f.text, f.breite), f.spalte) << f.text << " " << f.breite;
    }
}

TEST(Textexport, EinGescheitertesSchreibenLaesstDieAlteDatei) {
    Pruefstand p;
    ScriptShell shell;
    Textexport textexport(p.form1, p.einstellungen, p.summen, p.verzeichnis, p.dialoge, shell);
    const std::string pfad = p.ordner.schreiben("a.txt", "alt");
    p.dialoge.queue(choice::File{pfad});
    p.dialoge.queue(Answer::Yes);
    {
        const Stoerung stoerung("write", 1, ENOSPC);
        textexport.m_Rechnung_txt_export_Click();
    }
    EXPECT_EQ(p.ordner.lesen("a.txt"), "alt");
    EXPECT_EQ(p.form1.StatusBar1[2].Caption(), "FEHLER BEIM SPEICHERN");
    EXPECT_EQ(p.form1.StatusBar1[3].Caption(),
              "Der Datenträger ist voll: bitte Platz schaffen oder auf einem anderen speichern.");
    EXPECT_EQ(p.dialoge.take_boxes().size(), 2U) << "the question and the message, no offer to open";
}

} // namespace
} // namespace quittika
