#include "platform/script/recording.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/script/protocol.hpp"

#include <initializer_list>
#include <utility>

namespace quittika {

namespace {

std::string numbers(std::string line, std::initializer_list<double> lengths) {
    for (const double length : lengths) {
        line += ' ' + protocol::length(length);
    }
    return line;
}

/// Writes each drawing as a line.
class Lister {
public:
    explicit Lister(const RecordedJob& job) {
        lines_.push_back("job " + protocol::encode(job.title));
        (*this)(drawn::PageBreak{});
        for (const Drawing& drawing : job.drawings) {
            std::visit(*this, drawing);
        }
        if (job.ended) {
            lines_.push_back("enddoc");
        }
    }

    void operator()(const drawn::Text& t) {
        lines_.push_back(numbers("text", {t.left, t.top, t.width}) + ' ' + protocol::font_size(t.font.size) +
                         (t.font.bold ? " 1 " : " 0 ") + std::to_string(t.color) + ' ' +
                         protocol::encode(t.text));
    }
    void operator()(const drawn::Line& l) {
        lines_.push_back(numbers("line", {l.x1, l.y1, l.x2, l.y2}) + ' ' + std::to_string(l.color));
    }
    void operator()(const drawn::Picture& p) {
        lines_.push_back(numbers("picture", {p.left, p.top, p.width, p.height}) + ' ' +
                         protocol::encode(p.path));
    }
    void operator()(const drawn::PageBreak&) { lines_.push_back("page " + std::to_string(++page_)); }

    std::vector<std::string> take() && { return std::move(lines_); }

private:
    std::vector<std::string> lines_;
    int page_ = 0;
};

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
    void operator()(const drawn::PageBreak&) const { device.new_page(); }
};

} // namespace

std::vector<std::string> listing(const RecordedJob& job) {
    Lister lister(job);
    return std::move(lister).take();
}

void replay(const RecordedJob& job, PrintDevice& device) {
    for (const Drawing& drawing : job.drawings) {
        std::visit(Replayer{device}, drawing);
    }
}

RecordingDevice::RecordingDevice(std::shared_ptr<RecordedJob> job, PictureTest picture_test,
                                 std::function<void()> at_end)
    : job_(std::move(job)), picture_test_(std::move(picture_test)), at_end_(std::move(at_end)) {}

void RecordingDevice::text(double left, double top, double width, const PrintFont& font, Color color,
                           std::string_view text) {
    job_->drawings.emplace_back(drawn::Text{left, top, width, font, color, std::string(text)});
}

void RecordingDevice::line(double x1, double y1, double x2, double y2, Color color) {
    job_->drawings.emplace_back(drawn::Line{x1, y1, x2, y2, color});
}

void RecordingDevice::picture(double left, double top, double width, double height, const std::string& path) {
    if (picture_test_ && !picture_test_(path)) {
        throw Laufzeitfehler(fehler::kBild);
    }
    job_->drawings.emplace_back(drawn::Picture{left, top, width, height, path});
}

void RecordingDevice::new_page() {
    job_->drawings.emplace_back(drawn::PageBreak{});
}

void RecordingDevice::end_document() {
    if (std::exchange(job_->ended, true)) {
        return;
    }
    if (at_end_) {
        at_end_();
    }
}

} // namespace quittika
