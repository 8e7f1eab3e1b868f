#include "designer/designer.hpp"

#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr int kHelleLinien = 3; ///< the table design that wants them

constexpr double kSchritt = 1; ///< mm that an arrow key moves a block
constexpr double kWeit = 5;
constexpr double kFein = 0.1;

constexpr const char* kHilfetexte[] = {
    "Blöcke verschieben\r\n\r\n"
    "Drücken Sie auf einem Block die linke Maustaste und ziehen Sie ihn an seinen Platz. Die Tabelle lässt "
    "sich nur nach oben und unten verschieben. Esc bricht das Ziehen ab, Strg+Z nimmt es zurück.\r\n"
    "Mit der Tabulatortaste gehen Sie von Block zu Block. Die Pfeiltasten schieben den gewählten Block um "
    "1 mm, mit der Umschalttaste um 5 mm, mit der Strg-Taste um 0,1 mm. Die Eingabetaste wirkt wie die "
    "rechte "
    "Maustaste.",
    "Farben, Texte und Größen\r\n\r\n"
    "Drücken Sie auf einem Block die rechte Maustaste: bei Texten und der Tabelle stellen Sie Farbe und "
    "Textdaten ein, bei Logo und Wasserzeichen die Größe in Millimetern. Sie sehen jeden Block so, wie er "
    "gedruckt wird. Graue Worte stehen für einen Block, für den die Rechnung keinen Text hat.\r\n"
    "Ein Block mit rotem Rahmen stößt an einen anderen Block oder über den Rand: beim Drucken weicht er aus."
    "\r\nFarben und Textdaten gehören zu den Rechnungsdaten: dauerhaft werden sie dort mit >>Alle Änderungen "
    "übernehmen<<.",
    "Drucken und speichern\r\n\r\n"
    "Die Vorschau zeigt die Seite, wie sie jetzt auf dem Schirm steht. Beim Speichern werden die Plätze in "
    "der Datei design.dsg festgehalten; beim nächsten Laden zählen ganze Millimeter. Gedruckt wird das "
    "Design "
    "mit dem Layout >>Eigenes Layout<< in den Rechnungsdaten. Für Fensterumschläge schalten Sie die Linien "
    "nach DIN 5008 ein: die Kundenadresse gehört in das Anschriftfeld.",
};

/// The path of the picture in force as the settings write it.
std::string bildpfad(const TextBox& pfad, const PictureControl& bild, const std::string& bisher) {
    if (bild.Picture().empty()) {
        return bisher;
    }
    return systempfad(pfad.Text()) == bild.Picture() ? pfad.Text() : bild.Picture();
}

void bild_nehmen(PictureControl& ziel, const PictureControl& quelle) {
    if (!quelle.Picture().empty()) {
        ziel.Picture = quelle.Picture();
    }
}

} // namespace

Designer::Designer(FORM_DESIGNER& form, Designdatei& designdatei, frm_einstellungen& einstellungen,
                   Einstellungsfenster& einstellungsfenster, Bilderwahl& bilderwahl, Blockbilder& blockbilder,
                   Vorschauzeichnung& vorschauzeichnung, Vorschaufenster& vorschaufenster,
                   const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Pictures& bilder)
    : form_(form),
      designdatei_(designdatei),
      einstellungen_(einstellungen),
      einstellungsfenster_(einstellungsfenster),
      bilderwahl_(bilderwahl),
      blockbilder_(blockbilder),
      vorschauzeichnung_(vorschauzeichnung),
      vorschaufenster_(vorschaufenster),
      dialogs_(dialogs),
      bilderstand_(einstellungen),
      seite_(form),
      hilfslinien_(form, seite_),
      blockzug_(
          form, seite_, [this](std::size_t nummer) { Maus_Bewegt(nummer); },
          [this](const Designseite::Stand& vorher) { schritt(vorher); }),
      rechtsklick_(
          form, seite_, einstellungen, einstellungsfenster, dialogs, [this] { Bilder_zeigen(); },
          [this](const Designseite::Stand& vorher) {
              Design& design = designdatei_.design;
              const Design jetzt = auf_dem_schirm();
              design.B_LOGO = jetzt.B_LOGO;
              design.H_LOGO = jetzt.H_LOGO;
              design.B_WASSERZ = jetzt.B_WASSERZ;
              design.H_WASSERZ = jetzt.H_WASSERZ;
              schritt(vorher);
              zum_block();
          }),
      vorlagen_(form, einstellungen, bilderwahl, verzeichnis, dialogs, bilder, [this] {
          bilderstand_.wasserzeichen_gewaehlt();
          logo_und_wasserzeichen_zeigen();
      }) {
    form.Load = [this] { Form_Load(); };
    form.QueryUnload = [this](bool& abbrechen) { Form_QueryUnload(abbrechen); };
    form.Unload = [this] { Form_Unload(); };
    form.Frame_Tisch.Resize = [this] { Form_Resize(); };
    form.Timer_Lagen.Tick = [this] { Lagen_zeigen(); };
    form.Timer_Stand.Tick = [this] {
        if (!blockzug_.laeuft() && Bilder_zeigen()) {
            Stand_zeigen();
        }
    };
    bloecke_verdrahten();
    knoepfe_verdrahten();
    tasten_verdrahten();
}

void Designer::bloecke_verdrahten() {
    for (std::size_t i = 0; i < kDesignelemente; ++i) {
        Image& bild = seite_.element(i).bild;
        bild.MouseDown = [this, i](const MouseEvent& maus) { MouseDown(i, maus); };
        bild.GotFocus = [this, i] { waehlen(i); };
        bild.KeyDown = TASTEN({{kEingabetaste, [this, i] { rechtsklick(i); }}});
    }
}

void Designer::knoepfe_verdrahten() {
    form_.CMD_SPEICHERN.Click = [this] { CMD_SPEICHERN_Click(); };
    form_.Cmd_Vorschau.Click = [this] { Cmd_Vorschau_Click(); };
    form_.m_reset.Click = [this] { m_reset_Click(); };
    form_.Check_mitLogo.Click = [this] { Sichtbarkeit_zeigen(); };
    form_.Check_mitWZ.Click = [this] { Sichtbarkeit_zeigen(); };
    form_.Cmd_Logosuchen.Click = [this] {
        bilderwahl_.Command_durchsuchen_Click();
        bilderstand_.logo_gewaehlt();
        logo_und_wasserzeichen_zeigen();
    };
    form_.Cmd_Wasserzsuchen.Click = [this] {
        bilderwahl_.Wasserz_Bild_suchen(true);
        bilderstand_.wasserzeichen_gewaehlt();
        logo_und_wasserzeichen_zeigen();
    };
    form_.CMD_Justierung.Click = [this] { einstellungsfenster_.m_druckjustierung_Click(); };
    for (OptionButton& design : form_.Option) {
        design.Click = [this, nummer = design.index()] { Option_Click(nummer); };
    }
    for (int i = 0; i < 3; ++i) {
        form_.Text_TIP[i].Text = kHilfetexte[i];
        form_.Text_TIP[i].Locked = true;
    }
    form_.CMD_OPEN_HELP.Click = [this] {
        form_.FRAME_TIP.Visible = true;
        form_.CMD_CLOSE_HELP.SetFocus();
    };
    for (auto [knopf, rahmen] : {std::pair{&form_.CMD_CLOSE_HELP, &form_.FRAME_TIP},
                                 std::pair{&form_.CMD_SCHLIESSENFRABFRAME, &form_.Frame_FARBE}}) {
        knopf->Click = [this, rahmen = rahmen] {
            rahmen->Visible = false;
            zum_block();
        };
    }
}

void Designer::tasten_verdrahten() {
    constexpr std::pair<int, int> kRichtungen[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    for (const auto& [pfeile, weite] :
         {std::pair<ControlArray<Menu, 4>&, double>{form_.m_Pfeil, kSchritt},
          std::pair<ControlArray<Menu, 4>&, double>{form_.m_Pfeil_weit, kWeit},
          std::pair<ControlArray<Menu, 4>&, double>{form_.m_Pfeil_fein, kFein}}) {
        for (Menu& pfeil : pfeile) {
            const auto [x, y] = kRichtungen[pfeil.index()];
            pfeil.Click = [this, dx = x * weite, dy = y * weite] { schieben(dx, dy); };
        }
    }
    form_.m_Zurueck.Click = [this] { m_Zurueck_Click(); };
    form_.m_Rueckgaengig.Click = [this] { verlauf_gehen(true); };
    form_.m_Wiederholen.Click = [this] { verlauf_gehen(false); };
    for (TextBox* feld : {&form_.Text_Logo_X, &form_.Text_Logo_Y}) {
        feld->KeyDown = TASTEN({{kEingabetaste, [this] { form_.CMD_SET_LOGO.Click(); }}});
    }
    for (TextBox* feld : {&form_.Text_Wasserz_X, &form_.Text_Wasserz_Y}) {
        feld->KeyDown = TASTEN({{kEingabetaste, [this] { form_.CMD_SET_Wasserz.Click(); }}});
    }
}

void Designer::Form_Load() {
    vorlagen_.ERSTE_SEITE();
    form_.Frame_FARBE.Visible = false;
    designdatei_.DESIGN_LADEN();
    geladen_ = designdatei_.design;
    bilderstand_.merken();
    seite_.anordnen();
    logo_und_wasserzeichen_zeigen();
    form_.Check_mitLogo.Value = einstellungen_.Check_keinlogo.ticked() ? 0 : 1;
    form_.Check_mitWZ.Value = einstellungen_.Check_mit_Wasserz.ticked() ? 1 : 0;
    Design_zeigen();
    Sichtbarkeit_zeigen();
    TIP_LISTE_OFFEN_ = true;
    einstellungen_.CMD_DESIGNER.Enabled = true;
    anfang_ = auf_dem_schirm();
}

/// Shows what the variables say.
void Designer::Design_zeigen() {
    seite_.PLATZIEREN(designdatei_.design);
    LIST_OPTION_ = designdatei_.design.LIST_OPTION;
    if (LIST_OPTION_ >= 0 && LIST_OPTION_ < form_.Option.size()) {
        vom_programm_ = true;
        form_.Option[LIST_OPTION_].Value = true;
        vom_programm_ = false;
    }
    Bilder_zeigen();
    Stand_zeigen();
    rechtsklick_.groessen_zeigen();
}

void Designer::Form_Resize() {
    seite_.anordnen();
    for (Frame* decke : {&form_.FrameVorlageBackgrounddesign, &form_.FRAME_TIP}) {
        decke->Left = form_.Frame_Tisch.Left();
        decke->Top = form_.Frame_Tisch.Top();
        decke->Width = form_.Frame_Tisch.Width();
        decke->Height = form_.Frame_Tisch.Height();
    }
    rechtsklick_.rahmen_nachziehen();
    Stand_zeigen();
}

void Designer::Form_QueryUnload(bool& abbrechen) {
    if (gespeichert_) { // in the midst of a drag, too
        return;
    }
    if (blockzug_.abbrechen()) { // the Esc key meant the drag
        Stand_zeigen();
        abbrechen = true;
        return;
    }
    if (auf_dem_schirm() == anfang_) {
        return;
    }
    const Answer antwort = dialogs_.message({"Möchten Sie vorgenommene Änderungen speichern?", "DESIGNER",
                                             Buttons::YesNoCancel, Symbol::Question});
    abbrechen = antwort == Answer::Cancel || (antwort == Answer::Yes && !Stand_Speichern());
}

void Designer::Form_Unload() {
    if (!gespeichert_) {
        designdatei_.design = geladen_;
        bilderstand_.zuruecknehmen();
    }
    vorschauzeichnung_.ENTWURF({});
    einstellungen_.CMD_DESIGNER.Enabled = true;
}

void Designer::MouseDown(std::size_t nummer, const MouseEvent& maus) {
    blockzug_.MouseDown(nummer, maus);
    waehlen(nummer);
    if (maus.button == MouseButton::Right) {
        rechtsklick(nummer);
    }
}

void Designer::rechtsklick(std::size_t nummer) {
    const Designelement& e = seite_.element(nummer);
    rechtsklick_.RECHTSKLICK(e.selektor, form_.Frame_A4.Left() + e.bild.Left(),
                             form_.Frame_A4.Top() + e.bild.Top());
}

void Designer::Maus_Bewegt(std::size_t nummer) {
    hilfslinien_.folgen(nummer);
    if (blockzug_.laeuft()) {
        hilfslinien_.kollision_verbergen(nummer);
        ausgewaehlt_ = nummer;
        hilfslinien_.auswahl_zeigen(nummer);
        Blocktext_zeigen();
        form_.Timer_Lagen.Enabled = true;
    }
}

void Designer::waehlen(std::size_t nummer) {
    ausgewaehlt_ = nummer;
    hilfslinien_.auswahl_zeigen(nummer);
    hilfslinien_.folgen(nummer);
    Blocktext_zeigen();
}

/// Whether there is a selected block that the user sees.
bool Designer::ist_gewaehlt() const {
    return ausgewaehlt_ != kDesignelemente && seite_.element(ausgewaehlt_).bild.Visible();
}

void Designer::schieben(double dx, double dy) {
    if (!ist_gewaehlt() || blockzug_.laeuft()) {
        return;
    }
    const Designseite::Stand vorher = seite_.stand();
    Blockmasse masse = seite_.masse(ausgewaehlt_);
    masse.x = dezimal_bereinigt(masse.x + dx);
    masse.y = dezimal_bereinigt(masse.y + dy);
    seite_.setzen(ausgewaehlt_, masse);
    schritt(vorher);
}

void Designer::schritt(const Designseite::Stand& vorher) {
    if (vorher != seite_.stand()) {
        verlauf_.merken(vorher);
    }
    Bilder_zeigen();
    Stand_zeigen();
}

void Designer::verlauf_gehen(bool zurueck) {
    if (!blockzug_.laeuft()) {
        const auto gehen = [this](const Designseite::Stand& ziel) {
            Designseite::Stand jetzt = seite_.stand();
            seite_.setzen(ziel);
            return jetzt;
        };
        zurueck ? verlauf_.zurueck(gehen) : verlauf_.vor(gehen);
        Bilder_zeigen();
        Stand_zeigen();
        rechtsklick_.groessen_zeigen();
    }
}

/// Shows around the blocks where they stand now.
void Designer::Stand_zeigen() {
    form_.m_Rueckgaengig.Enabled = verlauf_.naechster_zurueck() != nullptr;
    form_.m_Wiederholen.Enabled = verlauf_.naechster_vor() != nullptr;
    hilfslinien_.anordnen();
    if (ausgewaehlt_ != kDesignelemente) {
        waehlen(ausgewaehlt_);
    }
    Lagen_zeigen();
}

void Designer::Lagen_zeigen() {
    form_.Timer_Lagen.Enabled = false;
    lagen_ = blockbilder_.LAGEN(auf_dem_schirm());
    hilfslinien_.kollisionen_zeigen(lagen_);
    Blocktext_zeigen();
}

void Designer::Blocktext_zeigen() {
    if (!ist_gewaehlt()) {
        form_.Label_Block.Caption =
            "Ziehen Sie einen Block mit der Maus, oder wählen Sie ihn mit der Tabulatortaste.";
        return;
    }
    const Designelement& e = seite_.element(ausgewaehlt_);
    const Blockmasse& masse = seite_.masse(ausgewaehlt_);
    std::string text = std::string(e.name) + ": " + format_zahl(masse.x, "0.0") + "\u00A0mm von links, " +
                       format_zahl(masse.y, "0.0") + "\u00A0mm\u00A0von\u00A0oben";
    if (e.block && lagen_.at(static_cast<std::size_t>(*e.block)).im_weg) {
        text += "\r\nStößt an einen anderen Block oder über den Rand";
    }
    form_.Label_Block.Caption = text;
}

/// Draws what has changed since it was drawn last. Returns whether a block was among it.
bool Designer::Bilder_zeigen() {
    const Design design = auf_dem_schirm();
    bool anders = false;
    for (std::size_t i = 0; i < kDesignelemente; ++i) {
        if (const std::optional<Designblock> block = seite_.element(i).block) {
            anders = seite_.zeigen(i, *blockbilder_.ZEICHNEN(*block, design).seite) || anders;
        }
    }
    const std::shared_ptr<const DrawnPage> grund = blockbilder_.BLATTGRUND(design);
    if (form_.Image_Blatt.page() == nullptr || !(*form_.Image_Blatt.page() == *grund)) {
        form_.Image_Blatt.show_page(grund);
    }
    logo_und_wasserzeichen_zeigen();
    return anders;
}

void Designer::logo_und_wasserzeichen_zeigen() {
    bild_nehmen(form_.Image_LOGO, einstellungen_.logotab);
    bild_nehmen(form_.Image_WASSERZ, einstellungen_.Image_WASSERZ);
}

void Designer::Sichtbarkeit_zeigen() {
    form_.Image_LOGO.Visible = form_.Check_mitLogo.ticked();
    form_.Image_WASSERZ.Visible = form_.Check_mitWZ.ticked();
    form_.CMD_VORLAGENAUSWAHL.Visible = form_.Check_mitWZ.ticked();
    for (const auto& [bild, rahmen] :
         {std::pair{&form_.Image_LOGO, &form_.Frame_Logo},
          std::pair{&form_.Image_WASSERZ, &form_.Frame_Wasserz},
          std::pair{&form_.Image_WASSERZ, &form_.FrameVorlageBackgrounddesign}}) {
        rahmen->Visible = rahmen->Visible() && bild->Visible();
    }
    Stand_zeigen();
}

void Designer::Option_Click(int nummer) {
    LIST_OPTION_ = nummer;
    designdatei_.design.LIST_OPTION = nummer;
    Bilder_zeigen();
    if (vom_programm_ || nummer != kHelleLinien || !std::exchange(TIP_LISTE_OFFEN_, false)) {
        return;
    }
    const Answer antwort = dialogs_.message({"Sie sollten die Linienfarbe heller als die Textfarbe wählen, "
                                             "möchten sie die Linienfarbe jetzt einstellen?",
                                             "TIP...", Buttons::YesNo, Symbol::Question});
    if (antwort == Answer::Yes) {
        rechtsklick_.RECHTSKLICK(selektor::kListe, form_.Frame_A4.Left(), form_.Frame_A4.Top());
    }
}

/// Ends what is under way, else closes the frame that lies uppermost, else the window.
void Designer::m_Zurueck_Click() {
    if (!blockzug_.laeuft()) {
        for (Frame* offen : {&form_.FRAME_TIP, &form_.FrameVorlageBackgrounddesign, &form_.Frame_FARBE,
                             &form_.Frame_Wasserz, &form_.Frame_Logo}) {
            if (offen->Visible()) {
                offen->Visible = false;
                zum_block();
                return;
            }
        }
    }
    form_.Close();
}

/// Gives the keyboard back to the selected block.
void Designer::zum_block() {
    if (ausgewaehlt_ != kDesignelemente) {
        seite_.element(ausgewaehlt_).bild.SetFocus();
    }
}

void Designer::m_reset_Click() {
    if (dialogs_.message({"Der Designer wird auf das Standarddesign zurückgesetzt. Möchten Sie fortfahren?",
                          "Quittika", Buttons::YesNo, Symbol::Question}) != Answer::Yes) {
        return;
    }
    const Designseite::Stand vorher = seite_.stand();
    designdatei_.DESIGN_STANDARD();
    Design_zeigen();
    vorlagen_.ERSTE_SEITE();
    schritt(vorher);
}

Design Designer::auf_dem_schirm() const {
    Design design = designdatei_.design;
    seite_.UEBERNEHMEN(design);
    design.LIST_OPTION = LIST_OPTION_;
    design.VISIBLE_LOGO = form_.Check_mitLogo.ticked();
    design.VISIBLE_WASSERZ = form_.Check_mitWZ.ticked();
    design.IMG_LOGO = bildpfad(einstellungen_.Text_logopath, einstellungen_.Picture1, design.IMG_LOGO);
    design.IMG_WASSERZEICHEN =
        bildpfad(einstellungen_.Text_bildpath, einstellungen_.Picture_wasserz, design.IMG_WASSERZEICHEN);
    return design;
}

bool Designer::Stand_Speichern() {
    const Design vorher = std::exchange(designdatei_.design, auf_dem_schirm());
    try {
        designdatei_.DESIGN_SPEICHERN();
        gespeichert_ = true;
    } catch (const Laufzeitfehler& fehler) {
        designdatei_.design = vorher;
        dialogs_.message({"Das Design konnte nicht gespeichert werden: design.dsg lässt sich nicht "
                          "schreiben.\r\n" +
                              std::string(fehlertext(fehler.nummer())),
                          "Achtung!  Fehlernr.:" + std::to_string(fehler.nummer()), Buttons::Ok,
                          Symbol::Exclamation});
    }
    return gespeichert_;
}

void Designer::CMD_SPEICHERN_Click() {
    if (Stand_Speichern()) {
        form_.Close();
    }
}

void Designer::Cmd_Vorschau_Click() {
    designdatei_.design = auf_dem_schirm();
    vorschauzeichnung_.ENTWURF(designdatei_.design);
    if (Druckvorschau* offen = vorschaufenster_.module()) {
        offen->auffrischen();
    }
    vorschaufenster_.open();
}

} // namespace quittika
