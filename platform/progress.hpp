#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace quittika {

/// How far a piece of long work has come, and the user's "Abbrechen". It goes with the end of its life.
class ProgressDisplay {
public:
    ProgressDisplay() = default;
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;
    virtual ~ProgressDisplay() = default;

    /// Tells that `done` of `total` steps lie behind the work, and what it is at, in a line of its own.
    /// Cheap enough to be called for each of many thousand steps; call it often, for the windows live by it.
    virtual void update(std::size_t done, std::size_t total, std::string_view detail = {}) = 0;
    /// Whether the user wants the work to stop; to be asked after each update.
    virtual bool aborted() const = 0;
};

/// Keeps the user company during long work on the program's one thread. Work of less than half a second shows
/// nothing. From then on windows are painted, but nothing of the program runs beside the work: no input
/// reaches another window, no timer ticks, what is to be done later waits.
class Progress {
public:
    Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    virtual ~Progress() = default;

    /// Call it when the work begins. `text` tells what is done: "Rechnungen werden gelesen".
    virtual std::unique_ptr<ProgressDisplay> begin(const std::string& text) = 0;
};

} // namespace quittika
