#include "tools/textvorlagen.hpp"

#include "invoice/textblock.hpp"
#include "invoice/zeichenersatz.hpp"
#include "platform/datei.hpp"
#include "platform/fehlertitel.hpp"

namespace quittika {

namespace {

constexpr const char* kTitel = "Textvorlagen";
constexpr std::size_t kHoechstbytes = 1U << 24U;

/// Number of the file with the templates of a text block.
int VorlagenArt(int block) {
    return block == textblock::kBemerkungen ? 1 : 2;
}

std::string Vorlagenpfad(const Programmverzeichnis& verzeichnis, int block) {
    return verzeichnis.pfad("\\vl_" + std::to_string(VorlagenArt(block)) + ".vlg");
}

} // namespace

Textvorlagen::Textvorlagen(Form_txt_Vorlagen& form, Form1& form1, const Programmverzeichnis& verzeichnis,
                           Dialogs& dialogs)
    : form_(form),
      form1_(form1),
      dialogs_(dialogs),
      block_(TEXTBLOCK_GEWAEHLT(form1)),
      pfad_(Vorlagenpfad(verzeichnis, block_)) {
    form.Load = [this] { Form_Load(); };
    form.QueryUnload = [this](bool& abbrechen) { Form_QueryUnload(abbrechen); };
    form.Command1.Click = [&form] { form.Close(); };
    form.Command1_SAVE.Click = [this] { Command1_SAVE_Click(); };
    for (std::size_t seite = 0; seite < form.Seitenwahl().size(); ++seite) {
        form.Seitenwahl().at(seite)->Click = [this, seite] { Seite_zeigen(seite); };
    }
    for (std::size_t n = 0; n < form.Vorlagen.size(); ++n) {
        Form_txt_Vorlagen::Vorlage& vorlage = form.Vorlagen.at(n);
        vorlage.Command1_choose.Click = [this, n] { Command1_choose_Click(n); };
        for (std::size_t zeile = 0; zeile < vorlage.Text.size(); ++zeile) {
            vorlage.Text.at(zeile).Change = [this, &vorlage, zeile] { Text_Change(vorlage, zeile); };
        }
    }
}

void Textvorlagen::Form_Load() {
    form_.Caption =
        std::string(kTitel) + (block_ == textblock::kBemerkungen ? " - Bemerkungen" : " - Anschreiben");
    if (!Laden()) {
        form_.Close();
        return;
    }
    Vorlagen_geaendert_ = false;
    form_.Vorlagen.front().Text.front().SetFocus();
}

/// False where a file is there that cannot be read: saving would replace it.
bool Textvorlagen::Laden() {
    Vorlagentexte texte;
    try {
        texte = VORLAGEN_LESEN(bytes_lesen(pfad_, kHoechstbytes));
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDateiFehlt && fehler.nummer() != fehler::kPfadFehlt) {
            dialogs_.message({std::string("Die Textvorlagen konnten nicht gelesen werden.\r\n") +
                                  fehlertext(fehler.nummer()),
                              FEHLERTITEL(fehler.nummer()), Buttons::Ok, Symbol::Exclamation});
            return false;
        }
        dialogs_.message(
            {"Es sind noch keine Vorlagen angelegt worden.", kTitel, Buttons::Ok, Symbol::Information});
    }
    for (std::size_t n = 0; n < texte.size(); ++n) {
        for (std::size_t zeile = 0; zeile < texte[n].size(); ++zeile) {
            form_.Vorlagen.at(n).Text.at(zeile).Text = texte[n][zeile];
        }
    }
    return true;
}

bool Textvorlagen::Command1_SAVE_Click() {
    Vorlagentexte texte;
    for (std::size_t n = 0; n < texte.size(); ++n) {
        for (std::size_t zeile = 0; zeile < texte[n].size(); ++zeile) {
            texte[n][zeile] = form_.Vorlagen.at(n).Text.at(zeile).Text();
        }
    }
    try {
        const Textpuffer datei = VORLAGEN_SCHREIBEN(texte);
        datei_ersetzen(pfad_, datei.bytes());
        form1_.Hinweise.melden(ZEICHENERSATZ_MELDUNG(datei.ersetzt()));
    } catch (const Laufzeitfehler& fehler) {
        form1_.Hinweise.melden("Die Textvorlagen konnten nicht gespeichert werden: " +
                               std::string(fehlertext(fehler.nummer())));
        return false;
    }
    Vorlagen_geaendert_ = false;
    return true;
}

void Textvorlagen::Command1_choose_Click(std::size_t vorlage) {
    for (int n = 1; n <= kVorlagenzeilen; ++n) {
        form1_.Text_Bemerkung(n)[block_].Text =
            form_.Vorlagen.at(vorlage).Text.at(static_cast<std::size_t>(n - 1)).Text();
    }
    form_.Close();
}

void Textvorlagen::Seite_zeigen(std::size_t seite) {
    for (std::size_t n = 0; n < form_.Seiten().size(); ++n) {
        form_.Seiten().at(n)->Visible = n == seite;
    }
}

void Textvorlagen::Text_Change(Form_txt_Vorlagen::Vorlage& vorlage, std::size_t zeile) {
    Label& hinweis = vorlage.Label_Hinweis.at(zeile);
    const bool gekuerzt = vorlage.Text.at(zeile).Text().find(';') != std::string::npos;
    hinweis.Caption = gekuerzt ? "Bleibt nur bis zum ;" : "";
    hinweis.Visible = gekuerzt;
    Vorlagen_geaendert_ = true;
}

void Textvorlagen::Form_QueryUnload(bool& abbrechen) {
    if (Vorlagen_geaendert_ &&
        dialogs_.message({"Möchten Sie vorgenommene Änderungen speichern?", "Änderungen speichern?",
                          Buttons::YesNo, Symbol::Question}) == Answer::Yes) {
        abbrechen = !Command1_SAVE_Click();
    }
}

void VORLAGEN_ZEIGEN(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                     Desktop& desktop) {
    Form_txt_Vorlagen form;
    const Textvorlagen vorlagen(form, form1, verzeichnis, dialogs);
    desktop.adopt(form);
    form.Show(Modality::Modal);
}

} // namespace quittika
