#include "safety/datensicherung.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"
#include "safety/sicherungsnamen.hpp"
#include "safety/zipdatei.hpp"

#include <array>
#include <ctime>
#include <map>
#include <utility>

#include <fcntl.h>

namespace quittika {

namespace {

/// How far writing and reading back have come; both take a step for each byte.
class Schrittzaehler {
public:
    Schrittzaehler(ProgressDisplay& anzeige, std::uint64_t bytes) : anzeige_(anzeige), ganz_(2 * bytes + 1) {}

    /// Throws where the user wants an end.
    void weiter(std::size_t bytes, const std::string& name) {
        getan_ = std::min<std::uint64_t>(getan_ + bytes, ganz_);
        anzeige_.update(getan_, ganz_, name);
        if (anzeige_.aborted()) {
            throw Laufzeitfehler(fehler::kDialogAbgebrochen);
        }
    }

private:
    ProgressDisplay& anzeige_;
    std::uint64_t getan_ = 0;
    std::uint64_t ganz_;
};

/// The original of a file, for being held against its copy.
class Urbild {
public:
    explicit Urbild(const Zipquelle& quelle)
        : quelle_(quelle), datei_(quelle.ort, O_RDONLY | O_NONBLOCK), stand_(datei_.auskunft()) {}

    void vergleichen(std::string_view bytes) {
        puffer_.resize(bytes.size());
        std::size_t gelesen = 0;
        while (gelesen < puffer_.size()) {
            const std::size_t jetzt =
                datei_.lesen_ab(stelle_ + gelesen, puffer_.data() + gelesen, puffer_.size() - gelesen);
            if (jetzt == 0) {
                break;
            }
            gelesen += jetzt;
        }
        stelle_ += bytes.size();
        gleich_ = gleich_ && std::string_view(puffer_.data(), gelesen) == bytes;
    }

    /// Whether the copy is the file as it is, or as it was when it was looked at first.
    bool stimmt(std::uint64_t groesse_der_kopie) const {
        const auto groesse = static_cast<std::uint64_t>(stand_.st_size);
        const bool geaendert = stand_.st_mtime != quelle_.zeit || groesse != quelle_.groesse;
        return geaendert || (gleich_ && groesse == groesse_der_kopie);
    }

private:
    const Zipquelle& quelle_;
    Datei datei_;
    struct stat stand_;
    std::uint64_t stelle_ = 0;
    bool gleich_ = true;
    std::string puffer_;
};

void gegenlesen(const Datei& datei, const std::vector<Zipquelle>& quellen, Schrittzaehler& schritte) {
    const Zipleser leser(datei);
    const auto& eintraege = leser.eintraege();
    bool vollstaendig = eintraege.size() == quellen.size();
    for (std::size_t i = 0; vollstaendig && i < quellen.size(); ++i) {
        const Zipquelle& quelle = quellen[i];
        vollstaendig = eintraege[i].name == quelle.name;
        if (quelle.ort.empty()) {
            std::string inhalt;
            leser.lesen(i, [&inhalt](std::string_view bytes) { inhalt += bytes; });
            vollstaendig = vollstaendig && inhalt == quelle.inhalt;
            continue;
        }
        Urbild urbild(quelle);
        leser.lesen(i, [&](std::string_view bytes) {
            urbild.vergleichen(bytes);
            schritte.weiter(bytes.size(), quelle.name);
        });
        if (!urbild.stimmt(eintraege[i].groesse)) {
            throw Sicherungsfehler("Die Prüfung der Datensicherung ist fehlgeschlagen: >>" + quelle.ort +
                                   "<< steht nicht richtig darin.");
        }
    }
    if (!vollstaendig) {
        throw Sicherungsfehler("Die Prüfung der Datensicherung ist fehlgeschlagen: sie ist unvollständig.");
    }
}

std::string zweistellig(int wert) {
    return format_zahl(wert, "00");
}

} // namespace

void DATENSICHERUNG_SCHREIBEN(const Sicherungsplan& plan, const Zeitpunkt& jetzt, const std::string& ziel,
                              ProgressDisplay& fortschritt) {
    std::vector<Zipquelle> quellen;
    const std::string inhalt = INHALT_SCHREIBEN(ISO_TEXT(jetzt), plan.ordner);
    quellen.push_back({kInhaltsdatei, {}, inhalt, inhalt.size(), std::time(nullptr)});
    quellen.insert(quellen.end(), plan.dateien.begin(), plan.dateien.end());
    Schrittzaehler schritte(fortschritt, plan.bytes);
    datei_ersetzen_am_stueck(ziel, [&](const Datei& datei) {
        ZIP_SCHREIBEN(datei, quellen, [&](std::size_t bytes, std::size_t nummer) {
            schritte.weiter(bytes, quellen[nummer].name);
        });
        gegenlesen(datei, quellen, schritte);
    });
}

std::string SICHERUNGSNAME(const Zeitpunkt& jetzt) {
    return "Quittika Datensicherung " + ISO_TEXT(jetzt).substr(0, 10) + ".zip";
}

std::string UMFANG_TEXT(std::size_t dateien, std::uint64_t bytes) {
    constexpr std::array<const char*, 3> kEinheiten{"kB", "MB", "GB"};
    auto wert = static_cast<double>(bytes) / 1000;
    std::size_t einheit = 0;
    while (wert >= 1000 && einheit + 1 < kEinheiten.size()) {
        wert /= 1000;
        ++einheit;
    }
    return std::to_string(dateien) + (dateien == 1 ? " Datei, " : " Dateien, ") +
           format_zahl(wert, einheit == 0 ? "0" : "0.0") + " " + kEinheiten.at(einheit);
}

Zeitpunkt ORTSZEIT(std::int64_t sekunden) {
    const std::time_t zeit = sekunden;
    std::tm t{};
    localtime_r(&zeit, &t);
    return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec};
}

std::string ISO_TEXT(const Zeitpunkt& z) {
    return format_zahl(z.jahr, "0000") + "-" + zweistellig(z.monat) + "-" + zweistellig(z.tag) + "T" +
           zweistellig(z.stunde) + ":" + zweistellig(z.minute) + ":" + zweistellig(z.sekunde);
}

} // namespace quittika
