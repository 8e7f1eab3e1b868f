#include "platform/laufzeitfehler.hpp"
#include "platform/textdatei.hpp"
#include "safety/sicherungsinhalt.hpp"
#include "tests/fuzz/verlangen.hpp"
#include "tests/pruefstand.hpp"
#include "tests/safety/zipbau.hpp"

#include <cstdint>

namespace quittika {
namespace {

/// Whatever is taken stays in its folder and within its size.
void sicherung_pruefen(const std::string& bytes) {
    static const Probenordner ordner;
    try {
        const Sicherungsinhalt inhalt(ordner.schreiben("x.zip", bytes));
        for (const Sicherungsteil& teil : inhalt.teile()) {
            verlangen(teil.gruppe.has_value() || teil.ordner.front() == '/');
            for (const Sicherungsdatei& datei : teil.dateien) {
                const std::filesystem::path pfad = datei.pfad;
                verlangen(pfad.is_relative() && pfad.lexically_normal() == pfad && *pfad.begin() != "..");
                verlangen(datei.pfad.find('\\') == std::string::npos);
                std::uint64_t laenge = 0;
                try {
                    inhalt.lesen(datei, [&](std::string_view stueck) { laenge += stueck.size(); });
                    verlangen(laenge == datei.groesse);
                } catch (const Sicherungsfehler&) {
                    verlangen(laenge <= datei.groesse);
                }
            }
        }
    } catch (const Sicherungsfehler&) {
        // refused
    }
}

/// An archive with a file for each line: kind, claimed size and packing by the first character, then the
/// name.
std::string archiv_aus(std::string_view zeilen) {
    constexpr std::uint32_t kArten[] = {0100644, 0100644, 0040755, 0120777};
    constexpr std::uint32_t kGroessen[] = {0, 0, 3, 0x7FFFFFFF};
    Zipbau bau;
    bau.mit({kInhaltsdatei, "Datensicherung von Quittika 2008\r\nZeit: 2008-03-05T10:20:30\r\n"
                            "Rechnungen 1: /r\r\nBilder 2: /b\r\n"});
    zeilen_teilen(zeilen, [&bau](std::string_view zeile) {
        if (!zeile.empty()) {
            const auto wahl = static_cast<unsigned char>(zeile.front());
            bau.mit({std::string(zeile.substr(1)), "xy", kArten[wahl % 4], kGroessen[wahl / 4 % 4],
                     static_cast<std::uint16_t>(wahl / 16 % 2 * 8)});
        }
        return true;
    });
    return bau.bytes();
}

} // namespace
} // namespace quittika

/// Whatever bytes a backup holds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zeiger, std::size_t anzahl) {
    const std::string_view bytes(reinterpret_cast<const char*>(zeiger), anzahl);
    quittika::sicherung_pruefen(std::string(bytes));
    quittika::sicherung_pruefen(quittika::archiv_aus(bytes));
    return 0;
}
