#include "analyzer/analyzeransicht.hpp"

#include "analyzer/cent.hpp"
#include "analyzer/unbezahlte_csv.hpp"
#include "invoice/file/dateiablage.hpp"
#include "invoice/file/hindernis.hpp"
#include "platform/datei.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/verzeichnis.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kPdf = ".pdf";
constexpr const char* kPng = ".png";
constexpr const char* kCsv = ".csv";
constexpr const char* kUnvollstaendig = "Die Analyse wurde abgebrochen: es fehlen Rechnungen.";

Rechnungstabelle daten(const Form_Analyzer& form) {
    return Rechnungstabelle(form.List_rohdata);
}

ChartContent monatsdiagramm(const std::vector<Saeule>& saeulen) {
    ChartContent inhalt{{}, {{"unbezahlt", ChartTone::Open, {}}, {"bezahlt", ChartTone::Settled, {}}}};
    for (const Saeule& saeule : saeulen) {
        inhalt.categories.push_back(saeule.name);
        inhalt.series[0].cents.push_back(CENT(saeule.unbezahlt.summe));
        inhalt.series[1].cents.push_back(CENT(saeule.bezahlt.summe));
    }
    return inhalt;
}

ChartContent stufendiagramm(const std::vector<Saeule>& saeulen) {
    ChartContent inhalt{{}, {{"unbezahlt", ChartTone::Open, {}}}};
    for (const Saeule& saeule : saeulen) {
        inhalt.categories.push_back(saeule.name);
        inhalt.series[0].cents.push_back(CENT(saeule.unbezahlt.summe));
    }
    return inhalt;
}

std::string rechnungen(int anzahl) {
    return std::to_string(anzahl) + (anzahl == 1 ? " Rechnung" : " Rechnungen");
}

bool endet_mit(const std::string& pfad, std::string_view endung) {
    return grossbuchstaben(rechts(pfad, endung.size())) == grossbuchstaben(endung);
}

} // namespace

Analyzeransicht::Analyzeransicht(Form_Analyzer& form, Printing& printing, Dialogs& dialogs)
    : form_(form), printing_(printing), dialogs_(dialogs) {
    form.Text_suchen.Change = [this] { Text_suchen_Change(); };
    form.Text_suchen.KeyDown = TASTEN({{kEingabetaste, [&form] { form.List_ANSICHT.SetFocus(); }},
                                       {kPfeilRunter, [&form] { form.List_ANSICHT.SetFocus(); }}});
    form.Check_nur_Unbezahlte.Click = [this] { Text_suchen_Change(); };
    form.CMD_Alle_zeigen.Click = [this] { Alle_zeigen(); };
    for (int spalte = 0; spalte < form.CMD_Sortieren.size(); ++spalte) {
        form.CMD_Sortieren[spalte].Click = [this, spalte] { CMD_Sortieren_Click(spalte); };
    }
    form.Diagramm_Monate.Click = [this] { Diagramm_Click(form_.Diagramm_Monate, form_.Diagramm_Mahnstufen); };
    form.Diagramm_Mahnstufen.Click = [this] {
        Diagramm_Click(form_.Diagramm_Mahnstufen, form_.Diagramm_Monate);
    };
    form.SSTab_Ergebnis.Click = [this] { diagramme_fuellen(); };
    form.CMD_Unbezahlte_CSV.Click = [this] { CMD_Unbezahlte_CSV_Click(); };
    form.CMD_Diagramm_speichern.Click = [this] { CMD_Diagramm_speichern_Click(); };
    pfeile_zeigen();
}

void Analyzeransicht::NEUE_DATEN(Herkunft herkunft) {
    herkunft_ = std::move(herkunft);
    anzahl_ = daten(form_).anzahl();
    suchtexte_.clear();
    diagramme_alt_ = true;
    spalte_ = -1;
    pfeile_zeigen();
    Alle_zeigen();
    diagramme_fuellen();
    const auto& bezahlt = form_.List_rohdata[static_cast<int>(rohdatum::kBezahlt)].items();
    form_.CMD_Unbezahlte_CSV.Enabled =
        std::any_of(bezahlt.begin(), bezahlt.end(), [](const std::string& ja) { return ja != kJa; });
    form_.CMD_Diagramm_speichern.Enabled = anzahl_ > 0;
}

/// They are made when they can be seen.
void Analyzeransicht::diagramme_fuellen() {
    if (!form_.Diagramm_Monate.effectively_visible() || !std::exchange(diagramme_alt_, false)) {
        return;
    }
    monate_ = NACH_MONATEN(daten(form_));
    stufen_ = NACH_MAHNSTUFEN(daten(form_));
    form_.Diagramm_Monate.show(monatsdiagramm(monate_.saeulen));
    form_.Diagramm_Mahnstufen.show(stufendiagramm(stufen_));
    std::string fehlt = herkunft_.vollstaendig ? "" : kUnvollstaendig;
    if (monate_.ohne_datum > 0) {
        fehlt += (fehlt.empty() ? "" : "  ") + rechnungen(monate_.ohne_datum) +
                 " ohne lesbares Datum: in der letzten Säule, \"ohne Datum\".";
    }
    form_.Label_ohne_Datum.Caption = fehlt;
}

void Analyzeransicht::Alle_zeigen() {
    still_ = true;
    form_.Text_suchen.Text = "";
    form_.Check_nur_Unbezahlte.Value = 0;
    form_.Diagramm_Monate.ListIndex = -1;
    form_.Diagramm_Mahnstufen.ListIndex = -1;
    still_ = false;
    ansicht_zeigen();
}

void Analyzeransicht::Text_suchen_Change() {
    if (!still_) {
        ansicht_zeigen();
    }
}

// Upwards, downwards, not at all.
void Analyzeransicht::CMD_Sortieren_Click(int spalte) {
    if (spalte != spalte_) {
        spalte_ = spalte;
        absteigend_ = false;
    } else if (!absteigend_) {
        absteigend_ = true;
    } else {
        spalte_ = -1;
    }
    pfeile_zeigen();
    ansicht_zeigen();
}

void Analyzeransicht::pfeile_zeigen() {
    for (int i = 0; i < form_.CMD_Sortieren.size(); ++i) {
        CommandButton& kopf = form_.CMD_Sortieren[i];
        const std::string name(kTabellenspalten.at(static_cast<std::size_t>(i)).name);
        const bool sortiert = i == spalte_;
        kopf.Caption = !sortiert ? "" : absteigend_ ? "▼" : "▲";
        kopf.ToolTipText = !sortiert     ? "Nach " + name + " sortieren"
                           : absteigend_ ? name + ": absteigend. Ein Klick stellt die Folge der Dateien her."
                                         : name + ": aufsteigend. Ein Klick sortiert absteigend.";
    }
}

void Analyzeransicht::Diagramm_Click(Chart& diagramm, Chart& anderes) {
    if (still_) {
        return;
    }
    if (diagramm.ListIndex() >= 0) { // one bar is marked in both charts together
        still_ = true;
        anderes.ListIndex = -1;
        still_ = false;
    }
    ansicht_zeigen();
    if (diagramm.ListIndex() >= 0 && form_.List_ANSICHT.shown_count() > 0) {
        form_.List_ANSICHT.ListIndex = form_.List_ANSICHT.item_in(0);
    }
}

std::optional<std::vector<int>> Analyzeransicht::gewaehlte() const {
    const ChartBar monat = form_.Diagramm_Monate.bar(form_.Diagramm_Monate.ListIndex());
    if (monat.category >= 0) {
        const Saeule& saeule = monate_.saeulen.at(static_cast<std::size_t>(monat.category));
        return (monat.series == 0 ? saeule.unbezahlt : saeule.bezahlt).rechnungen;
    }
    const ChartBar stufe = form_.Diagramm_Mahnstufen.bar(form_.Diagramm_Mahnstufen.ListIndex());
    if (stufe.category >= 0) {
        return stufen_.at(static_cast<std::size_t>(stufe.category)).unbezahlt.rechnungen;
    }
    return std::nullopt;
}

bool Analyzeransicht::eingeschraenkt() const {
    return !gekuerzt(form_.Text_suchen.Text()).empty() || form_.Check_nur_Unbezahlte.ticked() ||
           gewaehlte().has_value();
}

void Analyzeransicht::ansicht_zeigen() {
    for (ListBox* liste : {&form_.List_ANSICHT, &form_.List_dateien}) {
        if (liste->ListCount() != anzahl_) {
            return; // an analysis is filling the lists
        }
    }
    if (eingeschraenkt() || spalte_ >= 0) {
        const std::vector<int> zeilen = gewuenschte();
        form_.List_ANSICHT.show_rows(zeilen);
        form_.List_dateien.show_rows(zeilen);
    } else {
        form_.List_ANSICHT.show_all();
        form_.List_dateien.show_all();
    }
    auswahl_nachfuehren();
    befund_zeigen();
}

std::vector<int> Analyzeransicht::gewuenschte() {
    const std::string& gesucht = form_.Text_suchen.Text();
    if (!gesucht.empty() && suchtexte_.empty()) {
        suchtexte_ = SUCHTEXTE(daten(form_));
    }
    return ANSICHT(daten(form_), suchtexte_,
                   {spalte_, absteigend_, gesucht, form_.Check_nur_Unbezahlte.ticked(), gewaehlte()});
}

/// What is marked can be seen; where nothing can be, nothing is.
void Analyzeransicht::auswahl_nachfuehren() {
    ListBox& liste = form_.List_ANSICHT;
    if (liste.row_of(liste.ListIndex()) < 0) {
        liste.ListIndex = liste.item_in(0);
    }
}

void Analyzeransicht::befund_zeigen() {
    const ListBox& liste = form_.List_ANSICHT;
    form_.CMD_Alle_zeigen.Enabled = eingeschraenkt();
    if (!eingeschraenkt()) {
        form_.Label_Ansicht.Caption = "";
        return;
    }
    std::string befund =
        std::to_string(liste.shown_count()) + " von " + std::to_string(liste.ListCount()) + " gezeigt";
    for (const Chart* diagramm : {&form_.Diagramm_Monate, &form_.Diagramm_Mahnstufen}) {
        const std::string balken = diagramm->bar_text(diagramm->ListIndex());
        befund += balken.empty() ? "" : ": " + balken;
    }
    form_.Label_Ansicht.Caption = befund;
}

void Analyzeransicht::melden(const std::string& text) {
    form_.Label_Status.Caption = text;
    form_.Label_Status.ToolTipText = "";
}

template <class Schreiben>
void Analyzeransicht::speichern(const FileDialog& dialog, const Schreiben& schreiben) {
    try {
        schreiben(dialogs_.save_file(dialog));
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() == fehler::kDialogAbgebrochen) {
            return;
        }
        const std::string grund = SPEICHERHINDERNIS(fehler);
        melden(grund);
        dialogs_.message({grund, "Achtung!", Buttons::Ok, Symbol::Exclamation});
    }
}

void Analyzeransicht::CMD_Unbezahlte_CSV_Click() {
    const std::string name = herkunft_.vollstaendig ? "" : " (unvollständig)";
    FileDialog dialog{"CSV-Dateien (*.csv)|*.csv", "Unbezahlte Rechnungen" + name + kCsv,
                      "Unbezahlte Rechnungen speichern"};
    dialog.asks_before_replacing = false;
    speichern(dialog, [this](const std::string& gewaehlt) {
        const std::string pfad = endet_mit(gewaehlt, kCsv) ? gewaehlt : gewaehlt + kCsv;
        if (datei_vorhanden(pfad) && !UEBERSCHREIBEN_FRAGEN(pfad, dialogs_)) {
            return;
        }
        const Zeichensatz satz = form_.Check_UTF8.ticked() ? Zeichensatz::Utf8 : Zeichensatz::Windows1252;
        const Csvinhalt inhalt = UNBEZAHLTE_CSV(daten(form_), form_.List_dateien.items(), satz);
        datei_ersetzen(pfad, inhalt.bytes);
        melden(rechnungen(inhalt.rechnungen) + " gespeichert: " + pfad +
               (herkunft_.vollstaendig ? "" : std::string("  ") + kUnvollstaendig) +
               (inhalt.ersetzt == 0 ? ""
                                    : "  (" + std::to_string(inhalt.ersetzt) +
                                          " Zeichen kennt Windows-1252 nicht; in UTF-8 bleiben sie.)"));
    });
}

void Analyzeransicht::CMD_Diagramm_speichern_Click() {
    FileDialog dialog{"PNG-Bild (*.png)|*.png|PDF-Datei (*.pdf)|*.pdf",
                      std::string("Rechnungsdiagramm") + kPng, "Diagramm speichern"};
    dialog.asks_before_replacing = false;
    speichern(dialog, [this](const std::string& gewaehlt) {
        const bool bekannt = endet_mit(gewaehlt, kPng) || endet_mit(gewaehlt, kPdf);
        const std::string pfad = bekannt ? gewaehlt : gewaehlt + kPng;
        if (datei_vorhanden(pfad) && !UEBERSCHREIBEN_FRAGEN(pfad, dialogs_)) {
            return;
        }
        printing_.save_charts({"Rechnungen in " + herkunft_.ordner,
                               form_.Label_ohne_Datum.Caption(),
                               {&form_.Diagramm_Monate, &form_.Diagramm_Mahnstufen}},
                              pfad);
        melden("Das Diagramm liegt hier: " + pfad);
    });
}

} // namespace quittika
