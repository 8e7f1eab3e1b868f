#pragma once

#include "platform/dialogs.hpp"

class QWidget;

namespace quittika {

/// The window that a dialog belongs in front of; null if the program shows none. Between two dialogs, no
/// window is in use for a moment: then it is that of the `former` one.
QWidget* dialog_parent(QWidget* former = nullptr);

/// Shows a message box and returns the answer. Its frame and Escape answer cancel, or ok where there is only
/// that; on a question without cancel they do nothing.
Answer show_message(const MessageBox& box, QWidget* parent = dialog_parent());

} // namespace quittika
