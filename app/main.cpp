#include "app/befehlszeile.hpp"
#include "app/programm.hpp"
#include "app/programmordner.hpp"
#include "invoice/programmname.hpp"
#include "platform/datei.hpp"
#include "platform/qt/application.hpp"
#include "platform/qt/qt_platform.hpp"

#include <QStandardPaths>

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace {

using namespace quittika;

int starten(int argc, char** argv, const std::string& rechnung) {
    const QtApplication anwendung(argc, argv);
    QtPlatform plattform;
    const std::filesystem::path daten =
        std::filesystem::path(
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString()) /
        "quittika2008";
    const auto [ordner, meldung] =
        PROGRAMMORDNER(std::filesystem::path(QtApplication::program_directory()) / "quittika", daten);
    if (!meldung.empty()) {
        plattform.platform().dialogs.message({meldung, kProgrammname, Buttons::Ok, Symbol::Exclamation});
    }
    plattform.desktop().remember_places((ordner / "fenster.cfg").string());
    Programm programm(plattform.platform(), ordner.string());
    return plattform.desktop().run([&] { programm.starten(rechnung); });
}

} // namespace

int main(int argc, char** argv) {
    dateigroesse_als_fehler();
    const Befehlszeile zeile = BEFEHLSZEILE({argv + std::min(argc, 1), argv + argc});
    if (!zeile.antwort.empty()) {
        (zeile.fehler ? std::cerr : std::cout) << zeile.antwort;
        return zeile.fehler ? kBefehlszeilenfehler : 0;
    }
    return starten(argc, argv, zeile.rechnung.string());
}
