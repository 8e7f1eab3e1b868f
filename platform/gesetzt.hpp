#pragma once

#include <utility>

namespace quittika {

/// Sets a flag for its lifetime; afterwards it is what it was.
class Gesetzt {
public:
    explicit Gesetzt(bool& schalter) : schalter_(schalter), vorher_(std::exchange(schalter, true)) {}
    Gesetzt(const Gesetzt&) = delete;
    Gesetzt& operator=(const Gesetzt&) = delete;
    ~Gesetzt() { schalter_ = vorher_; }

private:
    bool& schalter_;
    bool vorher_;
};

} // namespace quittika
