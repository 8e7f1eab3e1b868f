#include "invoice/file/rechnungssperre.hpp"

#include "platform/datei.hpp"
#include "platform/dateiname.hpp"
#include "platform/pfadmarke.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "platform/verzeichnis.hpp"

#include <filesystem>

namespace quittika {

namespace {

constexpr const char* kBenutzer = "Benutzer: ";
constexpr const char* kRechner = "Rechner: ";
constexpr const char* kSeit = "Geöffnet seit: ";
constexpr const char* kProzess = "Prozess: ";

/// A longer name of a file gets its mark in place of its end, so that the lock's is none too long.
constexpr std::size_t kLaengsterName = 200;

std::string wert(const std::vector<std::string>& zeilen, std::string_view schluessel) {
    for (const std::string& zeile : zeilen) {
        if (beginnt_mit(zeile, schluessel)) {
            return zeile.substr(schluessel.size());
        }
    }
    return "unbekannt";
}

} // namespace

std::string SPERRPFAD(const std::string& rechnung) {
    const std::filesystem::path ort(systempfad(rechnung));
    std::string name = ort.filename().string();
    if (name.size() > kLaengsterName) {
        name = links(name, kLaengsterName / 4) + PFADMARKE(name);
    }
    return (ort.parent_path() / ("." + name + ".sperre")).string();
}

std::optional<Sperrvermerk> Rechnungssperre::WerSonst(const std::string& pfad) const {
    try {
        const std::string sperrpfad = SPERRPFAD(pfad);
        if (!datei_vorhanden(sperrpfad) || (sperre_ && IST_DIESELBE_DATEI(sperrpfad, sperre_->pfad()))) {
            return std::nullopt;
        }
        constexpr std::size_t kZeilen = 10;
        const std::vector<std::string> zeilen = zeilen_lesen(sperrpfad, kZeilen);
        Sperrvermerk vermerk{wert(zeilen, kBenutzer), wert(zeilen, kRechner), wert(zeilen, kSeit), sperrpfad};
        vermerk.hier = zeilen.empty() || vermerk.rechner == RECHNERNAME();
        return vermerk.hier && !Dateisperre::GEHALTEN(sperrpfad) ? std::nullopt : std::optional(vermerk);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

void Rechnungssperre::Setzen(const std::string& pfad) {
    if (pfad.empty()) {
        sperre_.reset();
        return;
    }
    const std::string sperrpfad = SPERRPFAD(pfad);
    if (sperre_ && IST_DIESELBE_DATEI(sperrpfad, sperre_->pfad())) {
        return;
    }
    sperre_.reset();
    try {
        sperre_ = Dateisperre::NEHMEN(sperrpfad);
        if (sperre_) {
            Textpuffer vermerk;
            vermerk.zeile(kBenutzer + BENUTZERNAME());
            vermerk.zeile(kRechner + RECHNERNAME());
            vermerk.zeile(kSeit + datum_zeit_text(uhr_.now()));
            vermerk.zeile(kProzess + PROZESSNUMMER());
            sperre_->beschriften(vermerk.bytes());
        }
    } catch (const Laufzeitfehler&) {
        sperre_.reset();
    }
}

std::string SPERRTEXT(const Sperrvermerk& vermerk) {
    return vermerk.benutzer + " auf dem Rechner " + vermerk.rechner + ", seit " + vermerk.seit;
}

} // namespace quittika
