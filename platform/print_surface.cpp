#include "platform/print_surface.hpp"

namespace quittika {

void PrintSurface::PrintOn(std::string_view text) {
    const PrintFont present = font();
    const double width = metrics_.text_width(present, text);
    if (text.find_first_not_of(' ') != std::string_view::npos) {
        device_.text(CurrentX, CurrentY, width, present, ForeColor, text);
    }
    CurrentX += width;
}

void PrintSurface::Print(std::string_view text) {
    PrintOn(text);
    CurrentX = 0;
    CurrentY += TextHeight();
}

void PrintSurface::Line(double x1, double y1, double x2, double y2, Color color) {
    device_.line(x1, y1, x2, y2, color);
}

void PrintSurface::PaintPicture(const std::string& path, double left, double top, double width,
                                double height) {
    if (!path.empty()) {
        device_.picture(left, top, width, height, path);
    }
}

void PrintSurface::NewPage() {
    device_.new_page();
    CurrentX = 0;
    CurrentY = 0;
}

} // namespace quittika
