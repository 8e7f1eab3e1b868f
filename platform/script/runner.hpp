#pragma once

#include "platform/platform.hpp"
#include "platform/script/commands.hpp"
#include "platform/script/script_platform.hpp"

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// Builds the program on a platform, starts it and returns what keeps it alive.
using ProgramFactory = std::function<std::shared_ptr<void>(Platform platform, const std::string& directory)>;

/// What the script runner drives, and what it cannot make itself.
struct RunnerParts {
    ProgramFactory program;
    const FontMetrics& metrics; ///< must outlive the runner
    RealPrinting printing = {};
    Pictures* pictures = nullptr; ///< must outlive the runner; null: a picture counts by its headers
};

/// Drives a program line by line.
class Runner {
public:
    Runner(RunnerParts parts, std::istream& in, std::ostream& out);
    Runner(const Runner&) = delete;
    Runner& operator=(const Runner&) = delete;
    ~Runner();

    /// Serves commands until the input ends. Returns the exit status: 0, or 1 if a command failed.
    int run();

    /// The platform that the program runs on.
    ScriptPlatform& platform() { return platform_; }

private:
    void serve_outermost();
    void serve_line();
    void perform(const std::string& line);
    void dispatch(const std::string& line);
    void answer();
    void modal_loop(const std::function<bool()>& open);
    void guarded(const std::function<void()>& work);
    void settle();

    void start(const std::string& line, std::string_view arguments);
    void play_splash();
    void wait(std::string_view arguments);
    void tick(Timer& timer);
    void quit(std::string_view arguments);
    void end_program();

    ProgramFactory factory_;
    std::istream& in_;
    std::ostream& out_;
    PictureHeaders headers_;
    ScriptPlatform platform_;
    Commands commands_;
    std::shared_ptr<void> program_; ///< goes before the platform

    bool awaits_answer_ = false;         ///< a command has not had its closing line yet
    std::optional<std::string> failure_; ///< the first thing that went wrong since the last closing line
    std::optional<std::string> restart_; ///< `start` that waits for the former run to leave the stack
    int modal_depth_ = 0;
    bool finished_ = false;
    bool failed_ = false;
};

} // namespace quittika
