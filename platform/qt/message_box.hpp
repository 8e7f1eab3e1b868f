#pragma once

#include "platform/dialogs.hpp"

class QWidget;

namespace quittika {

/// The window that a dialog belongs in front of; null if the program shows none.
QWidget* dialog_parent();

/// Shows a message box and returns the answer. Closing it by its frame or with Escape answers cancel,
/// where there is no cancel no, and ok where there is only that.
Answer show_message(const MessageBox& box);

} // namespace quittika
