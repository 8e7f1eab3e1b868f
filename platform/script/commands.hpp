#pragma once

#include "platform/script/script_platform.hpp"
#include "platform/script/user.hpp"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// The commands that need no more than the platform: reading, acting on controls, queues and logs.
class Commands {
public:
    Commands(ScriptPlatform& platform, std::ostream& out);

    /// Carries the command out and writes its data lines. Throws `CommandError`, and whatever
    /// the program's own code lets through.
    void run(std::string_view name, std::string_view arguments);

private:
    using Handler = void (Commands::*)(std::string_view);
    struct Entry;

    void get(std::string_view arguments);
    void items(std::string_view arguments);
    void forms(std::string_view arguments);
    void controls(std::string_view arguments);
    void boxes(std::string_view arguments);
    void dialogs(std::string_view arguments);
    void opened(std::string_view arguments);
    void pages(std::string_view arguments);
    void progress(std::string_view arguments);
    void set(std::string_view arguments);
    void type(std::string_view arguments);
    void click(std::string_view arguments);
    void dblclick(std::string_view arguments);
    void select(std::string_view arguments);
    void key(std::string_view arguments);
    void mouse(std::string_view arguments);
    void drop(std::string_view arguments);
    void close(std::string_view arguments);
    void answer(std::string_view arguments);
    void file(std::string_view arguments);
    void color(std::string_view arguments);
    void font(std::string_view arguments);
    void printer(std::string_view arguments);
    void cancel(std::string_view arguments);
    void fail(std::string_view arguments);
    void abort(std::string_view arguments);
    void printto(std::string_view arguments);
    void clock(std::string_view arguments);

    Control& control(std::string_view name) const;
    void line(const std::string& text);
    void lines(const std::vector<std::string>& all);

    ScriptPlatform& platform_;
    std::ostream& out_;
    User user_;
};

} // namespace quittika
