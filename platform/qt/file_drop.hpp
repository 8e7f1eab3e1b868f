#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <string>
#include <vector>

class QDropEvent;
class QMimeData;
class QWindow;

namespace quittika {

/// Takes files that are dropped anywhere on a window, before any field in it sees them; what is dragged
/// without being a file goes its usual way.
class FileDrop final : public QObject {
public:
    using Paths = std::vector<std::string>;

    /// `taken` gets the paths when the drop has ended, so that it may ask the user.
    FileDrop(QWindow& window, std::function<bool()> is_ready, std::function<void(const Paths&)> taken);

    QWindow* window() const { return window_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool offered(QDropEvent& event) const;

    QPointer<QWindow> window_;
    std::function<bool()> is_ready_;
    std::function<void(const Paths&)> taken_;
};

} // namespace quittika
