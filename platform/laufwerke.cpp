#include "platform/laufwerke.hpp"

#include "platform/text.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <mntent.h>

namespace quittika {

namespace {

constexpr std::array<std::string_view, 3> kMedienordner{"/media", "/run/media", "/mnt"};

bool ist_medium(std::string_view pfad) {
    return std::any_of(kMedienordner.begin(), kMedienordner.end(), [pfad](std::string_view ordner) {
        return pfad == ordner || beginnt_mit(pfad, std::string(ordner) + "/");
    });
}

struct Tabellenende {
    void operator()(std::FILE* offen) const { endmntent(offen); }
};

/// Paths of the mounted media, each once.
std::vector<std::string> medien(const std::string& tabelle) {
    std::vector<std::string> pfade;
    const std::unique_ptr<std::FILE, Tabellenende> offen(setmntent(tabelle.c_str(), "re"));
    if (offen == nullptr) {
        return pfade;
    }
    constexpr std::size_t kLaengsteZeile = 16384;
    std::array<char, kLaengsteZeile> puffer{};
    mntent eintrag{};
    while (getmntent_r(offen.get(), &eintrag, puffer.data(), static_cast<int>(puffer.size())) != nullptr) {
        if (ist_medium(eintrag.mnt_dir)) {
            pfade.emplace_back(eintrag.mnt_dir);
        }
    }
    std::sort(pfade.begin(), pfade.end());
    pfade.erase(std::unique(pfade.begin(), pfade.end()), pfade.end());
    return pfade;
}

} // namespace

std::string HEIMORDNER() {
    const char* gesetzt = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe)
    std::string pfad = gesetzt == nullptr ? "" : gesetzt;
    while (!pfad.empty() && pfad.back() == '/') {
        pfad.pop_back();
    }
    return pfad.empty() || pfad.front() != '/' ? "/" : pfad;
}

std::vector<Laufwerk> LAUFWERKE(const std::string& tabelle) {
    std::vector<Laufwerk> laufwerke{{"/", "Dateisystem"}};
    const std::string eigenes = HEIMORDNER();
    if (eigenes != "/") {
        laufwerke.push_back({eigenes, "Persönlicher Ordner"});
    }
    for (const std::string& pfad : medien(tabelle)) {
        if (pfad != eigenes) {
            laufwerke.push_back({pfad, pfad.substr(pfad.rfind('/') + 1)});
        }
    }
    return laufwerke;
}

} // namespace quittika
