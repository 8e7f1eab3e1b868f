#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The splash window.
struct Form_START : Form {
    Form_START() : Form("Form_START", "QUITTIKA 2008", {.width = twips(560), .height = twips(362)}) {}
    Image Image_Start{*this, "Image_Start"};
    Label Label_Version{*this, "Label_Version"};
    ProgressBar ProgressBar1{*this, "ProgressBar1", 0, 100, 0};
    Timer Timer1{*this, "Timer1", 150};
};

} // namespace quittika
