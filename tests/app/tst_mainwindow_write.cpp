// Writing to the logger: the bytes of every command, in their order, and what the logger has made of them.

#include "procedurerig.h"
#include "progresswatch.h"
#include "windowstate.h"
#include "windowwords.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QTest>

using namespace WindowWords;

namespace {

WindowState written()
{
    return idle(QStringLiteral("Write successful"), false);
}

void choose(const ProcedureRig& rig, const char* combo, const QString& entry)
{
    rig.find<QComboBox>(combo)->setCurrentText(entry);
}

void setCustomRange(const ProcedureRig& rig, double min, double max)
{
    choose(rig, "comboTemp", QStringLiteral("Custom"));
    rig.find<QDoubleSpinBox>("spindTempMin")->setValue(min);
    rig.find<QDoubleSpinBox>("spindTempMax")->setValue(max);
}

} // namespace

class TestMainWindowWrite : public QObject
{
    Q_OBJECT

private slots:
    void writesInOrder();
    void writesByKeys();
    void writesEditedValues();
    void writesListedRanges_data();
    void writesListedRanges();
    void writesCustomRange_data();
    void writesCustomRange();
    void writesTimes_data();
    void writesTimes();
    void padsTexts_data();
    void padsTexts();
    void writesShipmentType_data();
    void writesShipmentType();
    void keepsWhatItHasRead();
    void refusesNarrowRange_data();
    void refusesNarrowRange();
    void disablesControls();
    void showsProgress();
    void hasNoWayToZero();
};

void TestMainWindowWrite::writesInOrder()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.takeStatusLog();
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger());
    QCOMPARE(rig.takeStatusLog(), QStringList({"Writing to device...", "Write successful"}));
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::writesByKeys()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.activate();
    rig.pressKeys(Qt::Key_W);
    QCOMPARE(rig.wire(), writeCommandsOfBasicLogger());
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::writesEditedValues()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    setCustomRange(rig, -20.5, 6);
    choose(rig, "comboSampling", QStringLiteral("Custom"));
    rig.find<QSpinBox>("spinSampling")->setValue(7);
    choose(rig, "comboDelay", QStringLiteral("30 minutes"));
    rig.find<QCheckBox>("checkLock")->setChecked(false);
    rig.type("lineSender", QStringLiteral("Southern"));
    rig.type("lineRecipient", QString());
    rig.type("lineInfo", QStringLiteral("A, B; C"));
    rig.type("lineBarcode", QStringLiteral("98765"));
    choose(rig, "comboType", QStringLiteral("Air"));
    QVERIFY(rig.isModified());
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), QList<QByteArray>(
                             {"St-002050000006000", "Ss00000420", "Sd00001800", "Sl0",
                              QByteArray("S0Southern").leftJustified(60), QByteArray("S1").leftJustified(60),
                              QByteArray("S2A, B; C").leftJustified(60), "S498765   ", "S3Air", "k"}));
    const LoggerModel::Settings& settings = rig.logger->model().settings();
    QCOMPARE(settings.tempMin, -20500);
    QCOMPARE(settings.tempMax, 6000);
    QCOMPARE(settings.samplingTime, 420);
    QCOMPARE(settings.startDelay, 1800);
    QCOMPARE(settings.buttonLock, false);
    QCOMPARE(QStringList(settings.texts.cbegin(), settings.texts.cend()),
             QStringList({"Southern", "", "A, B; C", "Air", "98765"}));
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::writesListedRanges_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("2°C to 8°C") << QByteArray("St0000200000008000");
    QTest::newRow("-10°C to -1°C") << QByteArray("St-0010000-0001000");
    QTest::newRow("-8°C to -2°C") << QByteArray("St-0008000-0002000");
    QTest::newRow("2°C to 25°C") << QByteArray("St0000200000025000");
    QTest::newRow("15°C to 25°C") << QByteArray("St0001500000025000");
    QTest::newRow("15°C to 30°C") << QByteArray("St0001500000030000");
    QTest::newRow("-30°C to -15°C") << QByteArray("St-0030000-0015000");
}

void TestMainWindowWrite::writesListedRanges()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    choose(rig, "comboTemp", QString::fromUtf8(QTest::currentDataTag()));
    rig.press("buttonWrite");
    QTEST(rig.wire().first(), "command");
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::writesCustomRange_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("just wide enough") << 10.0 << 11.01 << QByteArray("St0001000000011010");
    QTest::newRow("cut below the figure") << 2.3 << 8.0 << QByteArray("St0000229900008000");
    QTest::newRow("zero") << 0.0 << 5.5 << QByteArray("St0000000000005500");
    QTest::newRow("lowest") << -30.0 << -28.0 << QByteArray("St-0030000-0028000");
    QTest::newRow("highest") << 78.0 << 80.0 << QByteArray("St0007800000080000");
}

void TestMainWindowWrite::writesCustomRange()
{
    QFETCH(const double, min);
    QFETCH(const double, max);
    ProcedureRig rig;
    rig.plugAndConnect();
    setCustomRange(rig, min, max);
    rig.press("buttonWrite");
    QTEST(rig.wire().first(), "command");
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::writesTimes_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QByteArray>("seconds");
    QTest::newRow("shortest") << 1 << QByteArray("00000060");
    QTest::newRow("custom") << 7 << QByteArray("00000420");
    QTest::newRow("longest") << 960 << QByteArray("00057600");
}

void TestMainWindowWrite::writesTimes()
{
    QFETCH(const int, minutes);
    QFETCH(const QByteArray, seconds);
    ProcedureRig rig;
    rig.plugAndConnect();
    for (const char* combo : {"comboSampling", "comboDelay"})
        choose(rig, combo, QStringLiteral("Custom"));
    for (const char* spin : {"spinSampling", "spinDelay"})
        rig.find<QSpinBox>(spin)->setValue(minutes);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().mid(1, 2), QList<QByteArray>({"Ss" + seconds, "Sd" + seconds}));
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::padsTexts_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("command");
    const auto row = [](const char* name, const char* line, const QString& text, const QByteArray& command) {
        QTest::newRow(name) << QByteArray(line) << text << command;
    };
    const auto letters = [](int count) { return QString(count, QLatin1Char('x')); };
    row("no sender", "lineSender", QString(), "S0" + QByteArray(58, ' '));
    row("sender of 10", "lineSender", letters(10), "S0xxxxxxxxxx" + QByteArray(48, ' '));
    row("sender of 57", "lineSender", letters(57), "S0" + QByteArray(57, 'x') + ' ');
    row("sender of 58", "lineSender", letters(58), "S0" + QByteArray(58, 'x'));
    row("sender of 60", "lineSender", letters(60), "S0" + QByteArray(60, 'x'));
    row("no recipient", "lineRecipient", QString(), "S1" + QByteArray(58, ' '));
    row("recipient of 60", "lineRecipient", letters(60), "S1" + QByteArray(60, 'x'));
    row("no information", "lineInfo", QString(), "S2" + QByteArray(58, ' '));
    row("information with blanks", "lineInfo", QStringLiteral(" a  b "), "S2 a  b " + QByteArray(52, ' '));
    row("no barcode", "lineBarcode", QString(), "S4        ");
    row("barcode of 3", "lineBarcode", QStringLiteral("ABC"), "S4ABC     ");
    row("barcode of 8", "lineBarcode", QStringLiteral("12345678"), "S412345678");
    row("barcode of 10", "lineBarcode", QStringLiteral("1234567890"), "S41234567890");
    row("two bytes to a character", "lineBarcode", QStringLiteral("ΩΩ"), QByteArray("S4ΩΩ      "));
}

void TestMainWindowWrite::padsTexts()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, text);
    QFETCH(const QByteArray, command);
    ProcedureRig rig;
    rig.plugAndConnect();
    rig.type(line.constData(), text);
    QList<QByteArray> expected = writeCommandsOfBasicLogger();
    for (QByteArray& each : expected) {
        if (each.startsWith(command.left(2)))
            each = command;
    }
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), expected);
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::writesShipmentType_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow(" ") << QByteArray("S3 ");
    QTest::newRow("Air") << QByteArray("S3Air");
    QTest::newRow("Land") << QByteArray("S3Land");
    QTest::newRow("Sea") << QByteArray("S3Sea");
}

void TestMainWindowWrite::writesShipmentType()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    choose(rig, "comboType", QString::fromUtf8(QTest::currentDataTag()));
    rig.press("buttonWrite");
    QTEST(rig.wire().at(8), "command");
    QCOMPARE(differences(rig, written()), QString());
}

// Nothing on the logger is another after a read and a write, and each setting was written once.
void TestMainWindowWrite::keepsWhatItHasRead()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    const QStringList before = rig.logger->model().describe();
    rig.press("buttonWrite");
    QCOMPARE(rig.logger->model().describe(), before);
    const QMap<QByteArray, int> counts = rig.logger->model().settings().counts;
    QCOMPARE(counts, (QMap<QByteArray, int>{{"St", 1},
                                            {"Ss", 1},
                                            {"Sd", 1},
                                            {"Sl", 1},
                                            {"S0", 1},
                                            {"S1", 1},
                                            {"S2", 1},
                                            {"S4", 1},
                                            {"S3", 1},
                                            {"k", 1}}));
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::refusesNarrowRange_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::newRow("one degree") << 10.0 << 11.0;
    QTest::newRow("half a degree") << 10.0 << 10.5;
    QTest::newRow("nothing") << 10.0 << 10.0;
    QTest::newRow("the wrong way round") << 10.0 << -5.0;
}

void TestMainWindowWrite::refusesNarrowRange()
{
    QFETCH(const double, min);
    QFETCH(const double, max);
    ProcedureRig rig;
    rig.plugAndConnect();
    setCustomRange(rig, min, max);
    const ProgressWatch watch;
    expectWriteFailed(rig.robot);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QCOMPARE(watch.dialogs().first().values, QList<int>({17}));
    QCOMPARE(differences(rig, idle(QStringLiteral("Write failed. Please retry"), true)), QString());
}

void TestMainWindowWrite::disablesControls()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    QStringList early;
    noteEnabledControls(rig, &early);
    rig.press("buttonWrite");
    QCOMPARE(early, QStringList());
    QCOMPARE(differences(rig, written()), QString());
}

void TestMainWindowWrite::showsProgress()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    const ProgressWatch watch;
    rig.press("buttonWrite");
    QCOMPARE(watch.dialogs().size(), 1);
    const ProgressWatch::Dialog dialog = watch.dialogs().first();
    QCOMPARE(dialog.label, QStringLiteral("Writing to device"));
    QCOMPARE(dialog.title, QStringLiteral("Brumalogger Configuration Tool"));
    QCOMPARE(dialog.button, QStringLiteral("Cancel"));
    QCOMPARE(dialog.minimum, 0);
    QCOMPARE(dialog.maximum, 17);
    QCOMPARE(dialog.modality, Qt::WindowModal);
    QCOMPARE(dialog.values, QList<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 17}));
    QCOMPARE(differences(rig, written()), QString());
}

// A delay or sampling time of nothing, which the logger's link would refuse, can't be entered.
void TestMainWindowWrite::hasNoWayToZero()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    for (const char* combo : {"comboSampling", "comboDelay"})
        choose(rig, combo, QStringLiteral("Custom"));
    for (const char* spin : {"spinSampling", "spinDelay"})
        rig.find<QSpinBox>(spin)->setValue(0);
    rig.press("buttonWrite");
    QCOMPARE(rig.wire().mid(1, 2), QList<QByteArray>({"Ss00000060", "Sd00000060"}));
    QCOMPARE(differences(rig, written()), QString());
}

QTEST_MAIN(TestMainWindowWrite)
#include "tst_mainwindow_write.moc"
