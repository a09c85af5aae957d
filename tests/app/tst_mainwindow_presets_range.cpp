// A preset is loaded while the operator is in the middle of a range: what is said about the range, and when.

#include "presetrig.h"
#include "setuppanel.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QDoubleSpinBox>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <functional>

using namespace TimeWords;
using namespace WindowWords;

namespace {

constexpr qint64 dayMsecs = Q_INT64_C(24) * 60 * 60 * 1000;
const QString notice = QStringLiteral("Notice");
const QString loaded = QStringLiteral("Loaded default.bpr");

LoggerModel loggerWithOwnRange()
{
    LoggerModel model = basicLogger();
    model.settings().tempMin = 2500;
    model.settings().tempMax = 8000;
    return model;
}

PresetTable presetOfRange(const QString& min, const QString& max)
{
    return presetWith(presetOfBasicLogger(),
                      {{QStringLiteral("mintemp"), min}, {QStringLiteral("maxtemp"), max}});
}

/// A minimum above the maximum is typed, and the focus is still in its box.
class TypingRig : public PresetRig
{
public:
    explicit TypingRig(const Settings& settings = presetSettings())
        : PresetRig(settings)
    {
    }

    void begin()
    {
        plugAndConnect(loggerWithOwnRange());
        writePreset(defaultPreset, presetOfRange(QStringLiteral("-5.5"), QStringLiteral("4")));
        writePreset(document(QStringLiteral("own.bpr")), presetIn(defaultPreset));
        activate();
        auto* minimum = find<QDoubleSpinBox>("spindTempMin");
        minimum->setFocus();
        minimum->selectAll();
        QTest::keyClicks(minimum, QStringLiteral("50"));
        QCOMPARE(range(), QStringLiteral("50* to 8*"));
        takeStatusLog();
    }

    QString newPath() const { return document(QStringLiteral("new.bpr")); }
    QString range() { return Panel(*this).range(); }

    /// A window that closes under the mouse doesn't hear of its release.
    void clickOnTheDefaultPreset()
    {
        auto* button = find<QPushButton>("buttonPreset");
        QTest::mousePress(button, Qt::LeftButton);
        if (button->isVisible())
            QTest::mouseRelease(button, Qt::LeftButton);
    }

    /// Opens the menu as a mouse does, once more if a notice has closed it, and chooses from it.
    void chooseFromTheMenu(const char* actionName)
    {
        auto* menu = find<QMenu>("menuFile");
        clickOnTheMenuBar(menu);
        if (!menu->isVisible() && window.isVisible())
            clickOnTheMenuBar(menu);
        if (menu->isVisible())
            QTest::mouseClick(menu, Qt::LeftButton, {},
                              menu->actionGeometry(find<QAction>(actionName)).center());
    }

    /// Keeps the range and the message in the status bar at each notice, and does @p action before it is
    /// answered.
    void atNotice(const std::function<void()>& action = [] {})
    {
        QObject::connect(&robot, &DialogRobot::sBoxOpened, &window, [this, action](const QString& title) {
            if (title != notice)
                return;
            notices << range() + QStringLiteral(", ") + status();
            action();
        });
    }

    QStringList notices;

private:
    void clickOnTheMenuBar(const QMenu* menu) const
    {
        auto* bar = find<QMenuBar>("menuBar");
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    }
};

/// The range's box loses the focus in each of these ways.
enum Way { Button, Menu, SaveShortcut, LoadShortcut };

void go(TypingRig& rig, Way way)
{
    rig.hand.setPath(way == SaveShortcut ? rig.newPath() : rig.document(QStringLiteral("own.bpr")));
    if (way == Button)
        rig.clickOnTheDefaultPreset();
    else if (way == Menu)
        rig.chooseFromTheMenu("actionLoad");
    else
        rig.pressKeys(way == SaveShortcut ? Qt::Key_S : Qt::Key_O);
}

const QString noticedAfterConnect = QStringLiteral("50* to 51*, Connected to device on ttyACM0");

} // namespace

Q_DECLARE_METATYPE(Way)

class TestMainWindowPresetsRange : public QObject
{
    Q_OBJECT

private slots:
    void defaultPresetByTheShortcut_data();
    void defaultPresetByTheShortcut();
    void rangeOfThePresetIsLookedAtLater();
    void noticeBeforeThePreset_data() { everyWay(); }
    void noticeBeforeThePreset();
    void windowClosesAtTheNotice_data() { everyWay(); }
    void windowClosesAtTheNotice();
    void deviceIsLostAtTheNotice_data() { everyWay(); }
    void deviceIsLostAtTheNotice();

private:
    static void everyWay();
};

void TestMainWindowPresetsRange::everyWay()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("default preset, by its button") << Button;
    QTest::newRow("a preset, by the menu") << Menu;
    QTest::newRow("a preset, by the shortcut") << LoadShortcut;
    QTest::newRow("saving, by the shortcut") << SaveShortcut;
}

void TestMainWindowPresetsRange::defaultPresetByTheShortcut_data()
{
    QTest::addColumn<QString>("min");
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("range");
    QTest::newRow("on the list") << "-10"
                                 << "-1"
                                 << "-10 to -1";
    QTest::newRow("not on the list") << "-5.5"
                                     << "4"
                                     << "-5.5* to 4*";
}

// It leaves the focus where it is unless the box is switched off, and what was typed is gone by then.
void TestMainWindowPresetsRange::defaultPresetByTheShortcut()
{
    QFETCH(const QString, min);
    QFETCH(const QString, max);
    TypingRig rig;
    rig.begin();
    writePreset(defaultPreset, presetOfRange(min, max));
    rig.pressKeys(Qt::Key_P);
    QTEST(rig.range(), "range");
    QCOMPARE(rig.takeStatusLog(), QStringList(loaded));
    QCOMPARE(differences(rig, idle(loaded, rig.isModified())), QString());
}

void TestMainWindowPresetsRange::rangeOfThePresetIsLookedAtLater()
{
    TypingRig rig;
    rig.begin();
    writePreset(defaultPreset, presetOfRange(QStringLiteral("10"), QStringLiteral("5")));
    rig.pressKeys(Qt::Key_P);
    QCOMPARE(rig.range(), QStringLiteral("10* to 5*"));
    QCOMPARE(rig.robot.problems(), QString());
    expectRangeNotice(rig.robot);
    rig.find<QWidget>("lineInfo")->setFocus();
    QCOMPARE(rig.range(), QStringLiteral("10* to 11*"));
    QCOMPARE(differences(rig, idle(loaded, false)), QString());
}

// The file dialog takes the focus as well, so what is saved is a range.
void TestMainWindowPresetsRange::noticeBeforeThePreset()
{
    QFETCH(const Way, way);
    TypingRig rig;
    rig.begin();
    rig.atNotice();
    expectRangeNotice(rig.robot);
    go(rig, way);
    QCOMPARE(rig.notices, QStringList(noticedAfterConnect));
    QCOMPARE(rig.range(), QLatin1String(way == SaveShortcut ? "50* to 51*" : "-5.5* to 4*"));
    QCOMPARE(QFile::exists(rig.newPath()), way == SaveShortcut);
    if (way == SaveShortcut) {
        const PresetTable saved = presetIn(rig.newPath());
        QCOMPARE(saved.value(QStringLiteral("mintemp")), QStringLiteral("50"));
        QCOMPARE(saved.value(QStringLiteral("maxtemp")), QStringLiteral("51"));
    }
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsRange::windowClosesAtTheNotice()
{
    QFETCH(const Way, way);
    TypingRig rig;
    rig.begin();
    rig.atNotice([&rig] { rig.window.close(); });
    expectRangeNotice(rig.robot);
    go(rig, way);
    QCOMPARE(rig.notices, QStringList(noticedAfterConnect));
    QVERIFY(!QFile::exists(rig.newPath()));
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(rig.range(), QStringLiteral("50* to 51*"));
    QCOMPARE(closedWindowRemains(rig), QString());
}

// The time servers' answer tells that it isn't valid.
void TestMainWindowPresetsRange::deviceIsLostAtTheNotice()
{
    QFETCH(const Way, way);
    Servers servers(NtpAnswer::currentTime(3 * dayMsecs).later());
    Settings settings = presetSettings();
    settings.insert(QStringLiteral("disabletime"), QStringLiteral("0"));
    TypingRig rig(settings);
    servers.awaitRequest();
    rig.begin();
    bool lost = false;
    rig.atNotice([&] {
        servers.release();
        lost = rig.comesTo(QStringLiteral("Disconnected from ttyACM0"));
    });
    expectInvalidDevice(rig.robot); // over the notice, and so answered first
    expectRangeNotice(rig.robot);
    go(rig, way);
    QVERIFY(lost);
    QCOMPARE(rig.notices, QStringList(noticedAfterConnect));
    QVERIFY(!QFile::exists(rig.newPath()));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(differences(rig, disconnected()), QString());
}

QTEST_MAIN(TestMainWindowPresetsRange)
#include "tst_mainwindow_presets_range.moc"
