#include "analyzer/verzeichniswahl.hpp"

#include "analyzer/form_verzwahlauftrag.hpp"
#include "platform/laufwerke.hpp"
#include "platform/text.hpp"
#include "platform/verzeichnis.hpp"

namespace quittika {

namespace {

/// The window of the choice.
class Verzeichniswahl {
public:
    Verzeichniswahl(Form_VerzWahlAuftrag& form, const std::string& anfang) : form_(form) {
        form.Drive1.Change = [this] { form_.Dir1.Path = form_.Drive1.Path(); };
        form.Dir1.Change = [this] { form_.Text_VerzWahl.Text = form_.Dir1.Path(); };
        form.Text_VerzWahl.Change = [this] { HinweisZeigen(); };
        form.Text_VerzWahl.LostFocus = [this] { Text_VerzWahl_LostFocus(); };
        form.Command_OK.Click = [this] { Command_OK_Click(); };
        form.Command_Cancel.Click = [&form] { form.Close(); };
        form.Dir1.Path = ordner_vorhanden(anfang) ? anfang : HEIMORDNER();
    }

    const std::optional<std::string>& gewaehlt() const { return gewaehlt_; }

private:
    std::string Verzeichnis() const {
        return VERZEICHNIS_LESEN(form_.Text_VerzWahl.Text(), form_.Dir1.Path());
    }

    void HinweisZeigen() {
        form_.Label_Hinweis.Caption =
            ordner_vorhanden(Verzeichnis()) ? "" : "Dieses Verzeichnis gibt es nicht.";
    }

    void Text_VerzWahl_LostFocus() {
        const std::string verzeichnis = Verzeichnis();
        if (ordner_vorhanden(verzeichnis)) {
            form_.Dir1.Path = verzeichnis;
            form_.Text_VerzWahl.Text = verzeichnis;
        }
    }

    void Command_OK_Click() {
        if (!gekuerzt(form_.Text_VerzWahl.Text()).empty()) {
            gewaehlt_ = Verzeichnis();
        }
        form_.Close();
    }

    Form_VerzWahlAuftrag& form_;
    std::optional<std::string> gewaehlt_;
};

} // namespace

std::string VERZEICHNIS_LESEN(std::string_view getippt, const std::string& ordner) {
    std::string pfad = gekuerzt(getippt);
    if (pfad == "~" || beginnt_mit(pfad, "~/")) {
        pfad.replace(0, 1, HEIMORDNER());
    } else if (!beginnt_mit(pfad, "/")) {
        pfad.insert(0, ordner + "/");
    }
    while (pfad.size() > 1 && pfad.back() == '/') {
        pfad.pop_back();
    }
    return pfad;
}

std::optional<std::string> VERZEICHNIS_WAEHLEN(Desktop& desktop, const std::string& anfang) {
    Form_VerzWahlAuftrag form;
    const Verzeichniswahl wahl(form, anfang);
    desktop.adopt(form);
    form.Show(Modality::Modal);
    return wahl.gewaehlt();
}

} // namespace quittika
