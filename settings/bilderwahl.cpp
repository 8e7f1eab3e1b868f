#include "settings/bilderwahl.hpp"

#include "designer/designdatei.hpp"
#include "invoice/programmname.hpp"
#include "platform/fehlertitel.hpp"
#include "platform/laufzeitfehler.hpp"

namespace quittika {

namespace {

constexpr const char* kFilter = "Images Files (*.bmp;*.gif;*.jpg;)|*.bmp;*.gif;*.jpg"
                                "|Alle Bilder|*.bmp;*.gif;*.jpg;*.jpeg;*.png";

/// The reason that the picture's reader gives, else the one of the error number.
std::string grund(const Laufzeitfehler& fehler) {
    const bool satz = fehler.nummer() == fehler::kBild && !fehler.ort().empty();
    return satz ? fehler.ort() : fehlertext(fehler.nummer());
}

} // namespace

/// Where one of the two pictures is chosen, shown and kept.
struct Bilderwahl::Bildplatz {
    TextBox& pfad;
    PictureControl& druckbild; ///< what prints
    PictureControl& ansicht;
    const char* schluessel; ///< of the design file
    bool& gewaehlt;         ///< since the last take-over
};

Bilderwahl::Bilderwahl(frm_einstellungen& einstellungen, const Programmverzeichnis& verzeichnis,
                       Dialogs& dialogs, Pictures& bilder)
    : einstellungen_(einstellungen), verzeichnis_(verzeichnis), dialogs_(dialogs), bilder_(bilder) {
    einstellungen.Command_durchsuchen.Click = [this] {
        logo_gewaehlt_ = Command_durchsuchen_Click() || logo_gewaehlt_;
    };
    einstellungen.Command_Wasserz_Bild_suchen.Click = [this] {
        wasserzeichen_gewaehlt_ = Wasserz_Bild_suchen(true) || wasserzeichen_gewaehlt_;
    };
    einstellungen.Text_logopath.LostFocus = [this] { getippten_pfad_nehmen(logo()); };
    einstellungen.Text_bildpath.LostFocus = [this] { getippten_pfad_nehmen(wasserzeichen()); };
}

Bilderwahl::Bildplatz Bilderwahl::logo() {
    return {einstellungen_.Text_logopath, einstellungen_.Picture1, einstellungen_.logotab, "IMG_LOGO",
            logo_gewaehlt_};
}

Bilderwahl::Bildplatz Bilderwahl::wasserzeichen() {
    return {einstellungen_.Text_bildpath, einstellungen_.Picture_wasserz, einstellungen_.Image_WASSERZ,
            "IMG_WASSERZEICHEN", wasserzeichen_gewaehlt_};
}

std::string Bilderwahl::dateiwahl(const char* titel) {
    FileDialog dialog;
    dialog.filter = kFilter;
    dialog.title = titel;
    return dialogs_.open_file(dialog);
}

void Bilderwahl::zeigen(const Bildplatz& platz, const std::string& pfad) {
    bilder_.load(platz.druckbild, systempfad(pfad));
    platz.ansicht.show_picture(platz.druckbild.Picture());
    platz.pfad.Text = pfad;
}

void Bilderwahl::getippten_pfad_nehmen(const Bildplatz& platz) {
    const std::string pfad = platz.pfad.Text();
    if (pfad.empty() || systempfad(pfad) == platz.druckbild.Picture()) {
        return;
    }
    try {
        zeigen(platz, pfad);
        platz.gewaehlt = true;
    } catch (const Laufzeitfehler&) {
        // Fields refuse nothing; the page beside them tells that another picture prints.
    }
}

bool Bilderwahl::Command_durchsuchen_Click() {
    try {
        zeigen(logo(), dateiwahl("Logo suchen..."));
        return true;
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            dialogs_.message({"Das Bild kann nicht als Logo verwendet werden.\r\n" + grund(fehler),
                              FEHLERTITEL(fehler.nummer()), Buttons::Ok, Symbol::Exclamation});
        }
        return false;
    }
}

bool Bilderwahl::Wasserz_Bild_suchen(bool anfragen) {
    const Bildplatz platz = wasserzeichen();
    try {
        zeigen(platz, anfragen ? dateiwahl("Bild suchen...") : platz.pfad.Text());
        return true;
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() == fehler::kDialogAbgebrochen) {
            return false;
        }
        try {
            zeigen(platz, systempfad(verzeichnis_.pfad("\\wasserzqk2008.bmp")));
        } catch (const Laufzeitfehler&) {
            // Without the standard file the picture in hand stays.
        }
        dialogs_.message({"Es ist ein Fehler bei der Designauswahl aufgetreten. Bitte versuchen Sie ein "
                          "anderes Design.",
                          "Fehler bei A4-Designauswahl...Fehlernr.: " + std::to_string(fehler.nummer()),
                          Buttons::Ok, Symbol::Exclamation});
        return false;
    }
}

bool Bilderwahl::nur_fuer_diesen_lauf(const Bildplatz& platz) const {
    return platz.gewaehlt && DESIGN_WERT(verzeichnis_, platz.schluessel) != platz.pfad.Text();
}

void Bilderwahl::speichern(const Bildplatz& platz) {
    if (nur_fuer_diesen_lauf(platz)) {
        DESIGN_WERT_SETZEN(verzeichnis_, platz.schluessel, platz.pfad.Text());
    }
}

void Bilderwahl::DAUERHAFT_ANBIETEN() {
    const bool noetig = nur_fuer_diesen_lauf(logo()) || nur_fuer_diesen_lauf(wasserzeichen());
    const bool dauerhaft =
        noetig && dialogs_.message({"Das Bild gilt sonst nur bis zum Ende des Programms. Soll es dauerhaft "
                                    "gespeichert werden?",
                                    kProgrammname, Buttons::YesNo, Symbol::Question}) == Answer::Yes;
    try {
        if (dauerhaft) {
            speichern(logo());
            speichern(wasserzeichen());
        }
        verwerfen();
    } catch (const Laufzeitfehler& fehler) {
        const bool zeichen = fehler.nummer() == fehler::kDateiname;
        dialogs_.message({zeichen ? "Der Bildpfad " + fehler.ort() +
                                        " enthält Zeichen, die in design.dsg nicht stehen können: bitte die "
                                        "Datei umbenennen und das Bild neu wählen."
                                  : "Das Bild konnte nicht dauerhaft gespeichert werden: design.dsg lässt "
                                    "sich nicht schreiben.\r\n" +
                                        std::string(fehlertext(fehler.nummer())),
                          FEHLERTITEL(fehler.nummer()), Buttons::Ok, Symbol::Exclamation});
    }
}

void Bilderwahl::verwerfen() {
    logo_gewaehlt_ = false;
    wasserzeichen_gewaehlt_ = false;
}

} // namespace quittika
