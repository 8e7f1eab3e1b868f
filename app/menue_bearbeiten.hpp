#pragma once

#include "app/ereignisse.hpp"
#include "invoice/form1.hpp"
#include "safety/rueckgaengig.hpp"

namespace quittika {

/// Ties the entries of "Bearbeiten".
void MENUE_BEARBEITEN(Form1& form1, const Ereignisse& ereignisse, Rueckgaengig& rueckgaengig);

} // namespace quittika
