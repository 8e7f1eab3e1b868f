#pragma once

#include <string>
#include <string_view>

namespace quittika {

/// One column of a visible row. Kinds: 1 position ("000" or three blanks), 2 quantity (right, 9 wide),
/// 3 description (centred, 76 wide), 4 unit price (right, 6 wide), 5 row total (right, 10 wide).
/// Widths count characters; a longer text is not cut. Another kind gives an empty text.
std::string COMPRESSOR(int art, std::string_view text);
/// The same behind what stands in `zeile`.
void COMPRESSOR_ANFUEGEN(std::string& zeile, int art, std::string_view text);

} // namespace quittika
