#pragma once

#include "platform/shell.hpp"

#include <string>
#include <utility>
#include <vector>

namespace quittika {

/// Notes down what would be opened.
class ScriptShell final : public Shell {
public:
    void open(const std::string& document) override;
    void mail(const MailMessage& message) override;
    /// What was opened since the last call, as lines of the protocol.
    std::vector<std::string> take_opened() { return std::exchange(opened_, {}); }

private:
    std::vector<std::string> opened_;
};

} // namespace quittika
