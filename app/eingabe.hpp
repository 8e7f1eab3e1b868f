#pragma once

#include "app/ereignisse.hpp"
#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"
#include "invoice/positionen.hpp"
#include "invoice/zeilenmenue.hpp"
#include "masterdata/artikeluebernahme.hpp"

namespace quittika {

/// The middle of the main window: input line, position lists and the menu of a row.
class Eingabe {
public:
    Eingabe(Form1& form1, const Ereignisse& ereignisse, Eingabezeile& eingabezeile, Positionen& positionen,
            Zeilenmenue& zeilenmenue, Artikeluebernahme& artikel);

private:
    void KnoepfeVerdrahten(const Ereignisse& ereignisse);
    void ArtikelVerdrahten(const Ereignisse& ereignisse, Artikeluebernahme& artikel);
    void ZeileVerdrahten(const Ereignisse& ereignisse, Eingabezeile& eingabezeile);
    void BetragsfeldVerdrahten(TextBox& feld, const Ereignisse& ereignisse, Eingabezeile& eingabezeile);
    void ListenVerdrahten(const Ereignisse& ereignisse);
    void ZeilenmenueVerdrahten(const Ereignisse& ereignisse, Zeilenmenue& menue);

    Form1& form1_;
    Positionen& positionen_;
};

} // namespace quittika
