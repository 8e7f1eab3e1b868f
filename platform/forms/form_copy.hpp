#pragma once

#include "platform/forms/form.hpp"

namespace quittika {

/// Gives the controls of a form that nobody sees the values of another one of the same struct, items of lists
/// included. No event is fired but `Changed` of a list whose items are others.
void copy_controls(const Form& from, Form& to);

} // namespace quittika
