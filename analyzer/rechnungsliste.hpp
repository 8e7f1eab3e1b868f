#pragma once

#include "analyzer/rechnungsauszug.hpp"
#include "platform/dateianfang.hpp"
#include "platform/progress.hpp"

#include <array>
#include <string>
#include <vector>

namespace quittika {

/// The invoices of a folder, read and ready for the lists of a window: all columns are in step.
class Rechnungsliste {
public:
    struct Auslassung {
        std::string datei;
        std::string grund;
    };

    /// Reads the files of a folder in their order until the user stops it.
    void Dateien_einlesen(const std::string& ordner, const std::vector<std::string>& dateien,
                          ProgressDisplay& fortschritt);
    /// Reads one invoice. Throws `Laufzeitfehler` for a file that cannot be read or is none; nothing is
    /// entered then.
    void Rechnungen_einlesen(const std::string& ort, const std::string& name);

    /// Columns of raw data, each with a text for each invoice.
    std::array<std::vector<std::string>, rohdatum::kAnzahl> rohdaten;
    std::vector<std::string> zeilen;  ///< of the table
    std::vector<std::string> dateien; ///< names
    std::vector<Auslassung> ausgelassen;
    bool alte_version = false; ///< one of them holds no split of the shipping costs
    bool abgebrochen = false;

private:
    Dateianfang leser_;
    Rechnungszeilen ZEILEN; ///< of the file read last
};

} // namespace quittika
