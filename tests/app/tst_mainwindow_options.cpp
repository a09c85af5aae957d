// The advanced options of a logger, from a read to the dialog and on to a write.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "support/nextchance.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDateTime>
#include <QLineEdit>
#include <QTest>

using namespace WindowWords;

namespace {

/// Opens the dialog by its button and does @p action once it is there.
void withOptions(ProcedureRig& rig, const std::function<void(AdvancedOptionsDialog*)>& action)
{
    AdvancedOptionsDialog* dialog = options(rig);
    atNextChance(dialog, [dialog, action] {
        if (!dialog->isVisible())
            qFatal("the dialog did not open");
        action(dialog);
    });
    rig.press("buttonAdvanced");
}

void click(const AdvancedOptionsDialog* dialog, const char* button)
{
    dialog->findChild<QAbstractButton*>(QLatin1String(button))->click();
}

QString buttonText(const AdvancedOptionsDialog* dialog, const char* button)
{
    return dialog->findChild<QAbstractButton*>(QLatin1String(button))->text();
}

/// A logger without automatic dates, which no rule of theirs can refuse.
LoggerModel undatedLogger()
{
    LoggerModel model = secureLogger();
    model.settings().startDate = 0;
    model.settings().stopDate = 0;
    return model;
}

WindowState untouched(bool modified)
{
    return idle(QStringLiteral("Connected to device on ttyACM0"), modified);
}

} // namespace

class TestMainWindowOptions : public QObject
{
    Q_OBJECT

private slots:
    void acceptedIsAChange();
    void rejectedIsNone();
    void lockGoesBothWays();
    void handsOnFirmware_data();
    void handsOnFirmware();
    void datesAreInTheDevicesZone_data();
    void datesAreInTheDevicesZone();
    void zoneThatNobodyKnowsIsGmt();
    void editedOptionsAreWritten();
    void everyBitComesBack();
    void passwordIsWrittenEachTime();
    void outdatedDatesAreNotWritten_data();
    void outdatedDatesAreNotWritten();
    void datesOfOlderFirmwareDoNotMatter();
    void nothingElseRunsMeanwhile();
};

void TestMainWindowOptions::acceptedIsAChange()
{
    ProcedureRig rig;
    rig.plugAndConnect(undatedLogger());
    withOptions(rig, [](AdvancedOptionsDialog* dialog) { dialog->accept(); });
    QVERIFY(!options(rig)->isVisible());
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(rig, untouched(true)), QString());
}

void TestMainWindowOptions::rejectedIsNone()
{
    ProcedureRig rig;
    rig.plugAndConnect(undatedLogger());
    withOptions(rig, [](AdvancedOptionsDialog* dialog) {
        click(dialog, "checkLockButton");
        dialog->reject();
    });
    QVERIFY(rig.find<QCheckBox>("checkLock")->isChecked());
    QCOMPARE(differences(rig, untouched(false)), QString());
}

// The hidden check box of the window is what the write sends.
void TestMainWindowOptions::lockGoesBothWays()
{
    ProcedureRig rig;
    rig.plugAndConnect(undatedLogger());
    rig.find<QCheckBox>("checkLock")->setChecked(false);
    bool shown = true;
    withOptions(rig, [&](AdvancedOptionsDialog* dialog) {
        shown = dialog->findChild<QAbstractButton*>("checkLockButton")->isChecked();
        click(dialog, "checkLockButton");
        dialog->accept();
    });
    QVERIFY(!shown);
    QVERIFY(rig.find<QCheckBox>("checkLock")->isChecked());
    withOptions(rig, [](AdvancedOptionsDialog* dialog) {
        click(dialog, "checkLockButton");
        dialog->accept();
    });
    rig.press("buttonWrite");
    QVERIFY(rig.wire().contains("Sl0"));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowOptions::handsOnFirmware_data()
{
    QTest::addColumn<QString>("firmware");
    QTest::addColumn<QString>("text");
    QTest::newRow("1.2.0") << "1.2.0"
                           << "Allow device RESET only after STOP";
    QTest::newRow("1.2.1") << "1.2.1"
                           << "Allow device RESET only after reports are generated";
}

void TestMainWindowOptions::handsOnFirmware()
{
    QFETCH(const QString, firmware);
    QFETCH(const QString, text);
    LoggerModel model = undatedLogger();
    model.settings().firmware = firmware;
    ProcedureRig rig;
    rig.plugAndConnect(model);
    QString shown;
    withOptions(rig, [&](AdvancedOptionsDialog* dialog) {
        shown = buttonText(dialog, "radioResetDone");
        dialog->reject();
    });
    QCOMPARE(shown, text);
    QCOMPARE(differences(rig, untouched(false)), QString());
}

void TestMainWindowOptions::datesAreInTheDevicesZone_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("zone");
    QTest::newRow("two hours ahead") << 7200 << "GMT+2:00";
    QTest::newRow("three and a half behind") << -12600 << "GMT-3:30";
    QTest::newRow("none") << 0 << "GMT";
}

void TestMainWindowOptions::datesAreInTheDevicesZone()
{
    QFETCH(const int, offset);
    QFETCH(const QString, zone);
    LoggerModel model = secureLogger();
    model.settings().timeZoneOffset = offset;
    ProcedureRig rig;
    rig.plugAndConnect(model);
    QString shown;
    withOptions(rig, [&](AdvancedOptionsDialog* dialog) {
        shown = buttonText(dialog, "checkStartDate");
        dialog->reject();
    });
    QCOMPARE(shown, QStringLiteral("START automatically on: %1 (%2)")
                        .arg(QDateTime(QDate(2024, 5, 16), QTime(8, 0)).toString("hh:mm dd/MMM/yyyy"), zone));
    QCOMPARE(options(rig)->lTimeZoneOffset(), offset);
    QCOMPARE(differences(rig, untouched(false)), QString());
}

// An offset that is in no table; the device keeps its own until a write.
void TestMainWindowOptions::zoneThatNobodyKnowsIsGmt()
{
    LoggerModel model = undatedLogger();
    model.settings().timeZoneOffset = 50 * 3600;
    ProcedureRig rig;
    rig.plugAndConnect(model);
    withOptions(rig, [](AdvancedOptionsDialog* dialog) { dialog->reject(); });
    QCOMPARE(options(rig)->lTimeZoneName(), QStringLiteral("GMT"));
    QCOMPARE(options(rig)->lTimeZoneOffset(), 0);
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowOptions::editedOptionsAreWritten()
{
    ProcedureRig rig;
    rig.plugAndConnect(secureLogger());
    expectPasswordDisclaimer(rig.robot);
    withOptions(rig, [](AdvancedOptionsDialog* dialog) {
        click(dialog, "checkConfigPassw");
        click(dialog, "checkStopUSBAttach");
        click(dialog, "checkStopDate");
        dialog->findChild<QLineEdit*>("linePassw")->setText(rightPassword);
        dialog->accept();
    });
    QVERIFY(rig.isModified());
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().mid(10), QList<QByteArray>({"So004871", "Sa1715846400", "Sp0000000000", "!Secret"}));
    const LoggerModel::Settings& settings = rig.logger->model().settings();
    QCOMPARE(settings.policies, 0x1307);
    QCOMPARE(settings.password, rightPassword);
    QCOMPARE(settings.startDate, qint64(1715846400));
    QCOMPARE(settings.stopDate, qint64(0));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

// Untouched, each of the sixteen reaches the device as it came from it, also one without a meaning.
void TestMainWindowOptions::everyBitComesBack()
{
    ProcedureRig rig;
    rig.plugAndConnect(undatedLogger());
    for (int bit = 0; bit < 16; ++bit) {
        rig.logger->model().settings().policies = 1 << bit;
        rig.press("buttonRead");
        rig.logger->clearExchanges();
        rig.press("buttonWrite");
        QCOMPARE(rig.logger->model().settings().policies, 1 << bit);
    }
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowOptions::passwordIsWrittenEachTime()
{
    ProcedureRig rig;
    rig.plugAndConnect(undatedLogger());
    options(rig)->lSetPassword(rightPassword);
    for (int round = 0; round < 2; ++round) {
        rig.press("buttonWrite");
        QCOMPARE(rig.wire().last(), QByteArray("!Secret"));
    }
    options(rig)->lSetPassword(QString());
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().last(), QByteArray("!"));
    QCOMPARE(rig.logger->model().settings().password, QString());
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowOptions::outdatedDatesAreNotWritten_data()
{
    QTest::addColumn<bool>("modified");
    QTest::newRow("without changes") << false;
    QTest::newRow("with changes") << true;
}

void TestMainWindowOptions::outdatedDatesAreNotWritten()
{
    QFETCH(const bool, modified);
    LoggerModel model = secureLogger();
    model.settings().startDate = QDateTime(QDate(2024, 5, 15), QTime(14, 9), Qt::UTC).toSecsSinceEpoch();
    model.settings().stopDate = 0;
    ProcedureRig rig;
    rig.plugAndConnect(model); // it is 14:00 on its clock
    if (modified)
        rig.type("lineInfo", QStringLiteral("Batch 8"));
    rig.takeStatusLog();
    expectInvalidDates(rig.robot);
    bool result = false;
    QMetaObject::invokeMethod(&rig.window, "plWriteToDevice", Q_RETURN_ARG(bool, result));
    QVERIFY(result);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(differences(rig, untouched(modified)), QString());
}

// The dates of an earlier logger are still in the store, but this one has none.
void TestMainWindowOptions::datesOfOlderFirmwareDoNotMatter()
{
    ProcedureRig rig;
    rig.plugAndConnect(basicLogger());
    options(rig)->lSetStartDate(true, QDateTime(QDate(2020, 1, 1), QTime(0, 0)));
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger());
    QCOMPARE(differences(rig, idle(QStringLiteral("Write successful"), false)), QString());
}

void TestMainWindowOptions::nothingElseRunsMeanwhile()
{
    ProcedureRig rig;
    rig.plugAndConnect(undatedLogger());
    withOptions(rig, [&rig](AdvancedOptionsDialog* dialog) {
        for (const char* button :
             {"buttonConnect", "buttonRead", "buttonWrite", "buttonStart", "buttonAdvanced"})
            rig.find<QAbstractButton>(button)->click();
        dialog->reject();
    });
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(rig, untouched(false)), QString());
}

QTEST_MAIN(TestMainWindowOptions)
#include "tst_mainwindow_options.moc"
