#include "designer/rechtsklick.hpp"

#include "platform/zahlen.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quittika {

namespace {

constexpr int kLogoabstand = 200;   ///< twips
constexpr int kMindestabstand = 50; ///< twips

struct Groessenfelder {
    TextBox& breite;
    TextBox& hoehe;
    Frame& rahmen;
};

Groessenfelder felder(FORM_DESIGNER& form, int code) {
    if (code == selektor::kLogo) {
        return {form.Text_Logo_X, form.Text_Logo_Y, form.Frame_Logo};
    }
    return {form.Text_Wasserz_X, form.Text_Wasserz_Y, form.Frame_Wasserz};
}

std::string ganze(double mm) {
    return format_zahl(mm, "0");
}

/// Puts a frame where it was asked for, or as near as the window has room for it.
void hinlegen(Control& rahmen, int left, int top, const Frame& tisch, const Form& form) {
    const int rechts = std::max(form.Width(), tisch.Left() + tisch.Width());
    const int unten = tisch.Top() + tisch.Height();
    rahmen.Left = std::max(0, std::min(left, rechts - rahmen.Width()));
    rahmen.Top = std::max(0, std::min(top, unten - rahmen.Height()));
}

} // namespace

Rechtsklick::Rechtsklick(FORM_DESIGNER& form, Designseite& seite, frm_einstellungen& einstellungen,
                         Einstellungsfenster& einstellungsfenster, Dialogs& dialogs,
                         std::function<void()> gefaerbt,
                         std::function<void(const Designseite::Stand&)> groesse)
    : form_(form),
      seite_(seite),
      einstellungen_(einstellungen),
      einstellungsfenster_(einstellungsfenster),
      dialogs_(dialogs),
      gefaerbt_(std::move(gefaerbt)),
      groesse_(std::move(groesse)) {
    form.Command_FARBE_LINIEN.Click = [this] { Command_FARBE_LINIEN_Click(); };
    form.Command_TEXTEINSTELLUNGEN.Click = [this] { Command_TEXTEINSTELLUNGEN_Click(); };
    form.CMD_SET_LOGO.Click = [this] { GROESSE_SETZEN(selektor::kLogo, seite_.stand()); };
    form.CMD_SET_Wasserz.Click = [this] { GROESSE_SETZEN(selektor::kWasserzeichen, seite_.stand()); };
    form.CMD_MAXGROESSE_Wasserz.Click = [this] { CMD_MAXGROESSE_Wasserz_Click(); };
}

void Rechtsklick::RECHTSKLICK(int code, int left, int top) {
    SELEKTOR_ = code;
    form_.Command_FARBE_LINIEN.Enabled = true;
    form_.Command_TEXTEINSTELLUNGEN.Enabled = true;
    form_.Frame_FARBWAHL.Visible = true;
    if (code == selektor::kLogo || code == selektor::kWasserzeichen) {
        form_.Frame_FARBE.Visible = false;
    } else if (code != selektor::kNichts) {
        form_.Frame_Logo.Visible = false;
        form_.Frame_Wasserz.Visible = false;
    }
    if (code == selektor::kLogo) {
        groessenrahmen(form_.Frame_Logo, form_.Frame_Wasserz, left + kLogoabstand, top + kLogoabstand);
    } else if (code == selektor::kWasserzeichen) {
        groessenrahmen(form_.Frame_Wasserz, form_.Frame_Logo, left, top);
    } else if (code != selektor::kNichts) {
        farbrahmen(code, left, top);
    }
}

void Rechtsklick::groessenrahmen(Frame& rahmen, Frame& anderer, int left, int top) {
    groessen_zeigen();
    anderer.Visible = false;
    rahmen.Visible = true;
    hinlegen(rahmen, std::max(kMindestabstand, left), std::max(kMindestabstand, top), form_.Frame_Tisch,
             form_);
    TextBox& breite = felder(form_, SELEKTOR_).breite;
    breite.SetFocus();
    breite.select_all();
}

void Rechtsklick::farbrahmen(int code, int left, int top) {
    Frame& rahmen = form_.Frame_FARBE;
    rahmen.Visible = true;
    form_.Command_TEXTEINSTELLUNGEN.SetFocus();
    const bool stand_schon = std::exchange(stand_schon_, true);
    if (code == selektor::kTitel || code == selektor::kSeitenzahl) {
        form_.Frame_FARBWAHL.Visible = false;
        if (!stand_schon) {
            hinlegen(rahmen, left, top, form_.Frame_Tisch, form_);
        }
        return;
    }
    const bool am_fuss =
        code == selektor::kBankzeile || code == selektor::kBemerkungen || code == selektor::kAnschreiben;
    hinlegen(rahmen, left, am_fuss ? top - rahmen.Height() : top, form_.Frame_Tisch, form_);
    form_.Frame_FARBWAHL.BackColor =
        farbzeile(code == selektor::kAnschreiben ? selektor::kBemerkungen : code)->Muster.BackColor();
    if (code == selektor::kAnschreiben) {
        form_.Command_FARBE_LINIEN.Enabled = false;
        form_.Frame_FARBWAHL.Visible = false;
    }
}

frm_einstellungen::Farbzeile* Rechtsklick::farbzeile(int code) {
    switch (code) {
    case selektor::kListe:
        return &einstellungen_.Linien;
    case selektor::kBankzeile:
        return &einstellungen_.Bankdaten;
    case selektor::kWerbespruch:
        return &einstellungen_.Werbespruch;
    case selektor::kBemerkungen:
        return &einstellungen_.Bemerkungen;
    case selektor::kAbsender:
        return &einstellungen_.Firmendaten;
    case selektor::kKundennummer:
        return &einstellungen_.Kundennr;
    default:
        return nullptr;
    }
}

void Rechtsklick::Command_FARBE_LINIEN_Click() {
    frm_einstellungen::Farbzeile* zeile = farbzeile(SELEKTOR_);
    if (zeile == nullptr) {
        nicht_vorhanden();
        return;
    }
    zeile->Command_FARBE.Click();
    form_.Frame_FARBWAHL.BackColor = zeile->Muster.BackColor();
    gefaerbt_();
}

Container* Rechtsklick::textseite(int code) {
    switch (code) {
    case selektor::kListe:
        return &einstellungen_.Seite_Benennungen;
    case selektor::kBankzeile:
        return &einstellungen_.Seite_Bankdaten;
    case selektor::kWerbespruch:
    case selektor::kBemerkungen:
    case selektor::kTitel:
    case selektor::kAnschreiben:
        return &einstellungen_.Seite_Textdaten;
    case selektor::kAbsender:
        return &einstellungen_.Seite_Firmendaten;
    case selektor::kSeitenzahl:
        return &einstellungen_.Seite_Drucklayout;
    default:
        return nullptr;
    }
}

void Rechtsklick::Command_TEXTEINSTELLUNGEN_Click() {
    const Container* seite = textseite(SELEKTOR_);
    if (seite == nullptr) {
        nicht_vorhanden();
        return;
    }
    einstellungen_.SSTab1.Tab = einstellungen_.SSTab1.index_of(*seite);
    einstellungsfenster_.m_Rechnungsdaten_Click();
}

void Rechtsklick::nicht_vorhanden() {
    dialogs_.message({"Diese Option ist bei diesem Objekt nicht vorhanden.", "Information", Buttons::Ok,
                      Symbol::Information});
}

void Rechtsklick::rahmen_nachziehen() {
    for (Frame* rahmen : {&form_.Frame_Logo, &form_.Frame_Wasserz, &form_.Frame_FARBE}) {
        if (rahmen->Visible()) {
            hinlegen(*rahmen, rahmen->Left(), rahmen->Top(), form_.Frame_Tisch, form_);
        }
    }
}

void Rechtsklick::groessen_zeigen() {
    for (const int code : {selektor::kLogo, selektor::kWasserzeichen}) {
        const Blockmasse& masse = seite_.masse(seite_.nummer_von(code));
        felder(form_, code).breite.Text = zahl_text(masse.b);
        felder(form_, code).hoehe.Text = zahl_text(masse.h);
    }
}

void Rechtsklick::GROESSE_SETZEN(int code, Designseite::Stand vorher) {
    const Groessenfelder f = felder(form_, code);
    const std::size_t nummer = seite_.nummer_von(code);
    Blockmasse masse = seite_.masse(nummer);
    masse.b = GROESSE_LESEN(f.breite.Text(), masse.b, masse.x, kSeitenbreite);
    masse.h = GROESSE_LESEN(f.hoehe.Text(), masse.h, masse.y, kSeitenhoehe);
    seite_.setzen(nummer, masse);
    f.rahmen.Visible = false;
    groesse_(vorher);
    f.breite.Text = ganze(masse.b);
    f.hoehe.Text = ganze(masse.h);
}

void Rechtsklick::CMD_MAXGROESSE_Wasserz_Click() {
    const Designseite::Stand vorher = seite_.stand();
    const std::size_t nummer = seite_.nummer_von(selektor::kWasserzeichen);
    Blockmasse masse = seite_.masse(nummer);
    masse.x = 0;
    masse.y = 0;
    seite_.setzen(nummer, masse);
    form_.Text_Wasserz_X.Text = ganze(kSeitenbreite);
    form_.Text_Wasserz_Y.Text = ganze(kSeitenhoehe);
    GROESSE_SETZEN(selektor::kWasserzeichen, vorher);
}

} // namespace quittika
