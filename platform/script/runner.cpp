#include "platform/script/runner.hpp"

#include "platform/script/lookup.hpp"
#include "platform/script/protocol.hpp"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <istream>
#include <ostream>
#include <utility>

namespace quittika {

namespace {

/// Leaves all modal windows at once. Not a std::exception, so that no handler of the program stops it.
struct Unwinding {};

constexpr const char* kSplash = "Form_START";
/// Rounds after which something that should come to rest counts as endless.
constexpr std::size_t kPatience = 100000;
constexpr std::int64_t kLongestWait = std::int64_t{366} * 24 * 3600 * 1000;

struct StartArguments {
    std::string directory;
    std::optional<Zeitpunkt> time;
};

/// The time is the last word, if that looks like one; a directory may contain blanks.
StartArguments start_arguments(std::string_view arguments) {
    const std::size_t blank = arguments.rfind(' ');
    const std::string_view last =
        blank == std::string_view::npos ? std::string_view{} : arguments.substr(blank + 1);
    const auto time = protocol::time_stamp(last);
    const std::string directory = protocol::decode(time ? arguments.substr(0, blank) : arguments);
    if (directory.empty()) {
        throw CommandError("Es fehlt das Programmverzeichnis");
    }
    return {directory, time};
}

} // namespace

Runner::Runner(RunnerParts parts, std::istream& in, std::ostream& out)
    : factory_(std::move(parts.program)),
      in_(in),
      out_(out),
      platform_(parts.metrics, parts.pictures == nullptr ? headers_ : *parts.pictures,
                std::move(parts.printing)),
      commands_(platform_, out) {
    platform_.desktop.on_modal([this](const std::function<bool()>& open) { modal_loop(open); });
}

Runner::~Runner() {
    end_program();
}

int Runner::run() {
    while (!finished_) {
        modal_depth_ = 0;
        try {
            serve_outermost();
        } catch (const Unwinding&) {
            // The program's code has left the stack; what it left for is in finished_ or restart_.
        }
    }
    end_program();
    return failed_ ? 1 : 0;
}

void Runner::serve_outermost() {
    if (restart_) {
        perform(*std::exchange(restart_, std::nullopt));
    } else {
        serve_line();
    }
    if (finished_ || restart_) {
        return;
    }
    if (platform_.desktop.ended()) {
        end_program();
    }
    answer();
}

void Runner::serve_line() {
    std::string line;
    do {
        if (!std::getline(in_, line)) {
            finished_ = true;
            throw Unwinding{};
        }
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
    } while (line.empty() || line.front() == '#');
    perform(line);
}

void Runner::perform(const std::string& line) {
    awaits_answer_ = true;
    failure_.reset();
    platform_.printing.begin_command();
    guarded([&] { dispatch(line); });
    settle();
}

void Runner::dispatch(const std::string& line) {
    const auto [name, arguments] = protocol::part(line);
    if (name == "start") {
        start(line, arguments);
    } else if (name == "wait") {
        wait(arguments);
    } else if (name == "quit") {
        quit(arguments);
    } else {
        commands_.run(name, arguments);
    }
}

void Runner::answer() {
    if (!std::exchange(awaits_answer_, false)) {
        return;
    }
    guarded([this] { platform_.printing.end_command(); });
    failed_ = failed_ || failure_.has_value();
    out_ << (failure_ ? "error: " + protocol::encode(*failure_) : "ok") << '\n' << std::flush;
    failure_.reset();
}

void Runner::modal_loop(const std::function<bool()>& open) {
    ++modal_depth_;
    settle();
    while (open()) {
        if (finished_ || restart_) {
            throw Unwinding{};
        }
        answer();
        serve_line();
    }
    // The command that closed the window is answered by whoever runs next: the code behind the window.
    --modal_depth_;
}

void Runner::guarded(const std::function<void()>& work) {
    const auto failed = [this](const std::string& why) {
        if (!failure_) {
            failure_ = why;
        }
    };
    try {
        work();
    } catch (const Unwinding&) {
        throw;
    } catch (const std::exception& error) {
        failed(error.what());
    } catch (...) {
        failed("Unbekannter Fehler");
    }
}

void Runner::settle() {
    for (std::size_t round = 0; const auto work = platform_.desktop.take_work(); ++round) {
        if (platform_.desktop.ended()) {
            return;
        }
        if (round == kPatience) {
            guarded([] { throw CommandError("Das Programm kommt nicht zur Ruhe"); });
            return;
        }
        guarded(work);
    }
    platform_.desktop.timers().update();
}

void Runner::start(const std::string& line, std::string_view arguments) {
    const StartArguments given = start_arguments(arguments);
    if (modal_depth_ > 0) {
        restart_ = line;
        throw Unwinding{};
    }
    end_program();
    if (given.time) {
        platform_.clock.set(*given.time);
    } else {
        platform_.clock.set_to_real_time();
    }
    program_ = factory_(platform_.view(), given.directory);
    settle();
    play_splash();
}

void Runner::play_splash() {
    for (std::size_t round = 0; !platform_.desktop.ended(); ++round) {
        const Form* const splash = platform_.desktop.find(kSplash);
        if (splash == nullptr || !splash->shown()) {
            return;
        }
        const auto timers = platform_.desktop.timers().running(*splash);
        if (timers.empty() || round == kPatience) {
            throw CommandError(std::string("Das Fenster ") + kSplash + " schließt sich nicht");
        }
        tick(*timers[round % timers.size()]);
    }
}

void Runner::wait(std::string_view arguments) {
    const std::int64_t duration = protocol::integer(arguments, 0, kLongestWait);
    platform_.desktop.timers().advance(duration, [this](Timer& timer) { tick(timer); });
}

void Runner::tick(Timer& timer) {
    if (!platform_.desktop.ended()) {
        guarded([&] { platform_.desktop.timers().tick(timer); });
        settle();
    }
}

void Runner::quit(std::string_view arguments) {
    if (!arguments.empty()) {
        throw CommandError("Der Befehl quit steht allein");
    }
    answer();
    finished_ = true;
    throw Unwinding{};
}

void Runner::end_program() {
    program_.reset();
    platform_.desktop.reset();
}

} // namespace quittika
