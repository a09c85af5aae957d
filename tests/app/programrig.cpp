// The program as a process of its own, and the screen that it shows its windows on.

#include "programrig.h"

#include <QAbstractEventDispatcher>
#include <QSignalSpy>
#include <QTest>

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
    // An event that came in along with a reply lies ready, and the socket has nothing more to tell.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this, &Screen::onEvents);
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

// The symbols of Latin letters are their codes, that of Return lies apart.
void Screen::press(xcb_window_t window, char letter, uint16_t modifiers) const
{
    constexpr xcb_keysym_t returnSymbol = 0xFF0D;
    // Taken away first: a window that had it all along would not hear that it has it.
    for (const xcb_window_t owner : {xcb_window_t(XCB_INPUT_FOCUS_NONE), window})
        xcb_set_input_focus(connection, XCB_INPUT_FOCUS_POINTER_ROOT, owner, XCB_CURRENT_TIME);
    xcb_key_press_event_t event{};
    event.detail = keyFor(letter == '\r' ? returnSymbol : static_cast<xcb_keysym_t>(letter));
    event.root = root();
    event.event = window;
    event.state = modifiers;
    event.same_screen = 1;
    for (const uint8_t type : {XCB_KEY_PRESS, XCB_KEY_RELEASE}) {
        event.response_type = type;
        xcb_send_event(connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    }
    xcb_flush(connection);
}

xcb_keycode_t Screen::keyFor(xcb_keysym_t symbol) const
{
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto cookie = xcb_get_keyboard_mapping(connection, setup->min_keycode, count);
    const Owned<xcb_get_keyboard_mapping_reply_t> reply(
        xcb_get_keyboard_mapping_reply(connection, cookie, nullptr));
    if (!reply)
        return 0;
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.data());
    for (int key = 0; key < count; ++key) {
        if (symbols[ptrdiff_t(key) * reply->keysyms_per_keycode] == symbol)
            return static_cast<xcb_keycode_t>(setup->min_keycode + key);
    }
    return 0;
}

ProgramRig::ProgramRig(const Screen& screen)
    : screen(screen)
{
    qRegisterMetaType<QProcess::ExitStatus>();
}

ProgramRig::~ProgramRig()
{
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
    }
}

xcb_window_t ProgramRig::start(const QStringList& arguments, const QString& file)
{
    const QSignalSpy shown(&screen, &Screen::sWindowShown);
    process.start(file, arguments);
    const bool came = QTest::qWaitFor([&] { return !shown.isEmpty(); }, patience);
    return came ? shown.first().first().toUInt() : 0;
}

bool ProgramRig::end(xcb_window_t window)
{
    QSignalSpy finished(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished));
    screen.close(window);
    return !finished.isEmpty() || finished.wait(patience);
}
