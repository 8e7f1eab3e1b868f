#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace quittika {

/// The program directory.
class Programmverzeichnis {
public:
    /// `ordner`: a system path in UTF-8, without a mark at its end.
    explicit Programmverzeichnis(std::string ordner) : ordner_(std::move(ordner)) {}

    const std::string& ordner() const { return ordner_; }
    /// Directory and a name that begins with "\": the program's own form of a path.
    std::string pfad(std::string_view name) const { return ordner_ + std::string(name); }

private:
    std::string ordner_;
};

/// The system's form of a path: a "\" becomes "/" unless it belongs to the name of a file or folder that
/// exists.
std::string systempfad(std::string_view pfad);

/// Whether a path names something that exists.
bool datei_vorhanden(std::string_view pfad);

} // namespace quittika
