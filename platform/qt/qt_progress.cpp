#include "platform/qt/qt_progress.hpp"

#include "platform/qt/message_box.hpp"
#include "platform/qt/progress_window.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_text.hpp"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>

#include <algorithm>
#include <memory>
#include <utility>

namespace quittika {

namespace {

// In milliseconds.
constexpr qint64 kPatience = 500;     ///< of a user who sees nothing
constexpr qint64 kPause = 50;         ///< between two pictures of the windows
constexpr double kShortestShow = 200; ///< what would be gone before is not shown

class QtProgressDisplay final : public ProgressDisplay {
public:
    QtProgressDisplay(QtDesktop& desktop, std::string text) : standstill_(desktop), text_(std::move(text)) {
        time_.start();
    }
    QtProgressDisplay(const QtProgressDisplay&) = delete;
    QtProgressDisplay& operator=(const QtProgressDisplay&) = delete;
    ~QtProgressDisplay() override {
        if (window_ != nullptr) {
            QCoreApplication::processEvents(); // a late click is meant for this window, not for the next
        }
        delete window_.data();
    }

    void update(std::size_t done, std::size_t total, std::string_view detail) override {
        if (time_.elapsed() < next_) {
            return;
        }
        const double share =
            total == 0 ? 0 : std::min(1.0, static_cast<double>(done) / static_cast<double>(total));
        if (window_ != nullptr || is_worth_showing(share)) {
            show(share, detail);
        }
        next_ = time_.elapsed() + kPause;
    }

    bool aborted() const override { return window_ != nullptr && window_->aborted(); }

private:
    bool is_worth_showing(double share) const {
        const auto elapsed = static_cast<double>(time_.elapsed());
        return elapsed * (1 - share) >= kShortestShow * share;
    }

    void show(double share, std::string_view detail) {
        const bool is_new = window_ == nullptr;
        if (is_new) {
            window_ = new ProgressWindow(to_qt(text_), dialog_parent());
        }
        window_->show_state(share, to_qt(detail));
        if (is_new) {
            window_->appear();
        }
        QCoreApplication::processEvents();
    }

    const QtDesktop::Standstill standstill_;
    std::string text_;
    QElapsedTimer time_;
    qint64 next_ = kPatience;         ///< before that moment nothing is done
    QPointer<ProgressWindow> window_; ///< a parent window may take it along
};

} // namespace

std::unique_ptr<ProgressDisplay> QtProgress::begin(const std::string& text) {
    return std::make_unique<QtProgressDisplay>(desktop_, text);
}

} // namespace quittika
