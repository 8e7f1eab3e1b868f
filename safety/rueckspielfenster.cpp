#include "safety/rueckspielfenster.hpp"

#include "analyzer/verzeichniswahl.hpp"
#include "platform/forms/tasten.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "safety/datensicherung.hpp"
#include "safety/sicherungsmerker.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kTitel = "Sicherung zurückspielen";
constexpr int kLeertaste = 32;
constexpr int kHaekchenbreite = twips(40);
constexpr std::size_t kTitelbreite = 34; ///< characters
constexpr std::size_t kUmfangbreite = 22;

std::string gekuerzt_auf(const std::string& text, std::size_t breite) {
    return zeichenzahl(text) <= breite ? text : links(text, breite - 2) + "..";
}

std::string spalten(const std::string& titel, const std::string& umfang, const std::string& zeit) {
    return linksbuendig(gekuerzt_auf(titel, kTitelbreite), kTitelbreite) +
           rechtsbuendig(umfang, kUmfangbreite) + "   " + zeit;
}

std::string zeile(const Sicherungsteil& teil, bool gewaehlt) {
    return (gewaehlt ? "[x] " : "[ ] ") + spalten(teil.titel, UMFANG_TEXT(teil.dateien.size(), teil.bytes()),
                                                  datum_zeit_text(ORTSZEIT(teil.juengste())));
}

/// Whether the program holds in memory what the part replaces.
bool braucht_neustart(const Sicherungsteil& teil) {
    return teil.gruppe && *teil.gruppe != Programmgruppe::Fassungen &&
           *teil.gruppe != Programmgruppe::Rechnungen;
}

std::string liste_der(const std::vector<Neuere>& neuere) {
    constexpr std::size_t kHoechstens = 10;
    std::string text;
    for (std::size_t i = 0; i < std::min(neuere.size(), kHoechstens); ++i) {
        text += neuere[i].ort + "\r\n    hier vom " + datum_zeit_text(ORTSZEIT(neuere[i].zeit)) +
                ", gesichert vom " + datum_zeit_text(ORTSZEIT(neuere[i].gesichert)) + "\r\n";
    }
    return neuere.size() > kHoechstens
               ? text + "und " + std::to_string(neuere.size() - kHoechstens) + " weitere\r\n"
               : text;
}

std::string anzahl(std::size_t n) {
    return n == 1 ? "1 Datei"
                  : (n == 0 ? "Keine" : std::to_string(n)) + std::string(n == 0 ? " Datei" : " Dateien");
}

} // namespace

/// The backup in hand and what is chosen of it.
struct Rueckspielfenster::Auswahl {
    Auswahl(const Sicherungsinhalt& backup, Form_Rueckspielen& fenster)
        : inhalt(backup), form(fenster), gewaehlt(backup.teile().size(), true) {
        zeigen();
        form.List_Teile.ListIndex = 0;
    }

    void zeigen() {
        std::vector<std::string> zeilen;
        for (std::size_t i = 0; i < gewaehlt.size(); ++i) {
            zeilen.push_back(zeile(inhalt.teile()[i], gewaehlt[i]));
        }
        form.List_Teile.assign(std::move(zeilen));
        hinweisen();
    }
    void hinweisen() {
        std::size_t dateien = 0;
        std::uint64_t bytes = 0;
        for (std::size_t i = 0; i < gewaehlt.size(); ++i) {
            dateien += gewaehlt[i] ? inhalt.teile()[i].dateien.size() : 0;
            bytes += gewaehlt[i] ? inhalt.teile()[i].bytes() : 0;
        }
        form.Command_Zurueck.Enabled = dateien > 0;
        const int markiert = form.List_Teile.ListIndex();
        const std::string ort = markiert < 0 ? "" : inhalt.teile()[static_cast<std::size_t>(markiert)].ordner;
        form.Label_Ort.Caption = ort.empty() ? "Ordner: der des Programms" : "Ordner: " + ort;
        form.Label_Hinweis.Caption =
            dateien == 0
                ? "Es ist nichts gewählt."
                : "Gewählt: " + UMFANG_TEXT(dateien, bytes) + "." +
                      (neustart() ? " Quittika beendet sich danach: bitte starten Sie es dann neu." : "");
    }
    void umschalten() {
        const int nummer = form.List_Teile.ListIndex();
        if (nummer >= 0) {
            const auto i = static_cast<std::size_t>(nummer);
            gewaehlt[i] = !gewaehlt[i];
            zeigen();
        }
    }
    void alle(bool wert) {
        gewaehlt.assign(gewaehlt.size(), wert);
        zeigen();
    }
    bool neustart() const {
        for (std::size_t i = 0; i < gewaehlt.size(); ++i) {
            if (gewaehlt[i] && braucht_neustart(inhalt.teile()[i])) {
                return true;
            }
        }
        return false;
    }

    const Sicherungsinhalt& inhalt;
    Form_Rueckspielen& form;
    std::vector<bool> gewaehlt;
    bool am_haekchen = false; ///< the mouse is pressed there
    Rueckspielstand stand;
    bool fertig = false;
};

Rueckspielfenster::Rueckspielfenster(const Programmverzeichnis& verzeichnis, Desktop& desktop,
                                     Dialogs& dialogs, Progress& progress, Programm programm)
    : verzeichnis_(verzeichnis),
      desktop_(desktop),
      dialogs_(dialogs),
      progress_(progress),
      programm_(std::move(programm)) {}

std::optional<Sicherungsinhalt> Rueckspielfenster::Oeffnen(std::string& pfad) {
    try {
        FileDialog dialog;
        dialog.filter = "ZIP-Dateien (*.zip)|*.zip|";
        dialog.title = kTitel;
        dialog.folder = Sicherungsmerker::LESEN(verzeichnis_).ziel;
        pfad = dialogs_.open_file(dialog);
        return std::make_optional<Sicherungsinhalt>(pfad);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            dialogs_.message({fehler.what(), kTitel, Buttons::Ok, Symbol::Stop});
        }
    } catch (const Sicherungsfehler& fehler) {
        dialogs_.message({fehler.what(), kTitel, Buttons::Ok, Symbol::Stop});
    }
    return std::nullopt;
}

void Rueckspielfenster::m_zurueckspielen_Click() {
    std::string pfad;
    const std::optional<Sicherungsinhalt> inhalt = Oeffnen(pfad);
    if (!inhalt) {
        return;
    }
    Form_Rueckspielen form;
    Auswahl auswahl(*inhalt, form);
    const auto zeit = iso_lesen(inhalt->zeit());
    form.Label_Datei.Caption = pfad + (zeit ? "\r\nDatensicherung vom " + datum_zeit_text(*zeit) : "");
    form.Label_Kopf.Caption = "    " + spalten("Was", "Umfang", "Zuletzt geändert");
    form.List_Teile.KeyDown = TASTEN({{kLeertaste, [&auswahl] { auswahl.umschalten(); }}});
    form.List_Teile.DblClick = [&auswahl] { auswahl.umschalten(); };
    form.List_Teile.MouseDown = [&auswahl](const MouseEvent& maus) {
        auswahl.am_haekchen = maus.x < kHaekchenbreite;
    };
    form.List_Teile.Click = [&auswahl] {
        if (std::exchange(auswahl.am_haekchen, false)) {
            auswahl.umschalten();
        }
        auswahl.hinweisen();
    };
    form.Command_Wahl.Click = [&auswahl] { auswahl.umschalten(); };
    form.Command_Alle.Click = [&auswahl] { auswahl.alle(true); };
    form.Command_Keine.Click = [&auswahl] { auswahl.alle(false); };
    form.Command_Abbrechen.Click = [&form] { form.Close(); };
    form.Command_Zurueck.Click = [this, &auswahl] { Command_Zurueck_Click(auswahl); };
    desktop_.adopt(form);
    form.Show(Modality::Modal);
    if (auswahl.fertig) {
        const bool neustart = auswahl.neustart() && auswahl.stand.zurueck > 0;
        ErgebnisMelden(auswahl.stand, neustart);
        if (neustart) {
            programm_.beenden();
        }
    }
}

void Rueckspielfenster::Command_Zurueck_Click(Auswahl& auswahl) {
    const auto auftraege = Auftraege(auswahl);
    if (!auftraege) {
        return;
    }
    // Saving makes files newer: it comes before they are looked at.
    if (auswahl.neustart() && !programm_.vorher()) {
        return;
    }
    const auto ersetzen = NeuereErsetzen(auswahl, *auftraege);
    if (!ersetzen) {
        return;
    }
    {
        const auto fortschritt = progress_.begin("Dateien werden zurückgespielt");
        auswahl.stand = ZURUECKSPIELEN(auswahl.inhalt, *auftraege, *ersetzen, *fortschritt);
    }
    OrdnerMerken(*auftraege);
    auswahl.fertig = true;
    auswahl.form.Close();
}

std::optional<std::vector<Rueckspielauftrag>> Rueckspielfenster::Auftraege(const Auswahl& auswahl) {
    std::vector<Rueckspielauftrag> auftraege;
    for (std::size_t i = 0; i < auswahl.gewaehlt.size(); ++i) {
        if (!auswahl.gewaehlt[i]) {
            continue;
        }
        const Sicherungsteil& teil = auswahl.inhalt.teile()[i];
        const auto ziel = Zielordner(teil);
        if (!ziel) {
            return std::nullopt;
        }
        auftraege.push_back({&teil, *ziel});
    }
    return auftraege;
}

std::optional<std::string> Rueckspielfenster::Zielordner(const Sicherungsteil& teil) {
    if (teil.gruppe) {
        return verzeichnis_.ordner();
    }
    const auto& bekannt = Sicherungsmerker::LESEN(verzeichnis_).ordner;
    const bool vorhanden = ordner_vorhanden(teil.ordner);
    if (vorhanden && std::find(bekannt.begin(), bekannt.end(), teil.ordner) != bekannt.end()) {
        return teil.ordner;
    }
    // A backup may come from anybody: where its files go outside of the program folder, the user says.
    const std::string was = teil.bilder ? "Die Bilder" : "Die Rechnungen";
    const Answer antwort =
        dialogs_.message({was + " lagen in diesem Ordner" + (vorhanden ? ":" : ", den es nicht gibt:") +
                              "\r\n\r\n" + teil.ordner + "\r\n\r\n" +
                              (vorhanden ? "Sollen sie dorthin zurück?"
                                         : "Soll er angelegt werden, und sollen sie dorthin zurück?") +
                              "\r\nNein wählt einen anderen Ordner.",
                          kTitel, Buttons::YesNoCancel, Symbol::Question});
    if (antwort == Answer::Yes) {
        return teil.ordner;
    }
    return antwort == Answer::No ? VERZEICHNIS_WAEHLEN(desktop_, teil.ordner) : std::nullopt;
}

std::optional<bool> Rueckspielfenster::NeuereErsetzen(const Auswahl& auswahl,
                                                      const std::vector<Rueckspielauftrag>& auftraege) {
    const std::vector<Neuere> neuere = NEUERE_DATEIEN(auswahl.inhalt, auftraege);
    if (neuere.empty()) {
        return false;
    }
    const std::string frage =
        neuere.size() == 1 ? "Diese Datei ist neuer als die gesicherte:\r\n\r\n" + liste_der(neuere) +
                                 "\r\nSoll sie trotzdem ersetzt werden?\r\nNein behält sie und "
                                 "spielt das Übrige zurück."
                           : "Diese Dateien sind neuer als die gesicherten:\r\n\r\n" + liste_der(neuere) +
                                 "\r\nSollen sie alle trotzdem ersetzt werden?\r\nNein behält sie "
                                 "und spielt das Übrige zurück.";
    const Answer antwort =
        dialogs_.message({frage, kTitel, Buttons::YesNoCancel, Symbol::Exclamation, Answer::No});
    return antwort == Answer::Cancel ? std::nullopt : std::optional(antwort == Answer::Yes);
}

void Rueckspielfenster::OrdnerMerken(const std::vector<Rueckspielauftrag>& auftraege) {
    Sicherungsmerker merker = Sicherungsmerker::LESEN(verzeichnis_);
    const std::size_t bisher = merker.ordner.size();
    for (const Rueckspielauftrag& auftrag : auftraege) {
        const bool bekannt =
            std::find(merker.ordner.begin(), merker.ordner.end(), auftrag.ziel) != merker.ordner.end();
        if (!auftrag.teil->gruppe && !auftrag.teil->bilder && !bekannt) {
            merker.ordner.push_back(auftrag.ziel);
        }
    }
    try {
        if (merker.ordner.size() != bisher) {
            merker.SCHREIBEN(verzeichnis_);
        }
    } catch (const Laufzeitfehler&) {
        // The user is asked for them again.
    }
}

void Rueckspielfenster::ErgebnisMelden(const Rueckspielstand& stand, bool neustart) {
    std::string text =
        (stand.abgebrochen ? "Abgebrochen. " : "") + anzahl(stand.zurueck) + " zurückgespielt.";
    if (stand.gleich > 0) {
        text += " " + anzahl(stand.gleich) + (stand.gleich == 1 ? " war" : " waren") + " schon gleich.";
    }
    if (stand.behalten > 0) {
        text += " " + anzahl(stand.behalten) + (stand.behalten == 1 ? " ist" : " sind") + " neuer und blieb" +
                (stand.behalten == 1 ? "." : "en.");
    }
    if (!stand.fehler.empty()) {
        text += "\r\n\r\n" + stand.fehler;
    }
    if (neustart) {
        text +=
            "\r\n\r\nQuittika beendet sich jetzt, damit das Zurückgespielte gilt: bitte starten Sie es neu.";
    }
    dialogs_.message(
        {text, kTitel, Buttons::Ok, stand.fehler.empty() ? Symbol::Information : Symbol::Exclamation});
}

} // namespace quittika
