#include "invoice/file/dateistand.hpp"

#include "platform/datei.hpp"
#include "platform/verzeichnis.hpp"

#include <filesystem>
#include <functional>
#include <system_error>

namespace quittika {

namespace {

constexpr std::hash<std::string_view> kInhalt;

bool dieselbe_datei(const std::string& a, const std::string& b) {
    std::error_code fehler;
    return a == b || std::filesystem::equivalent(a, b, fehler);
}

} // namespace

void Dateistand::merken(const std::string& pfad, std::string_view bytes) {
    ort_ = pfad;
    inhalt_ = kInhalt(bytes);
    vorgemerkt_ = inhalt_;
}

void Dateistand::vormerken(std::string_view bytes) {
    vorgemerkt_ = kInhalt(bytes);
}

void Dateistand::geschrieben(const std::string& pfad) {
    ort_ = pfad;
    inhalt_ = vorgemerkt_;
}

bool Dateistand::VorgemerktesLiegtIn(const std::string& pfad) const {
    try {
        return datei_vorhanden(pfad) && kInhalt(bytes_lesen(pfad)) == vorgemerkt_;
    } catch (const Laufzeitfehler&) {
        return true;
    }
}

bool Dateistand::AnderswoGeaendert(const std::string& pfad) const {
    if (ort_.empty() || !dieselbe_datei(pfad, ort_)) {
        return false;
    }
    try {
        const std::size_t inhalt = kInhalt(bytes_lesen(pfad));
        return inhalt != inhalt_ && inhalt != vorgemerkt_;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace quittika
