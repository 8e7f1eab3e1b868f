#pragma once

#include "platform/printing.hpp"

#include <string_view>

namespace quittika {

/// Drawing with a cursor, in the printer's own vocabulary; lengths are millimetres.
/// It keeps font, colour and cursor and passes what is drawn on to a device.
class PrintSurface {
public:
    PrintSurface(PrintDevice& device, const FontMetrics& metrics) : device_(device), metrics_(metrics) {}

    double CurrentX = 0;
    double CurrentY = 0;
    std::string FontName = "Arial";
    double FontSize = 10; ///< points
    bool FontBold = false;
    Color ForeColor = color::kBlack;

    double TextWidth(std::string_view text) const { return metrics_.text_width(font(), text); }
    /// Height of one line in the present font.
    double TextHeight() const { return metrics_.line_height(font()); }

    /// Draws at the cursor and goes to the beginning of the next line (x = 0).
    void Print(std::string_view text);
    /// Draws at the cursor and leaves the cursor behind the text.
    void PrintOn(std::string_view text);
    void Line(double x1, double y1, double x2, double y2, Color color);
    /// Nothing happens where `path` is empty.
    void PaintPicture(const std::string& path, double left, double top, double width, double height);
    /// Draws a grid `size` mm wide; as much white ground as it names lies around it.
    void PaintSquares(const SquareGrid& grid, double left, double top, double size) {
        device_.squares(left, top, size, grid);
    }
    /// Begins a new page with the cursor in its corner.
    void NewPage();
    void EndDoc() { device_.end_document(); }

private:
    PrintFont font() const { return {FontName, FontSize, FontBold}; }

    PrintDevice& device_;
    const FontMetrics& metrics_;
};

} // namespace quittika
