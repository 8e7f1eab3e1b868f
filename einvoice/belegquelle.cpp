#include "einvoice/belegquelle.hpp"

#include "invoice/belegtexte.hpp"
#include "invoice/zahleneingabe.hpp"
#include "platform/text.hpp"

#include <memory>

namespace quittika {

namespace {

std::string eintrag(const ListBox& liste, std::size_t zeile) {
    const std::vector<std::string>& werte = liste.items();
    return zeile < werte.size() ? werte[zeile] : std::string();
}

Mwst_Modus mwst_modus(const Form1& f) {
    if (!f.Check_mwst.ticked()) {
        return Mwst_Modus::Ohne;
    }
    return f.Option_mwst_plus.Value()    ? Mwst_Modus::Plus
           : f.Option_mwst_minus.Value() ? Mwst_Modus::Minus
           : f.Option_inkl_MwSt.Value()  ? Mwst_Modus::Inklusive
                                         : Mwst_Modus::Ohne;
}

/// A customer number without the word that stands in front of it.
std::string kundennummer(const std::string& text) {
    const std::size_t punkt = text.find(':');
    return gekuerzt(punkt == std::string::npos ? text : text.substr(punkt + 1));
}

/// Text of a setting; empty where it is still the sample.
std::string eigenes(const TextBox& feld, const TextBox& muster) {
    return feld.Text() == muster.Text() ? std::string() : gekuerzt(feld.Text());
}

void kopf(Belegquelle& q, const Form1& f) {
    q.lieferschein = IST_LIEFERSCHEIN(f);
    q.Titel = gekuerzt(f.Text_rechnung.Text());
    q.Nummer = gekuerzt(f.Text_RNnr.Text());
    q.Datum = gekuerzt(f.Text_Datum.Text());
    if (f.Check_LIEFERDATUM.ticked()) {
        q.Lieferdatum = gekuerzt(f.Text_LIEFERDATUM.Text());
    }
    q.Kunde = {KUNDENTEXT(f, f.Text_Kunde_1), KUNDENTEXT(f, f.Text_Kunde_2), KUNDENTEXT(f, f.Text_Kunde_3),
               KUNDENTEXT(f, f.Text_Kunde_4)};
    q.Kundennr = kundennummer(KUNDENTEXT(f, f.Text_KundennrK));
}

void betraege(Belegquelle& q, const Form1& f, const frm_einstellungen& e) {
    q.mwst = mwst_modus(f);
    q.MwSt_Satz = f.Text_MwSt.Text();
    q.rabatt = f.Check_RABATT.ticked();
    q.Rabatt_Satz = f.Text_Rabatt.Text();
    q.versand = f.Check_Versandkosten.ticked();
    q.Versand_Text = gekuerzt(f.Text_Versandk.Text());
    q.Versand_Betrag = f.Text_PreisVersankostenEingabe.Text();
    q.Versand_Satz = ZAHL_LESEN(e.Text_MwSt.Text()).value_or(Zahleneingabe{0, "0"}).text;
    q.versand_getrennt = f.Check_VersandMwStEXTRA.ticked();
    q.versand_enthalten = f.Check_VersandINKL_MwSt.ticked();
    q.Gesamtbetrag = f.Text_gesamtbetrag.Text();
}

void zeilen(Belegquelle& q, const Form1& f) {
    for (std::size_t i = 0; i < f.List_K.items().size(); ++i) {
        q.zeilen.push_back({eintrag(f.List_K, i), eintrag(f.List_Menge, i), eintrag(f.List_Leistung, i),
                            eintrag(f.List_Preis, i), eintrag(f.List_Gesamtp, i)});
    }
}

void texte(Belegquelle& q, const Form1& f, const frm_einstellungen& muster) {
    const auto block = [&](int n, std::vector<std::string>& ziel) {
        const std::pair<const ControlArray<TextBox, 2>*, const ControlArray<TextBox, 2>*> felder[] = {
            {&f.Text_Bemerkung1, &muster.Text_Bemerkung1},
            {&f.Text_Bemerkung2, &muster.Text_Bemerkung2},
            {&f.Text_Bemerkung3, &muster.Text_Bemerkung3},
            {&f.Text_Bemerkung4, &muster.Text_Bemerkung4}};
        for (const auto& [feld, vorgabe] : felder) {
            if (std::string text = eigenes((*feld)[n], (*vorgabe)[n]); !text.empty()) {
                ziel.push_back(std::move(text));
            }
        }
    };
    block(0, q.Anschreiben);
    block(1, q.Bemerkungen);
}

void firma(Belegquelle& q, const frm_einstellungen& e, const frm_einstellungen& muster) {
    q.Firma = {eigenes(e.Text_firma_1, muster.Text_firma_1), eigenes(e.Text_firma_2, muster.Text_firma_2),
               eigenes(e.Text_firma_3, muster.Text_firma_3), eigenes(e.Text_firma_4, muster.Text_firma_4),
               eigenes(e.Text_firma_5, muster.Text_firma_5), eigenes(e.Text_firma_6, muster.Text_firma_6),
               eigenes(e.Text_firma_7, muster.Text_firma_7), eigenes(e.Text_firma_8, muster.Text_firma_8)};
    q.IBAN = eigenes(e.Text_IBAN, muster.Text_IBAN);
    q.BIC = eigenes(e.Text_BIC, muster.Text_BIC);
    if (e.Option_BankVerb_Vorgabe.Value()) {
        return;
    }
    q.Bankzeilen.push_back(eigenes(e.Text_Bankverb1, muster.Text_Bankverb1));
    if (e.Check_Bankverb_Zeile2.ticked()) {
        q.Bankzeilen.push_back(eigenes(e.Text_Bankverb2, muster.Text_Bankverb2));
    }
    if (e.Check_Bankverb_Zeile3.ticked()) {
        q.Bankzeilen.push_back(eigenes(e.Text_Bankverb3, muster.Text_Bankverb3));
    }
}

} // namespace

Belegquelle BELEGQUELLE(const Form1& form1, const frm_einstellungen& einstellungen,
                        const PROGRAMMEINSTELLUNG& werte) {
    const auto muster = std::make_unique<const frm_einstellungen>();
    Belegquelle q;
    kopf(q, form1);
    betraege(q, form1, einstellungen);
    zeilen(q, form1);
    texte(q, form1, *muster);
    firma(q, einstellungen, *muster);
    q.Waehrung = gekuerzt(werte.WAEHRUNG);
    return q;
}

} // namespace quittika
