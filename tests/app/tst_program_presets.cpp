// A preset that one run of the program has saved from a logger is what another run writes to the next one.
//
// Runs on an X server, beside simulated loggers that the program finds as it finds real ones.

#include "presets/presetstorage.h"
#include "programrig.h"
#include "simulator/usbbench.h"
#include "support/windowrig.h"
#include "support/workfolder.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QSignalSpy>
#include <QTest>

#include <functional>

namespace {

const QString title = QStringLiteral("Brumalogger Configuration Tool");
const QString presetPath = QStringLiteral("Documents/cold.bpr");

/// Slow enough for a busy machine to answer in time.
Settings settingsOfBothRuns()
{
    return {{QStringLiteral("fontsize"), QStringLiteral("9")},
            {QStringLiteral("disabletime"), QStringLiteral("1")},
            {QStringLiteral("disablefast"), QStringLiteral("1")},
            {QStringLiteral("preseten"), QStringLiteral("1")},
            {QStringLiteral("presetpath"), presetPath}};
}

LoggerModel emptyLogger()
{
    LoggerModel model;
    model.settings().firmware = QStringLiteral("1.1.9");
    return model;
}

bool has(const SimulatedPort* logger, const QByteArray& command)
{
    return logger->commands().contains(command);
}

} // namespace

class TestProgramPresets : public QObject
{
    Q_OBJECT

private slots:
    void savedInOneRunAndAppliedInAnother();

private:
    /// Presses Ctrl and a key until @p effect shows: the program hears nothing while it is busy.
    static bool pressUntil(const Screen& screen, xcb_window_t window, char key,
                           const std::function<bool()>& effect);
    static void save(ProgramRig& program, const Screen& screen);
    static void apply(ProgramRig& program, const Screen& screen, const SimulatedPort* logger);
};

bool TestProgramPresets::pressUntil(const Screen& screen, xcb_window_t window, char key,
                                    const std::function<bool()>& effect)
{
    constexpr int once = 1000; // milliseconds
    for (int tries = 0; tries < patience / once; ++tries) {
        screen.press(window, key, XCB_MOD_MASK_CONTROL);
        if (QTest::qWaitFor(effect, once))
            return true;
    }
    return false;
}

void TestProgramPresets::save(ProgramRig& program, const Screen& screen)
{
    const xcb_window_t window = program.start();
    QVERIFY(window != 0);
    screen.press(window, 'k', XCB_MOD_MASK_CONTROL);
    const QSignalSpy shown(&screen, &Screen::sWindowShown);
    xcb_window_t dialog = 0;
    QVERIFY(pressUntil(screen, window, 's', [&] {
        for (const QList<QVariant>& arguments : shown) {
            if (screen.titleOf(arguments.first().toUInt()) == QLatin1String("Save to preset"))
                dialog = arguments.first().toUInt();
        }
        return dialog != 0;
    }));
    for (const char letter : {'c', 'o', 'l', 'd'})
        screen.press(dialog, letter);
    screen.pressReturn(dialog);
    PresetStorage storage(nullptr);
    QVERIFY(QTest::qWaitFor([&] { return storage.load(presetPath); }, patience));
    QCOMPARE(screen.titleOf(window), title);
    QVERIFY(program.end(window));
}

void TestProgramPresets::apply(ProgramRig& program, const Screen& screen, const SimulatedPort* logger)
{
    const xcb_window_t window = program.start();
    QVERIFY(window != 0);
    screen.press(window, 'k', XCB_MOD_MASK_CONTROL);
    // While it reads, the title has the mark of changes, too.
    const QString changed = title + QLatin1Char('*');
    QVERIFY(QTest::qWaitFor(
        [&] { return logger->commands().count("m") == 2 && screen.titleOf(window) == title; }, patience));
    QVERIFY(pressUntil(screen, window, 'p', [&] { return screen.titleOf(window) == changed; }));
    QVERIFY(!has(logger, "k"));
    screen.press(window, 'w', XCB_MOD_MASK_CONTROL);
    QVERIFY(QTest::qWaitFor([&] { return screen.titleOf(window) == title && has(logger, "k"); }, patience));
    QVERIFY(program.end(window));
}

void TestProgramPresets::savedInOneRunAndAppliedInAnother()
{
    const Screen screen;
    QVERIFY(screen.isConnected());
    const WorkFolder folder(settingsOfBothRuns());
    QVERIFY(QDir().mkpath(QStringLiteral("Documents")));
    UsbBench bench; // it puts a word of its own into the environment
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), QDir::currentPath());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       QDir::currentPath() + QStringLiteral("/configuration"));
    ProgramRig program(screen);
    program.process.setProcessEnvironment(environment);

    SimulatedPort* first = bench.plug(basicLogger());
    save(program, screen);
    if (QTest::currentTestFailed())
        return;
    bench.unplug(first);
    SimulatedPort* second = bench.plug(emptyLogger());
    apply(program, screen, second);
    if (QTest::currentTestFailed())
        return;

    LoggerModel model = basicLogger();
    const LoggerModel::Settings& expected = model.settings();
    const LoggerModel::Settings& written = second->model().settings();
    QCOMPARE(written.tempMin, expected.tempMin);
    QCOMPARE(written.tempMax, expected.tempMax);
    QCOMPARE(written.samplingTime, expected.samplingTime);
    QCOMPARE(written.startDelay, expected.startDelay);
    QCOMPARE(written.buttonLock, expected.buttonLock);
    for (const int text : {0, 1, 2, 3})
        QCOMPARE(written.texts[text].trimmed(), expected.texts[text]);
    QCOMPARE(written.texts[4].trimmed(), QString());
}

QTEST_GUILESS_MAIN(TestProgramPresets)
#include "tst_program_presets.moc"
