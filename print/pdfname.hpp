#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>

namespace quittika {

/// File name offered where the document in hand is printed into a file: its title line and the customer.
std::string PDFNAME_VORSCHLAGEN(const Form1& form1, const frm_einstellungen& einstellungen);

} // namespace quittika
