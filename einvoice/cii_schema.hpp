#pragma once

namespace quittika {

/// The schema (RELAX NG) of the invoices that the program writes.
const char* CII_SCHEMA();

} // namespace quittika
