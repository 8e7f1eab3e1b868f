#include "safety/belegauszug.hpp"

#include "invoice/file/dateifelder.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"

namespace quittika {

namespace {

constexpr int kDatum = 2;
constexpr int kKunde = 3;
constexpr int kBetrag = 54;

} // namespace

Belegauszug BELEGAUSZUG(std::string_view bytes) {
    Belegauszug auszug;
    int nummer = 0;
    zeilen_durchgehen(bytes, [&](std::string_view zeile) {
        if (nummer == 0) {
            auszug.lesbar = zeile == kDateikennung;
        }
        switch (nummer) {
        case kDatum:
            auszug.datum = zeile;
            break;
        case kKunde:
            auszug.kunde = zeile;
            break;
        case kBetrag:
            auszug.betrag = zeile;
            break;
        case dateizeile::kNummer:
            auszug.nummer = zeile == kNichtGesetzt ? std::string_view() : zeile;
            break;
        case dateizeile::kGespeichert:
            auszug.gespeichert = beginnt_mit(zeile, kGespeichertAm)
                                     ? std::string(zeile.substr(std::string_view(kGespeichertAm).size()))
                                     : std::string();
            break;
        default:
            break;
        }
        nummer += beginnt_mit(zeile, kListenmarke) ? 0 : 1;
        return auszug.lesbar && nummer <= dateizeile::kGespeichert;
    });
    return auszug;
}

} // namespace quittika
