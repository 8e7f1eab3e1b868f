#include "safety/entwurf.hpp"

#include "platform/datei.hpp"
#include "platform/datum.hpp"
#include "safety/fassungsablage.hpp"

#include <functional>
#include <utility>

namespace quittika {

namespace {

constexpr int kPlaetze = 9;         ///< programs that have a draft at the same time
constexpr int kLaengstesWarten = 8; ///< ticks of the timer
constexpr std::size_t kHoechstbytes = 50U << 20U;

} // namespace

Entwurf::Entwurf(Form1& form1, Rechnungszustand& zustand, Rechnungsschreiber& schreiber,
                 const Rechnungsnummern& nummern, const Programmverzeichnis& verzeichnis, const Clock& uhr)
    : form1_(form1),
      zustand_(zustand),
      schreiber_(schreiber),
      nummern_(nummern),
      verzeichnis_(verzeichnis),
      uhr_(uhr) {
    form1_.Timer_entwurf.Tick = [this] { Timer_entwurf_Timer(); };
    form1_.Deactivate = [this] { Sichern(); };
}

std::string Entwurf::Abbild() const {
    return schreiber_.Abbild(datum_zeit_text(uhr_.now()), nummern_.IstVorlaeufig());
}

std::size_t Entwurf::Stand() const {
    return std::hash<std::string>{}(schreiber_.Abbild({}, nummern_.IstVorlaeufig()));
}

void Entwurf::Timer_entwurf_Timer() {
    if (!zustand_.geaendert()) {
        wartet_ = 0;
        return;
    }
    const std::size_t stand = Stand();
    const bool ruht = std::exchange(gesehen_, stand) == stand;
    if (liegt_ && stand == auf_platte_) {
        wartet_ = 0;
    } else if (ruht || ++wartet_ >= kLaengstesWarten) {
        Schreiben(stand);
    }
}

void Entwurf::Sichern() {
    if (!zustand_.geaendert()) {
        return;
    }
    const std::size_t stand = Stand();
    if (!liegt_ || stand != auf_platte_) {
        Schreiben(stand);
    }
}

void Entwurf::Schreiben(std::size_t stand) {
    wartet_ = 0;
    try {
        if (PlatzNehmen()) {
            datei_ersetzen(pfad_, Abbild());
            liegt_ = true;
            auf_platte_ = stand;
        }
    } catch (const Laufzeitfehler&) {
        // The next tick tries it again; the user is typing and can do nothing about it.
    }
}

std::string Entwurf::pfad(int nummer) const {
    return SICHERUNGSORDNER(verzeichnis_) + "/entwurf" + (nummer == 1 ? "" : "-" + std::to_string(nummer)) +
           ".qk8";
}

std::optional<Dateisperre> Entwurf::Sperre(const std::string& entwurf) {
    const std::size_t name = entwurf.rfind('/') + 1;
    return Dateisperre::NEHMEN(entwurf.substr(0, name) + "." + entwurf.substr(name) + ".sperre");
}

bool Entwurf::PlatzNehmen() {
    if (platz_) {
        return true;
    }
    ORDNER_ANLEGEN(SICHERUNGSORDNER(verzeichnis_));
    for (int nummer = 1; nummer <= kPlaetze; ++nummer) {
        pfad_ = pfad(nummer);
        if (datei_vorhanden(pfad_)) {
            continue; // another program's, or one that nobody was asked about yet
        }
        platz_ = Sperre(pfad_);
        if (platz_ && !datei_vorhanden(pfad_)) {
            return true;
        }
        platz_.reset();
    }
    return false;
}

void Entwurf::Verwerfen() {
    wartet_ = 0;
    if (!std::exchange(liegt_, false)) {
        return;
    }
    try {
        DATEI_LOESCHEN(pfad_);
    } catch (const Laufzeitfehler&) {
        // It will be offered at the next start: rather once too often.
    }
}

std::optional<Entwurfsfund> Entwurf::Finden() const {
    for (int nummer = 1; nummer <= kPlaetze; ++nummer) {
        const std::string ort = pfad(nummer);
        try {
            if (!datei_vorhanden(ort)) {
                continue;
            }
            if (auto sperre = Sperre(ort)) {
                return Entwurfsfund{std::move(*sperre), ort, bytes_lesen(ort, kHoechstbytes)};
            }
        } catch (const Laufzeitfehler&) {
            continue; // one that cannot be read stays where it is
        }
    }
    return std::nullopt;
}

void Entwurf::Uebernehmen(Entwurfsfund fund) {
    platz_ = std::move(fund.sperre);
    pfad_ = std::move(fund.pfad);
    liegt_ = true;
    auf_platte_ = Stand();
}

} // namespace quittika
