#include "analyzer/betragssumme.hpp"

#include "invoice/zahleneingabe.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr std::string_view kZiffern = "0123456789";
constexpr std::int64_t kBasis = 10;
constexpr std::size_t kNachkomma = 2;

/// "-12,5": a sign if need be, digits, and digits behind a comma if need be.
bool ist_schlicht(std::string_view text) {
    if (!text.empty() && text.front() == '-') {
        text.remove_prefix(1);
    }
    const std::size_t ganze = std::min(text.find_first_not_of(kZiffern), text.size());
    if (ganze == 0 || ganze == text.size()) {
        return ganze != 0;
    }
    return text[ganze] == ',' && text.find_first_not_of(kZiffern, ganze + 1) == std::string_view::npos;
}

/// Digits from the lowest on, each from 0 to 9. Returns what is left over, negative for a negative number.
std::int64_t uebertragen(std::vector<std::int64_t>& stellen) {
    std::int64_t uebertrag = 0;
    for (std::int64_t& stelle : stellen) {
        stelle += uebertrag;
        uebertrag = stelle / kBasis - (stelle % kBasis < 0 ? 1 : 0);
        stelle -= uebertrag * kBasis;
    }
    for (; uebertrag > 0; uebertrag /= kBasis) {
        stellen.push_back(uebertrag % kBasis);
    }
    return uebertrag;
}

} // namespace

std::optional<std::string> BETRAG_LESEN(std::string_view text) {
    constexpr std::size_t kUeblich = 40; // characters; whatever is longer may be beyond all numbers
    if (text.size() <= kUeblich && ist_schlicht(text)) {
        return std::string(text);
    }
    auto zahl = ZAHL_LESEN(text);
    if (!zahl) {
        return std::nullopt;
    }
    return ist_schlicht(zahl->text) ? std::move(zahl->text) : format_zahl(zahl->wert, "0.000000000000000");
}

void Betragssumme::dazu(std::string_view betrag) {
    const auto gelesen = BETRAG_LESEN(betrag);
    if (!gelesen) {
        throw Laufzeitfehler(fehler::kFalscherTyp);
    }
    std::string_view ganze = *gelesen;
    const int zeichen = ganze.front() == '-' ? -1 : 1;
    ganze.remove_prefix(zeichen < 0 ? 1 : 0);
    const std::size_t komma = std::min(ganze.find(','), ganze.size());
    const std::string_view bruch = ganze.substr(std::min(komma + 1, ganze.size()));
    ganze = ganze.substr(0, komma);
    ganz_.resize(std::max(ganz_.size(), ganze.size()));
    bruch_.resize(std::max(bruch_.size(), bruch.size()));
    for (std::size_t i = 0; i < ganze.size(); ++i) {
        ganz_[ganze.size() - 1 - i] += zeichen * (ganze[i] - '0');
    }
    for (std::size_t i = 0; i < bruch.size(); ++i) {
        bruch_[i] += zeichen * (bruch[i] - '0');
    }
}

std::string Betragssumme::text() const {
    std::vector<std::int64_t> stellen(bruch_.rbegin(), bruch_.rend());
    std::size_t hinten = stellen.size();
    if (hinten < kNachkomma) {
        stellen.insert(stellen.begin(), kNachkomma - hinten, 0);
        hinten = kNachkomma;
    }
    stellen.insert(stellen.end(), ganz_.begin(), ganz_.end());
    std::vector<std::int64_t> betrag = stellen;
    const bool negativ = uebertragen(betrag) < 0;
    if (negativ) {
        std::transform(stellen.begin(), stellen.end(), stellen.begin(), std::negate<>());
        betrag = std::move(stellen);
        uebertragen(betrag);
    }
    const std::size_t weg = hinten - kNachkomma;
    if (weg > 0 && betrag[weg - 1] >= kBasis / 2) {
        betrag.push_back(0);
        ++betrag[weg];
        uebertragen(betrag);
    }
    betrag.erase(betrag.begin(), betrag.begin() + static_cast<std::ptrdiff_t>(weg));
    while (betrag.size() > kNachkomma + 1 && betrag.back() == 0) {
        betrag.pop_back();
    }
    betrag.resize(std::max(betrag.size(), kNachkomma + 1));
    const bool null = std::all_of(betrag.begin(), betrag.end(), [](std::int64_t z) { return z == 0; });
    std::string text(negativ && !null ? "-" : "");
    for (std::size_t i = betrag.size(); i-- > 0;) {
        text += static_cast<char>('0' + betrag[i]);
        if (i == kNachkomma) {
            text += deutsch().decimal_mark;
        }
    }
    return text;
}

} // namespace quittika
