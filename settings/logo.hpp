#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// Logo and watermark of the main window, and the small ones of the settings.
class Logo {
public:
    Logo(Form1& form1, frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte);

    /// The logo of the settings becomes that of the main window.
    void BilderNehmen();
    /// Pictures by page design, which is the user's own when none is chosen; no logo with that, nor where the
    /// settings want none.
    void LayoutZeigen();

private:
    Form1& form1_;
    frm_einstellungen& einstellungen_;
    PROGRAMMEINSTELLUNG& werte_;
};

} // namespace quittika
