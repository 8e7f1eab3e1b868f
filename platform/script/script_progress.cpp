#include "platform/script/script_progress.hpp"

#include "platform/script/protocol.hpp"

#include <utility>

namespace quittika {

class ScriptProgress::Display final : public ProgressDisplay {
public:
    Display(ScriptProgress& all, std::string text) : all_(all), text_(std::move(text)) {}
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;
    ~Display() override {
        all_.displays_.push_back("progress|" + protocol::field(text_) + (aborted_ ? "|aborted" : "|done"));
    }

    void update(std::size_t /*done*/, std::size_t /*total*/, std::string_view /*detail*/) override {
        if (!updated_ && all_.aborts_ > 0) {
            --all_.aborts_;
            aborted_ = true;
        }
        updated_ = true;
    }
    bool aborted() const override { return aborted_; }

private:
    ScriptProgress& all_;
    std::string text_;
    bool updated_ = false;
    bool aborted_ = false;
};

std::unique_ptr<ProgressDisplay> ScriptProgress::begin(const std::string& text) {
    return std::make_unique<Display>(*this, text);
}

std::vector<std::string> ScriptProgress::take_displays() {
    return std::exchange(displays_, {});
}

} // namespace quittika
