#pragma once

#include <string>
#include <string_view>

namespace quittika {

/// The text without what no XML holds (control characters, bytes that are no UTF-8) and without blanks at its
/// ends; tabs are blanks, line ends stay.
std::string XML_TEXT(std::string_view text);

} // namespace quittika
