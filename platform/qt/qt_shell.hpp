#pragma once

#include "platform/shell.hpp"

namespace quittika {

class QtShell final : public Shell {
public:
    void open(const std::string& document) override;
    void mail(const MailMessage& message) override;
};

class QtClock final : public Clock {
public:
    Zeitpunkt now() const override;
};

} // namespace quittika
