#pragma once

#include <string>

namespace quittika {

/// What a PDF tells of itself. UTF-8; empty for nothing.
struct Pdfangaben {
    std::string titel;
    std::string verfasser;
    std::string programm; ///< that the document was made with
    std::string erzeuger; ///< that made a PDF of it
    std::string zeit;     ///< as PDF writes it: "D:20261123152355+01'00'"
};

/// The same as metadata (XMP) of a PDF/A-3B with an embedded `factur-x.xml` of profile EN 16931.
std::string PDF_METADATEN(const Pdfangaben& angaben);

} // namespace quittika
