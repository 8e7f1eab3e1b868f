#pragma once

#include "platform/forms/form.hpp"

#include <QImage>

#include <string>

class QWidget;

namespace quittika {

/// A picture of the form's window without its frame, `scale` times as large; the window need not be shown.
/// Null when the form has not been adopted by a `QtDesktop` or has no design.
QImage window_picture(Form& form, double scale = 1.0);
QImage window_picture(QWidget& window, double scale = 1.0);

/// The same into a file; the name's ending tells the format. Returns whether it was written.
bool save_picture(Form& form, const std::string& path, double scale = 1.0);

} // namespace quittika
