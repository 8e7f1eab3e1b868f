#pragma once

#include "platform/datum.hpp"

#include <string>

namespace quittika {

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
