#include "platform/zeilenenden.hpp"

namespace quittika {

std::optional<std::string_view> ZEILE_ABTRENNEN(std::string_view& text) {
    const std::size_t ende = text.find_first_of("\r\n");
    if (ende == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view zeile = text.substr(0, ende);
    text.remove_prefix(ende + (text.compare(ende, 2, "\r\n") == 0 ? 2 : 1));
    return zeile;
}

std::string ZEILENENDEN_ERSETZEN(std::string_view text, std::string_view durch) {
    std::string ersetzt;
    while (const auto zeile = ZEILE_ABTRENNEN(text)) {
        ersetzt.append(*zeile).append(durch);
    }
    return ersetzt.append(text);
}

} // namespace quittika
