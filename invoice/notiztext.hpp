#pragma once

#include <string>
#include <string_view>

namespace quittika {

// The note is one line of the invoice file: a line break in it stands as "#$§$#".

/// The note as it is kept, from a text with line ends of any kind.
std::string NOTIZ_ABLEGEN(std::string_view text);

/// The kept note as a text with CR LF.
std::string NOTIZ_LESBAR(std::string_view notiz);

} // namespace quittika
