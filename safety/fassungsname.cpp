#include "safety/fassungsname.hpp"

#include "platform/zahlen.hpp"

#include <charconv>
#include <cstdint>

namespace quittika {

namespace {

constexpr std::size_t kNeueste = 50;
constexpr std::int64_t kTage = 90;
constexpr std::int64_t kSekundenAmTag = 24 * 3600;
constexpr std::size_t kTagende = 10;  ///< characters of "2026-11-23"
constexpr std::size_t kZeitende = 19; ///< characters of "2026-11-23 14-32-53"
constexpr std::size_t kMarkenlaenge = 8;

std::string stellen(int zahl, int breite) {
    return format_zahl(zahl, std::string(static_cast<std::size_t>(breite), '0'));
}

std::optional<int> zahl(std::string_view text) {
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    return fehler == std::errc() && ende == text.data() + text.size() && wert >= 0 ? std::optional(wert)
                                                                                   : std::nullopt;
}

} // namespace

std::string FASSUNGSNAME(const Fassungsname& teile) {
    const Zeitpunkt& z = teile.zeit;
    return stellen(z.jahr, 4) + '-' + stellen(z.monat, 2) + '-' + stellen(z.tag, 2) + ' ' +
           stellen(z.stunde, 2) + '-' + stellen(z.minute, 2) + '-' + stellen(z.sekunde, 2) + '-' +
           stellen(teile.zaehler, 3) + ' ' + teile.marke + teile.endung;
}

std::optional<Fassungsname> FASSUNGSNAME_LESEN(std::string_view name) {
    const std::size_t luecke = name.find(' ', kZeitende);
    if (luecke == std::string_view::npos || name.size() < luecke + 1 + kMarkenlaenge || name[10] != ' ' ||
        name[kZeitende] != '-') {
        return std::nullopt;
    }
    std::string iso(name.substr(0, kZeitende));
    iso[10] = 'T';
    iso[13] = ':';
    iso[16] = ':';
    const auto zeit = iso_lesen(iso);
    const auto zaehler = zahl(name.substr(kZeitende + 1, luecke - kZeitende - 1));
    if (!zeit || !zaehler) {
        return std::nullopt;
    }
    return Fassungsname{*zeit, *zaehler, std::string(name.substr(luecke + 1, kMarkenlaenge)),
                        std::string(name.substr(luecke + 1 + kMarkenlaenge))};
}

std::vector<std::string> ENTBEHRLICH(const std::vector<std::string>& namen, const Zeitpunkt& jetzt) {
    std::vector<std::string> entbehrlich;
    const std::int64_t heute = sekunden_aus(jetzt) / kSekundenAmTag;
    const auto tag_von = [](std::string_view name) { return name.substr(0, kTagende); };
    for (std::size_t i = 0; i + kNeueste < namen.size(); ++i) {
        const bool letzte_des_tages = tag_von(namen[i]) != tag_von(namen[i + 1]);
        const auto teile = FASSUNGSNAME_LESEN(namen[i]);
        const std::int64_t alter = teile ? heute - sekunden_aus(teile->zeit) / kSekundenAmTag : 0;
        if (teile && (!letzte_des_tages || alter < 0 || alter >= kTage)) {
            entbehrlich.push_back(namen[i]);
        }
    }
    return entbehrlich;
}

} // namespace quittika
