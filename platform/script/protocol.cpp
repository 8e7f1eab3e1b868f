#include "platform/script/protocol.hpp"

#include <array>
#include <charconv>
#include <system_error>

namespace quittika::protocol {

namespace {

struct Escape {
    char letter;
    char meaning;
};
constexpr std::array<Escape, 4> kEscapes{{{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'\\', '\\'}}};

bool append_escaped(std::string& out, char c) {
    for (const Escape& escape : kEscapes) {
        if (escape.meaning == c) {
            out += '\\';
            out += escape.letter;
            return true;
        }
    }
    return false;
}

char meaning_of(std::string_view rest) {
    for (const Escape& escape : kEscapes) {
        if (!rest.empty() && escape.letter == rest.front()) {
            return escape.meaning;
        }
    }
    throw CommandError("Unbekannte Umschreibung \\" + std::string(rest.substr(0, 1)));
}

bool matches(std::string_view text, std::string_view pattern) {
    if (text.size() != pattern.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (pattern[i] == '0' ? !digit : text[i] != pattern[i]) {
            return false;
        }
    }
    return true;
}

std::string decimal(double value, std::optional<int> decimals) {
    std::array<char, 400> buffer; // the longest double has 309 digits before the point
    char* const end = buffer.data() + buffer.size();
    const auto result = decimals
                            ? std::to_chars(buffer.data(), end, value, std::chars_format::fixed, *decimals)
                            : std::to_chars(buffer.data(), end, value, std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

} // namespace

Parted part(std::string_view line) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos) {
        return {line, {}};
    }
    return {line.substr(0, blank), line.substr(blank + 1)};
}

std::vector<std::string_view> words(std::string_view line) {
    std::vector<std::string_view> found;
    for (;;) {
        const std::size_t blank = line.find(' ');
        found.push_back(line.substr(0, blank));
        if (blank == std::string_view::npos) {
            return found;
        }
        line.remove_prefix(blank + 1);
    }
}

std::string decode(std::string_view value) {
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        text += value[i] == '\\' ? meaning_of(value.substr(++i)) : value[i];
    }
    return text;
}

std::string encode(std::string_view text) {
    std::string data;
    for (const char c : text) {
        if (!append_escaped(data, c)) {
            data += c;
        }
    }
    return data;
}

std::string field(std::string_view text) {
    std::string data;
    for (const char c : encode(text)) {
        if (c == '|') {
            data += "\\p";
        } else {
            data += c;
        }
    }
    return data;
}

std::int64_t integer(std::string_view text, std::int64_t min, std::int64_t max) {
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (text.empty() || result.ec == std::errc::invalid_argument || result.ptr != end) {
        throw CommandError("\"" + std::string(text) + "\" ist keine ganze Zahl");
    }
    if (result.ec != std::errc{} || value < min || value > max) {
        throw CommandError(std::string(text) + " liegt nicht zwischen " + std::to_string(min) + " und " +
                           std::to_string(max));
    }
    return value;
}

std::optional<Zeitpunkt> time_stamp(std::string_view text) {
    if (!matches(text, "0000-00-00T00:00:00")) {
        return std::nullopt;
    }
    const auto time = iso_lesen(text);
    if (!time) {
        throw CommandError(std::string(text) + " gibt es im Kalender nicht");
    }
    return time;
}

std::string length(double millimetres) {
    const std::string text = decimal(millimetres, 2);
    return text == "-0.00" ? "0.00" : text;
}

std::string font_size(double points) {
    return decimal(points, std::nullopt);
}

} // namespace quittika::protocol
