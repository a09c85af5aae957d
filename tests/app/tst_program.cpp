// The program as a process of its own: its window comes up whatever the arguments, and closing it is the end.
//
// Runs on an X server, where a window can be closed from outside as a window manager does it.

#include "support/workfolder.h"

#include <QByteArray>
#include <QProcess>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QSize>
#include <QSocketNotifier>
#include <QStringList>
#include <QTest>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr int patience = 60000; // milliseconds; a busy machine starts a program slowly

template<typename Reply>
using Owned = QScopedPointer<Reply, QScopedPointerPodDeleter>;

const QString title = QStringLiteral("Brumalogger Configuration Tool");

/// Log lines without the one that shows when the configuration was written.
QByteArray undated(const QByteArray& log)
{
    QList<QByteArray> lines = log.split('\n');
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QByteArray& line) { return line.contains("_gendate_:"); }),
                lines.end());
    return lines.join('\n');
}

} // namespace

/// A client of the X server that sees windows appear on the screen, and can ask them to close.
class Screen : public QObject
{
    Q_OBJECT

public:
    Screen();
    ~Screen() override;

    bool isConnected() const { return xcb_connection_has_error(connection) == 0; }
    QString titleOf(xcb_window_t window) const;
    QSize sizeOf(xcb_window_t window) const;
    /// What the button in a title bar does.
    void close(xcb_window_t window) const;

signals:
    void sWindowShown(quint32);

private:
    void onEvents();
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root; }
    xcb_atom_t atom(const char* name) const;

    xcb_connection_t* connection;
    QScopedPointer<QSocketNotifier> notifier;
};

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

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void runsUntilItsWindowIsClosed();
    void ignoresItsArguments_data();
    void ignoresItsArguments();
    void keepsItsSettingsFromStartToStart();
    void firstStartLeavesItsDefaults();

private:
    /// Starts the program and waits for its window; 0 if none came.
    xcb_window_t start(const QStringList& arguments);
    bool end(xcb_window_t window);

    QScopedPointer<Screen> screen;
    QScopedPointer<QProcess> program;
    QScopedPointer<WorkFolder> folder;
};

// Stays connected all the time: an X server without clients starts all over again.
void TestProgram::initTestCase()
{
    qRegisterMetaType<QProcess::ExitStatus>();
    screen.reset(new Screen);
    QVERIFY(screen->isConnected());
}

void TestProgram::cleanupTestCase()
{
    screen.reset();
}

void TestProgram::init()
{
    program.reset(new QProcess);
    folder.reset(new WorkFolder({{QStringLiteral("fontsize"), QStringLiteral("9")}}));
}

void TestProgram::cleanup()
{
    if (program->state() != QProcess::NotRunning) {
        program->kill();
        program->waitForFinished();
    }
    program.reset();
    folder.reset();
}

xcb_window_t TestProgram::start(const QStringList& arguments)
{
    const QSignalSpy shown(screen.data(), &Screen::sWindowShown);
    program->start(QStringLiteral(PROGRAM_FILE), arguments);
    const bool came = QTest::qWaitFor([&] { return !shown.isEmpty(); }, patience);
    return came ? shown.first().first().toUInt() : 0;
}

bool TestProgram::end(xcb_window_t window)
{
    QSignalSpy finished(program.data(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished));
    screen->close(window);
    return !finished.isEmpty() || finished.wait(patience);
}

void TestProgram::runsUntilItsWindowIsClosed()
{
    const xcb_window_t window = start({});
    QVERIFY(window != 0);
    QCOMPARE(screen->titleOf(window), title);
    QCOMPARE(screen->sizeOf(window), QSize(850, 789));
    QCOMPARE(program->state(), QProcess::Running);

    QVERIFY(end(window));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 0);
}

void TestProgram::ignoresItsArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList("--help");
    QTest::newRow("version") << QStringList("--version");
    QTest::newRow("unknown option") << QStringList("--frobnicate=7");
    QTest::newRow("file") << QStringList("some.preset");
    QTest::newRow("port") << QStringList("/dev/ttyACM0");
    QTest::newRow("empty") << QStringList(QString());
    QTest::newRow("many") << QStringList({"-c", "-v", "--", "-", "1", "Ünïcode"});
}

void TestProgram::ignoresItsArguments()
{
    QFETCH(const QStringList, arguments);
    const xcb_window_t plain = start({});
    QVERIFY(plain != 0);
    const QSize plainSize = screen->sizeOf(plain);
    QVERIFY(end(plain));
    const QByteArray plainErrors = undated(program->readAllStandardError());
    QCOMPARE(program->readAllStandardOutput(), QByteArray());

    const xcb_window_t window = start(arguments);
    QVERIFY(window != 0);
    QCOMPARE(screen->titleOf(window), title);
    QCOMPARE(screen->sizeOf(window), plainSize);
    QVERIFY(end(window));
    QCOMPARE(program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->exitCode(), 0);
    QCOMPARE(program->readAllStandardOutput(), QByteArray());
    QCOMPARE(undated(program->readAllStandardError()), plainErrors);
}

void TestProgram::keepsItsSettingsFromStartToStart()
{
    const Settings settings{{QStringLiteral("fontsize"), QStringLiteral("11")},
                            {QStringLiteral("preseten"), QStringLiteral("0")},
                            {QStringLiteral("presetpath"), QStringLiteral("/größer/some.bpr")},
                            {QStringLiteral("timeserver"), QStringLiteral("stdtime.gov.hk")},
                            {QStringLiteral("disabletime"), QStringLiteral("1")},
                            {QStringLiteral("useserverpool"), QStringLiteral("0")},
                            {QStringLiteral("disablefast"), QStringLiteral("1")},
                            {QStringLiteral("language"), QStringLiteral("en_us")},
                            {QStringLiteral("winwidth"), QStringLiteral("910")},
                            {QStringLiteral("winheight"), QStringLiteral("805")}};
    Settings incomplete = settings;
    incomplete.remove(QStringLiteral("preseten"));
    incomplete.insert(QStringLiteral("disablefast"), QStringLiteral("7"));
    folder.reset();
    folder.reset(new WorkFolder(incomplete));
    for (int round = 0; round < 2; round++) {
        const xcb_window_t window = start({});
        QVERIFY(window != 0);
        QCOMPARE(screen->sizeOf(window), QSize(910, 805));
        QVERIFY(end(window));
        QCOMPARE(WorkFolder::configuration(), settings);
    }
}

void TestProgram::firstStartLeavesItsDefaults()
{
    folder.reset();
    folder.reset(new WorkFolder(Settings()));
    const xcb_window_t window = start({});
    QVERIFY(window != 0);
    QVERIFY(end(window));
    Settings left = WorkFolder::configuration();
    QVERIFY(left.take(QStringLiteral("fontsize")).toInt() > 0);
    QCOMPARE(left, Settings({{QStringLiteral("preseten"), QStringLiteral("0")},
                             {QStringLiteral("presetpath"), QString()},
                             {QStringLiteral("timeserver"), QStringLiteral("time.google.com")},
                             {QStringLiteral("disabletime"), QStringLiteral("0")},
                             {QStringLiteral("useserverpool"), QStringLiteral("0")},
                             {QStringLiteral("disablefast"), QStringLiteral("0")},
                             {QStringLiteral("winwidth"), QStringLiteral("850")},
                             {QStringLiteral("winheight"), QStringLiteral("789")}}));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
