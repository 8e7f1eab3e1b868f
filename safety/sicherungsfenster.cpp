#include "safety/sicherungsfenster.hpp"

#include "analyzer/verzeichniswahl.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/textdatei.hpp"
#include "safety/datensicherung.hpp"
#include "safety/zipdatei.hpp"

#include <algorithm>
#include <filesystem>

namespace quittika {

namespace {

constexpr const char* kTitel = "Datensicherung";

std::string ordner_des(const std::string& datei) {
    return std::filesystem::path(systempfad(datei)).parent_path().string();
}

/// As many lines as a box can show.
std::string aufzaehlung(const std::vector<std::string>& zeilen) {
    constexpr std::size_t kHoechstens = 12;
    std::string text;
    for (std::size_t i = 0; i < std::min(zeilen.size(), kHoechstens); ++i) {
        text += zeilen[i] + "\r\n";
    }
    return zeilen.size() > kHoechstens
               ? text + "und " + std::to_string(zeilen.size() - kHoechstens) + " weitere\r\n"
               : text;
}

} // namespace

Sicherungsfenster::Sicherungsfenster(Form_Datensicherung& form, const Form1& form1,
                                     const frm_einstellungen& einstellungen,
                                     const Programmverzeichnis& verzeichnis, Desktop& desktop,
                                     Dialogs& dialogs, const Clock& clock, Progress& progress)
    : form_(form),
      form1_(form1),
      einstellungen_(einstellungen),
      verzeichnis_(verzeichnis),
      desktop_(desktop),
      dialogs_(dialogs),
      clock_(clock),
      progress_(progress) {
    form.Load = [this] { Form_Load(); };
    form.Command_Ordner_hinzu.Click = [this] { Command_Ordner_hinzu_Click(); };
    form.Command_Ordner_weg.Click = [this] { Command_Ordner_weg_Click(); };
    form.List_Ordner.KeyDown = TASTEN({{kEntfernen, [this] { Command_Ordner_weg_Click(); }}});
    form.List_Ordner.Changed = [&form] {
        form.Command_Ordner_weg.Enabled = form.List_Ordner.ListIndex() >= 0;
    };
    form.Command_Sichern.Click = [this] { Command_Sichern_Click(); };
    form.Command_Schliessen.Click = [&form] { form.Close(); };
}

void Sicherungsfenster::Form_Load() {
    merker_ = Sicherungsmerker::LESEN(verzeichnis_);
    if (!merker_.letzte && merker_.ordner.empty()) {
        OrdnerVorschlagen();
    }
    LetzteZeigen();
    OrdnerZeigen();
}

/// Where the last invoices lie and where the analyzer looks for them.
void Sicherungsfenster::OrdnerVorschlagen() {
    std::vector<std::string> vorschlaege;
    for (const Menu* zuletzt : {&form1_.m_R1, &form1_.m_R2, &form1_.m_R3}) {
        if (!zuletzt->Caption().empty()) {
            vorschlaege.push_back(ordner_des(zuletzt->Caption()));
        }
    }
    vorschlaege.push_back(DATEI_ERSTE_ZEILE(verzeichnis_.pfad("\\analyse_quelle.txt")));
    for (const std::string& ordner : vorschlaege) {
        const bool neu =
            std::find(merker_.ordner.begin(), merker_.ordner.end(), ordner) == merker_.ordner.end();
        if (neu && ordner != verzeichnis_.ordner() && ordner_vorhanden(ordner)) {
            merker_.ordner.push_back(ordner);
        }
    }
}

void Sicherungsfenster::LetzteZeigen() {
    form_.Label_Letzte.Caption =
        merker_.letzte ? "Letzte Datensicherung: " + datum_zeit_text(*merker_.letzte) + " in " + merker_.ziel
                       : "Es gibt noch keine Datensicherung.";
}

void Sicherungsfenster::OrdnerZeigen() {
    form_.List_Ordner.assign(merker_.ordner);
    form_.Command_Ordner_weg.Enabled = form_.List_Ordner.ListIndex() >= 0;
}

bool Sicherungsfenster::MerkerSchreiben() {
    try {
        merker_.SCHREIBEN(verzeichnis_);
        return true;
    } catch (const Laufzeitfehler& fehler) {
        melden("Die Angaben zur Datensicherung lassen sich nicht im Programmverzeichnis merken: " +
               std::string(fehlertext(fehler.nummer())));
        return false;
    }
}

void Sicherungsfenster::Command_Ordner_hinzu_Click() {
    const auto ordner =
        VERZEICHNIS_WAEHLEN(desktop_, merker_.ordner.empty() ? std::string() : merker_.ordner.back());
    if (!ordner) {
        return;
    }
    melden("");
    if (!ordner_vorhanden(*ordner)) {
        melden("Den Ordner " + *ordner + " gibt es nicht.");
    } else if (std::find(merker_.ordner.begin(), merker_.ordner.end(), *ordner) != merker_.ordner.end()) {
        melden("Dieser Ordner ist schon dabei.");
    } else {
        merker_.ordner.push_back(*ordner);
        MerkerSchreiben();
        OrdnerZeigen();
    }
}

void Sicherungsfenster::Command_Ordner_weg_Click() {
    const int zeile = form_.List_Ordner.ListIndex();
    if (zeile < 0) {
        return;
    }
    melden("");
    merker_.ordner.erase(merker_.ordner.begin() + zeile);
    MerkerSchreiben();
    OrdnerZeigen();
}

void Sicherungsfenster::Command_Sichern_Click() {
    melden("");
    std::string ziel;
    try {
        ziel = Dateiwahl();
        Schreiben(ziel);
    } catch (const Laufzeitfehler& fehler) {
        if (ziel.empty() && fehler.nummer() == fehler::kDialogAbgebrochen) {
            return;
        }
        if (fehler.nummer() == fehler::kDialogAbgebrochen) {
            melden("Die Datensicherung wurde abgebrochen, es ist nichts davon übrig.");
            return;
        }
        melden("Die Datensicherung ist nicht geschrieben.");
        dialogs_.message({"Die Datensicherung ist nicht geschrieben: " + std::string(fehler.what()) +
                              "\r\n\r\nEine frühere an diesem Ort ist unverändert.",
                          kTitel, Buttons::Ok, Symbol::Stop});
    } catch (const Sicherungsfehler& fehler) {
        melden("Die Datensicherung ist nicht geschrieben.");
        dialogs_.message({fehler.what(), kTitel, Buttons::Ok, Symbol::Stop});
    }
}

std::string Sicherungsfenster::Dateiwahl() {
    FileDialog dialog;
    dialog.filter = "ZIP-Dateien (*.zip)|*.zip|";
    dialog.proposed_name = SICHERUNGSNAME(clock_.now());
    dialog.title = kTitel;
    dialog.folder = merker_.ziel;
    return dialogs_.save_file(dialog);
}

Sicherungsplan Sicherungsfenster::Planen(const std::string& ziel) const {
    return SICHERUNG_PLANEN(verzeichnis_.ordner(), merker_.ordner,
                            {einstellungen_.Picture1.Picture(), einstellungen_.Picture_wasserz.Picture(),
                             einstellungen_.Text_logopath.Text(), einstellungen_.Text_bildpath.Text()},
                            ziel);
}

bool Sicherungsfenster::OhneUnlesbares(const Sicherungsplan& plan) {
    return plan.unlesbar.empty() ||
           dialogs_.message({"Das lässt sich nicht lesen und würde in der Datensicherung fehlen:\r\n\r\n" +
                                 aufzaehlung(plan.unlesbar) + "\r\nSoll trotzdem gesichert werden?",
                             kTitel, Buttons::YesNo, Symbol::Exclamation, Answer::No}) == Answer::Yes;
}

void Sicherungsfenster::Schreiben(const std::string& ziel) {
    const Sicherungsplan plan = Planen(ziel);
    if (!OhneUnlesbares(plan)) {
        melden("Die Datensicherung wurde abgebrochen.");
        return;
    }
    const Zeitpunkt jetzt = clock_.now();
    {
        const auto fortschritt = progress_.begin("Daten werden gesichert und geprüft");
        DATENSICHERUNG_SCHREIBEN(plan, jetzt, ziel, *fortschritt);
    }
    merker_.letzte = jetzt;
    merker_.ziel = ordner_des(ziel);
    if (MerkerSchreiben()) {
        melden("Gesichert und geprüft: " + UMFANG_TEXT(plan.dateien.size(), plan.bytes) +
               (plan.unlesbar.empty() ? "." : ". Was nicht lesbar war, fehlt."));
    }
    LetzteZeigen();
}

} // namespace quittika
