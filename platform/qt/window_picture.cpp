#include "platform/qt/window_picture.hpp"

#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_text.hpp"

#include <QCoreApplication>
#include <QWidget>

namespace quittika {

QImage window_picture(Form& form, double scale) {
    auto* desktop = dynamic_cast<QtDesktop*>(form.desktop());
    QWidget* window = desktop == nullptr ? nullptr : desktop->window(form);
    if (window == nullptr) {
        return {};
    }
    return window_picture(*window, scale);
}

QImage window_picture(QWidget& window, double scale) {
    QCoreApplication::sendPostedEvents(); // lists that wait for their items
    // The first picture lets the layouts find their places.
    window.grab();
    QImage image(window.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    window.render(&image);
    return image;
}

bool save_picture(Form& form, const std::string& path, double scale) {
    const QImage image = window_picture(form, scale);
    return !image.isNull() && image.save(path_to_qt(path));
}

} // namespace quittika
