#include "tests/fuzz/pruefung.hpp"

#include "invoice/compressor.hpp"
#include "invoice/file/dateifelder.hpp"
#include "platform/text.hpp"

#include <algorithm>

namespace quittika::fuzz {
namespace {

/// "1E+15", "nan", "inf": numbers as no person writes them. What a damaged file holds instead of a number may
/// stand.
bool unlesbar(const std::string& text) {
    const auto ist_ziffer = [&](std::size_t n) {
        return n < text.size() && text[n] >= '0' && text[n] <= '9';
    };
    for (std::size_t e = text.find_first_of("eE"); e != std::string::npos;
         e = text.find_first_of("eE", e + 1)) {
        const bool vorzeichen = e + 1 < text.size() && (text[e + 1] == '+' || text[e + 1] == '-');
        if (e > 0 && ist_ziffer(e - 1) && ist_ziffer(e + (vorzeichen ? 2 : 1))) {
            return true;
        }
    }
    return text.find("nan") != std::string::npos || text.find("inf") != std::string::npos;
}

std::string Zahlbefund(const std::string& name, const std::string& text) {
    return unlesbar(text) ? name + " zeigt \"" + text + "\"" : "";
}

std::string Betragsbefund(Form1& f) {
    for (const TextBox* feld :
         {&f.Text_gesamtp, &f.Text_summe, &f.Text_summeRabatt, &f.Text_summeNACHRABATT, &f.Text_summemwst,
          &f.Text_PreisVersankosten, &f.Text_PreisVersankostenMwST, &f.Text_gesamtbetrag}) {
        if (std::string befund = Zahlbefund(feld->name(), feld->Text()); !befund.empty()) {
            return befund;
        }
    }
    for (const ListBox* liste : {&f.List_Menge, &f.List_Preis, &f.List_Gesamtp}) {
        for (const std::string& text : liste->items()) {
            if (std::string befund = Zahlbefund(liste->name(), text); !befund.empty()) {
                return befund;
            }
        }
    }
    return "";
}

std::string Listenbefund(Form1& f) {
    const int zeilen = f.List_DARSTELLUNG.ListCount();
    for (const ListBox* liste : f.Positionslisten()) {
        if (liste->ListCount() != zeilen) {
            return liste->name() + " hat " + std::to_string(liste->ListCount()) + " Zeilen, zu sehen sind " +
                   std::to_string(zeilen);
        }
    }
    int nummer = 0;
    for (int i = 0; i < zeilen; ++i) {
        const std::string pos = f.List_K.List(i) == "-" ? std::to_string(++nummer) : " ";
        const std::string anfang = COMPRESSOR(1, pos) + COMPRESSOR(2, f.List_Menge.List(i));
        if (f.List_pos.List(i) != pos || !beginnt_mit(f.List_DARSTELLUNG.List(i), anfang)) {
            return "Zeile " + std::to_string(i) + " mit der Nummer " + f.List_pos.List(i) + " zeigt \"" +
                   f.List_DARSTELLUNG.List(i) + "\"";
        }
    }
    return "";
}

/// A text as the file can hold it: its own characters, one line.
std::string Dateitext(std::string text) {
    text = ersetzen(nach_ansi(text).bytes, "\r\n", " ");
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return beginnt_mit(text, kListenmarke) || text == kNichtGesetzt ? " " + text : text;
}

} // namespace

std::string Fensterbefund(Form1& f) {
    const std::string listen = Listenbefund(f);
    return listen.empty() ? Betragsbefund(f) : listen;
}

std::string Unterschied(Form1& gespeichert, Form1& gelesen) {
    const auto verschieden = [](const std::string& name, const std::string& a, const std::string& b) {
        return Dateitext(a) == Dateitext(b)
                   ? ""
                   : name + " war \"" + a.substr(0, 100) + "\", gelesen wird \"" + b.substr(0, 100) + "\"";
    };
    const auto felder = DATEIFELDER(gespeichert);
    const auto gelesene = DATEIFELDER(gelesen);
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const std::string befund = felder[i].lesart == Lesart::Nie
                                       ? ""
                                       : verschieden("Zeile " + std::to_string(felder[i].zeile),
                                                     FELDTEXT(felder[i]), FELDTEXT(gelesene[i]));
        if (!befund.empty()) {
            return befund;
        }
    }
    if (gespeichert.Combo1_mahnung.ListIndex() != gelesen.Combo1_mahnung.ListIndex() ||
        gespeichert.Text_Notiz.Text() != gelesen.Text_Notiz.Text()) {
        return "Mahnung oder Notiz";
    }
    const auto listen = gespeichert.Positionslisten();
    const auto gelesene_listen = gelesen.Positionslisten();
    for (std::size_t i = 0; i < listen.size(); ++i) {
        for (int zeile = 0; zeile < std::max(listen[i]->ListCount(), gelesene_listen[i]->ListCount());
             ++zeile) {
            const std::string befund = verschieden(listen[i]->name() + " " + std::to_string(zeile),
                                                   listen[i]->List(zeile), gelesene_listen[i]->List(zeile));
            if (!befund.empty()) {
                return befund;
            }
        }
    }
    return "";
}

} // namespace quittika::fuzz
