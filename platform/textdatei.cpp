#include "platform/textdatei.hpp"

#include "platform/datei.hpp"
#include "platform/text.hpp"

namespace quittika {

void zeilen_teilen(std::string_view text, const std::function<bool(std::string_view zeile)>& weiter) {
    while (!text.empty()) {
        const std::size_t ende = text.find('\n');
        std::string_view zeile = text.substr(0, ende);
        text.remove_prefix(ende == std::string_view::npos ? text.size() : ende + 1);
        if (ende != std::string_view::npos && !zeile.empty() && zeile.back() == '\r') {
            zeile.remove_suffix(1);
        }
        if (!weiter(zeile)) {
            return;
        }
    }
}

void zeilen_durchgehen(std::string_view bytes, const std::function<bool(std::string_view zeile)>& weiter) {
    std::string puffer;
    zeilen_teilen(bytes, [&](std::string_view zeile) { return weiter(aus_ansi(zeile, puffer)); });
}

std::vector<std::string> zeilen_lesen(const std::string& pfad, std::size_t hoechstens) {
    std::vector<std::string> zeilen;
    zeilen_durchgehen(bytes_lesen(pfad), [&](std::string_view zeile) {
        if (zeilen.size() == hoechstens) {
            return false;
        }
        zeilen.emplace_back(zeile);
        return true;
    });
    return zeilen;
}

void Textpuffer::zeile(std::string_view text) {
    ersetzt_ += ansi_anhaengen(bytes_, text);
    bytes_ += "\r\n";
}

std::size_t zeilen_ersetzen(const std::string& pfad, const std::vector<std::string>& zeilen) {
    Textpuffer puffer;
    for (const std::string& zeile : zeilen) {
        puffer.zeile(zeile);
    }
    datei_ersetzen(pfad, puffer.bytes());
    return puffer.ersetzt();
}

std::string DATEI_ERSTE_ZEILE(const std::string& pfad) {
    constexpr const char* kFehlt = "FEHLER";
    try {
        const std::vector<std::string> zeilen = zeilen_lesen(pfad, 1);
        return zeilen.empty() ? kFehlt : zeilen.front();
    } catch (const Laufzeitfehler&) {
        return kFehlt;
    }
}

void DATEI_SCHREIBEN(const std::string& pfad, const std::string& text) {
    zeilen_ersetzen(pfad, {text});
}

Dateiergebnis ZEILE_ANHAENGEN(const std::string& pfad, const std::string& zeile) {
    try {
        const Ansi ansi = nach_ansi(zeile);
        datei_anhaengen(pfad, ansi.bytes + "\r\n");
        return {true, 0, ansi.ersetzt};
    } catch (const Laufzeitfehler& f) {
        return {false, f.nummer(), 0};
    }
}

std::string_view FELD_AUS_ZEILE(std::string_view zeile, std::string_view trenner, int index) {
    constexpr const char* kFehlt = "ERROR";
    if (zeile.empty() || trenner.empty() || index < 0) {
        return kFehlt;
    }
    for (int i = 0; i < index; ++i) {
        const std::size_t ende = zeile.find(trenner);
        if (ende == std::string_view::npos) {
            return kFehlt;
        }
        zeile.remove_prefix(ende + trenner.size());
    }
    return zeile.substr(0, zeile.find(trenner));
}

} // namespace quittika
