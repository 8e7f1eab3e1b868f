#include "safety/rueckgaengig.hpp"

#include "platform/gesetzt.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kRueckgaengig = "&Rückgängig";
constexpr const char* kWiederholen = "&Wiederholen";

void eintrag_zeigen(Menu& eintrag, const char* text, const char* schritt) {
    eintrag.Caption = schritt == nullptr ? std::string(text) : std::string(text) + ": " + schritt;
    eintrag.Enabled = schritt != nullptr;
}

const char* name(const Schritt* schritt) {
    return schritt == nullptr ? nullptr : schritt->name;
}

} // namespace

Rueckgaengig::Rueckgaengig(Form1& form1, Rechnungszustand& zustand, Standaufnahme& aufnahme, Activity& alles)
    : form1_(form1), zustand_(zustand), aufnahme_(aufnahme), alles_(alles) {
    alles.when_idle([this] { ruhe(); });
    form1.FieldLeft = [this] {
        vor_befehl();
        verlassen_ = true;
    };
    zustand.VorNeuemBeleg = [this] {
        if (begonnen_) {
            erfassen();
        }
    };
    menue_zeigen();
}

Rueckgaengig::~Rueckgaengig() {
    alles_.when_idle({});
    form1_.FieldLeft = [] {};
    zustand_.VorNeuemBeleg = {};
}

void Rueckgaengig::beginnen() {
    begonnen_ = true;
    verlauf_ = Verlauf<Schritt>(kSchritte);
    aufnahme_.nachfuehren(stand_);
    stand_.kennung = ++letzte_kennung_; // an invoice that was never saved has not been saved as this one
    erfassen();
}

void Rueckgaengig::ruhe() {
    if (bei_der_arbeit_) {
        return;
    }
    const Gesetzt hier(bei_der_arbeit_);
    if (!begonnen_) {
        if (form1_.loaded()) {
            beginnen();
        }
        return;
    }
    const bool getippt = std::exchange(getippt_, form1_.typed()) != form1_.typed();
    const bool verlassen = std::exchange(verlassen_, false);
    const bool gespeichert = !zustand_.geaendert() && stand_.beleg.gespeichert != stand_.kennung;
    if (std::exchange(gesehen_, form1_.revision()) == form1_.revision() && !verlassen && !gespeichert) {
        return;
    }
    if (getippt && !verlassen) {
        halten();
    } else {
        erfassen();
    }
}

/// What is being typed stays one step until the field is left.
void Rueckgaengig::halten() {
    if (!std::exchange(haelt_, true)) {
        eintrag_zeigen(form1_.m_rueckgaengig, kRueckgaengig, "Eingabe");
        eintrag_zeigen(form1_.m_wiederholen, kWiederholen, nullptr);
    }
}

void Rueckgaengig::vor_befehl() {
    if (haelt_) {
        erfassen();
    }
}

void Rueckgaengig::erfassen() {
    Schritt zurueck = aufnahme_.nachfuehren(stand_);
    if (!zurueck.leer()) {
        const auto in_der_datei = [this](const auto& feld) {
            return aufnahme_.felder()[feld.first].art <= Feldart::Kunde;
        };
        if (zurueck.beleg || !zurueck.zeilen.leer() ||
            std::any_of(zurueck.felder.begin(), zurueck.felder.end(), in_der_datei)) {
            stand_.kennung = ++letzte_kennung_;
        }
        zurueck.name = SCHRITTNAME(zurueck, stand_, aufnahme_.felder());
        verlauf_.merken(std::move(zurueck));
    }
    if (!zustand_.geaendert()) {
        stand_.beleg.gespeichert = stand_.kennung;
    }
    haelt_ = false;
    menue_zeigen();
}

void Rueckgaengig::m_rueckgaengig_Click() {
    erfassen();
    verlauf_.zurueck([this](const Schritt& ziel) {
        form1_.Hinweise.melden(std::string("Rückgängig gemacht: ") + ziel.name + ".");
        return gehen(ziel);
    });
    menue_zeigen();
}

void Rueckgaengig::m_wiederholen_Click() {
    erfassen();
    verlauf_.vor([this](const Schritt& ziel) {
        form1_.Hinweise.melden(std::string("Wiederholt: ") + ziel.name + ".");
        return gehen(ziel);
    });
    menue_zeigen();
}

Schritt Rueckgaengig::gehen(const Schritt& ziel) {
    aufnahme_.gehen(ziel);
    Schritt zurueck = aufnahme_.nachfuehren(stand_);
    zurueck.name = ziel.name;
    stand_.kennung = ziel.kennung;
    if (ziel.beleg) {
        stand_.beleg.gespeichert = ziel.beleg->gespeichert;
    }
    if (stand_.kennung == stand_.beleg.gespeichert) {
        zustand_.als_gespeichert_merken();
    } else {
        zustand_.aendern();
    }
    return zurueck;
}

void Rueckgaengig::menue_zeigen() {
    eintrag_zeigen(form1_.m_rueckgaengig, kRueckgaengig, name(naechster_zurueck()));
    eintrag_zeigen(form1_.m_wiederholen, kWiederholen, name(naechster_vor()));
}

} // namespace quittika
