#pragma once

#include "platform/pictures.hpp"
#include "platform/printing.hpp"

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace quittika {

/// What was drawn; all lengths in millimetres from the origin.
namespace drawn {
struct Text {
    double left;
    double top;
    double width;
    PrintFont font;
    Color color;
    std::string text;
    bool operator==(const Text&) const = default;
};
struct Line {
    double x1;
    double y1;
    double x2;
    double y2;
    Color color;
    bool operator==(const Line&) const = default;
};
struct Picture {
    double left;
    double top;
    double width;
    double height;
    std::string path;
    bool operator==(const Picture&) const = default;
};
struct Squares {
    double left;
    double top;
    double size;
    SquareGrid grid;
    bool operator==(const Squares&) const = default;
};
} // namespace drawn
using Drawing = std::variant<drawn::Text, drawn::Line, drawn::Picture, drawn::Squares>;

/// One page in the order in which it was drawn.
struct DrawnPage {
    Paper paper;
    std::vector<Drawing> drawings;
    /// A part of a page: it fills the width of the control that shows it, and what lies below shows through.
    bool transparent = false;
    bool operator==(const DrawnPage&) const = default;
};

/// One document as it reached its surface.
struct RecordedJob {
    explicit RecordedJob(PrintDocument d) : document(std::move(d)), pages(1, DrawnPage{document.paper, {}}) {}

    PrintDocument document;
    std::vector<DrawnPage> pages; ///< at least one
    bool ended = false;
};

/// Draws a page once more.
void replay(const DrawnPage& page, PrintDevice& device);
/// Draws the pages of a document once more, without ending it.
void replay(const RecordedJob& job, PrintDevice& device);

/// Writes down what is drawn on it.
class RecordingDevice final : public PrintDevice {
public:
    /// `at_end` runs once, when the document has been ended.
    RecordingDevice(std::shared_ptr<RecordedJob> job, Pictures& pictures, std::function<void()> at_end = {});

    void text(double left, double top, double width, const PrintFont& font, Color color,
              std::string_view text) override;
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void picture(double left, double top, double width, double height, const std::string& path) override;
    void squares(double left, double top, double size, const SquareGrid& grid) override;
    void new_page() override;
    void end_document() override;

private:
    std::vector<Drawing>& drawings() { return job_->pages.back().drawings; }

    std::shared_ptr<RecordedJob> job_;
    Pictures& pictures_;
    std::function<void()> at_end_;
};

/// Records a document of which `control` shows the last page from its end on. Both outlive the device.
std::unique_ptr<PrintDevice> draw_on(PictureControl& control, std::shared_ptr<RecordedJob> job,
                                     Pictures& pictures);

} // namespace quittika
