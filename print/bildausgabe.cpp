#include "print/bildausgabe.hpp"

#include "print/ausgabedatei.hpp"
#include "print/form_druckvorschau.hpp"
#include "tools/dokument_oeffnen.hpp"

#include <memory>
#include <utility>
#include <vector>

namespace quittika {

namespace {

constexpr const char* kEndung = ".bmp";
constexpr int kAufloesung = 200; ///< dots an inch

std::string seitenname(const std::string& name, int seite, int seiten) {
    return name + "_SEITE_" + std::to_string(seite) + "_von_" + std::to_string(seiten);
}

std::vector<std::string> dateien(const std::string& name, int seiten) {
    std::vector<std::string> alle;
    for (int seite = 1; seite <= seiten; ++seite) {
        alle.push_back(seitenname(name, seite, seiten) + kEndung);
    }
    return alle;
}

} // namespace

Bildausgabe::Bildausgabe(Form1& form1, const Vorschauzeichnung& zeichnung, Printing& printing,
                         Dialogs& dialogs, Shell& shell, Progress& progress,
                         std::function<void()> jetztberechnen_List)
    : form1_(form1),
      zeichnung_(zeichnung),
      printing_(printing),
      dialogs_(dialogs),
      shell_(shell),
      progress_(progress),
      jetztberechnen_List_(std::move(jetztberechnen_List)) {}

void Bildausgabe::Command_SAVE_VORSCHAU_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    jetztberechnen_List_();
    FileDialog dialog;
    dialog.filter = "(*.bmp)|*.bmp|";
    dialog.proposed_name = "EXPORTDATEI - " + form1_.Text_rechnung.Text() + form1_.Text_RNnr.Text() + kEndung;
    dialog.asks_before_replacing = false;
    try {
        speichern(OHNE_ENDUNG(dialogs_.save_file(dialog), kEndung));
    } catch (const Laufzeitfehler& fehler) {
        AUSGABEFEHLER_MELDEN(fehler, form1_, dialogs_);
    }
}

void Bildausgabe::speichern(const std::string& name) {
    Form_Druckvorschau form; // never shown: its picture takes the pages
    const int seiten = zeichnung_.VORSCHAU_RECHNUNG(form.Picture1, 1).seiten;
    if (!ERSETZEN_ERLAUBT(dateien(name, seiten), dialogs_)) {
        return;
    }
    const int fertig = seiten_speichern(form.Picture1, name, seiten);
    if (fertig < seiten) {
        form1_.Hinweise.melden("Abgebrochen: " + std::to_string(fertig) + " von " + std::to_string(seiten) +
                               " Seiten sind als Bild gespeichert.");
        return;
    }
    const std::string erste = seitenname(name, 1, seiten);
    OEFFNEN_ANBIETEN(erste, erste + kEndung, dialogs_, shell_);
}

int Bildausgabe::seiten_speichern(PictureControl& bild, const std::string& name, int seiten) {
    const std::unique_ptr<ProgressDisplay> fortschritt =
        progress_.begin("Seiten werden als Bild gespeichert");
    int fertig = 0;
    for (const std::string& datei : dateien(name, seiten)) {
        form1_.Hinweise.melden(zeichnung_.VORSCHAU_RECHNUNG(bild, fertig + 1, false).hinweis);
        printing_.save_page(*bild.page(), datei, kAufloesung);
        ++fertig;
        fortschritt->update(static_cast<std::size_t>(fertig), static_cast<std::size_t>(seiten),
                            "Seite " + std::to_string(fertig) + "/" + std::to_string(seiten));
        if (fortschritt->aborted()) {
            break;
        }
    }
    return fertig;
}

} // namespace quittika
