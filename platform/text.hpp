#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quittika {

// Text is UTF-8; a byte that is no UTF-8 counts as one character and is left as it is.

/// Count of characters.
std::size_t zeichenzahl(std::string_view text);

/// The first `anzahl` characters, or the whole text if it is shorter.
std::string links(std::string_view text, std::size_t anzahl);
/// The last `anzahl` characters, or the whole text if it is shorter.
std::string rechts(std::string_view text, std::size_t anzahl);
/// The text from character `anfang` (counted from 0) on.
std::string ab(std::string_view text, std::size_t anfang);

std::string leerzeichen(std::size_t anzahl);
/// Blanks in front, up to `breite` characters; a longer text is left as it is.
std::string rechtsbuendig(std::string_view text, std::size_t breite);
/// Blanks behind, up to `breite` characters; a longer text is left as it is.
std::string linksbuendig(std::string_view text, std::size_t breite);

/// Without blanks at both ends.
std::string gekuerzt(std::string_view text);
bool beginnt_mit(std::string_view text, std::string_view anfang);
/// Every `alt` replaced by `neu`.
std::string ersetzen(std::string_view text, std::string_view alt, std::string_view neu);
/// A blank for each line end, as a line of a file needs it.
std::string einzeilig(std::string text);
/// Capitals, umlauts included.
std::string grossbuchstaben(std::string_view text);

/// Replaces every occurrence of the character `von` by `durch`.
std::string ZEICHENERSETZEN(std::string_view text, std::string_view von, std::string_view durch);

/// Windows-1252 to UTF-8. Never fails: the five bytes without a character become U+0081 and so on.
std::string aus_ansi(std::string_view bytes);

struct Ansi {
    std::string bytes;
    std::size_t ersetzt = 0; ///< characters that the code page lacks
};

/// The text of `bytes`: a view of them where they are plain ASCII, as most are, else of `puffer`.
std::string_view aus_ansi(std::string_view bytes, std::string& puffer);

/// UTF-8 to Windows-1252. What the code page lacks becomes its closest letter, else "?".
Ansi nach_ansi(std::string_view text);
/// The same behind what stands in `ziel`; returns the count of characters that the code page lacks.
std::size_t ansi_anhaengen(std::string& ziel, std::string_view text);

} // namespace quittika
