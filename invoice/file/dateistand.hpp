#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quittika {

/// What the file of the invoice in hand held when this program read or wrote it last.
class Dateistand {
public:
    /// The file holds these bytes.
    void merken(const std::string& pfad, std::string_view bytes);
    /// These bytes are about to be written; a save that fails at its very end leaves them on disk.
    void vormerken(std::string_view bytes);
    /// Whether the bytes that were about to be written are in `pfad`, or may be: it cannot be read.
    bool VorgemerktesLiegtIn(const std::string& pfad) const;
    /// The file holds the bytes that were about to be written.
    void geschrieben(const std::string& pfad);
    /// Whether `pfad` is that file and holds something else by now. A file that is gone or that cannot be
    /// read holds nothing.
    bool AnderswoGeaendert(const std::string& pfad) const;

private:
    std::string ort_;
    std::size_t inhalt_ = 0; ///< hash
    std::size_t vorgemerkt_ = 0;
};

} // namespace quittika
