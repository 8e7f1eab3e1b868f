#include "safety/nummernfenster.hpp"

#include "analyzer/verzeichniswahl.hpp"
#include "invoice/file/rechnungsnummern.hpp"
#include "platform/datei.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/textdatei.hpp"
#include "safety/fassungsablage.hpp"

#include <filesystem>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kTitel = "Rechnungsnummern prüfen";

std::string anzahl(std::size_t n, const std::string& eine, const std::string& mehrere) {
    return n == 1 ? "eine " + eine : (n == 0 ? "keine " + mehrere : std::to_string(n) + " " + mehrere);
}

std::string beschreibung(const Nummernzeile& rechnung) {
    return rechnung.datei + "  (" + rechnung.titel + " " + rechnung.nummer + ", " + rechnung.datum + ", " +
           rechnung.kunde + ")";
}

} // namespace

Nummernfenster::Nummernfenster(Form_Nummernpruefung& form, const Programmverzeichnis& verzeichnis,
                               Desktop& desktop, Dialogs& dialogs, Progress& progress,
                               std::function<std::string()> AktuellerPfad, Rechnungsoeffner oeffneRN)
    : form_(form),
      verzeichnis_(verzeichnis),
      desktop_(desktop),
      dialogs_(dialogs),
      progress_(progress),
      AktuellerPfad_(std::move(AktuellerPfad)),
      oeffneRN_(std::move(oeffneRN)) {
    form.Load = [this] { Form_Load(); };
    form.Command_Ordner.Click = [this] { Command_Ordner_Click(); };
    form.Command_Pruefen.Click = [this] { Command_Pruefen_Click(); };
    form.List_Befund.Changed = [&form] {
        form.Command_Oeffnen.Enabled = !form.List_Dateien.List(form.List_Befund.ListIndex()).empty();
    };
    form.List_Befund.DblClick = [this] { Command_Oeffnen_Click(); };
    form.List_Befund.KeyDown = TASTEN({{kEingabetaste, [this] { Command_Oeffnen_Click(); }}});
    form.Command_Oeffnen.Click = [this] { Command_Oeffnen_Click(); };
    form.Command_Speichern.Click = [this] { Command_Speichern_Click(); };
    form.Command_Schliessen.Click = [&form] { form.Close(); };
}

void Nummernfenster::Form_Load() {
    ordner_ = DATEI_ERSTE_ZEILE(verzeichnis_.pfad("\\analyse_quelle.txt"));
    if (const std::string pfad = AktuellerPfad_(); !pfad.empty()) {
        ordner_ = std::filesystem::path(systempfad(pfad)).parent_path().string();
    }
    OrdnerZeigen();
}

void Nummernfenster::OrdnerZeigen() {
    Leeren();
    const bool da = ordner_vorhanden(ordner_);
    form_.Label_Ordner.Caption = da ? ordner_ : "Bitte wählen Sie den Ordner mit Ihren Rechnungen.";
    form_.Command_Pruefen.Enabled = da;
}

void Nummernfenster::Leeren() {
    form_.List_Befund.Clear();
    form_.List_Dateien.Clear();
    form_.Label_Zusammenfassung.Caption = "";
    form_.Command_Oeffnen.Enabled = false;
    form_.Command_Speichern.Enabled = false;
    melden("");
}

void Nummernfenster::Command_Ordner_Click() {
    if (auto gewaehlt = VERZEICHNIS_WAEHLEN(desktop_, ordner_)) {
        ordner_ = std::move(*gewaehlt);
        OrdnerZeigen();
    }
}

std::optional<std::int64_t> Nummernfenster::Zaehler() const {
    const Zaehlerstand stand = ZAEHLERSTAND(verzeichnis_);
    return stand.wert ? std::optional<std::int64_t>(*stand.wert) : std::nullopt;
}

void Nummernfenster::Command_Pruefen_Click() {
    Leeren();
    try {
        Nummernliste liste;
        {
            const auto fortschritt = progress_.begin("Rechnungsnummern werden gelesen");
            liste = NUMMERN_EINLESEN(ordner_, form_.Check_Unterordner.ticked(),
                                     SICHERUNGSORDNER(verzeichnis_), *fortschritt);
        }
        if (liste.abgebrochen) {
            form_.Label_Zusammenfassung.Caption = "Abgebrochen: was fehlt oder doppelt ist, zeigt sich erst, "
                                                  "wenn alle Rechnungen gelesen sind.";
        } else {
            BefundZeigen(liste);
        }
    } catch (const Laufzeitfehler& fehler) {
        form_.Label_Zusammenfassung.Caption =
            "Der Ordner ist nicht lesbar: " + std::string(fehlertext(fehler.nummer()));
    }
}

void Nummernfenster::zeile(const std::string& text, const std::string& datei) {
    form_.List_Dateien.AddItem(datei);
    form_.List_Befund.AddItem(text);
}

void Nummernfenster::BefundZeigen(const Nummernliste& liste) {
    const Nummernbefund befund = NUMMERN_PRUEFEN(liste.zeilen, Zaehler());
    for (const Nummernluecke& luecke : befund.luecken) {
        zeile("fehlt:    " + LUECKENTEXT(luecke));
    }
    doppelte(liste, befund);
    zaehlerstand(liste, befund);
    for (const std::size_t i : befund.ohne_nummer) {
        zeile("ohne Nummer:  " + beschreibung(liste.zeilen[i]), liste.zeilen[i].datei);
    }
    for (const std::string& datei : liste.unlesbar) {
        zeile("nicht lesbar:  " + datei);
    }
    std::string text = anzahl(liste.zeilen.size(), "Rechnung", "Rechnungen") +
                       " gelesen: " + anzahl(befund.luecken.size(), "Lücke", "Lücken") + ", " +
                       anzahl(befund.doppelte.size(), "doppelte Nummer", "doppelten Nummern") + ".";
    text.front() = text.front() == 'e' ? 'E' : (text.front() == 'k' ? 'K' : text.front());
    if (!befund.luecken.empty()) {
        text += " Eine Lücke kann eine Rechnung sein, die in einem anderen Ordner liegt oder nie gespeichert "
                "wurde.";
    }
    form_.Label_Zusammenfassung.Caption = text;
    form_.Command_Speichern.Enabled = true;
    if (form_.List_Befund.ListCount() > 0) {
        form_.List_Befund.ListIndex = 0;
    }
}

void Nummernfenster::doppelte(const Nummernliste& liste, const Nummernbefund& befund) {
    for (const Nummerndoppel& doppel : befund.doppelte) {
        for (const std::size_t i : doppel.rechnungen) {
            zeile("doppelt:  " + doppel.nummer + "  " + beschreibung(liste.zeilen[i]), liste.zeilen[i].datei);
        }
    }
}

void Nummernfenster::zaehlerstand(const Nummernliste& liste, const Nummernbefund& befund) {
    const auto zaehler = Zaehler();
    if (!zaehler || !befund.hoechste) {
        return;
    }
    if (befund.naechste_vergeben) {
        const Nummernzeile& rechnung = liste.zeilen[*befund.naechste_vergeben];
        zeile("Zähler:   Die nächste Nummer " + std::to_string(*zaehler) +
                  " ist schon vergeben:  " + beschreibung(rechnung),
              rechnung.datei);
    } else if (*zaehler <= *befund.hoechste) {
        zeile("Zähler:   Er steht auf " + std::to_string(*zaehler) + ", vergeben ist schon die " +
              std::to_string(*befund.hoechste) + ".");
    }
}

void Nummernfenster::Command_Oeffnen_Click() {
    const std::string& datei = form_.List_Dateien.List(form_.List_Befund.ListIndex());
    if (!datei.empty()) {
        oeffneRN_(systempfad(ordner_) + "/" + datei);
    }
}

void Nummernfenster::Command_Speichern_Click() {
    melden("");
    FileDialog dialog;
    dialog.filter = "Textdateien (*.txt)|*.txt|";
    dialog.proposed_name = "Rechnungsnummern.txt";
    dialog.title = kTitel;
    try {
        const std::string pfad = dialogs_.save_file(dialog);
        Textpuffer text;
        text.zeile("Rechnungsnummern in " + ordner_);
        text.zeile(form_.Label_Zusammenfassung.Caption());
        for (const std::string& zeile : form_.List_Befund.items()) {
            text.zeile(zeile);
        }
        datei_ersetzen(pfad, text.bytes());
        melden("Gespeichert: " + pfad);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            melden("Nicht gespeichert: " + std::string(fehlertext(fehler.nummer())));
        }
    }
}

} // namespace quittika
