#include "analyzer/analyzer.hpp"

#include "analyzer/analysebericht.hpp"
#include "analyzer/verzeichniswahl.hpp"
#include "analyzer/zusammenfassung.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/datei.hpp"
#include "platform/dateisuche.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "tools/dokument_oeffnen.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kKeinPfad = "FEHLER";
constexpr const char* kQuelle = "\\analyse_quelle.txt";
constexpr const char* kBericht = "\\AnalyseErgebnis.txt";

int haekchen(const std::string& text) {
    return text == kJa ? 1 : 0;
}

/// "1 Rechnung", "3 Rechnungen".
std::string anzahl(std::size_t n, const std::string& eine, const std::string& mehrere) {
    return std::to_string(n) + " " + (n == 1 ? eine : mehrere);
}

/// A line for each file left out, as many as a screen can show.
std::string auslassungen(const std::vector<Rechnungsliste::Auslassung>& liste) {
    constexpr std::size_t kHoechstens = 20;
    std::string text;
    for (std::size_t i = 0; i < std::min(liste.size(), kHoechstens); ++i) {
        text += (i == 0 ? "" : "\r\n") + liste[i].datei + ": " + liste[i].grund;
    }
    if (liste.size() > kHoechstens) {
        text += "\r\nund " + std::to_string(liste.size() - kHoechstens) + " weitere";
    }
    return text;
}

} // namespace

Analyzer::Analyzer(Form_Analyzer& form, const Programmverzeichnis& verzeichnis, Desktop& desktop,
                   Dialogs& dialogs, Printing& printing, Shell& shell, const Clock& clock, Progress& progress,
                   Rechnungsoeffner oeffneRN)
    : form_(form),
      verzeichnis_(verzeichnis),
      desktop_(desktop),
      dialogs_(dialogs),
      shell_(shell),
      clock_(clock),
      progress_(progress),
      oeffneRN_(std::move(oeffneRN)),
      ansicht_(form, printing, dialogs) {
    form.Load = [this] { Form_Load(); };
    form.m_Info.Click = [this] { m_Info_Click(); };
    form.Command_Quellordner.Click = [this] { Command_Quellordner_Click(); };
    form.CMD_START_ANALYSE.Click = [this] { CMD_START_ANALYSE_Click(); };
    form.Check_zeige_Dateiliste.Click = [&form] {
        form.List_dateien.Visible = form.Check_zeige_Dateiliste.ticked();
    };
    for (ListBox* liste : {&form.List_ANSICHT, &form.List_dateien}) {
        liste->Click = [this, liste] { Zeile_auswaehlen(*liste); };
        liste->DblClick = [this] { CMD_OPEN_markierte_RN_Click(); };
        liste->KeyDown = TASTEN({{kEingabetaste, [this] { CMD_OPEN_markierte_RN_Click(); }}});
    }
    form.CMD_OPEN_markierte_RN.Click = [this] { CMD_OPEN_markierte_RN_Click(); };
    form.cmd_ErgebnisSpeichern.Click = [this] { cmd_ErgebnisSpeichern_Click(); };
}

void Analyzer::Form_Load() {
    for (int i = 0; i < form_.Label_BESCHRIFTUNG_LISTE.size(); ++i) {
        form_.Label_BESCHRIFTUNG_LISTE[i].Caption = kTabellenkopf.at(static_cast<std::size_t>(i));
    }
    pfad_ = DATEI_ERSTE_ZEILE(verzeichnis_.pfad(kQuelle));
    PfadZeigen();
}

void Analyzer::PfadZeigen() {
    const bool keiner = pfad_ == kKeinPfad || pfad_.empty();
    form_.Label_Pfad.Caption = keiner ? "KEIN GÜLTIGES VERZEICHNIS GEWÄHLT!" : pfad_;
}

void Analyzer::Command_Quellordner_Click() {
    if (auto gewaehlt = VERZEICHNIS_WAEHLEN(desktop_, pfad_)) {
        pfad_ = std::move(*gewaehlt);
        PfadZeigen();
        const bool anderer = form_.List_ANSICHT.ListCount() > 0 && pfad_ != gelesener_;
        melden(anderer ? "Die Tabelle zeigt noch die Rechnungen in " + gelesener_ : "");
        PfadMerken();
    }
}

void Analyzer::PfadMerken() {
    constexpr const char* kNurJetzt = "Das Verzeichnis gilt nur, bis dieses Fenster geschlossen wird: ";
    try {
        DATEI_SCHREIBEN(verzeichnis_.pfad(kQuelle), pfad_);
    } catch (const Laufzeitfehler& fehler) {
        melden(kNurJetzt + std::string(fehlertext(fehler.nummer())));
        return;
    }
    if (DATEI_ERSTE_ZEILE(verzeichnis_.pfad(kQuelle)) != pfad_) {
        melden(kNurJetzt + std::string("In seinem Namen stehen Zeichen, die sich nicht speichern lassen."));
    }
}

void Analyzer::CMD_START_ANALYSE_Click() {
    if (pfad_ == kKeinPfad || pfad_.empty()) {
        dialogs_.message({"Bitte legen Sie zuerst ein gültiges Verzeichnis zum analysieren fest!",
                          "Kein Verzeichnis festgelegt...", Buttons::Ok, Symbol::Information});
        Command_Quellordner_Click();
        return;
    }
    Leeren();
    if (!Rechnungen_suchen()) {
        return;
    }
    const auto dateien = static_cast<std::size_t>(form_.List_dateien.ListCount());
    Rechnungsliste liste = Lesen();
    StandZeigen(liste, dateien);
    if (liste.abgebrochen) {
        AbbruchZeigen(liste, dateien);
    }
    const bool vollstaendig = !liste.abgebrochen;
    Uebernehmen(std::move(liste));
    if (form_.List_ANSICHT.ListCount() > 0) {
        form_.List_ANSICHT.ListIndex = 0;
    }
    if (vollstaendig) {
        BERECHNUNG_GESAMTWERTE();
    }
}

void Analyzer::StandLeeren() {
    for (ListBox* liste : {&form_.List_ANSICHT, &form_.List_dateien}) {
        liste->ListIndex = -1;
    }
    for (CheckBox* stand : {&form_.Check_versendet, &form_.Check_bezahlt, &form_.Check_abgemahnt}) {
        stand->Value = 0;
    }
    form_.Combo1_mahnung.Text = "";
    form_.Text_Notiz.Text = "";
}

void Analyzer::Leeren() {
    for (ListBox& spalte : form_.List_rohdata) {
        spalte.Clear();
    }
    for (ListBox* liste : {&form_.List_ANSICHT, &form_.List_dateien, &form_.List_Zusammenfassung}) {
        liste->Clear();
    }
    StandLeeren();
    AlteVersionGefunden = false;
    gelesener_ = pfad_;
    ansicht_.NEUE_DATEN({gelesener_});
    melden("");
}

/// Tells where there are none. A folder that cannot be read leads to the choice of another.
bool Analyzer::Rechnungen_suchen() {
    bool lesbar = true;
    try {
        Dateien_suchen(pfad_, "*.qk8");
    } catch (const Laufzeitfehler& fehler) {
        lesbar = false;
        melden("Das Verzeichnis ist nicht lesbar: " + std::string(fehlertext(fehler.nummer())));
    }
    if (form_.List_dateien.ListCount() > 0) {
        return true;
    }
    dialogs_.message(
        {"In dem angewählten Verzeichnis (\r\n" + pfad_ + "\r\n) befinden sich keine Rechnungsdateien (qk8).",
         "Keine *.qk8 Dateien gefunden..."});
    if (!lesbar) {
        Command_Quellordner_Click();
    }
    return false;
}

void Analyzer::Dateien_suchen(const std::string& ordner, std::string_view muster) {
    form_.List_dateien.Clear();
    form_.List_dateien.assign(DATEIEN_SUCHEN(ordner, muster));
}

Rechnungsliste Analyzer::Lesen() {
    Rechnungsliste liste;
    const std::unique_ptr<ProgressDisplay> fortschritt = progress_.begin("Rechnungen werden gelesen");
    liste.Dateien_einlesen(systempfad(gelesener_), form_.List_dateien.items(), *fortschritt);
    return liste;
}

void Analyzer::Uebernehmen(Rechnungsliste&& liste) {
    AlteVersionGefunden = liste.alte_version;
    for (int i = 0; i < form_.List_rohdata.size(); ++i) {
        form_.List_rohdata[i].assign(std::move(liste.rohdaten.at(static_cast<std::size_t>(i))));
    }
    form_.List_dateien.assign(std::move(liste.dateien));
    form_.List_ANSICHT.assign(std::move(liste.zeilen));
    ansicht_.NEUE_DATEN({gelesener_, !liste.abgebrochen});
}

void Analyzer::StandZeigen(const Rechnungsliste& liste, std::size_t dateien) {
    std::string text = (liste.abgebrochen ? "Abgebrochen: " : "") +
                       anzahl(liste.dateien.size(), "Rechnung", "Rechnungen") + " gelesen.";
    if (!liste.ausgelassen.empty()) {
        text += " " + std::to_string(liste.ausgelassen.size()) + " von " +
                anzahl(dateien, "Datei ", "Dateien ") +
                (liste.ausgelassen.size() == 1 ? "ist keine lesbare Rechnung und fehlt hier."
                                               : "sind keine lesbaren Rechnungen und fehlen hier.");
    }
    melden(text, auslassungen(liste.ausgelassen));
}

void Analyzer::AbbruchZeigen(const Rechnungsliste& liste, std::size_t dateien) {
    form_.List_Zusammenfassung.assign(
        {"Die Analyse wurde abgebrochen und ist unvollständig.",
         "Gelesen wurden " + std::to_string(liste.dateien.size() + liste.ausgelassen.size()) + " von " +
             std::to_string(dateien) + " Rechnungsdateien in Verzeichnis:  (" + gelesener_ + ")",
         "Summen gibt es erst, wenn alle gelesen sind: Bitte starten Sie die Analyse noch einmal."});
}

void Analyzer::Zeile_auswaehlen(const ListBox& liste) {
    const int zeile = liste.ListIndex();
    for (ListBox& spalte : form_.List_rohdata) {
        spalte.ListIndex = zeile;
    }
    if (zeile < 0) {
        StandLeeren();
        return;
    }
    form_.List_dateien.ListIndex = zeile;
    form_.List_ANSICHT.ListIndex = zeile;
    const auto wert = [this, zeile](std::size_t spalte) {
        return form_.List_rohdata[static_cast<int>(spalte)].List(zeile);
    };
    form_.Text_Notiz.Text = ersetzen(wert(rohdatum::kNotiz), kZeilenwechsel, "\r\n");
    form_.Check_versendet.Value = haekchen(wert(rohdatum::kVersendet));
    form_.Check_abgemahnt.Value = haekchen(wert(rohdatum::kAbgemahnt));
    form_.Combo1_mahnung.Text = wert(rohdatum::kMahnstufe);
    form_.Check_bezahlt.Value = haekchen(wert(rohdatum::kBezahlt));
}

void Analyzer::CMD_OPEN_markierte_RN_Click() {
    const std::string& name = form_.List_dateien.Text();
    if (name.empty()) {
        melden("Bitte zuerst eine Rechnung markieren.");
        return;
    }
    // The mark of a path is read as such only where no file has it in its name.
    const char* trenner = name.find('\\') == std::string::npos ? "\\" : "/";
    oeffneRN_(gelesener_ + trenner + name);
}

void Analyzer::BERECHNUNG_GESAMTWERTE() {
    form_.List_Zusammenfassung.Clear();
    const auto spalte = [this](std::size_t nummer) -> const std::vector<std::string>& {
        return form_.List_rohdata[static_cast<int>(nummer)].items();
    };
    try {
        form_.List_Zusammenfassung.assign(
            ZUSAMMENFASSUNG(gelesener_, clock_.now(), AlteVersionGefunden,
                            GESAMTWERTE(spalte(rohdatum::kBezahlt), spalte(rohdatum::kNetto),
                                        spalte(rohdatum::kMwSt), spalte(rohdatum::kBrutto))));
    } catch (const Laufzeitfehler& fehler) {
        dialogs_.message({"Es ist ein fehler in funktion >BERECHNUNG_GESAMTWERTE()< aufgetreten, "
                          "Fehlernummer: " +
                              std::to_string(fehler.nummer()),
                          "Fehler Analyzer..."});
    }
}

void Analyzer::cmd_ErgebnisSpeichern_Click() {
    const std::string pfad = verzeichnis_.pfad(kBericht);
    const Textpuffer bericht = ANALYSEBERICHT(form_);
    for (ListBox* liste : {&form_.List_Zusammenfassung, &form_.List_ANSICHT}) {
        liste->ListIndex = liste->item_in(liste->shown_count() - 1);
    }
    try {
        datei_ersetzen(pfad, bericht.bytes());
    } catch (const Laufzeitfehler& fehler) {
        melden("Das Ergebnis ist nicht gespeichert: " + std::string(fehlertext(fehler.nummer())));
        return;
    }
    melden(bericht.ersetzt() == 0 ? "Das Ergebnis ist gespeichert."
                                  : "Das Ergebnis ist gespeichert. Einige Zeichen ließen sich dort nur durch "
                                    "ähnliche oder \"?\" darstellen.");
    const Answer antwort = dialogs_.message(
        {"Das Ergebnis der Analyse wurde an folgendem Ort auf Ihrem Computer gespeichert: \r\n\r\n" + pfad +
             "\r\n\r\nSie können diese Datei mit einem beliebigen Textverarbeitungsprogramm öffnen.\r\n\r\n"
             "Soll diese Datei jetzt geöffnet werden?",
         "Analyse Datei erstellt...", Buttons::YesNo, Symbol::Question});
    if (antwort == Answer::Yes) {
        DOKUMENT_OEFFNEN(pfad, shell_, dialogs_);
    }
}

void Analyzer::m_Info_Click() {
    dialogs_.message(
        {"Der Analyzer kann Rechnungen, welche sich im selben Verzeichnis befinden übersichtlich "
         "zur Ansicht bringen und auswerten: was erwartet wird, was bezahlt ist und was noch "
         "offen ist.\r\n\r\nUnterverzeichnisse werden noch nicht berücksichtigt.",
         "Information zum Analyzer", Buttons::Ok, Symbol::Information});
}

void Analyzer::melden(const std::string& text, const std::string& einzelheiten) {
    form_.Label_Status.Caption = text;
    form_.Label_Status.ToolTipText = einzelheiten;
}

} // namespace quittika
