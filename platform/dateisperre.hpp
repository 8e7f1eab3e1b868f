#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quittika {

/// A file that only one process holds at a time. The system lets it go when the process ends, however it
/// ends; the file goes with the object, or stays behind and is worth nothing then.
class Dateisperre {
public:
    /// Nothing where another one holds it for longer than `geduld`. Throws `Laufzeitfehler` where there can
    /// be no such file, or the file system knows no locks.
    static std::optional<Dateisperre> NEHMEN(const std::string& pfad, std::chrono::milliseconds geduld = {});

    /// Whether another one holds this file. False where that cannot be told.
    static bool GEHALTEN(const std::string& pfad);

    const std::string& pfad() const;
    /// What the file tells those who want to know who holds it.
    void beschriften(std::string_view bytes);

private:
    struct Griff;
    explicit Dateisperre(std::shared_ptr<Griff> griff) : griff_(std::move(griff)) {}
    std::shared_ptr<Griff> griff_;
};

/// Name of the machine, and of the user who runs the program.
std::string RECHNERNAME();
std::string BENUTZERNAME();
/// Number of this process.
std::string PROZESSNUMMER();

} // namespace quittika
