// The window as a shell: first show, usable controls, keys, the clock, the help.

#include "formrows.h"
#include "procedurerig.h"
#include "support/browser.h"
#include "support/dialogrobot.h"
#include "support/privatemember.h"
#include "support/testclock.h"
#include "time/timekeeper.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

struct ClearDeviceInfo
{
    using Member = void (MainWindow::*)();
    friend Member memberOf(ClearDeviceInfo);
};
template struct PrivateMember<ClearDeviceInfo, &MainWindow::plClearDeviceInfo>;

namespace {

const QString plainTitle = QStringLiteral("Brumalogger Configuration Tool");
const QString nothing = QStringLiteral(" - ");

constexpr const char* clearedLabels[] = {
    "labelDeviceName", "labelFirmwareVersion", "labelHardwareRevision", "labelDateTime",
    "labelType",       "labelSerial"};

/// A logger that shows as the first row of every list.
LoggerModel firstRowsLogger()
{
    LoggerModel model = basicLogger();
    model.settings().samplingTime = 60;
    model.settings().startDelay = 60;
    model.settings().tempMin = 2000;
    model.settings().tempMax = 8000;
    return model;
}

Settings withDefaultPreset()
{
    return quietSettingsWith({{QStringLiteral("preseten"), QStringLiteral("1")},
                              {QStringLiteral("presetpath"), QStringLiteral("missing.bpr")}});
}

/// A control and whether it can be used.
struct Usable
{
    const char* name;
    bool withoutDevice;
    bool withDevice;
};

constexpr Usable usableControlRows[] = {
    {"lineSender", false, true},    {"lineRecipient", false, true}, {"lineInfo", false, true},
    {"lineBarcode", false, true},   {"comboTemp", false, true},     {"comboSampling", false, true},
    {"comboDelay", false, true},    {"comboType", false, true},     {"checkLock", false, true},
    {"buttonRead", false, true},    {"buttonWrite", false, true},   {"buttonAdvanced", false, true},
    {"buttonStart", false, true},   {"actionSave", false, true},    {"actionLoad", false, true},
    {"spinSampling", false, false}, {"spinDelay", false, false},    {"spindTempMin", false, false},
    {"spindTempMax", false, false}, {"buttonPreset", false, false}, {"buttonConnect", true, true},
    {"actionSettings", true, true}, {"actionWebHelp", true, true},  {"actionQuickstart", true, true},
    {"actionAbout", true, true},
};

/// The controls that are not as their rows say, given the state that a row's member stands for.
QStringList wrongControls(const WindowRig& rig, bool Usable::*state)
{
    QStringList wrong;
    for (const Usable& row : usableControlRows) {
        if (rig.find<QObject>(row.name)->property("enabled").toBool() != row.*state)
            wrong << QLatin1String(row.name);
    }
    return wrong;
}

/// The figures on the clock; an hour that the computer's zone leaves out is as good as any.
QDateTime shownTime(const WindowRig& rig)
{
    const QString text = rig.text("labelDateTime");
    return QDateTime(QDate::fromString(text.mid(9), QStringLiteral("dd/MMM/yyyy")),
                     QTime::fromString(text.left(8), QStringLiteral("hh:mm:ss")), Qt::UTC);
}

/// Two seconds by a clock that ticks like the window's.
void awaitTwoTicks()
{
    const TimeKeeper another;
    QSignalSpy ticks(&another, &TimeKeeper::sUpdate);
    while (ticks.size() < 2)
        QVERIFY(ticks.wait());
}

} // namespace

class TestMainWindowShell : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { makeMockHardware(); }
    void firstShowClearsThePanels();
    void firstShowMakesNoLists();
    void laterShowsDoNothing();
    void disconnectClearsThePanels();
    void disconnectClearsNumbers_data();
    void disconnectClearsNumbers();
    void clearingEnablesTheInfoLine();
    void usableControls();
    void usableControlsDuringAProcedure_data();
    void usableControlsDuringAProcedure();
    void keysOfDisabledButtons_data();
    void keysOfDisabledButtons();
    void keysOfEnabledButtons();
    void clockStandsUntilTheFirstConnect();
    void clockTicksWhileConnected();
    void clockStopsWithDisconnect();
    void destroyedWindowSaysAndSavesNothing_data();
    void destroyedWindowSaysAndSavesNothing();
    void onlineHelp();
};

void TestMainWindowShell::firstShowClearsThePanels()
{
    MainWindow window;
    auto* line = child<QLineEdit>(window, "lineInfo");
    auto* combo = child<QComboBox>(window, "comboDelay");
    line->setText(QStringLiteral("early"));
    combo->setCurrentIndex(3);
    QCOMPARE(child<QLabel>(window, "labelType")->text(), QStringLiteral("-"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const char* name : clearedLabels)
        QCOMPARE(child<QLabel>(window, name)->text(), nothing);
    QCOMPARE(line->text(), QString());
    QCOMPARE(combo->currentIndex(), 0);
    QVERIFY(!line->isEnabled());
}

// Lists of boxes that nobody opened would take their part of the start's time and memory.
void TestMainWindowShell::firstShowMakesNoLists()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto boxes = window.findChildren<QComboBox*>();
    QCOMPARE(boxes.size(), 7);
    for (const QComboBox* box : boxes)
        QVERIFY2(box->findChild<QAbstractItemView*>() == nullptr, qPrintable(box->objectName()));
}

void TestMainWindowShell::laterShowsDoNothing()
{
    ProcedureRig rig;
    QCOMPARE(rig.title(), plainTitle);
    rig.plugAndConnect();
    const QStringList before = panels(rig) + setupNumbers(rig);
    rig.window.hide();
    rig.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&rig.window));
    QCOMPARE(panels(rig) + setupNumbers(rig), before);
    QCOMPARE(rig.text("labelSerial"), QStringLiteral("BL-0042"));
    QVERIFY(rig.controlsEnabled());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::disconnectClearsThePanels()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.find<QLabel>("labelDateTime")->setStyleSheet(QStringLiteral("color: red"));
    rig.find<QLabel>("labelLowBattery")->setText(QStringLiteral("low"));
    const QStringList extras = {"labelTimeZone", "labelTimeZoneStatic", "labelLastReset",
                                "labelLastResetStatic", "buttonToolTimeZone"};
    for (const QString& name : extras)
        rig.find<QWidget>(qPrintable(name))->show();

    rig.press("buttonConnect");
    for (const char* name : clearedLabels)
        QCOMPARE(rig.text(name), nothing);
    for (const QString& name : extras)
        QVERIFY2(rig.find<QWidget>(qPrintable(name))->isHidden(), qPrintable(name));
    QCOMPARE(rig.find<QLabel>("labelDateTime")->styleSheet(), QString());
    QCOMPARE(rig.text("labelLowBattery"), QString());
    for (const char* name : lineNames)
        QCOMPARE(rig.text(name), QString());
    for (const char* name : comboNames)
        QCOMPARE(rig.find<QComboBox>(name)->currentIndex(), 0);
    QVERIFY(rig.find<QCheckBox>("checkLock")->isChecked());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::disconnectClearsNumbers_data()
{
    QTest::addColumn<bool>("fromFirstRows");
    QTest::addColumn<double>("tempMin");
    QTest::addColumn<double>("tempMax");
    QTest::newRow("lists that move to their first row fill them in") << false << 2.0 << 8.0;
    QTest::newRow("lists that stood there leave them at zero") << true << 0.0 << 0.0;
}

void TestMainWindowShell::disconnectClearsNumbers()
{
    QFETCH(const bool, fromFirstRows);
    ProcedureRig rig;
    rig.plugAndConnect(fromFirstRows ? firstRowsLogger() : basicLogger());
    rig.press("buttonConnect");
    QCOMPARE(rig.find<QComboBox>("comboTemp")->currentIndex(), 0);
    QTEST(rig.value("spindTempMin"), "tempMin");
    QTEST(rig.value("spindTempMax"), "tempMax");
    QCOMPARE(rig.value("spinSampling"), 1.0);
    QCOMPARE(rig.value("spinDelay"), 1.0);
    QCOMPARE(rig.robot.problems(), QString());
}

// Nobody sees it as things are, for whoever clears disables all controls next.
void TestMainWindowShell::clearingEnablesTheInfoLine()
{
    ProcedureRig rig;
    (rig.window.*memberOf(ClearDeviceInfo()))();
    QStringList enabled;
    for (const char* name : {"lineSender", "lineRecipient", "lineInfo", "lineBarcode"}) {
        if (rig.isEnabled(name))
            enabled << QLatin1String(name);
    }
    QCOMPARE(enabled, QStringList("lineInfo"));
}

void TestMainWindowShell::usableControls()
{
    ProcedureRig rig;
    QCOMPARE(wrongControls(rig, &Usable::withoutDevice), QStringList());
    rig.plugAndConnect();
    QCOMPARE(wrongControls(rig, &Usable::withDevice), QStringList());
    rig.press("buttonConnect");
    QCOMPARE(wrongControls(rig, &Usable::withoutDevice), QStringList());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::usableControlsDuringAProcedure_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("commands");
    QTest::newRow("read") << "buttonRead" << stepsOfRead;
    QTest::newRow("write") << "buttonWrite" << 10;
}

void TestMainWindowShell::usableControlsDuringAProcedure()
{
    QFETCH(const QString, button);
    QFETCH(const int, commands);
    ProcedureRig rig;
    rig.plugAndConnect(customLogger());
    QStringList wrong;
    for (int command = 1; command <= commands; ++command)
        rig.atCommand(command, [&] { wrong << wrongControls(rig, &Usable::withoutDevice); });
    rig.press(qPrintable(button));
    QVERIFY(rig.wire().size() >= commands);
    QCOMPARE(wrong, QStringList());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::keysOfDisabledButtons_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Ctrl+R") << Qt::Key_R;
    QTest::newRow("Ctrl+W") << Qt::Key_W;
    QTest::newRow("Ctrl+A") << Qt::Key_A;
    QTest::newRow("Ctrl+P") << Qt::Key_P;
}

void TestMainWindowShell::keysOfDisabledButtons()
{
    QFETCH(const Qt::Key, key);
    ProcedureRig rig(withDefaultPreset());
    rig.activate();
    rig.plug();
    rig.pressKeys(key);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(rig.status(), QString());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::keysOfEnabledButtons()
{
    ProcedureRig rig(withDefaultPreset());
    rig.plug();
    const auto press = [&rig](Qt::Key key) {
        rig.activate();
        rig.logger->clearExchanges();
        rig.pressKeys(key);
        return rig.wire();
    };
    QCOMPARE(press(Qt::Key_K), connectCommands());
    QCOMPARE(rig.text("buttonConnect"), QStringLiteral("Disconnect"));
    QCOMPARE(press(Qt::Key_R), readCommands());
    QCOMPARE(rig.status(), QStringLiteral("Read successful"));
    QCOMPARE(press(Qt::Key_W).value(0), QByteArray("St-0010000-0001000"));
    QCOMPARE(rig.status(), QStringLiteral("Write successful"));
    rig.robot.expectWarning(QStringLiteral("Error"), // for there is no such file
                            QStringLiteral("Unable to read from selected file. File is corrupted."));
    QCOMPARE(press(Qt::Key_P).size(), 0);
    QCOMPARE(rig.robot.problems(), QString());
    WindowWords::expectStartConfirm(rig.robot, QMessageBox::No);
    QCOMPARE(press(Qt::Key_A).size(), 0);
    QCOMPARE(press(Qt::Key_K).size(), 0);
    QCOMPARE(rig.text("buttonConnect"), QStringLiteral("Connect"));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::clockStandsUntilTheFirstConnect()
{
    TestClock::reset();
    const MainWindow window;
    const QLabel* label = child<QLabel>(window, "labelDateTime");
    const QString before = label->text();
    awaitTwoTicks();
    QCOMPARE(label->text(), before);
}

void TestMainWindowShell::clockTicksWhileConnected()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    TestClock::reset(); // from here on the clock runs by itself
    QString last = rig.text("labelDateTime");
    QTRY_VERIFY(rig.text("labelDateTime") != last);
    const QDateTime first = shownTime(rig);
    QVERIFY(first.isValid());

    QElapsedTimer elapsed;
    elapsed.start();
    for (int tick = 0; tick < 3; ++tick) {
        last = rig.text("labelDateTime");
        QTRY_VERIFY(rig.text("labelDateTime") != last);
    }
    const qint64 seconds = first.secsTo(shownTime(rig));
    QVERIFY2(seconds >= 3 && seconds <= elapsed.elapsed() / 1000 + 2, qPrintable(QString::number(seconds)));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::clockStopsWithDisconnect()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    TestClock::reset();
    rig.press("buttonConnect");
    awaitTwoTicks();
    QCOMPARE(rig.text("labelDateTime"), nothing);
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowShell::destroyedWindowSaysAndSavesNothing_data()
{
    QTest::addColumn<QByteArray>("focus");
    QTest::addColumn<QString>("typed");
    QTest::newRow("minimum") << QByteArray("spindTempMin") << QStringLiteral("79");
    QTest::newRow("maximum") << QByteArray("spindTempMax") << QStringLiteral("-29");
}

// Changed, still on show, and the focus in a range that gets a notice when it is left.
void TestMainWindowShell::destroyedWindowSaysAndSavesNothing()
{
    QFETCH(const QByteArray, focus);
    QFETCH(const QString, typed);
    const DialogRobot robot;
    auto rig = std::make_unique<ProcedureRig>();
    rig->plugAndConnect(customLogger());
    rig->activate();
    rig->type("lineInfo", QStringLiteral("changed"));
    auto* range = rig->find<QAbstractSpinBox>(focus);
    range->setFocus();
    QVERIFY(range->hasFocus());
    range->selectAll();
    QTest::keyClicks(range, typed);
    QVERIFY(rig->isModified());
    const QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path())); // what is saved from now on is saved here
    rig.reset();
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
    QCOMPARE(robot.problems(), QString());
}

void TestMainWindowShell::onlineHelp()
{
    const ProcedureRig rig;
    const Browser browser;
    rig.find<QAction>("actionWebHelp")->trigger();
    QCOMPARE(browser.opened.size(), 1);
    QCOMPARE(browser.opened.first(),
             QUrl(QStringLiteral("http://www.polarridgeworks.example/redir/guide/brumaloggerconftool")));
}

QTEST_MAIN(TestMainWindowShell)
#include "tst_mainwindow_shell.moc"
