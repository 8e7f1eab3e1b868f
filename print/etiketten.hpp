#pragma once

#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "print/etikett.hpp"
#include "print/form2_etiketten.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// Works a window for a pre-printed form. What is typed there stays there.
class Etikettenfenster {
public:
    /// Fills in the company and the customer.
    Etikettenfenster(Form2_Etikett& form, const Etikett& etikett, Form1& form1,
                     const frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& programm,
                     Dialogs& dialogs, Printing& printing);

    /// Prints and closes the window; after a cancel or an error it stays.
    void CMDdrucken_Click();

private:
    void Vorbelegen(const frm_einstellungen& einstellungen);
    void Verdrahten();
    Etiketteninhalt inhalt() const;
    void Geaendert();
    void FormularZeigen();

    Form2_Etikett& form_;
    const Etikett& etikett_;
    Form1& form1_;
    const PROGRAMMEINSTELLUNG& programm_;
    Printing& printing_;
    Exemplardruck exemplare_;
};

/// Opens the windows for envelope and parcel forms.
class Etiketten {
public:
    Etiketten(Form1& form1, const frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& programm,
              Desktop& desktop, Dialogs& dialogs, Printing& printing);

    // Each returns when its window is closed.
    void m_druckenBRIEF_Click() { zeigen<Form2_Breiter_Brief>(etikett::kBrief); }
    void m_druckenpaketschein_Click() { zeigen<Form2_PAKET_ETIKETT>(etikett::kPaket); }
    void m_druckenpaketscheinHVersand_Click() { zeigen<Form2_PAKETHRMS_ETIKETT>(etikett::kPaketH); }
    void m_druckenpaeckchenschein_Click() { zeigen<Form2_PAECKCHEN_ETIKETT>(etikett::kPaeckchen); }

private:
    template <class F> void zeigen(const Etikett& etikett) {
        F form;
        zeigen(form, etikett);
    }
    void zeigen(Form2_Etikett& form, const Etikett& etikett);

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
    Desktop& desktop_;
    Dialogs& dialogs_;
    Printing& printing_;
};

} // namespace quittika
