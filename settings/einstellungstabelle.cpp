#include "settings/einstellungstabelle.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"
#include "settings/druckfarben.hpp"
#include "settings/schriftgroessen.hpp"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace quittika {

namespace {

constexpr int kZeilen = 110;

/// What to do with each kind of owner.
template <class... Teile> struct Je : Teile... { using Teile::operator()...; };
template <class... Teile> Je(Teile...) -> Je<Teile...>;

/// Collects the lines in the order of the file.
class Aufbau {
public:
    Aufbau(Form1& form1, frm_einstellungen& einstellungen, frm_Programm& programm, PROGRAMMEINSTELLUNG& werte)
        : form1_(form1), e_(einstellungen), programm_(programm), w_(werte) {
        tabelle_.reserve(kZeilen);
    }

    Einstellungstabelle tabelle() && {
        programmstil();
        firma_und_texte();
        mehrwertsteuer_und_bilder();
        druckfarben();
        programmwerte();
        druck();
        bank();
        spalten_und_bemerkungen();
        return std::move(tabelle_);
    }

private:
    Einstellungszeile& neu(std::string schluessel, Zeilenform form, Einstellungszeile::Besitzer besitzer) {
        Einstellungszeile& zeile = tabelle_.emplace_back();
        zeile.schluessel = std::move(schluessel);
        zeile.form = form;
        zeile.besitzer = besitzer;
        zeile.vorgabe = ZEILENTEXT(zeile);
        return zeile;
    }
    /// The line of a control has the control's name.
    template <class Steuerelement> Einstellungszeile& neu(Zeilenform form, Steuerelement& feld) {
        Einstellungszeile& zeile = neu(feld.name(), form, &feld);
        zeile.fenster = &feld.form();
        return zeile;
    }
    void fest(const char* schluessel, std::string text) {
        neu(schluessel, Zeilenform::Fest, {}).vorgabe = std::move(text);
    }
    void texte(std::initializer_list<TextBox*> felder) {
        for (TextBox* feld : felder) {
            neu(Zeilenform::Text, *feld);
        }
    }
    void haekchen(std::initializer_list<CheckBox*> felder) {
        for (CheckBox* feld : felder) {
            neu(Zeilenform::Check, *feld);
        }
    }
    void optionen(std::initializer_list<OptionButton*> felder) {
        for (OptionButton* feld : felder) {
            neu(Zeilenform::Bool, *feld);
        }
    }
    void groessen(std::size_t von, std::size_t bis) {
        for (std::size_t i = von; i < bis; ++i) {
            neu(Zeilenform::Groesse, static_cast<RangeControl&>(e_.*kSchriftgroessen[i].regler)).ersatz =
                kSchriftgroessen[i].ersatz;
        }
    }
    void bemerkungen(int block) {
        for (int n = 1; n <= 4; ++n) {
            neu(Zeilenform::Text, e_.Text_Bemerkung(n)[block]);
        }
    }

    void programmstil() {
        fest("VERSIONSTEXT", w_.VERSIONSTEXT);
        fest("ZWEITERSTART", kZweiterStart);
        neu("FORMULARFARBE", Zeilenform::Long, &w_.FORMULARFARBE).fenster = &programm_;
        neu("HINTERGRUNDFARBE", Zeilenform::Long, &w_.HINTERGRUNDFARBE).fenster = &programm_;
        haekchen({&programm_.Check_datum});
        optionen({&programm_.Option_stil1, &programm_.Option_stil2, &programm_.Option_stil3,
                  &programm_.Option_stil4, &programm_.Option_stil5});
    }
    void firma_und_texte() {
        texte({&e_.Text_firma_1, &e_.Text_firma_2, &e_.Text_firma_3, &e_.Text_firma_4, &e_.Text_firma_5,
               &e_.Text_firma_6, &e_.Text_firma_7});
        haekchen({&e_.Check_keinlogo});
        texte({&e_.Text_Institut, &e_.Text_BLZ, &e_.Text_KTO, &e_.Text_rechnung, &e_.Text_Werbung});
        bemerkungen(0);
    }
    void mehrwertsteuer_und_bilder() {
        neu("MWST_SATZ1", Zeilenform::Text, &w_.MWST_SATZ1);
        haekchen({&e_.Check_mwst});
        optionen({&e_.Option_mwst_plus, &e_.Option_mwst_minus});
        texte({&e_.Text_logopath});
        neu(form1_.Image_hintergrund.name(), Zeilenform::Bool, &w_.HINTERGRUNDBILD).fenster = &programm_;
        optionen({&programm_.Option_stil6stroh, &programm_.Option_stil7stroh});
    }
    void druckfarben() {
        fest("PRINTCOLORS", "PRINTCOLORS");
        for (const Druckfarbe& farbe : kDruckfarben) {
            neu(farbe.schluessel, Zeilenform::Long, &(w_.*farbe.wert)).fenster = &e_;
            frm_einstellungen::Farbzeile& zeile = e_.*farbe.zeile;
            for (RangeControl* regler : {&zeile.R, &zeile.G, &zeile.B}) {
                neu(Zeilenform::Int, *regler).aus_prog_cfg = &zeile == &e_.Werbespruch;
            }
        }
    }
    void programmwerte() {
        neu("LAYOUTNUMMER", Zeilenform::Int, &w_.LAYOUTNUMMER).fenster = &e_;
        neu("DRUCKERSCHRIFT", Zeilenform::Text, &w_.DRUCKERSCHRIFT).fenster = &e_;
        // What the user chose last, which an opened invoice does not change.
        neu(form1_.Check_mengenartDECIMAL.name(), Zeilenform::Check, &w_.MENGE_DEZIMAL);
        neu("FARBE_INDIVIDUELL_HINTERGRUND", Zeilenform::Long, &w_.FARBE_INDIVIDUELL_HINTERGRUND).fenster =
            &programm_;
        neu("FARBE_INDIVIDUELL_FORMULAR", Zeilenform::Long, &w_.FARBE_INDIVIDUELL_FORMULAR).fenster =
            &programm_;
        neu("MWST_SATZ2", Zeilenform::Text, &w_.MWST_SATZ2);
        neu("WAEHRUNG", Zeilenform::Text, &w_.WAEHRUNG);
        int n = 0;
        for (std::string& datei : w_.LETZTE_DATEI) {
            neu("LETZTE_DATEI_" + std::to_string(++n), Zeilenform::Text, &datei);
        }
    }
    void druck() {
        texte({&e_.Text_firma_8});
        haekchen({&e_.Check_FETT_firma1});
        neu(Zeilenform::Scroll, static_cast<RangeControl&>(e_.HScroll_druckj));
        neu(Zeilenform::Scroll, static_cast<RangeControl&>(e_.VScrollDruckj));
        groessen(0, 2);
        haekchen({&e_.Check_Faltmarke_MITDRUCKEN, &e_.Check_RN_automatisch});
        neu(Zeilenform::Int, static_cast<RangeControl&>(e_.Slider_RNFORMAT));
        haekchen({&e_.Check_SEITENZAHLDRUCKEN});
        optionen({&e_.Option_inkl_MwSt});
        haekchen({&e_.Check_Positionendruck});
        optionen({&e_.Option_RN_Kopf_alleSeiten, &e_.Option_RN_BM_alleSeite});
    }
    void bank() {
        texte({&e_.Text_IBAN, &e_.Text_BIC});
        haekchen({&e_.Check_mit_IBAN_BIC_Drucken});
        texte({&e_.Text_Bankverb1, &e_.Text_Bankverb2, &e_.Text_Bankverb3});
        haekchen({&e_.Check_Bankverb_Zeile2, &e_.Check_Bankverb_Zeile3});
        optionen({&e_.Option_BankVerb_Vorgabe});
        haekchen({&e_.Check_MitLogoadresseFFSeite, &e_.Check_mit_Wasserz});
        texte({&e_.Text_bildpath});
        haekchen({&e_.Check_BANKLINIE});
    }
    void spalten_und_bemerkungen() {
        // The dialog's headings are those of new invoices; those of the main window belong to the invoice.
        for (Label* spalte :
             {&e_.Label_Pos, &e_.Label_Menge, &e_.Label_Leistung, &e_.Label_preis, &e_.Label_gesamtp}) {
            neu(Zeilenform::Text, *spalte);
        }
        bemerkungen(1);
        groessen(2, std::size(kSchriftgroessen));
    }

    Form1& form1_;
    frm_einstellungen& e_;
    frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& w_;
    Einstellungstabelle tabelle_;
};

bool bool_aus(const std::string& text) {
    const auto wert = wahrheitswert(text);
    if (!wert) {
        throw Laufzeitfehler(fehler::kFalscherTyp);
    }
    return *wert;
}

void regler_setzen(RangeControl& regler, const Einstellungszeile& zeile, const std::string& text) {
    if (zeile.form != Zeilenform::Groesse) {
        regler.Value = nach_int16(text);
        return;
    }
    regler.Value = zeile.ersatz;
    const int groesse = nach_int16(text);
    if (groesse >= regler.Min() && groesse <= regler.Max()) {
        regler.Value = groesse;
    }
}

} // namespace

Einstellungstabelle EINSTELLUNGSTABELLE(Form1& form1, frm_einstellungen& einstellungen,
                                        frm_Programm& programm, PROGRAMMEINSTELLUNG& werte) {
    return Aufbau(form1, einstellungen, programm, werte).tabelle();
}

std::string ZEILENTEXT(const Einstellungszeile& zeile) {
    return std::visit(Je{[&](std::monostate) { return zeile.vorgabe; },
                         [](const OptionButton* option) { return option->Value.as_text(); },
                         [](const std::string* text) { return *text; },
                         [](const std::int32_t* zahl) { return std::to_string(*zahl); },
                         [&](const bool* an) {
                             return std::string(!*an ? "0" : zeile.form == Zeilenform::Bool ? "-1" : "1");
                         },
                         [](const auto* feld) { return feld->main_value(); }},
                      zeile.besitzer);
}

void ZEILE_SETZEN(const Einstellungszeile& zeile, const std::string& text) {
    std::visit(Je{[](std::monostate) {}, [&](TextBox* feld) { feld->Text = text; },
                  [&](Label* feld) { feld->Caption = text; },
                  [&](CheckBox* feld) { feld->Value = nach_int16(text); },
                  [&](OptionButton* feld) { feld->Value = bool_aus(text); },
                  [&](RangeControl* feld) { regler_setzen(*feld, zeile, text); },
                  [&](std::string* wert) { *wert = text; },
                  [&](std::int32_t* wert) {
                      *wert = zeile.form == Zeilenform::Long ? nach_int32(text) : nach_int16(text);
                  },
                  [&](bool* wert) {
                      *wert = zeile.form == Zeilenform::Bool ? bool_aus(text) : nach_int16(text) == 1;
                  }},
               zeile.besitzer);
}

std::size_t EINSTELLUNGEN_VERTEILEN(const Einstellungstabelle& tabelle, std::span<const std::string> texte,
                                    Einstellungsquelle quelle) {
    for (const Einstellungszeile& zeile : tabelle) {
        ZEILE_SETZEN(zeile, zeile.vorgabe);
    }
    const std::size_t anzahl = std::min(tabelle.size(), texte.size());
    for (std::size_t n = 0; n < anzahl; ++n) {
        if (quelle == Einstellungsquelle::prog_cfg && !tabelle[n].aus_prog_cfg) {
            continue;
        }
        try {
            ZEILE_SETZEN(tabelle[n], texte[n]);
        } catch (const Laufzeitfehler&) {
            return n;
        }
    }
    return anzahl;
}

} // namespace quittika
