#include "platform/recording.hpp"

#include "platform/forms/controls.hpp"

#include <utility>

namespace quittika {

namespace {

/// Draws each drawing again.
struct Replayer {
    PrintDevice& device;
    void operator()(const drawn::Text& t) const {
        device.text(t.left, t.top, t.width, t.font, t.color, t.text);
    }
    void operator()(const drawn::Line& l) const { device.line(l.x1, l.y1, l.x2, l.y2, l.color); }
    void operator()(const drawn::Picture& p) const {
        device.picture(p.left, p.top, p.width, p.height, p.path);
    }
    void operator()(const drawn::Squares& s) const { device.squares(s.left, s.top, s.size, s.grid); }
};

} // namespace

void replay(const DrawnPage& page, PrintDevice& device) {
    for (const Drawing& drawing : page.drawings) {
        std::visit(Replayer{device}, drawing);
    }
}

void replay(const RecordedJob& job, PrintDevice& device) {
    bool first = true;
    for (const DrawnPage& page : job.pages) {
        if (!std::exchange(first, false)) {
            device.new_page();
        }
        replay(page, device);
    }
}

RecordingDevice::RecordingDevice(std::shared_ptr<RecordedJob> job, Pictures& pictures,
                                 std::function<void()> at_end)
    : job_(std::move(job)), pictures_(pictures), at_end_(std::move(at_end)) {}

void RecordingDevice::text(double left, double top, double width, const PrintFont& font, Color color,
                           std::string_view text) {
    drawings().emplace_back(drawn::Text{left, top, width, font, color, std::string(text)});
}

void RecordingDevice::line(double x1, double y1, double x2, double y2, Color color) {
    drawings().emplace_back(drawn::Line{x1, y1, x2, y2, color});
}

void RecordingDevice::picture(double left, double top, double width, double height, const std::string& path) {
    pictures_.check(path);
    drawings().emplace_back(drawn::Picture{left, top, width, height, path});
}

void RecordingDevice::squares(double left, double top, double size, const SquareGrid& grid) {
    drawings().emplace_back(drawn::Squares{left, top, size, grid});
}

void RecordingDevice::new_page() {
    job_->pages.push_back({job_->document.paper, {}});
}

void RecordingDevice::end_document() {
    if (std::exchange(job_->ended, true)) {
        return;
    }
    if (at_end_) {
        at_end_();
    }
}

std::unique_ptr<PrintDevice> draw_on(PictureControl& control, std::shared_ptr<RecordedJob> job,
                                     Pictures& pictures) {
    auto show = [&control, job] { control.show_page(std::make_shared<DrawnPage>(job->pages.back())); };
    return std::make_unique<RecordingDevice>(std::move(job), pictures, std::move(show));
}

} // namespace quittika
