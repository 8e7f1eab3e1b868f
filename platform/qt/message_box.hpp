#pragma once

#include "platform/dialogs.hpp"

class QWidget;

namespace quittika {

/// The window that a dialog belongs in front of; null if the program shows none.
QWidget* dialog_parent();

/// Shows a message box and returns the answer. Its frame and Escape answer cancel, or ok where there is only
/// that; on a question without cancel they do nothing.
Answer show_message(const MessageBox& box);

} // namespace quittika
