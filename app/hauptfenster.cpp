#include "app/hauptfenster.hpp"

#include "app/fenstertitel.hpp"
#include "settings/fensterstatus.hpp"

#include <utility>

namespace quittika {

Hauptfenster::Hauptfenster(Form1& form1, Rechnungszustand& zustand, Ladefolge& ladefolge, Kopf& kopf,
                           Dateibefehle& dateibefehle, Entwurf& entwurf,
                           const Programmverzeichnis& verzeichnis, Desktop& desktop,
                           std::function<bool()> andere_schliessen)
    : form1_(form1),
      zustand_(zustand),
      dateibefehle_(dateibefehle),
      entwurf_(entwurf),
      verzeichnis_(verzeichnis),
      andere_schliessen_(std::move(andere_schliessen)) {
    form1.Load = [&ladefolge, &kopf] {
        ladefolge.Form_Load();
        kopf.KundeAnwaehlen();
    };
    form1.QueryUnload = [this](bool& abbrechen) { Form_QueryUnload(abbrechen); };
    form1.Unload = [&desktop, &entwurf] {
        entwurf.Verwerfen();
        desktop.end();
    };
    zustand.Gewechselt = [this] { StandZeigen(); };
}

void Hauptfenster::Form_QueryUnload(bool& abbrechen) {
    if (!ohne_frage_schliessen_) {
        FENSTERSTATUS_SPEICHERN(form1_, verzeichnis_);
        abbrechen = !dateibefehle_.VorherSpeichern(Buttons::YesNoCancel) || !andere_schliessen_();
    }
}

void Hauptfenster::StandZeigen() {
    form1_.Caption = FENSTERTITEL(zustand_);
    form1_.Modified = zustand_.geaendert();
    if (!zustand_.geaendert()) {
        entwurf_.Verwerfen();
    }
}

void Hauptfenster::m_beenden_Click() {
    FENSTERSTATUS_SPEICHERN(form1_, verzeichnis_);
    if (zustand_.geaendert() && !dateibefehle_.VorherSpeichern(Buttons::YesNo)) {
        return;
    }
    if (!andere_schliessen_()) {
        return;
    }
    ohne_frage_schliessen_ = true;
    form1_.Close();
}

void Hauptfenster::SofortBeenden() {
    ohne_frage_schliessen_ = true;
    form1_.Close();
}

bool Hauptfenster::ArbeitSichern() {
    return (!zustand_.geaendert() || dateibefehle_.VorherSpeichern(Buttons::YesNoCancel)) &&
           andere_schliessen_();
}

} // namespace quittika
