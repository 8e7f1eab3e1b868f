#pragma once

class QString;

namespace quittika {

/// Whether the print system knows the printer and its queue takes and processes jobs.
/// What cannot be found out counts as willing.
bool queue_takes_jobs(const QString& printer_name);

} // namespace quittika
