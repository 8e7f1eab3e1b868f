#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>

namespace quittika {

/// Name of the document in hand among the jobs of a printer.
std::string AUFTRAGSTITEL(const Form1& form1);
/// Its title line as the title of a file.
std::string DOKUMENTTITEL(const Form1& form1, const frm_einstellungen& einstellungen);
/// File name offered where a printer prints into a file: title line and customer.
std::string PDFNAME_VORSCHLAGEN(const Form1& form1, const frm_einstellungen& einstellungen);

} // namespace quittika
