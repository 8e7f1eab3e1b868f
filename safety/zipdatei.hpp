#pragma once

#include "platform/dateizugriff.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// What is wrong with a backup, in a German sentence.
class Sicherungsfehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

inline constexpr std::size_t kZipHoechstens = 100'000; ///< files in an archive

/// What an archive says of one of its files.
struct Zipeintrag {
    std::string name; ///< UTF-8; "/" at the end of a folder's
    std::uint64_t groesse = 0;
    std::uint64_t gepackt = 0;
    std::int64_t zeit = 0;   ///< last change, seconds since 1970
    bool gewoehnlich = true; ///< a file or a folder that can be read: no link, no device, no foreign packing
};

/// Reads an archive. Throws `Laufzeitfehler` for a file that cannot be read, `Sicherungsfehler` for one that
/// is no archive, is damaged or holds more than `kZipHoechstens` files.
class Zipleser {
public:
    /// `datei` stays open as long as this lives.
    explicit Zipleser(const Datei& datei);
    Zipleser(Zipleser&&) noexcept;
    Zipleser& operator=(Zipleser&&) noexcept;
    ~Zipleser();

    const std::vector<Zipeintrag>& eintraege() const;
    /// Hands over the content of a file piece by piece, at most as much as its size says, and holds it
    /// against its checksum behind the last piece.
    void lesen(std::size_t nummer, const std::function<void(std::string_view bytes)>& senke) const;

private:
    struct Teile;
    std::unique_ptr<Teile> teile_;
};

/// A file on its way into an archive.
struct Zipquelle {
    std::string name; ///< UTF-8
    std::string ort;  ///< system path of the content; empty for `inhalt`
    std::string inhalt;
    std::uint64_t groesse = 0;
    std::int64_t zeit = 0; ///< seconds since 1970
};

/// Writes an archive into an empty file. `fortschritt` is told of the bytes read and which of the files they
/// belong to; what it throws ends the work and comes out.
void ZIP_SCHREIBEN(const Datei& datei, const std::vector<Zipquelle>& quellen,
                   const std::function<void(std::size_t bytes, std::size_t nummer)>& fortschritt);

} // namespace quittika
