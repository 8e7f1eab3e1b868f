#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

#include <string>
#include <string_view>
#include <utility>

namespace quittika {

/// A window that takes a text from elsewhere for four fields of the invoice.
struct Helferform : Form {
    Helferform(std::string_view name, std::string caption, std::string erklaerung, std::string muster)
        : Form(name, std::move(caption), {.width = twips(460), .height = twips(300)}),
          Label1(*this, "Label1", std::move(erklaerung)),
          Text_Eingabe(*this, "Text_Eingabe", std::move(muster)) {}
    Label Label1;
    TextBox Text_Eingabe; ///< holds the sample at first
    CommandButton CMD_Format{*this, "CMD_Format", "Daten zuordnen"};
    CommandButton Command1{*this, "Command1", "Schliessen"};
};

/// For the customer's address.
struct Form_Helferlein : Helferform {
    Form_Helferlein()
        : Helferform("Form_Helferlein", "Helferlein Adresseingabe",
                     "Tippen oder kopieren sie hier die Kundenadresse hinein. (Maximal 4 Zeilen werden "
                     "berücksichtigt)",
                     "Name, Vorname\r\nStrasse, Nr\r\nPlz, Ort\r\nTelefonnr/Email") {}
};

/// For the text block in sight.
struct Form_Helferlein_Bkg : Helferform {
    Form_Helferlein_Bkg()
        : Helferform("Form_Helferlein_Bkg", "Helferlein Texteingabe",
                     "Tippen oder kopieren sie hier ihren Text hinein. (Maximal 4 Zeilen werden "
                     "berücksichtigt)",
                     "Zeile 1\r\nZeile 2\r\nZeile 3\r\nZeile 4") {}
};

} // namespace quittika
