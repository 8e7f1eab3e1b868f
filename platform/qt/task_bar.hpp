#pragma once

class QWidget;

namespace quittika {

/// Keeps a window that is about to be shown off the task bar where the desktop lets a program say so.
/// To be called before each showing: a desktop forgets it with a hidden window.
void keep_off_task_bar(QWidget& window);

} // namespace quittika
