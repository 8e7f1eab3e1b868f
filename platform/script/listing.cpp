#include "platform/script/listing.hpp"

#include "platform/script/protocol.hpp"

#include <initializer_list>

namespace quittika {

namespace {

std::string numbers(std::string line, std::initializer_list<double> lengths) {
    for (const double length : lengths) {
        line += ' ' + protocol::length(length);
    }
    return line;
}

/// A drawing as a line.
struct Lister {
    std::string operator()(const drawn::Text& t) const {
        return numbers("text", {t.left, t.top, t.width}) + ' ' + protocol::font_size(t.font.size) +
               (t.font.bold ? " 1 " : " 0 ") + std::to_string(t.color) + ' ' + protocol::encode(t.text);
    }
    std::string operator()(const drawn::Line& l) const {
        return numbers("line", {l.x1, l.y1, l.x2, l.y2}) + ' ' + std::to_string(l.color);
    }
    std::string operator()(const drawn::Picture& p) const {
        return numbers("picture", {p.left, p.top, p.width, p.height}) + ' ' + protocol::encode(p.path);
    }
    std::string operator()(const drawn::Squares& s) const {
        return numbers("squares", {s.left, s.top, s.size}) + ' ' + std::to_string(s.grid.side);
    }
};

} // namespace

std::vector<std::string> listing(const RecordedJob& job) {
    std::vector<std::string> lines{"job " + protocol::encode(job.document.title)};
    int number = job.document.first_page;
    for (const DrawnPage& page : job.pages) {
        lines.push_back("page " + std::to_string(number++));
        for (const Drawing& drawing : page.drawings) {
            lines.push_back(std::visit(Lister{}, drawing));
        }
    }
    if (job.ended) {
        lines.emplace_back("enddoc");
    }
    return lines;
}

} // namespace quittika
