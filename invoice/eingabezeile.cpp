#include "invoice/eingabezeile.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"

#include <cmath>

namespace quittika {

namespace {

/// Comment and break rows put a lone blank where others have a quantity or a price.
constexpr const char* kLeerfeld = " ";

} // namespace

int NachkommastellenZaehlen(std::string_view text) {
    const std::size_t komma = text.find(',');
    if (komma == std::string_view::npos) {
        return 0;
    }
    int stellen = 0;
    for (std::size_t i = komma + 1; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        ++stellen;
    }
    return stellen;
}

std::string_view MENGENFORMAT(std::string_view text, bool dezimal) {
    if (!dezimal) {
        return "0";
    }
    switch (NachkommastellenZaehlen(text)) {
    case 1:
        return "0.0";
    case 3:
        return "0.000";
    case 4:
        return "0.0000";
    default:
        return "0.00";
    }
}

Eingabezeile::Eingabezeile(Form1& form1, Dialogs& dialogs) : form1_(form1), dialogs_(dialogs) {}

bool Eingabezeile::gefuellt(const TextBox& feld) const {
    return !form1_.Check_K.ticked() && feld.Text() != kLeerfeld;
}

std::optional<Feldwert> Eingabezeile::menge_lesen() const {
    const std::string& getippt = form1_.Text_Menge.Text();
    const std::optional<Zahleneingabe> zahl = ZAHL_LESEN(getippt);
    const bool dezimal = form1_.Check_mengenartDECIMAL.ticked();
    if (!zahl) {
        return std::nullopt;
    }
    const std::string_view muster = MENGENFORMAT(zahl->text, dezimal);
    if (dezimal) {
        return FELDWERT(getippt, *zahl, zahl->wert, muster, "Möglich sind vier Nachkommastellen.");
    }
    try {
        return FELDWERT(getippt, *zahl, nach_int16(zahl->wert), muster,
                        "Nachkommastellen erlaubt das Kästchen \"" +
                            BESCHRIFTUNG(form1_.Check_mengenartDECIMAL) + "\".");
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

std::optional<Feldwert> Eingabezeile::preis_lesen() const {
    const std::string& getippt = form1_.Text_preis.Text();
    const std::optional<Zahleneingabe> zahl = ZAHL_LESEN(getippt);
    if (!zahl) {
        return std::nullopt;
    }
    return FELDWERT(getippt, *zahl, zahl->wert, betragsformat(),
                    form1_.Check_000.ticked() ? std::string()
                                              : "Drei Nachkommastellen erlaubt das Kästchen \"" +
                                                    BESCHRIFTUNG(form1_.Check_000) + "\".");
}

std::optional<double> Eingabezeile::Menge() const {
    const std::optional<Feldwert> gelesen = menge_lesen();
    return gelesen ? std::optional(gelesen->wert) : std::nullopt;
}

std::optional<double> Eingabezeile::Preis() const {
    const std::optional<Feldwert> gelesen = preis_lesen();
    return gelesen ? std::optional(gelesen->wert) : std::nullopt;
}

bool Eingabezeile::MengeIstZahl() const {
    return ZAHL_LESEN(form1_.Text_Menge.Text()).has_value();
}

std::optional<Eingabezeile::Ablehnung> Eingabezeile::pruefen() const {
    if (form1_.Check_K.ticked()) {
        return std::nullopt;
    }
    const std::optional<double> menge = Menge();
    if (!menge) {
        return Ablehnung{&form1_.Text_Menge, grund(form1_.Text_Menge)};
    }
    const std::optional<double> preis = Preis();
    if (!preis) {
        return Ablehnung{&form1_.Text_preis, grund(form1_.Text_preis)};
    }
    return std::isfinite(*menge * *preis) ? std::nullopt : std::optional(Ablehnung{&form1_.Text_preis, {}});
}

/// Why a field is refused.
std::string Eingabezeile::grund(const TextBox& feld) const {
    if (&feld == &form1_.Text_Menge && MengeIstZahl()) {
        return "Eine ganze Menge geht nur bis 32767. Mehr erlaubt das Kästchen \"" +
               BESCHRIFTUNG(form1_.Check_mengenartDECIMAL) + "\".";
    }
    return KEINE_ZAHL(feld.Text()) + ".";
}

void Eingabezeile::lesen() {
    abgelehnt_ = nullptr;
    const std::optional<Feldwert> gelesen = menge_lesen();
    auf_null_gerundet_ = gelesen && gelesen->wert == 0 && (auf_null_gerundet_ || !gelesen->hinweis.empty());
    const double menge = uebernehmen(form1_.Text_Menge, gelesen);
    if (abgelehnt_ == nullptr) {
        beanstandet_.reset();
    } else if (beanstandet_ != form1_.Text_Menge.Text()) {
        beanstanden();
    }
    const double preis = uebernehmen(form1_.Text_preis, preis_lesen());
    summe_zeigen(menge, preis);
}

void Eingabezeile::beanstanden() {
    beanstandet_ = MIT_KOMMA(form1_.Text_Menge.Text());
    dialogs_.message({"Ihre Eingabe ist nicht gültig!", "Achtung Fehler!"});
}

void Eingabezeile::ungelesenes_melden() {
    ungelesenes_melden(form1_.Text_Menge, Menge().has_value());
    ungelesenes_melden(form1_.Text_preis, Preis().has_value());
}

void Eingabezeile::ungelesenes_melden(TextBox& feld, bool lesbar) {
    if (!lesbar && gefuellt(feld)) {
        form1_.Hinweise.melden(grund(feld) + " Gerechnet wird mit 0.", &feld);
    }
}

/// The value that counts, which the field shows then; 0 where it needs none or holds no number.
double Eingabezeile::uebernehmen(TextBox& feld, const std::optional<Feldwert>& gelesen) {
    if (!gefuellt(feld)) {
        return 0;
    }
    if (!gelesen) {
        ungelesenes_melden(feld, false);
        feld.Text = MIT_KOMMA(feld.Text());
        abgelehnt_ = abgelehnt_ == nullptr ? &feld : abgelehnt_;
        return 0;
    }
    form1_.Hinweise.melden(gelesen->hinweis, &feld);
    feld.Text = gelesen->text;
    return gelesen->wert;
}

std::string Eingabezeile::nullgrund() const {
    return auf_null_gerundet_ ? "Die Zeile bleibt, ihre Menge wurde auf 0 gerundet: Nachkommastellen erlaubt "
                                "das Kästchen \"" +
                                    BESCHRIFTUNG(form1_.Check_mengenartDECIMAL) + "\"."
                              : std::string();
}

void Eingabezeile::mitrechnen() {
    auf_null_gerundet_ = false;
    if (gefuellt(form1_.Text_Menge) && gefuellt(form1_.Text_preis)) {
        summe_zeigen(Menge().value_or(0), Preis().value_or(0));
    }
}

/// A total beyond all bounds counts as none: it must not keep the list's totals from being right.
void Eingabezeile::summe_zeigen(double menge, double preis) {
    const double summe = menge * preis;
    summe_gueltig_ = std::isfinite(summe);
    form1_.Text_gesamtp.Text = format_zahl(summe_gueltig_ ? summe : 0, betragsformat());
}

void Eingabezeile::hingehen(TextBox& feld) {
    feld.SetFocus();
    feld.select_all();
}

void Eingabezeile::anwaehlen() {
    hingehen(form1_.Check_K.ticked() ? form1_.Text_leistung : form1_.Text_Menge);
}

void Eingabezeile::leeren() {
    form1_.Text_Menge.Text = vorgabe::kMenge;
    form1_.Text_leistung.Text = vorgabe::kLeistung;
    form1_.Text_preis.Text = vorgabe::kBetrag;
    form1_.Text_gesamtp.Text = vorgabe::kBetrag;
    form1_.Check_K.Value = 0;
    felder_zeigen();
    zeile_setzen(-1);
}

void Eingabezeile::felder_zeigen() {
    const bool kommentar = form1_.Check_K.ticked();
    for (Control* feld :
         {static_cast<Control*>(&form1_.Text_Menge), static_cast<Control*>(&form1_.Text_preis),
          static_cast<Control*>(&form1_.Check_mengenartDECIMAL), static_cast<Control*>(&form1_.Check_000)}) {
        feld->Visible = !kommentar;
    }
}

void Eingabezeile::zeile_setzen(int zeile) {
    zeile_ = zeile;
    auf_null_gerundet_ = false;
    form1_.Command_AENDERN.Enabled = zeile >= 0;
    form1_.Hinweise.setzen(Hinweiszeile::Lage::Zeilenwahl,
                           zeile < 0 ? std::string()
                                     : "Zeile " + std::to_string(zeile + 1) + " wird geändert");
    standardknopf_zeigen();
}

void Eingabezeile::fokus(bool da) {
    fokus_ = da;
    standardknopf_zeigen();
}

void Eingabezeile::standardknopf_zeigen() {
    form1_.Command_AENDERN.Default = fokus_ && zeile_ >= 0;
    form1_.Cmd_Add_To_list.Default = fokus_ && zeile_ < 0;
}

} // namespace quittika
