#pragma once

#include "platform/textdatei.hpp"

#include <array>
#include <string>
#include <string_view>

namespace quittika {

inline constexpr int kTextvorlagen = 18;
inline constexpr int kVorlagenzeilen = 4;

/// The texts of all templates: template, line.
using Vorlagentexte = std::array<std::array<std::string, kVorlagenzeilen>, kTextvorlagen>;

/// Reads the bytes of a template file. A line that is none is passed over, the last one of a key counts.
Vorlagentexte VORLAGEN_LESEN(std::string_view bytes);

/// The lines of the file. A text with ";" is written whole; reading it again ends it there.
Textpuffer VORLAGEN_SCHREIBEN(const Vorlagentexte& texte);

} // namespace quittika
