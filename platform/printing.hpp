#pragma once

#include "platform/forms/property.hpp"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// A font on paper.
struct PrintFont {
    std::string name;
    double size = 10; ///< points
    bool bold = false;
    bool operator==(const PrintFont&) const = default;
};

/// Measures text in millimetres, the same for every device.
class FontMetrics {
public:
    FontMetrics() = default;
    FontMetrics(const FontMetrics&) = delete;
    FontMetrics& operator=(const FontMetrics&) = delete;
    virtual ~FontMetrics() = default;

    virtual double text_width(const PrintFont& font, std::string_view text) const = 0;
    /// Distance from one line to the next.
    virtual double line_height(const PrintFont& font) const = 0;
};

/// A sheet as it lies before the reader, in millimetres; A4 upright unless told otherwise.
struct Paper {
    double width = 210;
    double height = 297;
    bool operator==(const Paper&) const = default;
};

/// What a document is before anything is drawn.
struct PrintDocument {
    std::string title;
    Paper paper = {};
    int first_page = 1; ///< number of the page that is drawn first
    std::string author = {};
};

/// Place of the origin on the sheet, in millimetres from its left and top edge, on every surface that shows a
/// sheet: where the printers begin to draw that the print adjustment of the settings was made for.
inline constexpr double kOriginLeft = 4;
inline constexpr double kOriginTop = 6;

/// A square of dark and light ones, as codes are made of, row by row.
struct SquareGrid {
    int side = 0;  ///< squares in a row and in a column
    int quiet = 0; ///< as many squares of white ground lie around it
    std::vector<bool> dark;
    bool is_dark(int x, int y) const {
        return dark.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(side) +
                       static_cast<std::size_t>(x));
    }
    bool operator==(const SquareGrid&) const = default;
};

/// What reaches the paper. All lengths are millimetres from the origin.
class PrintDevice {
public:
    PrintDevice() = default;
    PrintDevice(const PrintDevice&) = delete;
    PrintDevice& operator=(const PrintDevice&) = delete;
    virtual ~PrintDevice() = default;

    /// Draws a text whose line box begins at `left`, `top`; `width` is the measured one.
    virtual void text(double left, double top, double width, const PrintFont& font, Color color,
                      std::string_view text) = 0;
    virtual void line(double x1, double y1, double x2, double y2, Color color) = 0;
    /// Draws a picture file stretched to the box. Throws what `Pictures` throws for one that cannot be shown.
    virtual void picture(double left, double top, double width, double height, const std::string& path) = 0;
    /// Draws a grid `size` mm wide, its white ground around it.
    virtual void squares(double left, double top, double size, const SquareGrid& grid) = 0;
    virtual void new_page() = 0;
    /// Ends the document and hands it over. Throws `Laufzeitfehler` 482, or that of the file, when that
    /// fails; it names the reason.
    virtual void end_document() = 0;
};

class PictureControl;
struct ChartSheet;
struct DrawnPage;

/// The places that can be printed on.
class Printing {
public:
    Printing() = default;
    Printing(const Printing&) = delete;
    Printing& operator=(const Printing&) = delete;
    virtual ~Printing() = default;

    virtual const FontMetrics& metrics() const = 0;
    /// Begins a job on the printer chosen last. Throws `Laufzeitfehler` 482 with the reason when it takes
    /// none.
    virtual std::unique_ptr<PrintDevice> printer(const PrintDocument& document) = 0;
    /// Begins a PDF file, which appears, or is replaced, whole at the end of the document. Its text can be
    /// searched; title, author and the time are entered. Throws as `PrintDevice::end_document` does.
    virtual std::unique_ptr<PrintDevice> pdf(const std::string& path, const PrintDocument& document) = 0;
    /// Takes the bytes of a document.
    using TakeBytes = std::function<void(std::string bytes)>;
    /// Begins a PDF that can be kept for long, with all fonts and the profile of its colours in it (PDF/A).
    /// At the end of the document `take` gets it.
    virtual std::unique_ptr<PrintDevice> archive(const PrintDocument& document, TakeBytes take) = 0;
    /// Draws a page to be shown by `control`, which outlives the device. A new page wipes out the one before;
    /// at the end of the document the last one takes the place of what the control shows.
    virtual std::unique_ptr<PrintDevice> picture(PictureControl& control, const PrintDocument& document) = 0;
    /// Saves a page as a picture, png by that ending, else bmp; `dpi` from 1 to 1200. Replaces a file whole.
    /// Throws the error of the file, 5 for another `dpi`, 7 where the picture needs too much memory.
    virtual void save_page(const DrawnPage& page, const std::string& path, int dpi) = 0;
    /// Saves charts on a white sheet of A4, as PDF by that ending, else as png. Replaces a file whole. Throws
    /// the error of the file.
    virtual void save_charts(const ChartSheet& sheet, const std::string& path) = 0;
    /// The file that the printer chosen last prints into, each job in place of the one before; empty for
    /// paper.
    virtual std::string output_file() const = 0;
};

} // namespace quittika
