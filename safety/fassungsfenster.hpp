#pragma once

#include "invoice/file/dateibefehle.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "print/musterbeleg.hpp"
#include "safety/fassungsablage.hpp"
#include "safety/form_fassungen.hpp"

#include <functional>
#include <memory>

namespace quittika {

/// The window of the earlier versions: lists, shows and compares them, opens one or copies it.
class Fassungsfenster {
public:
    using MusterMachen = std::function<std::unique_ptr<Musterbeleg>()>;
    Fassungsfenster(const Form1& form1, Rechnungszustand& zustand, const Fassungsablage& ablage,
                    Dateibefehle& dateibefehle, Desktop& desktop, Dialogs& dialogs, MusterMachen muster);

    /// Shows the window, with the versions of the invoice in hand if it has any, until it is closed.
    void m_Fassungen_Click();

private:
    /// What belongs to an open window.
    struct Anzeige {
        Form_Fassungen form;
        std::unique_ptr<Musterbeleg> muster;
        std::vector<Fassungsgruppe> gruppen;
        std::vector<Fassung> fassungen;
    };
    void Verdrahten(Anzeige& a);
    void GruppenZeigen(Anzeige& a) const;
    static void GruppeZeigen(Anzeige& a);
    void FassungZeigen(Anzeige& a) const;
    void Vergleichen(Anzeige& a) const;
    static void Anordnen(Form_Fassungen& form);
    void Oeffnen(Anzeige& a);
    void Kopieren(const Anzeige& a);
    /// Reads the version selected. Says so and answers nothing where that fails.
    std::optional<std::string> Inhalt(const Anzeige& a) const;

    const Form1& form1_;
    Rechnungszustand& zustand_;
    const Fassungsablage& ablage_;
    Dateibefehle& dateibefehle_;
    Desktop& desktop_;
    Dialogs& dialogs_;
    MusterMachen muster_;
};

} // namespace quittika
