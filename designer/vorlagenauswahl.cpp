#include "designer/vorlagenauswahl.hpp"

#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr int kLeertaste = 32;
constexpr int kHoechsteSeite = 999;

} // namespace

Vorlagenauswahl::Vorlagenauswahl(FORM_DESIGNER& form, frm_einstellungen& einstellungen,
                                 Bilderwahl& bilderwahl, const Programmverzeichnis& verzeichnis,
                                 Dialogs& dialogs, Pictures& bilder, std::function<void()> gewaehlt)
    : form_(form),
      einstellungen_(einstellungen),
      bilderwahl_(bilderwahl),
      dialogs_(dialogs),
      bilder_(bilder),
      gewaehlt_(std::move(gewaehlt)),
      anfang_(verzeichnis.pfad("\\DESIGN_A4\\A4-")),
      standard_(systempfad(verzeichnis.pfad("\\wasserzqk2008.bmp"))) {
    form.CMD_VORLAGENAUSWAHL.Click = [this] { oeffnen(); };
    form.CMD_A4DATENSATZ_plus.Click = [this] { blaettern(1); };
    form.CMD_A4DATENSATZ_minus.Click = [this] { blaettern(-1); };
    form.CMD_Schliessen_Auswahl.Click = [&form] {
        form.FrameVorlageBackgrounddesign.Visible = false;
        form.CMD_VORLAGENAUSWAHL.SetFocus();
    };
    form.Timer_zap.Tick = [this] { Timer_zap_Timer(); };
    form.Timer_Vorlage.Tick = [this] { naechste_laden(); };
    for (Image& vorlage : form.Image_VorlageHintergrund) {
        const int nummer = vorlage.index();
        vorlage.MouseDown = [this, nummer](const MouseEvent& maus) {
            if (maus.button == MouseButton::Left) {
                Image_VorlageHintergrund_MouseDown(nummer);
            }
        };
        const auto nehmen = [this, nummer] { Image_VorlageHintergrund_MouseDown(nummer); };
        vorlage.KeyDown = TASTEN({{kEingabetaste, nehmen}, {kLeertaste, nehmen}});
    }
}

std::string Vorlagenauswahl::pfad(int nummer) const {
    return anfang_ + std::to_string(seite_) + "+" + std::to_string(nummer) + ".jpg";
}

void Vorlagenauswahl::ERSTE_SEITE() {
    seite_ = 1;
    form_.Label_A4_Datensatznummer.Caption = "1";
    form_.CMD_A4DATENSATZ_minus.Enabled = false;
    Timer_zap_Timer();
}

void Vorlagenauswahl::oeffnen() {
    form_.FRAME_TIP.Visible = false;
    form_.FrameVorlageBackgrounddesign.Caption = "Hintergrundvorlagen";
    form_.FrameVorlageBackgrounddesign.Visible = true;
    form_.Image_VorlageHintergrund[1].SetFocus();
    Timer_zap_Timer();
}

void Vorlagenauswahl::blaettern(int schritt) {
    seite_ = std::clamp(seite_ + schritt, 1, kHoechsteSeite);
    form_.Label_A4_Datensatznummer.Caption = std::to_string(seite_);
    form_.CMD_A4DATENSATZ_minus.Enabled = seite_ > 1;
    form_.Timer_zap.Enabled = false;
    form_.Timer_zap.Enabled = true;
}

void Vorlagenauswahl::Timer_zap_Timer() {
    form_.Timer_zap.Enabled = false;
    geladen_ = 0;
    form_.ProgressBar_VORLAGELOAD.Value = 0;
    for (Image& vorlage : form_.Image_VorlageHintergrund) {
        vorlage.Picture = "";
    }
    form_.Timer_Vorlage.Enabled = true;
}

/// One template at a time, so that keys and clicks come between; none while nobody sees them.
void Vorlagenauswahl::naechste_laden() {
    if (geladen_ == kVorlagen || !form_.FrameVorlageBackgrounddesign.Visible()) {
        form_.Timer_Vorlage.Enabled = false;
        return;
    }
    Image& vorlage = form_.Image_VorlageHintergrund[++geladen_];
    try {
        bilder_.load(vorlage, systempfad(pfad(geladen_)));
    } catch (const Laufzeitfehler&) {
        vorlage.Picture = standard_;
    }
    form_.ProgressBar_VORLAGELOAD.Value = geladen_;
}

void Vorlagenauswahl::Image_VorlageHintergrund_MouseDown(int nummer) {
    try {
        const std::string gewaehlt = pfad(nummer);
        bilder_.check(systempfad(gewaehlt));
        einstellungen_.Text_bildpath.Text = gewaehlt;
        bilderwahl_.Wasserz_Bild_suchen(false);
        gewaehlt_();
        form_.FrameVorlageBackgrounddesign.Caption = "Gewählt: Vorlage " + std::to_string(nummer);
    } catch (const Laufzeitfehler& fehler) {
        dialogs_.message({"Es ist ein Fehler bei der Designauswahl im Designer aufgetreten. Bitte versuchen "
                          "Sie ein anderes Design.",
                          "Fehler bei A4-Designauswahl...Fehlernr.: " + std::to_string(fehler.nummer()),
                          Buttons::Ok, Symbol::Exclamation});
    }
}

} // namespace quittika
