#pragma once

#include "platform/progress.hpp"

namespace quittika {

class QtDesktop;

/// Shows long work in a small window in front of the one in use.
class QtProgress final : public Progress {
public:
    explicit QtProgress(QtDesktop& desktop) : desktop_(desktop) {}

    std::unique_ptr<ProgressDisplay> begin(const std::string& text) override;

private:
    QtDesktop& desktop_;
};

} // namespace quittika
