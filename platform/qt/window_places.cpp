#include "platform/qt/window_places.hpp"

#include "platform/datei.hpp"
#include "platform/textdatei.hpp"

#include <QDebug>

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>
#include <vector>

namespace quittika {

namespace {

constexpr std::size_t kMostBytes = 1'000'000;
constexpr int kFarthest = 100'000; ///< pixels in any direction
constexpr int kTitleBar = 40;      ///< what the desktop puts around a window
constexpr std::string_view kMaximised = "max";

std::vector<std::string_view> fields(std::string_view line) {
    std::vector<std::string_view> found;
    for (std::size_t end = 0; end != std::string_view::npos;) {
        end = line.find(';');
        found.push_back(line.substr(0, end));
        line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
    }
    return found;
}

std::optional<int> number(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && value >= -kFarthest && value <= kFarthest ? std::optional(value) : std::nullopt;
}

/// The place that the fields behind the name tell, if they do.
std::optional<WindowPlace> place_of(std::vector<std::string_view> line) {
    constexpr std::size_t kWithPlace = 5;
    constexpr std::size_t kSizeOnly = 3;
    const bool maximised = line.back() == kMaximised;
    if (maximised) {
        line.pop_back();
    }
    std::vector<int> numbers;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (const auto value = number(line[i])) {
            numbers.push_back(*value);
        }
    }
    const bool complete =
        numbers.size() + 1 == line.size() && (line.size() == kSizeOnly || line.size() == kWithPlace);
    if (!complete || numbers[0] <= 0 || numbers[1] <= 0) {
        return std::nullopt;
    }
    WindowPlace place{QSize(numbers[0], numbers[1]), std::nullopt, maximised};
    if (line.size() == kWithPlace) {
        place.place = QPoint(numbers[2], numbers[3]);
    }
    return place;
}

std::string line_of(const std::string& window, const WindowPlace& place) {
    std::string line =
        window + ";" + std::to_string(place.size.width()) + ";" + std::to_string(place.size.height());
    if (place.place) {
        line.append(";").append(std::to_string(place.place->x()));
        line.append(";").append(std::to_string(place.place->y()));
    }
    if (place.maximised) {
        line.append(";").append(kMaximised);
    }
    return line;
}

int area(const QRect& rect) {
    return rect.width() * rect.height();
}

/// The screen that shows most of the window, else the main one.
QRect screen_for(const WindowPlace& wanted, const QList<QRect>& screens) {
    if (!wanted.place) {
        return screens.front();
    }
    const QRect window(*wanted.place, wanted.size);
    return *std::max_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
        return area(a.intersected(window)) < area(b.intersected(window));
    });
}

} // namespace

WindowPlace fitted(const WindowPlace& wanted, const QList<QRect>& screens) {
    const QRect room = screen_for(wanted, screens).adjusted(0, 0, 0, -kTitleBar);
    WindowPlace fit{wanted.size.boundedTo(room.size()), std::nullopt, wanted.maximised};
    if (wanted.place) {
        const auto within = [](int value, int first, int room_size, int size) {
            return std::clamp(value, first, first + room_size - size);
        };
        fit.place = QPoint(within(wanted.place->x(), room.x(), room.width(), fit.size.width()),
                           within(wanted.place->y(), room.y(), room.height(), fit.size.height()));
    }
    return fit;
}

WindowPlaces::WindowPlaces(std::string path) : path_(std::move(path)) {
    try {
        zeilen_durchgehen(bytes_lesen(path_, kMostBytes), [this](std::string_view line) {
            const std::vector<std::string_view> parts = fields(line);
            const std::optional<WindowPlace> place = place_of(parts);
            if (place && !parts.front().empty()) {
                places_[std::string(parts.front())] = *place;
            }
            return true;
        });
    } catch (const Laufzeitfehler&) {
        return; // most often the file is not there yet
    }
}

std::optional<WindowPlace> WindowPlaces::find(const std::string& window) const {
    const auto found = places_.find(window);
    return found == places_.end() ? std::nullopt : std::optional(found->second);
}

void WindowPlaces::note(const std::string& window, const WindowPlace& place) {
    const auto [found, added] = places_.try_emplace(window, place);
    if (added || found->second != place) {
        found->second = place;
        changed_ = true;
    }
}

void WindowPlaces::save() {
    if (!std::exchange(changed_, false)) {
        return;
    }
    std::vector<std::string> lines;
    for (const auto& [window, place] : places_) {
        lines.push_back(line_of(window, place));
    }
    try {
        zeilen_ersetzen(path_, lines);
    } catch (const Laufzeitfehler& error) {
        qWarning("%s: places of the windows not kept: %s", path_.c_str(), error.what());
    }
}

} // namespace quittika
