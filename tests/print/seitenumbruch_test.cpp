#include "print/seitenumbruch.hpp"

#include "platform/zahlen.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Seitenumbruch, GroessenNachKopfBemerkungenUndLogo) {
    const struct {
        bool kopf;
        bool bemerkungen;
        bool logo;
        Seitengroesse groesse;
    } faelle[] = {
        {true, true, true, {12, 9}},    {true, true, false, {12, 9}},    {true, false, true, {16, 9}},
        {true, false, false, {16, 9}},  {false, true, true, {12, 27}},   {false, true, false, {12, 37}},
        {false, false, true, {16, 27}}, {false, false, false, {16, 40}},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(ZEILENPROSEITE(f.kopf, f.bemerkungen, f.logo), f.groesse)
            << f.kopf << f.bemerkungen << f.logo;
    }
}

/// Kinds of rows from a picture of them: a number stands for that many positions, the rest for itself.
std::vector<std::string> arten(std::initializer_list<const char*> bild) {
    std::vector<std::string> alle;
    for (const std::string teil : bild) {
        const auto anzahl = double_versuch(teil);
        alle.insert(alle.end(), anzahl ? static_cast<std::size_t>(*anzahl) : 1, anzahl ? "-" : teil);
    }
    return alle;
}

TEST(Seitenumbruch, AbschnitteEndenMitIhrerGroesseOderEinerUmbruchzeile) {
    const struct {
        const char* name;
        std::vector<std::string> arten;
        Seitengroesse groesse;
        std::vector<Zeilenbereich> seiten;
    } faelle[] = {
        {"nichts", {}, {16, 27}, {{0, -1}}},
        {"eine", arten({"1"}), {16, 27}, {{0, 0}}},
        {"genau eine Seite", arten({"16", "K"}), {16, 27}, {{0, 16}}},
        {"eine mehr", arten({"18"}), {16, 27}, {{0, 16}, {17, 17}}},
        {"genau zwei Seiten", arten({"45"}), {16, 27}, {{0, 16}, {17, 44}}},
        {"drei", arten({"46"}), {16, 27}, {{0, 16}, {17, 44}, {45, 45}}},
        {"kurze Folgeseiten", arten({"28"}), {16, 9}, {{0, 16}, {17, 26}, {27, 27}}},
        {"Umbruch", arten({"2", "T", "30"}), {16, 27}, {{0, 2}, {3, 30}, {31, 32}}},
        {"zwei Umbrüche", arten({"2", "T", "1", "T", "1"}), {16, 27}, {{0, 2}, {3, 4}, {5, 5}}},
        {"hintereinander", arten({"2", "T", "T", "T", "1"}), {16, 27}, {{0, 4}, {5, 5}}},
        {"am Anfang", arten({"T", "T", "17"}), {16, 27}, {{0, 18}}},
        {"am Ende", arten({"2", "T", "T"}), {16, 27}, {{0, 3}}},
        {"nur Umbrüche", arten({"T", "T"}), {16, 27}, {{0, 1}}},
        {"letzte Zeile der Seite", arten({"16", "T", "28"}), {16, 27}, {{0, 16}, {17, 44}}},
        {"hinter voller Seite", arten({"17", "T", "28"}), {16, 27}, {{0, 17}, {18, 45}}},
        {"hinter voller Seite am Ende", arten({"17", "T"}), {16, 27}, {{0, 17}}},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(Seitenumbruch(f.arten, f.groesse), f.seiten) << f.name;
    }
}

} // namespace
} // namespace quittika
