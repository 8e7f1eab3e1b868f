#include "platform/zahlen.hpp"

#include "platform/laufzeitfehler.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace quittika {

namespace {

constexpr int kStellen = 15;

bool ziffer(char c) {
    return c >= '0' && c <= '9';
}
bool leer(char c) {
    return c == ' ' || c == '\t';
}

std::string_view ohne_rand(std::string_view text) {
    while (!text.empty() && leer(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && leer(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// Takes a sign off the front, or else off the end. Answers whether the number is negative.
bool vorzeichen_nehmen(std::string_view& text) {
    bool negativ = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negativ = text.front() == '-';
        text.remove_prefix(1);
    } else if (!text.empty() && (text.back() == '-' || text.back() == '+')) {
        negativ = text.back() == '-';
        text.remove_suffix(1);
    }
    text = ohne_rand(text);
    return negativ;
}

/// Length of an exponent at `text`'s front, 0 if none stands there.
std::size_t exponent_laenge(std::string_view text) {
    std::size_t i = 1;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        ++i;
    }
    const std::size_t erste = i;
    while (i < text.size() && ziffer(text[i])) {
        ++i;
    }
    return i > erste ? i : 0;
}

/// Writes `text` into `puffer` as std::from_chars reads it. Nothing for what is no number or too long for it.
template <std::size_t N>
std::optional<std::size_t> umschreiben(std::string_view text, std::array<char, N>& puffer,
                                       const Locale& locale) {
    std::size_t n = 0;
    bool ziffern = false;
    bool komma = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (n + 2 >= N) {
            return std::nullopt;
        }
        if (ziffer(c)) {
            ziffern = true;
            puffer[n++] = c;
        } else if (c == locale.decimal_mark && !komma) {
            komma = true;
            puffer[n++] = '.';
        } else if (c == locale.thousands && ziffern && !komma) {
            continue;
        } else if (ziffern && (c == 'e' || c == 'E' || c == 'd' || c == 'D')) {
            const std::string_view rest = text.substr(i);
            if (exponent_laenge(rest) != rest.size() || n + rest.size() >= N) {
                return std::nullopt;
            }
            puffer[n++] = 'e';
            n = static_cast<std::size_t>(
                std::copy(rest.begin() + 1, rest.end(), puffer.begin() + static_cast<std::ptrdiff_t>(n)) -
                puffer.begin());
            return n;
        } else {
            return std::nullopt;
        }
    }
    return ziffern ? std::optional(n) : std::nullopt;
}

/// Whether a number that no double holds is too large (else it is too small). `zahl` as std::from_chars reads
/// it.
bool zu_gross(std::string_view zahl) {
    const std::size_t e = std::min(zahl.find('e'), zahl.size());
    const std::string_view mantisse = zahl.substr(0, e);
    const auto punkt = static_cast<std::ptrdiff_t>(std::min(mantisse.find('.'), mantisse.size()));
    const auto erste = static_cast<std::ptrdiff_t>(mantisse.find_first_of("123456789"));
    const std::ptrdiff_t stellen = punkt - erste + (erste > punkt ? 1 : 0);
    if (e == zahl.size()) {
        return stellen > 0;
    }
    std::string_view rest = zahl.substr(e + 1);
    const bool negativ = rest.front() == '-';
    rest.remove_prefix(negativ || rest.front() == '+' ? 1 : 0);
    std::ptrdiff_t exponent = 0;
    if (std::from_chars(rest.data(), rest.data() + rest.size(), exponent).ec != std::errc{}) {
        return !negativ;
    }
    return stellen + (negativ ? -exponent : exponent) > 0;
}

/// A text read as a number; `fehler` is the number of the error, 0 for none.
struct Gelesen {
    double wert = 0;
    int fehler = 0;
};

Gelesen zahl_lesen(std::string_view text, const Locale& locale) {
    text = ohne_rand(text);
    const bool negativ = vorzeichen_nehmen(text);
    std::array<char, 512>
        puffer; // NOLINT(cppcoreguidelines-pro-type-member-init): filled as far as it is read
    const auto laenge = umschreiben(text, puffer, locale);
    if (!laenge) {
        return {0, fehler::kFalscherTyp};
    }
    double wert = 0;
    const char* ende = puffer.data() + *laenge;
    const auto ergebnis = std::from_chars(puffer.data(), ende, wert);
    if (ergebnis.ptr != ende) {
        return {0, fehler::kFalscherTyp};
    }
    if (ergebnis.ec == std::errc::result_out_of_range) {
        if (zu_gross(std::string_view(puffer.data(), *laenge))) {
            return {0, fehler::kUeberlauf};
        }
        wert = 0;
    }
    return {negativ ? -wert : wert, 0};
}

/// Digits with at most one decimal mark, as almost all numbers are, and few enough for every double: no
/// value needs to be calculated to know that this is one.
bool schlichte_zahl(std::string_view text, const Locale& locale) {
    constexpr std::ptrdiff_t kImmerDarstellbar = 300;
    const auto ziffern = std::count_if(text.begin(), text.end(), ziffer);
    const auto marken = std::count(text.begin(), text.end(), locale.decimal_mark);
    return ziffern > 0 && ziffern <= kImmerDarstellbar && marken <= 1 &&
           static_cast<std::size_t>(ziffern + marken) == text.size();
}

/// Decimal digits of a value and the place of the decimal point: 0.d1d2d3... x 10^exponent.
struct Dezimal {
    std::array<char, kStellen + 1> ziffern{};
    int anzahl = 0;
    int exponent = 0;
    bool negativ = false;
};

/// The digits of a whole number of at most 15: counts and most amounts, much faster than the general way.
Dezimal ganze_zerlegt(double wert) {
    Dezimal d;
    d.negativ = wert < 0;
    const auto ende = std::to_chars(d.ziffern.data(), d.ziffern.data() + kStellen,
                                    static_cast<std::int64_t>(std::fabs(wert)))
                          .ptr;
    d.anzahl = static_cast<int>(ende - d.ziffern.data());
    d.exponent = d.anzahl;
    while (d.anzahl > 0 && d.ziffern[static_cast<std::size_t>(d.anzahl - 1)] == '0') {
        --d.anzahl;
    }
    if (d.anzahl == 0) {
        d.exponent = 0;
    }
    return d;
}

Dezimal zerlegt(double wert) {
    if (!std::isfinite(wert)) {
        throw Laufzeitfehler(fehler::kUeberlauf);
    }
    if (std::fabs(wert) < 1e15 && wert == std::trunc(wert)) {
        return ganze_zerlegt(wert);
    }
    Dezimal d;
    d.negativ = std::signbit(wert);
    std::array<char, 40> puffer{};
    const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), std::fabs(wert),
                                    std::chars_format::scientific, kStellen - 1)
                          .ptr;
    const char* e = std::find(puffer.data(), ende, 'e');
    for (const char* p = puffer.data(); p != e; ++p) {
        if (*p != '.') {
            d.ziffern[static_cast<std::size_t>(d.anzahl++)] = *p;
        }
    }
    const char* zahl = e + (e[1] == '+' ? 2 : 1);
    std::from_chars(zahl, ende, d.exponent);
    ++d.exponent;
    while (d.anzahl > 0 && d.ziffern[static_cast<std::size_t>(d.anzahl - 1)] == '0') {
        --d.anzahl;
    }
    if (d.anzahl == 0) {
        d.exponent = 0;
        d.negativ = false;
    }
    return d;
}

/// Keeps `stellen` decimals, rounding half away from zero.
void runden(Dezimal& d, int stellen) {
    const int behalten = d.exponent + stellen;
    if (behalten >= d.anzahl) {
        return;
    }
    const bool auf = behalten >= 0 && d.ziffern[static_cast<std::size_t>(behalten)] >= '5';
    d.anzahl = std::max(behalten, 0);
    if (auf) {
        int i = d.anzahl - 1;
        while (i >= 0 && d.ziffern[static_cast<std::size_t>(i)] == '9') {
            d.ziffern[static_cast<std::size_t>(i--)] = '0';
        }
        if (i >= 0) {
            ++d.ziffern[static_cast<std::size_t>(i)];
        } else {
            std::copy_backward(d.ziffern.begin(), d.ziffern.begin() + d.anzahl,
                               d.ziffern.begin() + d.anzahl + 1);
            d.ziffern[0] = '1';
            ++d.anzahl;
            ++d.exponent;
        }
    }
    if (std::all_of(d.ziffern.begin(), d.ziffern.begin() + d.anzahl, [](char c) { return c == '0'; })) {
        d.negativ = false;
    }
}

/// Digit at the place 10^stelle; places that hold none are zeros.
char ziffer_an(const Dezimal& d, int stelle) {
    const int i = d.exponent - 1 - stelle;
    return i >= 0 && i < d.anzahl ? d.ziffern[static_cast<std::size_t>(i)] : '0';
}

void fest_anhaengen(std::string& text, const Dezimal& d, int vorn, int hinten, char marke) {
    for (int stelle = std::max(vorn, d.exponent) - 1; stelle >= 0; --stelle) {
        text += ziffer_an(d, stelle);
    }
    if (hinten > 0) {
        text += marke;
        for (int stelle = -1; stelle >= -hinten; --stelle) {
            text += ziffer_an(d, stelle);
        }
    }
}

template <class Ganz> Ganz ganzzahl(double wert) {
    const double gerundet = std::nearbyint(wert);
    if (!(gerundet >= std::numeric_limits<Ganz>::min() && gerundet <= std::numeric_limits<Ganz>::max())) {
        throw Laufzeitfehler(fehler::kUeberlauf);
    }
    return static_cast<Ganz>(gerundet);
}

bool gleich_ohne_gross(std::string_view a, std::string_view b) {
    constexpr auto klein = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return klein(x) == klein(y); });
}

} // namespace

const Locale& deutsch() {
    static constexpr Locale locale;
    return locale;
}

std::optional<double> double_versuch(std::string_view text, const Locale& locale) {
    const Gelesen g = zahl_lesen(text, locale);
    return g.fehler == 0 ? std::optional(g.wert) : std::nullopt;
}

bool ist_numerisch(std::string_view text, const Locale& locale) {
    return schlichte_zahl(text, locale) || double_versuch(text, locale).has_value();
}

double nach_double(std::string_view text, const Locale& locale) {
    const Gelesen g = zahl_lesen(text, locale);
    if (g.fehler != 0) {
        throw Laufzeitfehler(g.fehler);
    }
    return g.wert;
}

std::int16_t nach_int16(double wert) {
    return ganzzahl<std::int16_t>(wert);
}
std::int32_t nach_int32(double wert) {
    return ganzzahl<std::int32_t>(wert);
}
std::int16_t nach_int16(std::string_view text, const Locale& locale) {
    return nach_int16(nach_double(text, locale));
}
std::int32_t nach_int32(std::string_view text, const Locale& locale) {
    return nach_int32(nach_double(text, locale));
}

std::string zahl_text(double wert, const Locale& locale) {
    const Dezimal d = zerlegt(wert);
    const int nachkomma = std::max(d.anzahl - d.exponent, 0);
    std::string text = d.negativ ? "-" : "";
    if (d.exponent <= kStellen && nachkomma <= kStellen) {
        fest_anhaengen(text, d, 1, nachkomma, locale.decimal_mark);
        return text;
    }
    text += d.ziffern[0];
    if (d.anzahl > 1) {
        text += locale.decimal_mark;
        text.append(d.ziffern.data() + 1, static_cast<std::size_t>(d.anzahl - 1));
    }
    const int exponent = d.exponent - 1;
    text += exponent < 0 ? "E-" : "E+";
    text += std::abs(exponent) < 10 ? "0" : "";
    return text + std::to_string(std::abs(exponent));
}

double dezimal_bereinigt(double wert) {
    if (!std::isfinite(wert)) {
        throw Laufzeitfehler(fehler::kUeberlauf);
    }
    std::array<char, 40> puffer{};
    const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                    std::chars_format::scientific, kStellen - 1)
                          .ptr;
    double bereinigt = 0;
    if (std::from_chars(puffer.data(), ende, bereinigt).ec != std::errc{} && std::fabs(wert) > 1) {
        throw Laufzeitfehler(fehler::kUeberlauf); // the largest doubles round up to a text beyond them
    }
    return bereinigt;
}

std::string format_zahl(double wert, std::string_view muster, const Locale& locale) {
    std::string text;
    if (!muster.empty() && muster.front() == '-') {
        text += '-';
        muster.remove_prefix(1);
    }
    const std::size_t punkt = muster.find('.');
    const int vorn = static_cast<int>(std::min(punkt, muster.size()));
    const int hinten = punkt == std::string_view::npos ? 0 : static_cast<int>(muster.size() - punkt - 1);
    Dezimal d = zerlegt(wert);
    runden(d, hinten);
    if (d.negativ) {
        text += '-';
    }
    fest_anhaengen(text, d, vorn, hinten, locale.decimal_mark);
    return text;
}

std::optional<bool> wahrheitswert(std::string_view text, const Locale& locale) {
    text = ohne_rand(text);
    if (gleich_ohne_gross(text, "true") || gleich_ohne_gross(text, locale.true_word)) {
        return true;
    }
    if (gleich_ohne_gross(text, "false") || gleich_ohne_gross(text, locale.false_word)) {
        return false;
    }
    const auto zahl = double_versuch(text, locale);
    return zahl ? std::optional(*zahl != 0) : std::nullopt;
}

std::string wahrheit_text(bool wert) {
    return wert ? "True" : "False";
}

} // namespace quittika
