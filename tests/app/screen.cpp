// The screen as another client of the X server sees it.

#include "screen.h"

#include <QSocketNotifier>

#include <cstring>

namespace {

template<typename Reply>
using Owned = QScopedPointer<Reply, QScopedPointerPodDeleter>;

} // namespace

Screen::Screen()
    : connection(xcb_connect(nullptr, nullptr))
{
    if (!isConnected())
        return;
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root(), XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection);
    notifier.reset(new QSocketNotifier(xcb_get_file_descriptor(connection), QSocketNotifier::Read));
    connect(notifier.data(), &QSocketNotifier::activated, this, &Screen::onEvents);
}

Screen::~Screen()
{
    xcb_disconnect(connection);
}

void Screen::onEvents()
{
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection)}) {
        if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY)
            emit sWindowShown(reinterpret_cast<const xcb_map_notify_event_t*>(event.data())->window);
    }
}

xcb_atom_t Screen::atom(const char* name) const
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(strlen(name)), name);
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QString Screen::titleOf(xcb_window_t window) const
{
    constexpr uint32_t longest = 1024;
    const auto cookie =
        xcb_get_property(connection, 0, window, atom("_NET_WM_NAME"), XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply)
        return {};
    return QString::fromUtf8(static_cast<const char*>(xcb_get_property_value(reply.data())),
                             xcb_get_property_value_length(reply.data()));
}

QSize Screen::sizeOf(xcb_window_t window) const
{
    const auto cookie = xcb_get_geometry(connection, window);
    const Owned<xcb_get_geometry_reply_t> reply(xcb_get_geometry_reply(connection, cookie, nullptr));
    return reply ? QSize(reply->width, reply->height) : QSize();
}

void Screen::close(xcb_window_t window) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom("WM_PROTOCOLS");
    message.data.data32[0] = atom("WM_DELETE_WINDOW");
    message.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}
