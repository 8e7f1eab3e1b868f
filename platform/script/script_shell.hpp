#pragma once

#include "platform/shell.hpp"

#include <string>
#include <utility>
#include <vector>

namespace quittika {

/// Notes down what would be opened.
class ScriptShell final : public Shell {
public:
    void open(const std::string& document) override { opened_.push_back(document); }
    /// What was opened since the last call.
    std::vector<std::string> take_opened() { return std::exchange(opened_, {}); }

private:
    std::vector<std::string> opened_;
};

} // namespace quittika
