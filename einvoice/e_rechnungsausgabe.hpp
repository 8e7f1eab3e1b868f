#pragma once

#include "einvoice/angabendatei.hpp"
#include "einvoice/belegpruefung.hpp"
#include "invoice/form1.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/printing.hpp"
#include "print/belegdruck.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>

namespace quittika {

/// Makes electronic invoices of the invoice in hand.
class E_Rechnungsausgabe {
public:
    E_Rechnungsausgabe(Form1& form1, const frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& werte,
                       const Angabenspeicher& speicher, Belegdruck& belegdruck, Printing& printing);

    Belegquelle quelle() const;
    /// What the user said last of the invoice in hand; nothing for another one.
    Bezug bezug() const;
    void BEZUG_MERKEN(const Bezug& bezug);
    /// The invoice with what the user has confirmed of seller and buyer. Throws the error of a file that
    /// cannot be read.
    E_Rechnung BESTAETIGTE_RECHNUNG(E_Format format) const;

    /// The pages as printed with the XML in them; panel 3 says what is not on them as it should be. Throws
    /// what printing throws, 5 where the invoice does not fit into the format.
    std::string ZUGFERD_PDF(const Rechnungsbeleg& beleg);
    /// Throws 5 where the invoice does not fit into the format.
    static std::string XRECHNUNG(const Rechnungsbeleg& beleg);

private:
    std::string kennzeichen() const;

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& werte_;
    const Angabenspeicher& speicher_;
    Belegdruck& belegdruck_;
    Printing& printing_;
    Bezug bezug_;
    std::string bezug_von_; ///< `kennzeichen` of the invoice that it is of
};

/// That a file with what the user confirmed cannot be read, and which one, in German.
std::string ANGABENHINDERNIS(const Laufzeitfehler& fehler);

/// Why no electronic invoice came about, in German.
std::string E_RECHNUNGSHINDERNIS(const Laufzeitfehler& fehler);

} // namespace quittika
