#pragma once

#include "platform/datum.hpp"

#include <string>

namespace quittika {

/// A message for the user to look at and send.
struct MailMessage {
    std::string to;
    std::string subject;
    std::string body;       ///< lines end with LF
    std::string attachment; ///< path of a file
};

/// Hands documents and addresses to the system.
class Shell {
public:
    Shell() = default;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;
    virtual ~Shell() = default;

    /// Opens a file path, web page or mail address in the program that the system has for it.
    /// Throws `Laufzeitfehler` 53 when nothing could be opened.
    virtual void open(const std::string& document) = 0;
    /// Opens a new message in the system's mail program. Throws `Laufzeitfehler` 53 where there is none.
    virtual void mail(const MailMessage& message) = 0;
};

/// The local time.
class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    virtual Zeitpunkt now() const = 0;
};

} // namespace quittika
