#pragma once

#include "invoice/form1.hpp"

namespace quittika {

/// Elements of the text blocks' arrays.
namespace textblock {
inline constexpr int kAnschreiben = 0;
inline constexpr int kBemerkungen = 1;
} // namespace textblock

/// The text block that the user works on.
inline int TEXTBLOCK_GEWAEHLT(const Form1& form1) {
    return form1.Option_Bemerkungen.Value() ? textblock::kBemerkungen : textblock::kAnschreiben;
}

} // namespace quittika
