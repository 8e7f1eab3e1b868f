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

/// Commands of a conversation: its lines that begin with "> ".
inline std::vector<std::string> commands_of(std::string_view conversation) {
    std::vector<std::string> commands;
    std::istringstream lines{std::string(conversation)};
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("> ")) {
            commands.push_back(line.substr(2));
        }
    }
    return commands;
}

struct Outcome {
    std::string
        transcript; ///< each command with "> " before it at the moment it was read, and all that was written
    int status;
};

/// Plays the commands of a conversation to the runner with the fake program.
inline Outcome play(std::string_view conversation, PdfFactory pdf = {}) {
    const FakeMetrics metrics;
    std::ostringstream transcript;
    NotedInput input(commands_of(conversation), transcript);
    std::istream in(&input);
    Runner runner({fake_program, metrics, std::move(pdf)}, in, transcript);
    const int status = runner.run();
    return {transcript.str(), status};
}

} // namespace quittika::script_test
