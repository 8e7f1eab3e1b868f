#pragma once

#include "invoice/form1.hpp"
#include "print/blatt.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>
#include <vector>

namespace quittika {

inline constexpr double kSchriftKopf = 11; ///< points, of all in the head that has no size of its own

/// The lines of the customer block: empty what holds its placeholder, and the telephone where it is not
/// wanted.
std::vector<std::string> KUNDENZEILEN(const Form1& form1);

/// What stands above the positions of a page.
class Druckkopf {
public:
    Druckkopf(const Form1& form1, const frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& programm)
        : form1_(form1), einstellungen_(einstellungen), programm_(programm) {}

    void DRUCKE_WASSERZEICHEN(Blatt& blatt) const;
    void DRUCKE_FALTMARKEN(Blatt& blatt) const;

    /// Each head begins with watermark and fold marks and leaves the cursor where the table begins,
    /// with the table's font.
    void DRUCKE_KOPF_VOLL(Blatt& blatt, bool mit_werbespruch = true) const;
    void DRUCKE_KOPF_LOGO(Blatt& blatt) const; ///< following page with sender block
    void DRUCKE_KOPF_KURZ(Blatt& blatt) const; ///< following page without it

private:
    void kopfbeginn(Blatt& blatt) const;
    void firmenkopf(Blatt& blatt) const;
    void kundenblock(Blatt& blatt) const;
    void werbespruch(Blatt& blatt) const;
    void titel(Blatt& blatt) const;
    double datum(Blatt& blatt) const;
    void datum_und_titel(Blatt& blatt) const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
};

} // namespace quittika
