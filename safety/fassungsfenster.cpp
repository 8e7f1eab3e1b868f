#include "safety/fassungsfenster.hpp"

#include "invoice/file/hindernis.hpp"
#include "invoice/programmname.hpp"
#include "platform/datei.hpp"
#include "platform/datum.hpp"
#include "platform/recording.hpp"
#include "platform/text.hpp"
#include "print/vorschaumass.hpp"
#include "safety/belegauszug.hpp"
#include "safety/fassungsvergleich.hpp"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

namespace quittika {

namespace {

constexpr std::size_t kHoechstbytes = 50U << 20U;

/// The fields of a line of a list, which "|" parts.
std::string listenzeile(std::initializer_list<std::string> felder) {
    std::string zeile;
    for (const std::string& feld : felder) {
        zeile += (zeile.empty() ? "" : "|") + (feld.empty() ? " " : ersetzen(feld, "|", "/"));
    }
    return zeile;
}

std::string fassungszeile(const Fassung& fassung, bool rechnung) {
    try {
        if (rechnung) {
            const Belegauszug auszug = BELEGAUSZUG(bytes_lesen(fassung.pfad, kHoechstbytes));
            const bool mit_zeit = auszug.lesbar && !auszug.gespeichert.empty();
            return listenzeile({mit_zeit ? auszug.gespeichert : datum_zeit_text(fassung.zeit), auszug.kunde,
                                auszug.nummer, auszug.betrag});
        }
    } catch (const Laufzeitfehler&) {
        return listenzeile({datum_zeit_text(fassung.zeit), "nicht lesbar", "", ""});
    }
    return listenzeile({datum_zeit_text(fassung.zeit), "", "", ""});
}

std::string marke(Vergleichszeile::Art art) {
    switch (art) {
    case Vergleichszeile::Art::NurFrueher:
        return "− früher";
    case Vergleichszeile::Art::NurJetzt:
        return "+ jetzt";
    default:
        return "=";
    }
}

std::string dateiname(const std::string& pfad) {
    return std::filesystem::path(pfad).filename().string();
}

} // namespace

Fassungsfenster::Fassungsfenster(const Form1& form1, Rechnungszustand& zustand, const Fassungsablage& ablage,
                                 Dateibefehle& dateibefehle, Desktop& desktop, Dialogs& dialogs,
                                 MusterMachen muster)
    : form1_(form1),
      zustand_(zustand),
      ablage_(ablage),
      dateibefehle_(dateibefehle),
      desktop_(desktop),
      dialogs_(dialogs),
      muster_(std::move(muster)) {}

void Fassungsfenster::m_Fassungen_Click() {
    std::vector<Fassungsgruppe> gruppen = ablage_.Gruppen();
    if (gruppen.empty()) {
        dialogs_.message(
            {"Es gibt noch keine früheren Fassungen: sie entstehen, wenn eine Rechnung, eine Liste "
             "oder eine Einstellung zum zweiten Mal gespeichert wird.",
             kProgrammname, Buttons::Ok, Symbol::Information});
        return;
    }
    Anzeige a;
    a.gruppen = std::move(gruppen);
    a.muster = muster_();
    desktop_.adopt(a.form);
    Verdrahten(a);
    GruppenZeigen(a);
    a.form.Show(Modality::Modal);
}

void Fassungsfenster::Verdrahten(Anzeige& a) {
    a.form.Combo_Datei.Click = [&a] { GruppeZeigen(a); };
    a.form.List_Fassungen.Click = [this, &a] { FassungZeigen(a); };
    a.form.List_Fassungen.DblClick = [this, &a] { Oeffnen(a); };
    a.form.Frame_Blatt.Resize = [&a] { Anordnen(a.form); };
    a.form.Command_Oeffnen.Click = [this, &a] { Oeffnen(a); };
    a.form.Command_Kopie.Click = [this, &a] { Kopieren(a); };
    a.form.Command_Schliessen.Click = [&a] { a.form.Close(); };
    a.form.Load = [&a] { a.form.List_Fassungen.SetFocus(); };
}

void Fassungsfenster::GruppenZeigen(Anzeige& a) const {
    const std::string jetzige =
        zustand_.AktuellerPfad().empty() ? std::string() : ablage_.Gruppenordner(zustand_.AktuellerPfad());
    int gewaehlt = 0;
    for (const Fassungsgruppe& gruppe : a.gruppen) {
        if (gruppe.ordner == jetzige) {
            gewaehlt = a.form.Combo_Datei.ListCount();
        }
        a.form.Combo_Datei.AddItem(dateiname(gruppe.herkunft));
    }
    a.form.Combo_Datei.ListIndex = gewaehlt;
}

void Fassungsfenster::GruppeZeigen(Anzeige& a) {
    const Fassungsgruppe& gruppe = a.gruppen.at(static_cast<std::size_t>(a.form.Combo_Datei.ListIndex()));
    a.form.Label_Pfad.Caption = std::filesystem::path(gruppe.herkunft).parent_path().string();
    a.fassungen = Fassungsablage::Fassungen(gruppe.ordner);
    a.form.List_Fassungen.Clear();
    for (const Fassung& fassung : a.fassungen) {
        a.form.List_Fassungen.AddItem(fassungszeile(fassung, gruppe.rechnung));
    }
    a.form.List_Fassungen.ListIndex = a.fassungen.empty() ? -1 : 0;
}

std::optional<std::string> Fassungsfenster::Inhalt(const Anzeige& a) const {
    const int n = a.form.List_Fassungen.ListIndex();
    if (n < 0) {
        return std::nullopt;
    }
    try {
        return bytes_lesen(a.fassungen.at(static_cast<std::size_t>(n)).pfad, kHoechstbytes);
    } catch (const Laufzeitfehler& fehler) {
        dialogs_.message({"Diese Fassung lässt sich nicht lesen. " + OEFFNUNGSHINDERNIS(fehler),
                          kProgrammname, Buttons::Ok, Symbol::Exclamation});
        return std::nullopt;
    }
}

void Fassungsfenster::FassungZeigen(Anzeige& a) const {
    const auto bytes = Inhalt(a);
    const bool rechnung = bytes && BELEGAUSZUG(*bytes).lesbar && a.muster->LESEN(*bytes);
    a.form.Command_Oeffnen.Enabled = rechnung;
    a.form.Command_Kopie.Enabled = bytes.has_value();
    a.form.Picture1.Visible = rechnung;
    a.form.List_Vergleich.Clear();
    a.form.Label_Vergleich.Caption = "";
    if (rechnung) {
        a.form.Label_Hinweis.Caption = a.muster->ZEICHNEN(a.form.Picture1);
        Vergleichen(a);
        Anordnen(a.form);
    } else {
        a.form.Label_Hinweis.Caption = "Diese Datei ist keine Rechnung: >>Kopie speichern...<< legt die "
                                       "Fassung dorthin, wo Sie sie brauchen.";
    }
    a.form.Label_Hinweis.Visible = !a.form.Label_Hinweis.Caption().empty();
}

void Fassungsfenster::Vergleichen(Anzeige& a) const {
    const std::vector<Vergleichszeile> zeilen = FASSUNGEN_VERGLEICHEN(a.muster->beleg(), form1_);
    std::vector<std::string> texte;
    int verschieden = 0;
    for (const Vergleichszeile& z : zeilen) {
        texte.push_back(listenzeile({marke(z.art), z.menge, z.leistung, z.preis, z.gesamt}));
        verschieden += z.art == Vergleichszeile::Art::Gleich ? 0 : 1;
    }
    a.form.List_Vergleich.assign(std::move(texte));
    a.form.Label_Vergleich.Caption = verschieden == 0 ? "Zeilen und Beträge wie in der Rechnung im Fenster"
                                                      : "Verglichen mit der Rechnung im Fenster";
}

void Fassungsfenster::Anordnen(Form_Fassungen& form) {
    const Paper blatt = form.Picture1.page() == nullptr ? Paper() : form.Picture1.page()->paper;
    const Vorschauraum raum{form.Frame_Blatt.Width(), form.Frame_Blatt.Height()};
    const Bildmass mass = scrollerJustierung(blatt, raum, AUF_GANZE_SEITE(blatt, raum));
    form.Picture1.Width = mass.breite;
    form.Picture1.Height = mass.hoehe;
    form.Picture1.Left = std::max(0, (raum.breite - mass.breite) / 2);
    form.Picture1.Top = std::max(0, (raum.hoehe - mass.hoehe) / 2);
}

void Fassungsfenster::Oeffnen(Anzeige& a) {
    const auto bytes = a.form.Command_Oeffnen.Enabled() ? Inhalt(a) : std::nullopt;
    if (!bytes || (zustand_.geaendert() && !dateibefehle_.VorherSpeichern(Buttons::YesNoCancel))) {
        return;
    }
    a.form.Close();
    dateibefehle_.AlsUngespeichertOeffnen(*bytes);
}

void Fassungsfenster::Kopieren(const Anzeige& a) {
    const auto bytes = Inhalt(a);
    if (!bytes) {
        return;
    }
    try {
        const std::string& herkunft =
            a.gruppen.at(static_cast<std::size_t>(a.form.Combo_Datei.ListIndex())).herkunft;
        datei_ersetzen(dialogs_.save_file({"Alle Dateien|*", dateiname(herkunft), "Kopie speichern"}),
                       *bytes);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            dialogs_.message(
                {SPEICHERHINDERNIS(fehler), "FEHLER BEIM SPEICHERN", Buttons::Ok, Symbol::Exclamation});
        }
    }
}

} // namespace quittika
