#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace quittika {

/// UTF-8 to the toolkit's text and back.
QString to_qt(std::string_view text);
std::string from_qt(const QString& text);

/// Text of a control for a widget: every kind of line end becomes "\n".
QString lines_to_qt(std::string_view text);
/// Text of a widget for a control: line ends become CR LF.
std::string lines_from_qt(QString text);

/// A file name in the system's own encoding to the toolkit's text and back; unlike plain text, a name
/// that is no UTF-8 survives where the system allows it.
QString path_to_qt(const std::string& path);
std::string path_from_qt(const QString& path);

/// Place in a widget's text behind `characters` characters of the control's, where a line end counts two.
int widget_position(const QString& text, int characters);
/// The other way round.
int control_position(const QString& text, int position);

/// A tool tip that is shown as it stands, even where it looks like markup.
QString tool_tip(std::string_view text);

} // namespace quittika
