#include "platform/qt/task_bar.hpp"

#include <QGuiApplication>
#include <QWidget>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace quittika {

namespace {

xcb_atom_t atom(xcb_connection_t& connection, std::string_view name) {
    const xcb_intern_atom_cookie_t asked =
        xcb_intern_atom(&connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(&connection, asked, nullptr), &std::free);
    return reply == nullptr ? static_cast<xcb_atom_t>(XCB_ATOM_NONE) : reply->atom;
}

} // namespace

void keep_off_task_bar(QWidget& window) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Drawing off the screen offers the interface without a connection.
    if (x11 == nullptr || QGuiApplication::platformName() != QLatin1String("xcb")) {
        return; // elsewhere the kind of the window says it
    }
    constexpr std::uint8_t kBits = 32;
    xcb_connection_t& connection = *x11->connection();
    const xcb_atom_t state = atom(connection, "_NET_WM_STATE");
    const xcb_atom_t skip = atom(connection, "_NET_WM_STATE_SKIP_TASKBAR");
    xcb_change_property(&connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window.winId()), state,
                        XCB_ATOM_ATOM, kBits, 1, &skip);
}

} // namespace quittika
