#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quittika {

/// A number that tells contents apart, the same on every machine (FNV-1a, 64 bits).
constexpr std::uint64_t PRUEFZAHL(std::string_view bytes) {
    std::uint64_t zahl = 0xcbf29ce484222325U;
    for (const char byte : bytes) {
        zahl = (zahl ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    return zahl;
}

/// The same as part of a file's name: eight signs of 0 to 9 and a to f.
inline std::string PFADMARKE(std::string_view bytes) {
    constexpr std::string_view kZiffern = "0123456789abcdef";
    std::uint64_t zahl = PRUEFZAHL(bytes);
    zahl ^= zahl >> 32U;
    std::string marke(8, '0');
    for (char& zeichen : marke) {
        zeichen = kZiffern[zahl & 15U];
        zahl >>= 4U;
    }
    return marke;
}

} // namespace quittika
