#pragma once

#include "analyzer/form_analyzer.hpp"
#include "platform/textdatei.hpp"

namespace quittika {

/// The report: the summary as it stands, and each invoice with the name of its file.
Textpuffer ANALYSEBERICHT(const Form_Analyzer& form);

} // namespace quittika
