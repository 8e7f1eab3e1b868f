#include "platform/qt/file_drop.hpp"

#include "platform/qt/qt_text.hpp"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWindow>

#include <utility>

namespace quittika {

namespace {

FileDrop::Paths files_of(const QMimeData& data) {
    FileDrop::Paths paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths.push_back(path_from_qt(url.toLocalFile()));
        }
    }
    return paths;
}

} // namespace

FileDrop::FileDrop(QWindow& window, std::function<bool()> is_ready, std::function<void(const Paths&)> taken)
    : window_(&window), is_ready_(std::move(is_ready)), taken_(std::move(taken)) {
    window.installEventFilter(this);
}

bool FileDrop::offered(QDropEvent& event) const {
    // Never a move: the one who dragged would then remove the file.
    const Qt::DropAction action =
        event.possibleActions().testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::LinkAction;
    if (files_of(*event.mimeData()).empty()) {
        return false;
    }
    event.setDropAction(action);
    event.setAccepted(event.possibleActions().testFlag(action) && is_ready_());
    return true;
}

bool FileDrop::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        return offered(static_cast<QDropEvent&>(*event));
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(*event);
        if (!offered(drop)) {
            return false;
        }
        if (drop.isAccepted()) {
            const Paths paths = files_of(*drop.mimeData());
            QMetaObject::invokeMethod(
                this, [this, paths] { taken_(paths); }, Qt::QueuedConnection);
        }
        return true;
    }
    default:
        return false;
    }
}

} // namespace quittika
