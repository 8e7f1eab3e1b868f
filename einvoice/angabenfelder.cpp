#include "einvoice/angabenfelder.hpp"

#include <algorithm>
#include <string>

namespace quittika {

namespace {

constexpr const char* kOhneGrund = "keiner gewählt";

/// The key of the reason that is chosen, empty for none.
std::string grund(const ComboBox& auswahl) {
    const int index = auswahl.ListIndex() - 1;
    return index < 0 ? std::string() : BEFREIUNGEN()[static_cast<std::size_t>(index)].schluessel;
}

int index_von(const std::string& schluessel) {
    const Befreiung* const grund = BEFREIUNG(schluessel);
    return grund == nullptr ? 0 : static_cast<int>(grund - BEFREIUNGEN().data()) + 1;
}

std::string wert(const Control& feld) {
    if (const auto* haken = dynamic_cast<const CheckBox*>(&feld)) {
        return haken->ticked() ? "1" : "";
    }
    const auto* auswahl = dynamic_cast<const ComboBox*>(&feld);
    return auswahl != nullptr ? grund(*auswahl) : feld.main_value();
}

void zeigen(Control& feld, const std::string& text) {
    if (auto* haken = dynamic_cast<CheckBox*>(&feld)) {
        haken->Value = text == "1" ? 1 : 0;
    } else if (auto* auswahl = dynamic_cast<ComboBox*>(&feld)) {
        auswahl->ListIndex = index_von(text);
    } else if (auto* zeile = dynamic_cast<TextBox*>(&feld)) {
        zeile->Text = text;
    }
}

template <class T> T lesen(const Form_ERechnung& form, std::span<const Angabe<T>> felder) {
    T angaben;
    for (const Angabe<T>& feld : felder) {
        angaben.*feld.wert = wert(*form.find(feld.feld));
    }
    return angaben;
}

template <class T> void zeigen(Form_ERechnung& form, const T& angaben, std::span<const Angabe<T>> felder) {
    for (const Angabe<T>& feld : felder) {
        zeigen(*form.find(feld.feld), angaben.*feld.wert);
    }
}

constexpr Belegart kArten[] = {Belegart::Gutschrift, Belegart::Korrektur};

} // namespace

void GRUENDE_ANBIETEN(Form_ERechnung& form) {
    form.Combo_Befreiungsgrund.AddItem(kOhneGrund);
    for (const Befreiung& befreiung : BEFREIUNGEN()) {
        form.Combo_Befreiungsgrund.AddItem(befreiung.auswahl);
    }
}

Verkaeufer VERKAEUFER_LESEN(const Form_ERechnung& form) {
    return lesen(form, VERKAEUFERANGABEN());
}

void VERKAEUFER_ZEIGEN(Form_ERechnung& form, const Verkaeufer& angaben) {
    zeigen(form, angaben, VERKAEUFERANGABEN());
}

Kaeufer KAEUFER_LESEN(const Form_ERechnung& form) {
    return lesen(form, KAEUFERANGABEN());
}

void KAEUFER_ZEIGEN(Form_ERechnung& form, const Kaeufer& angaben) {
    zeigen(form, angaben, KAEUFERANGABEN());
}

Bezug BEZUG_LESEN(const Form_ERechnung& form) {
    const int gewaehlt = form.Combo_Belegart.ListIndex();
    if (!form.Frame_Bezug.Visible()) {
        return {};
    }
    return {gewaehlt > 0 ? std::optional(kArten[gewaehlt - 1]) : std::nullopt, form.Text_Bezug_Nummer.Text(),
            form.Text_Bezug_Datum.Text()};
}

void BEZUG_ZEIGEN(Form_ERechnung& form, const Bezug& bezug, bool gefragt) {
    const auto* const art =
        bezug.art ? std::find(std::begin(kArten), std::end(kArten), *bezug.art) : std::end(kArten);
    form.Combo_Belegart.ListIndex =
        art == std::end(kArten) ? 0 : static_cast<int>(art - std::begin(kArten)) + 1;
    form.Text_Bezug_Nummer.Text = bezug.Nummer;
    form.Text_Bezug_Datum.Text = bezug.Datum;
    form.Frame_Bezug.Visible = gefragt;
}

} // namespace quittika
