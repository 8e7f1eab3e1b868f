#include "app/menue_datei.hpp"

#include "platform/text.hpp"

#include <algorithm>
#include <string_view>

namespace quittika {

namespace {

constexpr std::string_view kEndung = ".QK8";

} // namespace

MenueDatei::MenueDatei(Form1& form1, const Ereignisse& ereignisse, Dateibefehle& dateibefehle,
                       Textexport& textexport, Druckauftrag& druckauftrag, ERechnungsfenster& e_rechnung,
                       Mailversand& mailversand, Hauptfenster& hauptfenster, Fassungsfenster& fassungsfenster,
                       Kopf& kopf, Raster& raster)
    : form1_(form1), dateibefehle_(dateibefehle) {
    form1.m_neu.Click = ereignisse.befehl([&dateibefehle, &kopf, &raster] {
        if (dateibefehle.m_neu_Click()) {
            raster.CMD_Seite1_Click(0);
            kopf.KundeAnwaehlen();
        }
    });
    OeffnenVerdrahten(ereignisse, raster);
    SpeichernVerdrahten(ereignisse);
    for (Control* drucken :
         {static_cast<Control*>(&form1.m_Drucken), static_cast<Control*>(&form1.Command_printform)}) {
        drucken->Click = ereignisse.befehl([&druckauftrag] { druckauftrag.Command_printform_Click(); });
    }
    form1.m_Rechnung_txt_export.Click =
        ereignisse.befehl([&textexport] { textexport.m_Rechnung_txt_export_Click(); });
    form1.m_Fassungen.Click = ereignisse.befehl([&fassungsfenster] { fassungsfenster.m_Fassungen_Click(); });
    form1.m_ERechnung.Click = ereignisse.befehl([&e_rechnung] { e_rechnung.open(); });
    form1.m_Mail.Click = ereignisse.befehl([&mailversand] { mailversand.m_Mail_Click(); });
    form1.m_beenden.Click = ereignisse.befehl([&hauptfenster] { hauptfenster.m_beenden_Click(); });
}

void MenueDatei::OeffnenVerdrahten(const Ereignisse& ereignisse, Raster& raster) {
    form1_.m_oeffnen.Click = ereignisse.befehl([this] { dateibefehle_.m_oeffnen_Click(); });
    form1_.FilesDropped = [this](const std::vector<std::string>& pfade) { Form_FilesDropped(pfade); };
    dateibefehle_.Geoeffnet = [&raster] {
        raster.CMD_Seite1_Click(0);
        raster.BUTTON_SEITENFREIGABE();
    };
    int n = 0;
    for (Menu* eintrag : {&form1_.m_R1, &form1_.m_R2, &form1_.m_R3}) {
        eintrag->Click = ereignisse.befehl([this, nummer = ++n] { dateibefehle_.m_R_Click(nummer); });
    }
}

void MenueDatei::SpeichernVerdrahten(const Ereignisse& ereignisse) {
    for (Control* speichern : {static_cast<Control*>(&form1_.m_speichern),
                               static_cast<Control*>(&form1_.Command_jetztSpeichern)}) {
        speichern->Click = ereignisse.befehl([this] { dateibefehle_.m_speichern_Click(); });
    }
    form1_.m_speichern_direkt.Click = ereignisse.befehl([this] { dateibefehle_.m_speichern_direkt_Click(); });
    form1_.m_speichern_kurz.Click = ereignisse.befehl([this] { dateibefehle_.m_speichern_kurz_Click(); });
}

void MenueDatei::Form_FilesDropped(const std::vector<std::string>& pfade) {
    const auto rechnung = std::find_if(pfade.begin(), pfade.end(), [](const std::string& pfad) {
        return grossbuchstaben(rechts(pfad, kEndung.size())) == kEndung;
    });
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (rechnung == pfade.end()) {
        form1_.Hinweise.melden("Auf das Fenster lassen sich nur Rechnungsdateien (*.qk8) ziehen.");
    } else if (dateibefehle_.Oeffnen(*rechnung) && pfade.size() > 1) {
        form1_.Hinweise.melden("Nur eine Rechnung auf einmal: Die übrigen Dateien wurden nicht geöffnet.");
    }
}

} // namespace quittika
