#include "app/programm.hpp"
#include "app/programmordner.hpp"
#include "invoice/programmname.hpp"
#include "platform/datei.hpp"
#include "platform/qt/application.hpp"
#include "platform/qt/qt_platform.hpp"

#include <QStandardPaths>

#include <filesystem>

int main(int argc, char** argv) {
    using namespace quittika;
    dateigroesse_als_fehler();
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
    return plattform.desktop().run([&programm] { programm.starten(); });
}
