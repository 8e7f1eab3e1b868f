#pragma once

#include "platform/forms/form.hpp"

#include <string>
#include <vector>

class QWidget;

namespace quittika {

struct PaintTools;

/// Ties every control of the form to the widget or action of the same object name in `window`. A control
/// without one stays data, see `check_binding`. The window must outlive the form's controls or be unbound,
/// and so must `tools`, with which pictures are drawn.
void bind(Form& form, QWidget& window, PaintTools& tools);

/// Takes the views of all controls away.
void unbind(Form& form);

/// What is wrong between a form and its window: a control without a widget of its kind, a named widget
/// without a control that it shows, a place that the form gives and the design does not allow, a form without
/// a size. Empty when all is right. Names that begin with "ui_", "qt_" or "_q_" are helpers.
std::vector<std::string> check_binding(Form& form, QWidget& window);

} // namespace quittika
