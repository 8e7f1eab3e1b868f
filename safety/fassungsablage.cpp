#include "safety/fassungsablage.hpp"

#include "platform/dateisuche.hpp"
#include "platform/pfadmarke.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "safety/fassungsname.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace quittika {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 7> kProgrammdateien{
    "Kundenliste.txt", "Artikelliste.txt",      "prog_n.cfg",        "design.dsg",
    "e_rechnung.cfg",  "e_rechnung_kunden.txt", "e_mail_vorlage.txt"};
constexpr const char* kEntwuerfe = "Ungespeicherte Rechnungen";
constexpr const char* kHerkunft = "Herkunft.txt"; ///< in each folder: the path of the file that it belongs to
constexpr const char* kNamensmuster = "*-*-* *-*-*-* *";
constexpr std::size_t kSekundenende = 20; ///< characters of a version's name that tell its second
constexpr const char* kRechnungsendung = ".qk8";

bool ist_rechnung(const fs::path& ort) {
    return grossbuchstaben(ort.extension().string()) == ".QK8";
}

bool derselbe_ordner(const fs::path& a, const fs::path& b) {
    std::error_code fehlt;
    return a == b || fs::equivalent(a, b, fehlt);
}

/// The path as it counts: a program folder on a stick may be somewhere else tomorrow.
std::string vergleichspfad(const fs::path& ort, const std::string& programmordner) {
    std::error_code fehlt;
    const fs::path ordner = fs::weakly_canonical(ort.parent_path(), fehlt);
    const fs::path programm = fs::weakly_canonical(programmordner, fehlt);
    const fs::path innen = ordner.lexically_relative(programm);
    const bool darin = !innen.empty() && *innen.begin() != "..";
    return ((darin ? innen : ordner) / ort.filename()).lexically_normal().string();
}

std::string gelesene_herkunft(const std::string& ordner) {
    try {
        const std::vector<std::string> zeilen = zeilen_lesen(ordner + "/" + kHerkunft, 1);
        return zeilen.empty() ? std::string() : zeilen.front();
    } catch (const Laufzeitfehler&) {
        return {};
    }
}

/// The one of these versions that holds the same; empty for none.
std::string gleiche(const std::vector<std::string>& namen, const std::string& ordner, std::string_view bytes,
                    const std::string& marke) {
    for (const std::string& name : namen) {
        if (name.find(marke) != std::string::npos && bytes_lesen(ordner + "/" + name) == bytes) {
            return name;
        }
    }
    return {};
}

/// A hard link takes no room and no time; what it leads to is the old file itself, so that it is on disk.
void inhalt_ablegen(const std::string& quelle, const std::string& ziel, std::string_view bytes) {
    if (!quelle.empty()) {
        try {
            DATEI_VERKNUEPFEN(quelle, ziel);
            return;
        } catch (const Laufzeitfehler&) {
            // Another file system, or one without links: a copy does it as well.
        }
    }
    datei_anlegen(ziel, bytes);
}

} // namespace

std::string SICHERUNGSORDNER(const Programmverzeichnis& verzeichnis) {
    return verzeichnis.ordner() + "/Sicherung";
}

Fassungsablage::Fassungsablage(const Programmverzeichnis& verzeichnis, const Clock& uhr,
                               Hinweiszeile& hinweise)
    : verzeichnis_(verzeichnis),
      uhr_(uhr),
      hinweise_(hinweise),
      wache_([this](const std::string& ort, Abgang abgang) { Aufheben(ort, abgang); }) {}

bool Fassungsablage::Betrifft(const std::string& ort) const {
    const fs::path pfad(ort);
    const fs::path ordner = pfad.parent_path();
    if (ist_rechnung(pfad)) {
        const std::string sicherung = SICHERUNGSORDNER(verzeichnis_);
        return !derselbe_ordner(ordner, sicherung) && !derselbe_ordner(ordner.parent_path(), sicherung);
    }
    const std::string name = pfad.filename().string();
    return std::find(kProgrammdateien.begin(), kProgrammdateien.end(), name) != kProgrammdateien.end() &&
           derselbe_ordner(ordner, verzeichnis_.ordner());
}

std::string Fassungsablage::Gruppenordner(const std::string& pfad) const {
    constexpr std::size_t kLaengsterName = 60; // in characters: with the mark shorter than any system's limit
    const fs::path ort(systempfad(pfad));
    return SICHERUNGSORDNER(verzeichnis_) + "/" + links(ort.filename().string(), kLaengsterName) + " " +
           PFADMARKE(vergleichspfad(ort, verzeichnis_.ordner()));
}

const std::string& Fassungsablage::GemerkterOrdner(const std::string& ort) {
    if (ort != ort_) {
        gruppe_ = Betrifft(ort) ? Gruppenordner(ort) : std::string();
        ort_ = ort;
    }
    return gruppe_;
}

void Fassungsablage::Aufheben(const std::string& ort, Abgang abgang) {
    const std::string ordner = GemerkterOrdner(ort);
    if (ordner.empty()) {
        return;
    }
    try {
        const std::string bytes = bytes_lesen(ort);
        Ablegen(ordner, ort, bytes, abgang == Abgang::Ersetzt ? ort : std::string());
        gemeldet_ = false;
    } catch (const Laufzeitfehler& fehler) {
        Misslungen(fehler);
    }
}

bool Fassungsablage::EntwurfAufheben(std::string_view bytes) {
    try {
        Ablegen(SICHERUNGSORDNER(verzeichnis_) + "/" + kEntwuerfe, kEntwuerfe, bytes, {});
        return true;
    } catch (const Laufzeitfehler& fehler) {
        Misslungen(fehler);
        return false;
    }
}

void Fassungsablage::Ablegen(const std::string& ordner, const std::string& herkunft, std::string_view bytes,
                             const std::string& quelle) {
    if (!datei_vorhanden(ordner + "/" + kHerkunft)) {
        ORDNER_ANLEGEN(ordner);
        zeilen_ersetzen(ordner + "/" + kHerkunft, {herkunft});
    }
    std::vector<std::string> namen = DATEIEN_SUCHEN(ordner, kNamensmuster);
    const std::string endung =
        herkunft == kEntwuerfe ? kRechnungsendung : fs::path(herkunft).extension().string();
    Fassungsname neu{uhr_.now(), 0, PFADMARKE(bytes), endung};
    const std::string sekunde = FASSUNGSNAME(neu).substr(0, kSekundenende);
    for (const std::string& name : namen) {
        const auto teile = beginnt_mit(name, sekunde) ? FASSUNGSNAME_LESEN(name) : std::nullopt;
        neu.zaehler = teile ? std::max(neu.zaehler, teile->zaehler + 1) : neu.zaehler;
    }
    const std::string name = FASSUNGSNAME(neu);
    const std::string alte = gleiche(namen, ordner, bytes, neu.marke);
    const bool dieselbe = !alte.empty() && quelle.empty() && !herkunft.empty() &&
                          IST_DIESELBE_DATEI(ordner + "/" + alte, herkunft);
    if (alte.empty() || dieselbe) {
        inhalt_ablegen(quelle, ordner + "/" + name, bytes);
    }
    if (dieselbe) {
        DATEI_LOESCHEN(ordner + "/" + alte); // it would change together with the file
    } else if (!alte.empty()) {
        DATEI_UMBENENNEN(ordner + "/" + alte, ordner + "/" + name);
    }
    std::erase(namen, alte);
    namen.push_back(name);
    for (const std::string& entbehrlich : ENTBEHRLICH(namen, uhr_.now())) {
        if (entbehrlich != name) {
            std::error_code bleibt; // until the next time
            fs::remove(ordner + "/" + entbehrlich, bleibt);
        }
    }
}

void Fassungsablage::Misslungen(const Laufzeitfehler& fehler) {
    if (gemeldet_) {
        return;
    }
    gemeldet_ = true;
    hinweise_.melden("Frühere Fassungen werden zur Zeit nicht aufgehoben (" +
                     std::string(fehlertext(fehler.nummer())) + "): >>" + SICHERUNGSORDNER(verzeichnis_) +
                     "<<.");
}

std::vector<Fassungsgruppe> Fassungsablage::Gruppen() const {
    std::vector<Fassungsgruppe> gruppen;
    std::error_code fehler;
    for (fs::directory_iterator i(SICHERUNGSORDNER(verzeichnis_), fehler), ende; !fehler && i != ende;
         i.increment(fehler)) {
        const std::string ordner = i->path().string();
        const std::string herkunft = gelesene_herkunft(ordner);
        if (!herkunft.empty()) {
            gruppen.push_back({ordner, herkunft, herkunft == kEntwuerfe || ist_rechnung(herkunft)});
        }
    }
    std::sort(gruppen.begin(), gruppen.end(),
              [](const Fassungsgruppe& a, const Fassungsgruppe& b) { return a.ordner < b.ordner; });
    return gruppen;
}

std::vector<Fassung> Fassungsablage::Fassungen(const std::string& ordner) {
    std::vector<Fassung> fassungen;
    try {
        for (const std::string& name : DATEIEN_SUCHEN(ordner, kNamensmuster)) {
            if (const auto teile = FASSUNGSNAME_LESEN(name)) {
                fassungen.push_back({ordner + "/" + name, teile->zeit});
            }
        }
    } catch (const Laufzeitfehler&) {
        return {};
    }
    std::reverse(fassungen.begin(), fassungen.end());
    return fassungen;
}

} // namespace quittika
