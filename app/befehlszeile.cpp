#include "app/befehlszeile.hpp"

#include "invoice/programmname.hpp"
#include "settings/programmeinstellung.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

namespace quittika {

namespace fs = std::filesystem;

namespace {

/// Options of the toolkit, each with a value. Desktops start programs of the last session anew with one.
constexpr std::array<std::string_view, 4> kToolkitoptionen{"-platform", "-style", "-display", "-session"};

constexpr std::string_view kHilfe =
    "Aufruf: quittika [RECHNUNG]\n"
    "\n"
    "Schreibt, speichert und druckt Rechnungen. Mit dem Namen einer "
    "Rechnungsdatei (*.qk8) wird\n"
    "diese nach dem Start geöffnet.\n"
    "\n"
    "      --help     zeigt diese Hilfe und endet\n"
    "      --version  nennt die Version und endet\n"
    "      --         was folgt, ist ein Dateiname, auch wenn es mit - beginnt\n";

Befehlszeile fehler(const std::string& grund) {
    return {{}, "quittika: " + grund + "\n\"quittika --help\" zeigt, was möglich ist.\n", true};
}

/// Behind a symbolic link ".." leads elsewhere than the name tells; such a path stays as it is.
fs::path absolut(const fs::path& pfad) {
    std::error_code kein_verzeichnis;
    const fs::path ganz = fs::absolute(pfad, kein_verzeichnis);
    if (kein_verzeichnis) {
        return pfad;
    }
    return std::find(ganz.begin(), ganz.end(), "..") == ganz.end() ? ganz.lexically_normal() : ganz;
}

} // namespace

Befehlszeile BEFEHLSZEILE(const std::vector<std::string>& argumente) {
    Befehlszeile zeile;
    bool nur_namen = false;
    for (auto a = argumente.begin(); a != argumente.end(); ++a) {
        const bool option = !nur_namen && a->starts_with('-');
        if (option && *a == "--") {
            nur_namen = true;
        } else if (option && *a == "--help") {
            return {{}, std::string(kHilfe)};
        } else if (option && *a == "--version") {
            return {{}, std::string(kProgrammname) + ", " + PROGRAMMEINSTELLUNG{}.VERSIONSTEXT + "\n"};
        } else if (option && std::find(kToolkitoptionen.begin(), kToolkitoptionen.end(), *a) !=
                                 kToolkitoptionen.end()) {
            a += a + 1 == argumente.end() ? 0 : 1;
        } else if (option) {
            return fehler("Die Option " + *a + " gibt es nicht.");
        } else if (a->empty()) {
            return fehler("Der Name der Rechnung ist leer.");
        } else if (!zeile.rechnung.empty()) {
            return fehler("Nur eine Rechnung auf einmal: " + *a + " ist eine zu viel.");
        } else {
            zeile.rechnung = absolut(*a);
        }
    }
    return zeile;
}

} // namespace quittika
