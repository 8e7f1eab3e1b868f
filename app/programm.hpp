#pragma once

#include "platform/platform.hpp"

#include <memory>
#include <string>

namespace quittika {

/// The running program: builds windows and modules once and wires them.
class Programm {
public:
    /// `verzeichnis`: program directory, a system path in UTF-8.
    Programm(Platform platform, std::string verzeichnis);
    Programm(const Programm&) = delete;
    Programm& operator=(const Programm&) = delete;
    ~Programm();

    /// Shows the splash window; its timer leads to the main window, which then opens `rechnung`, a system
    /// path in UTF-8, unless that is empty.
    void starten(const std::string& rechnung = {});
    /// Shows the main window at once.
    void hauptfenster_zeigen();
    Form& hauptfenster();

private:
    struct Teile;
    std::unique_ptr<Teile> teile_;
};

} // namespace quittika
