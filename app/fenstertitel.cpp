#include "app/fenstertitel.hpp"

#include "invoice/programmname.hpp"
#include "platform/verzeichnis.hpp"

namespace quittika {

namespace {

std::string dateiname(const std::string& pfad) {
    const std::string ort = systempfad(pfad);
    return ort.substr(ort.rfind('/') + 1);
}

} // namespace

std::string FENSTERTITEL(const Rechnungszustand& zustand) {
    const std::string datei =
        zustand.IstDateiDesPfads() ? dateiname(zustand.AktuellerPfad()) : std::string("Neue Rechnung");
    return datei + " [*] - " + kProgrammname;
}

} // namespace quittika
