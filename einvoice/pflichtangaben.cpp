#include "einvoice/pflichtangaben.hpp"

#include "einvoice/erkennung.hpp"
#include "einvoice/festkomma.hpp"
#include "platform/datei.hpp"
#include "platform/datum.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"

#include <algorithm>
#include <initializer_list>

namespace quittika {

namespace {

constexpr Cent kKleinbetrag{250'00};

/// Where an invoice file has the number of the invoice.
constexpr int kNummernzeile = 80;

std::string nummer_aus_datei(const std::string& pfad) {
    constexpr std::size_t kGenug = 32'000; // lines
    std::vector<std::string> zeilen = zeilen_lesen(pfad, kGenug);
    std::erase_if(zeilen, [](const std::string& zeile) { return beginnt_mit(zeile, "#qk8LIST#;"); });
    const bool rechnung = zeilen.size() > kNummernzeile && zeilen.front() == "qk8";
    return rechnung ? gekuerzt(zeilen[kNummernzeile]) : std::string();
}

class Pflichtpruefer {
public:
    explicit Pflichtpruefer(const Belegquelle& quelle)
        : q_(quelle),
          firma_(VERKAEUFER_VORSCHLAG(quelle)),
          kunde_(KAEUFER_VORSCHLAG(quelle)),
          betrag_(festkomma_lesen<Cent>(quelle.Gesamtbetrag).value_or(Cent{})) {
        texte_ = grossbuchstaben(q_.Titel);
        for (const std::vector<std::string>* block : {&q_.Anschreiben, &q_.Bemerkungen, &q_.Bankzeilen}) {
            for (const std::string& zeile : *block) {
                texte_ += "\n" + grossbuchstaben(zeile);
            }
        }
        for (const Quellzeile& zeile : q_.zeilen) {
            texte_ += "\n" + grossbuchstaben(zeile.Leistung);
        }
    }

    Maengel pruefen(std::span<const Nummernfund> andere) {
        aussteller();
        datum_und_nummer(andere);
        empfaenger();
        leistung();
        lieferdatum();
        steuer();
        return std::move(m_);
    }

private:
    void fehlt(const char* feld, std::string text, int zeile = -1) {
        m_.push_back({Schwere::Hinweis, feld, std::move(text), zeile});
    }

    bool nennt(std::initializer_list<const char*> worte) const {
        return std::any_of(worte.begin(), worte.end(),
                           [&](const char* wort) { return texte_.find(wort) != std::string::npos; });
    }

    bool steuerfrei() const { return q_.mwst == Mwst_Modus::Ohne || q_.mwst == Mwst_Modus::Minus; }
    bool kleinunternehmer() const { return nennt({"§ 19", "§19", "PARAGRAPH 19", "KLEINUNTERNEHMER"}); }
    /// Reverse charge and supplies to other countries of the EU need everything at any amount.
    bool ins_ausland() const { return nennt({"INNERGEMEINSCHAFTLICH", "STEUERSCHULDNER", "REVERSE"}); }
    bool kleinbetrag() const {
        return betrag_ <= kKleinbetrag && -betrag_ <= kKleinbetrag && !(steuerfrei() && ins_ausland());
    }
    bool vereinfacht() const { return steuerfrei() && kleinunternehmer(); }

    void aussteller() {
        if (firma_.Name.empty()) {
            fehlt("Text_firma_1", "Ihr vollständiger Name fehlt.");
        }
        if (firma_.Strasse.empty() || firma_.Ort.empty()) {
            fehlt("Text_firma_2", "Ihre vollständige Anschrift fehlt: Straße, Postleitzahl und Ort.");
        }
        if (!kleinbetrag() && firma_.Steuernummer.empty() && firma_.USt_IdNr.empty()) {
            fehlt("Text_firma_7", "Ihre Steuernummer oder USt-IdNr. fehlt.");
        }
    }

    void datum_und_nummer(std::span<const Nummernfund> andere) {
        if (!datum_lesen(q_.Datum)) {
            fehlt("Text_Datum", q_.Datum.empty() ? "Das Rechnungsdatum fehlt."
                                                 : "Das Rechnungsdatum ist kein Datum wie 31.12.2026.");
        }
        if (q_.Nummer.empty()) {
            if (!kleinbetrag() && !vereinfacht()) {
                fehlt("Text_RNnr", "Die Rechnungsnummer fehlt.");
            }
            return;
        }
        for (const Nummernfund& fund : andere) {
            if (fund.nummer == q_.Nummer) {
                fehlt("Text_RNnr",
                      "Die Rechnungsnummer " + links(q_.Nummer, 40) + " hat schon " + fund.pfad + ".");
                return;
            }
        }
    }

    void empfaenger() {
        if (kleinbetrag()) {
            return;
        }
        if (kunde_.Name.empty()) {
            fehlt("Text_Kunde_1", "Der vollständige Name des Kunden fehlt.");
        }
        if (kunde_.Strasse.empty() || kunde_.Ort.empty()) {
            fehlt("Text_Kunde_2",
                  "Die vollständige Anschrift des Kunden fehlt: Straße, Postleitzahl und Ort.");
        }
    }

    void leistung() {
        int positionen = 0;
        for (std::size_t i = 0; i < q_.zeilen.size(); ++i) {
            const Quellzeile& zeile = q_.zeilen[i];
            if (zeile.K != "-") {
                continue;
            }
            ++positionen;
            if (gekuerzt(zeile.Leistung).empty() || gekuerzt(zeile.Menge).empty()) {
                fehlt("List_DARSTELLUNG",
                      "Menge oder Art der Leistung fehlt in Position " + std::to_string(positionen) + ".",
                      static_cast<int>(i));
                return;
            }
        }
        if (positionen == 0) {
            fehlt("List_DARSTELLUNG", "Es fehlt, was Sie geliefert oder geleistet haben.");
        }
    }

    void lieferdatum() {
        const bool genannt = std::any_of(q_.Lieferdatum.begin(), q_.Lieferdatum.end(),
                                         [](char c) { return c >= '0' && c <= '9'; }) ||
                             nennt({"LIEFERDATUM", "LEISTUNGSDATUM", "LEISTUNGSZEITRAUM", "LIEFERZEITRAUM"});
        if (!kleinbetrag() && !vereinfacht() && !genannt) {
            fehlt("Check_LIEFERDATUM",
                  "Das Lieferdatum fehlt, oder der Hinweis \"Lieferdatum gleich Rechnungsdatum\".");
        }
    }

    void steuer() {
        if (steuerfrei()) {
            const bool grund = kleinunternehmer() || ins_ausland() ||
                               nennt({"STEUERFREI", "STEUERBEFREI", "AUSFUHR", "§ 4 ", "§4 ", "§ 25A", "§25A",
                                      "DIFFERENZBESTEUERUNG", "NICHT STEUERBAR"});
            if (!grund) {
                fehlt("Text_Bemerkung1",
                      "Die Rechnung weist keine MwSt. aus: Der Grund fehlt, zum Beispiel \"Kein "
                      "Ausweis von Umsatzsteuer nach § 19 UStG\".");
            }
            return;
        }
        if (q_.mwst == Mwst_Modus::Inklusive && !kleinbetrag()) {
            fehlt("Option_mwst_plus",
                  "Der Nettobetrag fehlt. Mit der Berechnungsart \"plus (+)\" und Nettopreisen "
                  "steht er auf der Rechnung.");
        }
        const bool versand =
            q_.versand && festkomma_lesen<Cent>(q_.Versand_Betrag).value_or(Cent{}) != Cent{};
        if (versand && !q_.versand_getrennt && !q_.versand_enthalten) {
            fehlt("Check_VersandMwStEXTRA",
                  "Die MwSt. der Versandkosten fehlt. Bitte \"MwSt. getrennt ausweisen\" "
                  "ankreuzen.");
        }
    }

    const Belegquelle& q_;
    Verkaeufer firma_;
    Kaeufer kunde_;
    Cent betrag_;
    std::string texte_; ///< everything that may hold a reason, in capitals
    Maengel m_;
};

} // namespace

std::vector<Nummernfund> NUMMERN_AUS_DATEIEN(std::span<const std::string> pfade, const std::string& eigener) {
    std::vector<Nummernfund> funde;
    for (const std::string& pfad : pfade) {
        const bool gesehen = IST_DIESELBE_DATEI(pfad, eigener) ||
                             std::any_of(funde.begin(), funde.end(), [&](const Nummernfund& fund) {
                                 return IST_DIESELBE_DATEI(pfad, fund.pfad);
                             });
        if (gesehen) {
            continue;
        }
        try {
            funde.push_back({pfad, nummer_aus_datei(pfad)});
        } catch (const Laufzeitfehler&) { // a file that is gone has no number
        }
    }
    return funde;
}

Maengel PFLICHTANGABEN(const Belegquelle& quelle, std::span<const Nummernfund> andere) {
    return quelle.lieferschein ? Maengel{} : Pflichtpruefer(quelle).pruefen(andere);
}

} // namespace quittika
