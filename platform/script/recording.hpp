#pragma once

#include "platform/printing.hpp"

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace quittika {

/// What was drawn; all lengths in millimetres from the page's left and top edge.
namespace drawn {
struct Text {
    double left;
    double top;
    double width;
    PrintFont font;
    Color color;
    std::string text;
};
struct Line {
    double x1;
    double y1;
    double x2;
    double y2;
    Color color;
};
struct Picture {
    double left;
    double top;
    double width;
    double height;
    std::string path;
};
struct PageBreak {};
} // namespace drawn
using Drawing = std::variant<drawn::Text, drawn::Line, drawn::Picture, drawn::PageBreak>;

/// One document as it reached its surface.
struct RecordedJob {
    std::string title;
    std::vector<Drawing> drawings;
    bool ended = false;
};

/// The job as lines of the protocol.
std::vector<std::string> listing(const RecordedJob& job);

/// Draws the pages of a job once more, without ending the document.
void replay(const RecordedJob& job, PrintDevice& device);

/// Tells whether a picture file can be drawn.
using PictureTest = std::function<bool(const std::string& path)>;

/// Writes down what is drawn on it.
class RecordingDevice final : public PrintDevice {
public:
    /// `at_end` runs when the document has been ended.
    RecordingDevice(std::shared_ptr<RecordedJob> job, PictureTest picture_test,
                    std::function<void()> at_end = {});

    void text(double left, double top, double width, const PrintFont& font, Color color,
              std::string_view text) override;
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void picture(double left, double top, double width, double height, const std::string& path) override;
    void new_page() override;
    void end_document() override;

private:
    std::shared_ptr<RecordedJob> job_;
    PictureTest picture_test_;
    std::function<void()> at_end_;
};

} // namespace quittika
