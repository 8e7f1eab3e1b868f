#include "invoice/file/zuletzt_geoeffnet.hpp"

#include <array>

namespace quittika {

namespace {

constexpr const char* kKeiner = "ERROR";

} // namespace

ZuletztGeoeffnet::ZuletztGeoeffnet(Form1& form1, PROGRAMMEINSTELLUNG& einstellung,
                                   Einstellungsschreiber& schreiber)
    : form1_(form1), einstellung_(einstellung), schreiber_(schreiber) {}

void ZuletztGeoeffnet::ZuletztGeoeffnetMerken(const std::string& pfad) {
    if (pfad.empty()) {
        return;
    }
    auto& letzte = einstellung_.LETZTE_DATEI;
    letzte = {pfad, letzte[0], letzte[1]};
    Zeigen();
    schreiber_.EINSTELLUNGEN_SPEICHERN();
}

std::string ZuletztGeoeffnet::Eintrag(int n) const {
    const std::string& pfad = einstellung_.LETZTE_DATEI.at(static_cast<std::size_t>(n - 1));
    return pfad == kKeiner ? std::string() : pfad;
}

void ZuletztGeoeffnet::Zeigen() {
    const std::array<Menu*, 3> eintraege{&form1_.m_R1, &form1_.m_R2, &form1_.m_R3};
    for (int n = 1; n <= 3; ++n) {
        Menu& eintrag = *eintraege.at(static_cast<std::size_t>(n - 1));
        const std::string pfad = Eintrag(n);
        eintrag.Visible = !pfad.empty();
        if (!pfad.empty()) {
            eintrag.Caption = pfad;
        }
    }
}

} // namespace quittika
