#pragma once

#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/forms/opened_window.hpp"
#include "tools/form_notiz.hpp"

namespace quittika {

/// The note in its window, which may stay open beside the main window.
class Notiz {
public:
    Notiz(Form_Notiz& form, Form1& form1, Rechnungszustand& zustand);

    /// Shows the note of the invoice in hand, which may be another than before.
    void Zeigen();

private:
    void Text_Notiz_Change();

    Form_Notiz& form_;
    Form1& form1_;
    Rechnungszustand& zustand_;
    bool zeigt_ = false; ///< the window follows the invoice, not the invoice the window
    bool nimmt_ = false; ///< the other way round
};

using Notizfenster = OpenedWindow<Form_Notiz, Notiz>;

} // namespace quittika
