#include "einvoice/e_rechnungsfenster.hpp"

#include "einvoice/angabenfelder.hpp"
#include "einvoice/erkennung.hpp"
#include "einvoice/girocode.hpp"
#include "invoice/belegtexte.hpp"
#include "invoice/file/hindernis.hpp"
#include "platform/datei.hpp"
#include "platform/forms/tasten.hpp"
#include "print/ausgabedatei.hpp"
#include "print/dokumentnamen.hpp"
#include "tools/dokument_oeffnen.hpp"

#include <utility>

namespace quittika {

namespace {

/// Marks a flag as long as it lives.
class Merker {
public:
    explicit Merker(bool& flagge) : flagge_(flagge), vorher_(std::exchange(flagge, true)) {}
    Merker(const Merker&) = delete;
    Merker& operator=(const Merker&) = delete;
    ~Merker() { flagge_ = vorher_; }

private:
    bool& flagge_;
    bool vorher_;
};

constexpr const char* kTitel = "E-Rechnung";

} // namespace

ERechnung::ERechnung(Form_ERechnung& form, Form1& form1, frm_einstellungen& einstellungen,
                     E_Rechnungsausgabe& ausgabe, const Angabenspeicher& speicher, Dialogs& dialogs,
                     Shell& shell, std::function<void()> vor_der_ausgabe)
    : form_(form),
      form1_(form1),
      einstellungen_(einstellungen),
      ausgabe_(ausgabe),
      speicher_(speicher),
      dialogs_(dialogs),
      shell_(shell),
      vor_der_ausgabe_(std::move(vor_der_ausgabe)) {
    verdrahten();
}

void ERechnung::verdrahten() {
    form_.Load = [this] { Form_Load(); };
    for (Control* feld : form_.controls()) {
        if (auto* text = dynamic_cast<TextBox*>(feld)) {
            text->Change = [this] { pruefen(); };
        } else if (feld->kind() == "ComboBox" || feld->kind() == "CheckBox") {
            feld->Click = [this] { pruefen(); };
        }
    }
    form_.Timer_Stand.Tick = [this] { auffrischen(); };
    form_.List_Maengel.Click = [this] {
        if (!std::exchange(blaettert_, false)) {
            zum_feld();
        }
    };
    form_.List_Maengel.KeyDown = [this](int taste) {
        blaettert_ = taste != kEingabetaste;
        if (taste == kEingabetaste) {
            zum_feld();
        }
    };
    form_.List_Maengel.MouseDown = [this](const MouseEvent&) { blaettert_ = false; };
    form_.Command_ZUGFeRD.Click = [this] { Command_ZUGFeRD_Click(); };
    form_.Command_XRechnung.Click = [this] { Command_XRechnung_Click(); };
    form_.Command_OK.Click = [this] { Command_OK_Click(); };
    form_.Command_Abbrechen.Click = [this] { form_.Close(); };
}

void ERechnung::Form_Load() {
    {
        const Merker hier(fuellt_);
        GRUENDE_ANBIETEN(form_);
    }
    quelle_ = ausgabe_.quelle();
    angaben_zeigen();
    pruefen();
    form_.Text_Verkaeufer_Name.SetFocus();
}

void ERechnung::angaben_zeigen() {
    const Merker hier(fuellt_);
    Verkaeufer bekannt;
    try {
        bekannt = speicher_.verkaeufer();
    } catch (const Laufzeitfehler& fehler) {
        form1_.Hinweise.melden(ANGABENHINDERNIS(fehler));
    }
    const Verkaeufer verkaeufer = ERGAENZT(bekannt, VERKAEUFER_VORSCHLAG(quelle_), VERKAEUFERANGABEN());
    VERKAEUFER_ZEIGEN(form_, verkaeufer);
    const bool vorgeschlagen = kaeufer_zeigen();
    form_.Label_Vorschlag.Visible = vorgeschlagen || !(verkaeufer == bekannt);
    BEZUG_ZEIGEN(form_, ausgabe_.bezug(), BELEGARTFRAGE(quelle_.Titel).has_value());
}

/// Returns whether something was proposed that the file does not hold.
bool ERechnung::kaeufer_zeigen() {
    const Merker hier(fuellt_);
    Kaeufer bekannt;
    try {
        bekannt = speicher_.kaeufer(KUNDENSCHLUESSEL(quelle_)).value_or(Kaeufer{});
    } catch (const Laufzeitfehler& fehler) {
        form1_.Hinweise.melden(ANGABENHINDERNIS(fehler));
    }
    const Kaeufer kaeufer = ERGAENZT(bekannt, KAEUFER_VORSCHLAG(quelle_), KAEUFERANGABEN());
    KAEUFER_ZEIGEN(form_, kaeufer);
    return !(kaeufer == bekannt);
}

/// The invoice may have changed in the main window, or be another one.
void ERechnung::auffrischen() {
    Belegquelle jetzt = ausgabe_.quelle();
    if (jetzt == quelle_) {
        return;
    }
    const bool anderer_kunde = KUNDENSCHLUESSEL(jetzt) != KUNDENSCHLUESSEL(quelle_);
    const bool anderer_beleg = jetzt.Nummer != quelle_.Nummer || jetzt.Titel != quelle_.Titel;
    quelle_ = std::move(jetzt);
    if (anderer_kunde && kaeufer_zeigen()) {
        form_.Label_Vorschlag.Visible = true;
    }
    if (anderer_beleg) {
        const Merker hier(fuellt_);
        BEZUG_ZEIGEN(form_, ausgabe_.bezug(), BELEGARTFRAGE(quelle_.Titel).has_value());
    }
    pruefen();
}

void ERechnung::pruefen() {
    if (fuellt_) {
        return;
    }
    const Verkaeufer verkaeufer = VERKAEUFER_LESEN(form_);
    const Kaeufer kaeufer = KAEUFER_LESEN(form_);
    const Bezug bezug = BEZUG_LESEN(form_);
    zugferd_ = E_RECHNUNG(quelle_, verkaeufer, kaeufer, bezug, E_Format::ZUGFeRD);
    xrechnung_ = E_RECHNUNG(quelle_, verkaeufer, kaeufer, bezug, E_Format::XRechnung);
    befunde_ = BEFUNDE(zugferd_.maengel, xrechnung_.maengel);
    if (verkaeufer.GiroCode == "1") {
        if (const std::string grund = GIROCODE_FEHLER(UEBERWEISUNG(quelle_, verkaeufer)); !grund.empty()) {
            befunde_.push_back({{Schwere::Hinweis, "Check_GiroCode", grund}});
        }
    }
    std::vector<std::string> zeilen;
    gezeigt_.clear();
    for (std::size_t i = 0; i < befunde_.size(); ++i) {
        for (std::string& zeile : befunde_[i].zeilen()) {
            zeilen.push_back(std::move(zeile));
            gezeigt_.push_back(i);
        }
    }
    form_.List_Maengel.assign(std::move(zeilen));
    form_.List_Maengel.ListIndex = -1;
    form_.Label_Stand.Caption = STAND(befunde_);
    form_.Command_ZUGFeRD.Enabled = zugferd_.vollstaendig();
    form_.Command_XRechnung.Enabled = xrechnung_.vollstaendig();
    const Befreiung* const grund = BEFREIUNG(verkaeufer.Befreiungsgrund);
    form_.Text_Befreiungstext.Enabled = grund != nullptr && *grund->text == 0;
}

/// Shows the field that the marked finding is about, whatever window it stands in.
void ERechnung::zum_feld() {
    const int index = form_.List_Maengel.ListIndex();
    if (index < 0) {
        return;
    }
    const Mangel mangel = befunde_.at(gezeigt_.at(static_cast<std::size_t>(index))).mangel;
    Control* feld = form_.find(mangel.feld);
    if (feld == nullptr) {
        feld = form1_.find(mangel.feld);
        if (feld != nullptr) {
            form1_.Show();
        }
    }
    if (feld == nullptr) {
        feld = einstellungen_.find(mangel.feld);
        if (feld != nullptr) {
            form1_.m_Rechnungsdaten.Click();
        }
    }
    if (feld == nullptr) {
        return;
    }
    if (feld == &form1_.List_DARSTELLUNG && mangel.zeile >= 0 &&
        mangel.zeile < form1_.List_DARSTELLUNG.ListCount()) {
        form1_.List_DARSTELLUNG.ListIndex = mangel.zeile;
    }
    feld->container().bring_to_front();
    feld->SetFocus();
}

/// Keeps what stands in the fields. Returns whether that succeeded; a box says why not.
bool ERechnung::merken() {
    try {
        const std::size_t fremd = speicher_.verkaeufer_merken(VERKAEUFER_LESEN(form_)) +
                                  speicher_.kaeufer_merken(KUNDENSCHLUESSEL(quelle_), KAEUFER_LESEN(form_));
        if (fremd > 0) {
            form1_.Hinweise.melden("Die Dateien der E-Rechnung kennen " + std::to_string(fremd) +
                                   " Zeichen nicht: Sie stehen dort als das ähnlichste.");
        }
    } catch (const Laufzeitfehler& fehler) {
        dialogs_.message(
            {"Die Angaben konnten nicht gemerkt werden: " + fehler.ort() + "\r\n" + SPEICHERHINDERNIS(fehler),
             kTitel, Buttons::Ok, Symbol::Exclamation});
        return false;
    }
    ausgabe_.BEZUG_MERKEN(BEZUG_LESEN(form_));
    form_.Label_Vorschlag.Visible = false;
    return true;
}

void ERechnung::Command_OK_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    auffrischen();
    if (merken()) {
        form_.Close();
    }
}

void ERechnung::Command_ZUGFeRD_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (LAYOUT_GEWAEHLT(einstellungen_) == 0) {
        dialogs_.message({"Es ist kein Layout gewählt, deshalb wurde nichts gespeichert.", kTitel,
                          Buttons::Ok, Symbol::Exclamation});
        return;
    }
    if (!noch_vollstaendig(zugferd_)) {
        return;
    }
    FileDialog dialog;
    dialog.filter = "PDF-Dateien (*.pdf)|*.pdf";
    dialog.title = "Als ZUGFeRD-PDF speichern";
    const std::string pfad =
        speichern(".pdf", dialog, [this] { return ausgabe_.ZUGFERD_PDF(zugferd_.beleg); });
    if (!pfad.empty()) {
        OEFFNEN_ANBIETEN(pfad, pfad, dialogs_, shell_);
    }
}

void ERechnung::Command_XRechnung_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    if (!noch_vollstaendig(xrechnung_)) {
        return;
    }
    FileDialog dialog;
    dialog.filter = "XRechnung (*.xml)|*.xml";
    dialog.title = "Als XRechnung speichern";
    speichern(".xml", dialog, [this] { return E_Rechnungsausgabe::XRECHNUNG(xrechnung_.beleg); });
}

/// The last look at the invoice may be half a second old; what is missing now stands in the list.
bool ERechnung::noch_vollstaendig(const E_Rechnung& rechnung) {
    vor_der_ausgabe_();
    auffrischen();
    return rechnung.vollstaendig();
}

std::string ERechnung::speichern(const std::string& endung, const FileDialog& dialog,
                                 const std::function<std::string()>& bytes) {
    try {
        FileDialog frage = dialog;
        frage.proposed_name = OHNE_ENDUNG(PDFNAME_VORSCHLAGEN(form1_, einstellungen_), ".pdf") + endung;
        frage.asks_before_replacing = false;
        std::string pfad = dialogs_.save_file(frage);
        if (OHNE_ENDUNG(pfad, endung) == pfad) {
            pfad += endung;
        }
        if (!ERSETZEN_ERLAUBT({pfad}, dialogs_)) {
            return {};
        }
        if (!merken()) { // what is printed depends on it
            return {};
        }
        datei_ersetzen(pfad, bytes());
        form_.Label_Stand.Caption = "Gespeichert: " + pfad;
        form1_.Hinweise.melden("Die E-Rechnung liegt hier: " + pfad);
        return pfad;
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            dialogs_.message({E_RECHNUNGSHINDERNIS(fehler), kTitel, Buttons::Ok, Symbol::Exclamation});
        }
        return {};
    }
}

} // namespace quittika
