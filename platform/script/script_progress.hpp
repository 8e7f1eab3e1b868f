#pragma once

#include "platform/progress.hpp"

#include <string>
#include <vector>

namespace quittika {

/// Notes down the displays, and aborts those for which an "Abbrechen" waits.
class ScriptProgress final : public Progress {
public:
    std::unique_ptr<ProgressDisplay> begin(const std::string& text) override;

    /// Lets the user abort the next display at its first update; one that has none leaves it to the next.
    void queue_abort() { ++aborts_; }
    /// The displays that ended since the last call, as lines of the protocol.
    std::vector<std::string> take_displays();

private:
    class Display;

    int aborts_ = 0;
    std::vector<std::string> displays_;
};

} // namespace quittika
