#pragma once

#include "platform/datum.hpp"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// A command that cannot be carried out; the text is a German sentence for the closing line.
class CommandError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// How values are written in the lines that go in and out.
namespace protocol {

/// A line parted at its first blank; without a blank the rest is empty.
struct Parted {
    std::string_view head;
    std::string_view rest;
};
Parted part(std::string_view line);

/// All words of a line, parted by single blanks.
std::vector<std::string_view> words(std::string_view line);

/// Turns the escapes of a value into what they stand for. Throws `CommandError` for an unknown one.
std::string decode(std::string_view value);
/// The reverse of `decode`, so that any text fits on one line.
std::string encode(std::string_view text);
/// `encode` for one field of a line whose fields are parted by "|".
std::string field(std::string_view text);

/// A decimal number in min..max. Throws `CommandError`.
std::int64_t integer(std::string_view text, std::int64_t min, std::int64_t max);

/// "2008-05-17T09:30:00". Nothing where the text does not look like that;
/// throws `CommandError` where it does and is no time of the calendar.
std::optional<Zeitpunkt> time_stamp(std::string_view text);

/// Millimetres with two decimals and a point; never "-0.00".
std::string length(double millimetres);
/// Shortest decimal text of a font size in points.
std::string font_size(double points);

} // namespace protocol

} // namespace quittika
