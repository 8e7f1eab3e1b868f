#include "safety/entwurf.hpp"

#include "platform/datei.hpp"
#include "platform/datum.hpp"
#include "platform/pfadmarke.hpp"
#include "platform/text.hpp"
#include "safety/fassungsablage.hpp"

#include <functional>
#include <utility>

namespace quittika {

namespace {

constexpr int kPlaetze = 9;         ///< programs that have a draft at the same time
constexpr int kLaengstesWarten = 8; ///< ticks of the timer
constexpr std::size_t kHoechstbytes = 50U << 20U;

std::string sperrpfad(const std::string& entwurf) {
    const std::size_t name = entwurf.rfind('/') + 1;
    return entwurf.substr(0, name) + "." + entwurf.substr(name) + ".sperre";
}

/// The lock of a draft tells which file was being saved when its program ended: mark of the draft, mark of
/// the file, path.
std::string vermerk(const std::string& entwurf, std::string_view bytes, const std::string& ziel) {
    return entwurf + " " + PFADMARKE(bytes) + " " + ziel;
}

/// Whether this draft's invoice is saved, by what its lock tells.
bool ist_gespeichert(const std::string& vermerk_der_sperre, const std::string& entwurf) {
    constexpr std::size_t kMarken = 18; // two of them, and blanks
    const std::string marke = PFADMARKE(entwurf);
    if (vermerk_der_sperre.size() <= kMarken || !beginnt_mit(vermerk_der_sperre, marke + " ")) {
        return false;
    }
    const std::string ziel = vermerk_der_sperre.substr(kMarken);
    try {
        return vermerk(marke, bytes_lesen(ziel, kHoechstbytes), ziel) == vermerk_der_sperre;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace

bool IST_ENTWURF_IN_ARBEIT(const std::string& ort) {
    return Dateisperre::GEHALTEN(sperrpfad(ort));
}

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
    schreiber_.VorSchreiben = [this](const std::string& ziel, std::string_view bytes) {
        Vormerken(ziel, bytes);
    };
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
            const std::string bytes = Abbild();
            datei_ersetzen(pfad_, bytes);
            liegt_ = true;
            auf_platte_ = stand;
            marke_ = PFADMARKE(bytes);
            gemeldet_ = false;
        }
    } catch (const Laufzeitfehler& fehler) {
        Misslungen(fehler); // the next tick tries it again
    }
}

void Entwurf::Misslungen(const Laufzeitfehler& fehler) {
    if (!std::exchange(gemeldet_, true)) {
        form1_.Hinweise.melden("Ungespeichertes wird zur Zeit nicht gesichert (" +
                               std::string(fehlertext(fehler.nummer())) + "): >>" +
                               SICHERUNGSORDNER(verzeichnis_) + "<<.");
    }
}

void Entwurf::Vormerken(const std::string& ziel, std::string_view bytes) {
    if (!liegt_) {
        return;
    }
    try {
        platz_->beschriften(vermerk(marke_, bytes, ziel));
    } catch (const Laufzeitfehler&) {
        // At the worst an invoice is offered that is saved already.
    }
}

std::string Entwurf::pfad(int nummer) const {
    return SICHERUNGSORDNER(verzeichnis_) + "/entwurf" + (nummer == 1 ? "" : "-" + std::to_string(nummer)) +
           ".qk8";
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
        platz_ = Dateisperre::NEHMEN(sperrpfad(pfad_));
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

std::optional<Entwurfsfund> Entwurf::Finden() {
    for (int nummer = 1; nummer <= kPlaetze; ++nummer) {
        const std::string ort = pfad(nummer);
        try {
            if (!datei_vorhanden(ort)) {
                continue;
            }
            auto sperre = Dateisperre::NEHMEN(sperrpfad(ort));
            if (!sperre) {
                continue;
            }
            std::string bytes = bytes_lesen(ort, kHoechstbytes);
            if (ist_gespeichert(bytes_lesen(sperre->pfad(), kHoechstbytes), bytes)) {
                DATEI_LOESCHEN(ort);
                continue;
            }
            return Entwurfsfund{std::move(*sperre), ort, std::move(bytes)};
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
    marke_ = PFADMARKE(fund.bytes);
}

} // namespace quittika
