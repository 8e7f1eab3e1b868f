#include "safety/fassungsvergleich.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace quittika {

namespace {

using Art = Vergleichszeile::Art;
using Zeilen = std::vector<Vergleichszeile>;

/// Rows beyond that are not matched one by one: the table of the comparison would grow with the square.
constexpr std::size_t kHoechstvergleich = 3000;

Zeilen zeilen_von(const Form1& form1) {
    Zeilen zeilen;
    for (int i = 0; i < form1.List_Gesamtp.ListCount(); ++i) {
        zeilen.push_back({Art::Gleich, form1.List_Menge.List(i), form1.List_Leistung.List(i),
                          form1.List_Preis.List(i), form1.List_Gesamtp.List(i)});
    }
    return zeilen;
}

/// Rows at the beginning, or at the end, that are the same in both: the table need not hold them.
std::size_t gleicher_anfang(const Zeilen& a, const Zeilen& b) {
    std::size_t n = 0;
    while (n < std::min(a.size(), b.size()) && a[n] == b[n]) {
        ++n;
    }
    return n;
}

std::size_t gleiches_ende(const Zeilen& a, const Zeilen& b, std::size_t anfang) {
    std::size_t n = 0;
    while (n + anfang < std::min(a.size(), b.size()) && a[a.size() - 1 - n] == b[b.size() - 1 - n]) {
        ++n;
    }
    return n;
}

void anfuegen(Zeilen& ziel, Vergleichszeile zeile, Art art) {
    zeile.art = art;
    ziel.push_back(std::move(zeile));
}

/// The longest common sequence of rows stays, the others are told as gone or new.
void mitte_vergleichen(Zeilen& ziel, const Zeilen& frueher, const Zeilen& jetzt) {
    const std::size_t n = frueher.size();
    const std::size_t m = jetzt.size();
    const bool einzeln = n <= kHoechstvergleich && m <= kHoechstvergleich;
    std::vector<std::uint16_t> laenge(einzeln ? (n + 1) * (m + 1) : 0);
    const auto platz = [m](std::size_t i, std::size_t j) { return i * (m + 1) + j; };
    for (std::size_t i = n; einzeln && i-- > 0;) {
        for (std::size_t j = m; j-- > 0;) {
            laenge[platz(i, j)] = frueher[i] == jetzt[j]
                                      ? static_cast<std::uint16_t>(laenge[platz(i + 1, j + 1)] + 1)
                                      : std::max(laenge[platz(i + 1, j)], laenge[platz(i, j + 1)]);
        }
    }
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < n || j < m) {
        if (i < n && j < m && einzeln && frueher[i] == jetzt[j]) {
            anfuegen(ziel, frueher[i++], Art::Gleich);
            ++j;
        } else if (i < n && (j == m || !einzeln || laenge[platz(i + 1, j)] >= laenge[platz(i, j + 1)])) {
            anfuegen(ziel, frueher[i++], Art::NurFrueher);
        } else {
            anfuegen(ziel, jetzt[j++], Art::NurJetzt);
        }
    }
}

void summe_vergleichen(Zeilen& ziel, const std::string& name, const TextBox& frueher, const TextBox& jetzt) {
    const bool gleich = frueher.Text() == jetzt.Text();
    anfuegen(ziel, {Art::Gleich, "", name, "", frueher.Text()}, gleich ? Art::Gleich : Art::NurFrueher);
    if (!gleich) {
        anfuegen(ziel, {Art::Gleich, "", name, "", jetzt.Text()}, Art::NurJetzt);
    }
}

} // namespace

std::vector<Vergleichszeile> FASSUNGEN_VERGLEICHEN(const Form1& frueher, const Form1& jetzt) {
    const Zeilen a = zeilen_von(frueher);
    const Zeilen b = zeilen_von(jetzt);
    const std::size_t anfang = gleicher_anfang(a, b);
    const std::size_t ende = gleiches_ende(a, b, anfang);
    const auto stelle = [](const Zeilen& zeilen, std::size_t n) {
        return zeilen.begin() + static_cast<std::ptrdiff_t>(n);
    };
    Zeilen ziel(a.begin(), stelle(a, anfang));
    mitte_vergleichen(ziel, {stelle(a, anfang), stelle(a, a.size() - ende)},
                      {stelle(b, anfang), stelle(b, b.size() - ende)});
    ziel.insert(ziel.end(), stelle(a, a.size() - ende), a.end());
    summe_vergleichen(ziel, "Summe", frueher.Text_summe, jetzt.Text_summe);
    if (frueher.Check_RABATT.ticked() || jetzt.Check_RABATT.ticked()) {
        summe_vergleichen(ziel, "Rabatt", frueher.Text_summeRabatt, jetzt.Text_summeRabatt);
    }
    if (frueher.Check_mwst.ticked() || jetzt.Check_mwst.ticked()) {
        summe_vergleichen(ziel, "Umsatzsteuer", frueher.Text_summemwst, jetzt.Text_summemwst);
    }
    summe_vergleichen(ziel, "Gesamtbetrag", frueher.Text_gesamtbetrag, jetzt.Text_gesamtbetrag);
    return ziel;
}

} // namespace quittika
