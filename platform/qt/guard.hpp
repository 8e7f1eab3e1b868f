#pragma once

#include <functional>

namespace quittika {

class Form;

/// Runs what an event of the toolkit leads to. An error that nobody has caught is shown in a message box
/// with its number and text; it never reaches the toolkit's event loop.
/// Returns whether `work` came to its end.
bool guarded(const std::function<void()>& work);

/// The same for an event of a form's window, which stands until the message box is gone, too.
bool guarded(Form& form, const std::function<void()>& work);

} // namespace quittika
