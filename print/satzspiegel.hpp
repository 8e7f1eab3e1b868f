#pragma once

#include <vector>

namespace quittika {

/// A box on the sheet, mm.
struct Kasten {
    double links;
    double oben;
    double rechts;
    double unten;
};

/// What is taken of a sheet, so that nothing is printed over something else.
class Satzspiegel {
public:
    /// `unterkante`: mm, where the room for texts ends.
    explicit Satzspiegel(double unterkante) : unterkante_(unterkante) {}

    void belegen(const Kasten& kasten) { belegt_.push_back(kasten); }
    bool frei(const Kasten& kasten) const;
    /// How far down a box must move so that it covers nothing; 0 where there is no room below either.
    double ausweichen(Kasten kasten) const;
    /// Bottom of what begins above `y`, `y` where nothing reaches down to it.
    double frei_unter(double y) const;

private:
    std::vector<Kasten> belegt_;
    double unterkante_;
};

} // namespace quittika
