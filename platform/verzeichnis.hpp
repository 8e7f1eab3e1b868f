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

/// The system's form of a path. A path that exists as it stands is left so; else every "\" becomes "/" that
/// no existing folder on the way holds in its name.
std::string systempfad(std::string_view pfad);

/// Whether a path names something that exists.
bool datei_vorhanden(std::string_view pfad);

/// Whether a path names a folder.
bool ordner_vorhanden(std::string_view pfad);

/// Whether the user may put files into a folder, given as a system path.
bool ordner_beschreibbar(const std::string& ordner);

} // namespace quittika
