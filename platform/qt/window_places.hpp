#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <map>
#include <optional>
#include <string>

namespace quittika {

/// Where a window stood, in the toolkit's pixels; without a place it is put where the program wants it.
struct WindowPlace {
    QSize size;
    std::optional<QPoint> place;
    bool maximised = false; ///< size and place are then those to come back to
    bool operator==(const WindowPlace&) const = default;
};

/// The nearest place wholly within one of the screens; `screens` holds the free room of each, the main one
/// first.
WindowPlace fitted(const WindowPlace& wanted, const QList<QRect>& screens);

/// Sizes and places of the windows, kept from one run to the next in a text file: "name;width;height",
/// ";left;top" where the place counts, and ";max" of a maximised window. It is a comfort: what cannot be read
/// is as if it had never been written, and a file that cannot be written stays as it is.
class WindowPlaces {
public:
    explicit WindowPlaces(std::string path);

    std::optional<WindowPlace> find(const std::string& window) const;
    void note(const std::string& window, const WindowPlace& place);
    /// Replaces the file if anything is another than it says.
    void save();

private:
    std::string path_;
    std::map<std::string, WindowPlace> places_;
    bool changed_ = false;
};

} // namespace quittika
