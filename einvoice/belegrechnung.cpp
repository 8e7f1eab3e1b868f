#include "einvoice/belegrechnung.hpp"

#include <algorithm>
#include <cstdint>

namespace quittika {

namespace {

constexpr std::int64_t kPreisJeCent = 10'000;
constexpr std::int64_t kMengeEins = 10'000;

Cent gerundet(Preis betrag) {
    return {mal_durch(betrag.wert, 1, kPreisJeCent)};
}

/// Without the VAT at this rate that it contains.
template <class Zahl> Zahl netto(Zahl brutto, Prozent satz) {
    return {mal_durch(brutto.wert, kHundertProzent, kHundertProzent + satz.wert)};
}

template <class Zahl> Zahl anteil(Zahl von, Prozent satz) {
    return {mal_durch(von.wert, satz.wert, kHundertProzent)};
}

/// Every amount rounded by itself.
void einzeln_runden(const Rechengrundlage& g, Rechenwerte& w) {
    for (std::size_t i = 0; i < g.positionen.size(); ++i) {
        const Preis betrag{mal_durch(g.positionen[i].menge.wert, w.einzelpreise[i].wert, kMengeEins)};
        w.betraege.push_back(gerundet(betrag));
        w.summen.zeilen += w.betraege.back();
    }
    w.rabatt = anteil(w.summen.zeilen, g.rabatt);
}

/// Each row is what it adds to the rounded sum of all rows so far.
void gemeinsam_runden(const Rechengrundlage& g, Rechenwerte& w) {
    Preis summe;
    for (const Position& position : g.positionen) {
        summe.wert = mal_durch(summe.wert + position.gesamt.wert, 1, 1); // stops before it overflows
        const Cent bisher = gerundet(netto(summe, g.enthalten));
        w.betraege.push_back(bisher - w.summen.zeilen);
        w.summen.zeilen = bisher;
    }
    const Preis nach_rabatt = summe - anteil(summe, g.rabatt);
    w.rabatt = w.summen.zeilen - gerundet(netto(nach_rabatt, g.enthalten));
}

void steuer_aufnehmen(std::vector<Steuergruppe>& gruppen, const Steuerart& art, Cent betrag) {
    const auto gruppe =
        std::find_if(gruppen.begin(), gruppen.end(), [&](const Steuergruppe& g) { return g.steuer == art; });
    if (gruppe != gruppen.end()) {
        gruppe->grundlage += betrag;
    } else {
        gruppen.push_back({art, betrag, {}, {}, {}});
    }
}

Rechenwerte rechnen(const Rechengrundlage& g, void (*runden)(const Rechengrundlage&, Rechenwerte&)) {
    Rechenwerte w;
    for (const Position& position : g.positionen) {
        w.einzelpreise.push_back(netto(position.preis, g.enthalten));
    }
    runden(g, w);
    w.versand = netto(g.versand, g.versandsteuer.satz);
    steuer_aufnehmen(w.steuern, g.steuer, w.summen.zeilen - w.rabatt);
    if (w.versand != Cent{}) {
        steuer_aufnehmen(w.steuern, g.versandsteuer, w.versand);
    }
    for (Steuergruppe& gruppe : w.steuern) {
        gruppe.betrag = anteil(gruppe.grundlage, gruppe.steuer.satz);
        w.summen.steuer += gruppe.betrag;
    }
    w.summen.netto = w.summen.zeilen - w.rabatt + w.versand;
    w.summen.brutto = w.summen.netto + w.summen.steuer;
    w.summen.zahlbetrag = g.gesamt;
    w.summen.rundung = g.gesamt - w.summen.brutto;
    return w;
}

bool passt(const Rechenwerte& w) {
    return w.summen.rundung <= kGroessteRundung && -w.summen.rundung <= kGroessteRundung;
}

} // namespace

Rechenwerte BELEG_RECHNEN(const Rechengrundlage& grundlage) {
    Rechenwerte einzeln = rechnen(grundlage, einzeln_runden);
    if (passt(einzeln)) {
        return einzeln;
    }
    Rechenwerte gemeinsam = rechnen(grundlage, gemeinsam_runden);
    return passt(gemeinsam) ? gemeinsam : einzeln;
}

} // namespace quittika
