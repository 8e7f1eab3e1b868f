#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quittika {

/// Reads the beginnings of many files, one after the other, in large pieces and without taking new memory for
/// each. Errors are those of `platform/datei.hpp`.
class Dateianfang {
public:
    /// More bytes than these are read of no file.
    static constexpr std::size_t kHoechstens = 50U << 20U;

    /// Hands over the first bytes of a file, given by its system path, each time more of them, until
    /// `genug` answers true; at the end of the file all of them. They stand until the next call.
    /// Throws `Laufzeitfehler` 7 where `kHoechstens` bytes are not enough.
    void lesen(const std::string& ort, const std::function<bool(std::string_view bytes)>& genug);

private:
    std::string puffer_;
};

} // namespace quittika
