#pragma once

#include "masterdata/artikel.hpp"

#include <string>
#include <string_view>

namespace quittika {

/// `fillstring` once for each number from the text's length up to `width`: one more than what is missing.
/// Nothing for a longer text.
std::string fillup(std::string_view text, int width, std::string_view fillstring);

/// One column of a row of the article list. Kinds: 1 index ("0000", or three blanks), 2 (right, 9 wide),
/// 3 description (centred, 76 wide), 4 price (right, 6 wide), 5 number (right, 33 wide). Widths count
/// characters; a longer text is not cut. Another kind gives an empty text.
std::string COMPRESSOR_artikel(int art, std::string_view text);

/// The row of an article in the list.
std::string ARTIKELREIHE(const Artikel& artikel);

} // namespace quittika
