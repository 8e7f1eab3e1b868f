#include "platform/suchtext.hpp"

namespace quittika {

namespace {

constexpr unsigned char kLatein = 0xC3; ///< first byte of the accented letters

/// A letter behind `kLatein`, behind what stands in `ziel`.
void umlaut_anfuegen(std::string& ziel, char zeichen) {
    switch (static_cast<unsigned char>(zeichen)) {
    case 0x84:
    case 0xA4:
        ziel += "AE";
        break;
    case 0x96:
    case 0xB6:
        ziel += "OE";
        break;
    case 0x9C:
    case 0xBC:
        ziel += "UE";
        break;
    case 0x9F:
        ziel += "SS";
        break;
    default: {
        constexpr unsigned char kKleine = 0xA0;
        constexpr unsigned char kGeteilt = 0xB7;
        constexpr unsigned char kY = 0xBF;
        const auto byte = static_cast<unsigned char>(zeichen);
        const bool klein = byte >= kKleine && byte < kY && byte != kGeteilt;
        ziel += static_cast<char>(kLatein);
        ziel += static_cast<char>(klein ? byte - 0x20 : byte);
    }
    }
}

} // namespace

void suchtext_anfuegen(std::string& ziel, std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char zeichen = text[i];
        if (static_cast<unsigned char>(zeichen) == kLatein && i + 1 < text.size()) {
            umlaut_anfuegen(ziel, text[++i]);
        } else {
            ziel += zeichen >= 'a' && zeichen <= 'z' ? static_cast<char>(zeichen - 'a' + 'A') : zeichen;
        }
    }
}

std::string SUCHTEXT(std::string_view text) {
    std::string gefaltet;
    suchtext_anfuegen(gefaltet, text);
    return gefaltet;
}

} // namespace quittika
