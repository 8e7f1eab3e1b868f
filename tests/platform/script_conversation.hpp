#pragma once

#include "platform/script/runner.hpp"
#include "tests/platform/script_fake_program.hpp"

#include <istream>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace quittika::script_test {

/// Hands out one line at a time and notes in the transcript when it was asked for.
class NotedInput final : public std::streambuf {
public:
    NotedInput(std::vector<std::string> lines, std::ostream& transcript)
        : lines_(std::move(lines)), transcript_(transcript) {}

protected:
    int_type underflow() override {
        if (next_ == lines_.size()) {
            return traits_type::eof();
        }
        std::string& line = lines_[next_++];
        transcript_ << "> " << line << '\n';
        line += '\n';
        setg(line.data(), line.data(), line.data() + line.size());
        return traits_type::to_int_type(line.front());
    }

private:
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    std::ostream& transcript_;
};

/// A conversation with the runner: commands, and below each what it answers, behind "= " and without the
/// closing "ok".
using Conversation = std::string;

inline std::vector<std::string> lines_of(std::string_view text) {
    std::vector<std::string> lines;
    std::istringstream in{std::string(text)};
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

inline bool closes(const std::string& line) {
    return line == "ok" || line.starts_with("error: ");
}

/// A transcript as a conversation. A command is to be closed once, before the next one is read.
inline Conversation as_conversation(const std::string& transcript) {
    Conversation conversation;
    int open = 0;
    for (const std::string& line : lines_of(transcript)) {
        if (line.starts_with("> ")) {
            conversation += (open > 0 ? "= <not closed>\n" : "") + line.substr(2) + "\n";
            open = line == "> " || line.starts_with("> #") ? 0 : 1;
            continue;
        }
        open -= closes(line) ? 1 : 0;
        conversation += open < 0 ? "= <closed twice>\n" : line == "ok" ? "" : "= " + line + "\n";
    }
    return conversation;
}

struct Outcome {
    Conversation conversation;
    int status;
};

/// Plays the commands of a conversation to the runner with the fake program.
inline Outcome play(std::string_view conversation, PdfFactory pdf = {}) {
    std::vector<std::string> commands = lines_of(conversation);
    std::erase_if(commands, [](const std::string& line) { return line.starts_with("="); });
    const FakeMetrics metrics;
    std::ostringstream transcript;
    NotedInput input(std::move(commands), transcript);
    std::istream in(&input);
    Runner runner({fake_program, metrics, std::move(pdf)}, in, transcript);
    const int status = runner.run();
    return {as_conversation(transcript.str()), status};
}

} // namespace quittika::script_test
