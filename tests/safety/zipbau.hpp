#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quittika {

/// An archive of stored files put together byte by byte, as no honest program writes it.
class Zipbau {
public:
    struct Datei {
        std::string name;
        std::string inhalt;
        std::uint32_t art = 0100644;      ///< file type and rights of the system
        std::uint32_t behauptet = 0;      ///< size that is claimed, unless it is 0
        std::uint16_t packung = 0;        ///< 0 stored, 8 deflated (the content is taken for packed then)
        bool am_platz_der_ersten = false; ///< has no content of its own
    };

    Zipbau& mit(Datei datei) {
        dateien_.push_back(std::move(datei));
        return *this;
    }
    /// Files that the end record promises, other than there are.
    Zipbau& verspricht(std::uint16_t anzahl) {
        versprochen_ = anzahl;
        return *this;
    }

    std::string bytes() const {
        std::string lokal;
        std::string zentral;
        for (const Datei& datei : dateien_) {
            const std::size_t stelle = datei.am_platz_der_ersten ? 0 : lokal.size();
            const Datei& quelle = datei.am_platz_der_ersten ? dateien_.front() : datei;
            const std::string kopf = felder(datei, quelle.inhalt);
            if (!datei.am_platz_der_ersten) {
                lokal += "PK\3\4" + zahl(20, 2) + kopf + zahl(datei.name.size(), 2) + zahl(0, 2) +
                         datei.name + datei.inhalt;
            }
            zentral += "PK\1\2" + zahl(0x0314, 2) + zahl(20, 2) + kopf + zahl(datei.name.size(), 2) +
                       zahl(0, 8) + zahl(std::uint64_t(datei.art) << 16U, 4) + zahl(stelle, 4) + datei.name;
        }
        const std::uint16_t anzahl =
            versprochen_ ? versprochen_ : static_cast<std::uint16_t>(dateien_.size());
        return lokal + zentral + "PK\5\6" + zahl(0, 4) + zahl(anzahl, 2) + zahl(anzahl, 2) +
               zahl(zentral.size(), 4) + zahl(lokal.size(), 4) + zahl(0, 2);
    }

private:
    static std::string zahl(std::uint64_t wert, int laenge) {
        std::string text;
        for (int i = 0; i < laenge; ++i) {
            text += static_cast<char>(wert >> (8 * i));
        }
        return text;
    }

    static std::uint32_t pruefsumme(const std::string& bytes) {
        std::uint32_t summe = ~0U;
        for (const char c : bytes) {
            summe ^= static_cast<unsigned char>(c);
            for (int i = 0; i < 8; ++i) {
                summe = summe & 1U ? summe >> 1U ^ 0xEDB88320U : summe >> 1U;
            }
        }
        return ~summe;
    }

    /// What both heads of a file say: flags (UTF-8), packing, time, checksum, sizes.
    static std::string felder(const Datei& datei, const std::string& inhalt) {
        return zahl(0x0800, 2) + zahl(datei.packung, 2) + zahl(0x38655800, 4) + zahl(pruefsumme(inhalt), 4) +
               zahl(inhalt.size(), 4) + zahl(datei.behauptet ? datei.behauptet : inhalt.size(), 4);
    }

    std::vector<Datei> dateien_;
    std::uint16_t versprochen_ = 0;
};

} // namespace quittika
