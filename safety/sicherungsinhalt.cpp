#include "safety/sicherungsinhalt.hpp"

#include "platform/text.hpp"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <fcntl.h>

namespace quittika {

namespace {

constexpr std::uint64_t kMegabyte = 1U << 20U;
constexpr std::uint64_t kGroessteDatei = 1024 * kMegabyte;
constexpr std::uint64_t kGroessteSumme = 16 * 1024 * kMegabyte;
constexpr std::uint64_t kGroessterInhalt = 1 * kMegabyte; ///< of the list of folders
constexpr std::uint64_t kVerdaechtig = 200; ///< times as large as packed; text comes to a tenth of that

[[noreturn]] void verweigern(const std::string& grund, const std::string& name) {
    throw Sicherungsfehler("Diese Datei wird nicht zurückgespielt: " + grund + ": >>" +
                           links(NAME_SCHREIBEN(name), 200) + "<<");
}

bool zu_stark_gepackt(std::uint64_t groesse, std::uint64_t gepackt) {
    return groesse > kMegabyte && groesse / kVerdaechtig > gepackt;
}

void groessen_pruefen(const std::vector<Zipeintrag>& eintraege, std::uint64_t archiv) {
    std::uint64_t groesse = 0;
    std::uint64_t gepackt = 0;
    for (const Zipeintrag& eintrag : eintraege) {
        if (eintrag.groesse > kGroessteDatei || zu_stark_gepackt(eintrag.groesse, eintrag.gepackt)) {
            verweigern("sie enthält eine Datei, die beim Auspacken übermäßig groß würde", eintrag.name);
        }
        groesse += eintrag.groesse;
        gepackt += std::min(eintrag.gepackt, archiv + 1);
    }
    // Packed content that belongs to several files at once is counted for each of them.
    if (groesse > kGroessteSumme || gepackt > archiv || zu_stark_gepackt(groesse, gepackt)) {
        throw Sicherungsfehler("Diese Datei wird nicht zurückgespielt: sie würde beim Auspacken übermäßig "
                               "groß.");
    }
}

/// Looks at each name once.
class Namenspruefung {
public:
    /// The path that a name stands for.
    std::string pruefen(const Zipeintrag& eintrag) {
        const std::string& name = eintrag.name;
        if (!eintrag.gewoehnlich) {
            verweigern("sie enthält einen Verweis oder etwas anderes, das keine gewöhnliche Datei ist", name);
        }
        if (name.empty() || beginnt_mit(name, "/") || name.find('\\') != std::string::npos ||
            (name.size() > 1 && name[1] == ':')) {
            verweigern("sie enthält einen Pfad, der aus ihren Ordnern hinausführt", name);
        }
        const bool ordner = name.back() == '/';
        const std::string pfad =
            NAME_LESEN(ordner ? std::string_view(name).substr(0, name.size() - 1) : name);
        const auto verboten = [](char c) { return static_cast<unsigned char>(c) < 0x20; };
        if (!FUEHRT_HINEIN(pfad) || std::any_of(name.begin(), name.end(), verboten)) {
            verweigern("sie enthält einen Pfad, der aus ihren Ordnern hinausführt", name);
        }
        const std::string schluessel = grossbuchstaben(ordner ? name.substr(0, name.size() - 1) : name);
        const auto zweimal = [&name] { verweigern("sie enthält einen Namen zweimal", name); };
        const std::size_t kennzahl = merkmal_(schluessel);
        if (ordner) {
            ordner_.insert(kennzahl);
        } else if (!dateien_.insert(kennzahl).second || !pfade_.insert(merkmal_(pfad)).second ||
                   ordner_.count(kennzahl) != 0) {
            zweimal();
        }
        for (std::size_t i = schluessel.find('/'); i != std::string::npos; i = schluessel.find('/', i + 1)) {
            const std::size_t eltern = merkmal_(std::string_view(schluessel).substr(0, i));
            ordner_.insert(eltern);
            if (dateien_.count(eltern) != 0) {
                zweimal(); // a file and a folder
            }
        }
        return ordner ? std::string() : pfad;
    }

private:
    // Numbers in place of names: two names of one number in a backup are likelier to be made than to happen.
    std::hash<std::string_view> merkmal_;
    std::unordered_set<std::size_t> dateien_; ///< names in capitals
    std::unordered_set<std::size_t> ordner_;
    std::unordered_set<std::size_t> pfade_; ///< what the names stand for
};

/// The parts of a backup, ready to take their files.
std::vector<Sicherungsteil> leere_teile(const Sicherungskopf& kopf) {
    std::vector<Sicherungsteil> teile;
    for (int i = 0; i < kProgrammgruppen; ++i) {
        const auto gruppe = static_cast<Programmgruppe>(i);
        teile.push_back({GRUPPENNAME(gruppe), gruppe, false, {}, {}});
    }
    for (const Sicherungsordner& ordner : kopf.ordner) {
        const bool bilder = beginnt_mit(ordner.kennung, "Bilder");
        const std::string name = std::filesystem::path(ordner.pfad).filename().string();
        teile.push_back(
            {(bilder ? "Bilder: " : "Rechnungen: ") + name, std::nullopt, bilder, ordner.pfad, {}});
    }
    return teile;
}

/// Numbers of the parts outside of the program folder, by the names of their folders in the backup.
using Teilnummern = std::unordered_map<std::string, std::size_t>;

Teilnummern teilnummern(const Sicherungskopf& kopf) {
    Teilnummern nummern;
    for (const Sicherungsordner& ordner : kopf.ordner) {
        nummern.emplace(ordner.kennung, kProgrammgruppen + nummern.size());
    }
    if (nummern.size() != kopf.ordner.size()) {
        throw Sicherungsfehler("Die Datei ist keine Datensicherung von Quittika oder beschädigt.");
    }
    return nummern;
}

/// The part that a file belongs to, and its path in there.
std::pair<std::size_t, std::string> platz_von(const Teilnummern& nummern, const std::string& pfad) {
    const std::size_t grenze = pfad.find('/');
    const std::string kennung = pfad.substr(0, grenze);
    const std::string rest = grenze == std::string::npos ? "" : pfad.substr(grenze + 1);
    if (kennung == kProgrammteil) {
        if (const auto gruppe = PROGRAMMGRUPPE(rest)) {
            return {static_cast<std::size_t>(*gruppe), rest};
        }
    }
    const auto fund = nummern.find(kennung);
    const bool bild = IST_BILDNAME(rest) && rest.find('/') == std::string::npos;
    if (fund == nummern.end() || rest.empty() || (beginnt_mit(kennung, "Bilder") && !bild)) {
        verweigern("sie enthält eine Datei, die in keine Datensicherung gehört", pfad);
    }
    return {fund->second, rest};
}

Sicherungskopf kopf_lesen(const Zipleser& leser) {
    for (std::size_t i = 0; i < leser.eintraege().size(); ++i) {
        const Zipeintrag& eintrag = leser.eintraege()[i];
        if (eintrag.name == kInhaltsdatei && eintrag.groesse <= kGroessterInhalt && eintrag.gewoehnlich) {
            std::string text;
            leser.lesen(i, [&text](std::string_view bytes) { text += bytes; });
            return INHALT_LESEN(text);
        }
    }
    throw Sicherungsfehler("Die Datei ist keine Datensicherung von Quittika oder beschädigt.");
}

} // namespace

std::uint64_t Sicherungsteil::bytes() const {
    std::uint64_t summe = 0;
    for (const Sicherungsdatei& datei : dateien) {
        summe += datei.groesse;
    }
    return summe;
}

std::int64_t Sicherungsteil::juengste() const {
    std::int64_t zeit = 0;
    for (const Sicherungsdatei& datei : dateien) {
        zeit = std::max(zeit, datei.zeit);
    }
    return zeit;
}

Sicherungsinhalt::Sicherungsinhalt(const std::string& pfad)
    : datei_(ort_von(pfad), O_RDONLY | O_NONBLOCK), leser_([this, &pfad]() -> const Datei& {
          if (!S_ISREG(datei_.auskunft().st_mode)) {
              scheitern(EISDIR, pfad);
          }
          return datei_;
      }()) {
    groessen_pruefen(leser_.eintraege(), static_cast<std::uint64_t>(datei_.auskunft().st_size));
    const Sicherungskopf kopf = kopf_lesen(leser_);
    const Teilnummern nummern = teilnummern(kopf);
    zeit_ = kopf.zeit;
    teile_ = leere_teile(kopf);
    Namenspruefung namen;
    for (std::size_t i = 0; i < leser_.eintraege().size(); ++i) {
        const Zipeintrag& eintrag = leser_.eintraege()[i];
        const std::string ort = namen.pruefen(eintrag);
        if (!ort.empty() && ort != kInhaltsdatei) {
            auto [teil, rest] = platz_von(nummern, ort);
            teile_.at(teil).dateien.push_back({i, std::move(rest), eintrag.groesse, eintrag.zeit});
        }
    }
    std::erase_if(teile_, [](const Sicherungsteil& teil) { return teil.dateien.empty(); });
}

} // namespace quittika
