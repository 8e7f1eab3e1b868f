#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// An exact decimal number with `Stellen` decimals, as an integer of its last decimal.
template <int Stellen> struct Festkomma {
    static constexpr int kStellen = Stellen;
    std::int64_t wert = 0;
    bool operator==(const Festkomma&) const = default;
    std::strong_ordering operator<=>(const Festkomma& b) const { return wert <=> b.wert; }
    Festkomma operator-() const { return {-wert}; }
    Festkomma& operator+=(Festkomma b) {
        wert += b.wert;
        return *this;
    }
    friend Festkomma operator+(Festkomma a, Festkomma b) { return {a.wert + b.wert}; }
    friend Festkomma operator-(Festkomma a, Festkomma b) { return {a.wert - b.wert}; }
};

using Cent = Festkomma<2>;    ///< an amount of an invoice
using Menge = Festkomma<4>;   ///< a quantity
using Prozent = Festkomma<4>; ///< a rate in per cent
using Preis = Festkomma<6>;   ///< a unit price, or an amount that is not rounded to cents yet

inline constexpr std::int64_t kHundertProzent = 1'000'000; ///< 100 % as `Prozent::wert`
inline constexpr int kDezimalziffern = 15;                 ///< digits that a number may have as text

/// The number that a text of the program means, as an integer of decimal `stellen`: the comma is the decimal
/// mark, points in front of it part thousands, a sign stands before or behind. Nothing for every other text,
/// for more decimals than that (zeros do not count) and for more than 15 digits.
std::optional<std::int64_t> dezimal_lesen(std::string_view text, int stellen);

template <class Zahl> std::optional<Zahl> festkomma_lesen(std::string_view text) {
    const std::optional<std::int64_t> wert = dezimal_lesen(text, Zahl::kStellen);
    return wert ? std::optional<Zahl>(Zahl{*wert}) : std::nullopt;
}

/// The number as text with at least `mindestens` decimals; zeros behind those are left out.
std::string dezimal_text(std::int64_t wert, int stellen, int mindestens, char komma);

/// With a point, as formats of data want it: "12.50" of `Cent`, "1.5" of the others.
template <int N> std::string datentext(Festkomma<N> zahl) {
    return dezimal_text(zahl.wert, N, N == 2 ? 2 : 0, '.');
}
/// With a comma, as the user reads it: "12,50".
template <int N> std::string lesetext(Festkomma<N> zahl) {
    return dezimal_text(zahl.wert, N, N == 2 ? 2 : 0, ',');
}

/// a * b / teiler, rounded half away from zero. Throws `Laufzeitfehler` 11 for a divisor of 0, 6 where the
/// result has more than 17 digits.
std::int64_t mal_durch(std::int64_t a, std::int64_t b, std::int64_t teiler);

} // namespace quittika
