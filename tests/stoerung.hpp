#pragma once

#include <string>

namespace quittika {

/// Lets a system call of the file layer fail, for its lifetime: the `beim`-th one (from 1) of that name.
/// The linker leads the calls here (see tests/CMakeLists.txt).
class Stoerung {
public:
    static constexpr int kHalb = -1;         ///< writes half and goes on
    static constexpr int kHalbDannVoll = -2; ///< writes half, and then the disk is full
    static constexpr int kTod = -3;          ///< the process is gone

    /// `art`: an error of the system, or one of the above. `dauernd`: so do all that follow.
    Stoerung(std::string aufruf, int beim, int art, bool dauernd = false);
    Stoerung(const Stoerung&) = delete;
    Stoerung& operator=(const Stoerung&) = delete;
    ~Stoerung();

    bool eingetreten() const { return gezaehlt_ >= beim_; }
    /// What becomes of a call: 0 goes on, else as `art`.
    static int schlaegt_zu(const char* aufruf);

private:
    std::string aufruf_;
    int beim_;
    int art_;
    bool dauernd_;
    int gezaehlt_ = 0;
};

} // namespace quittika
