// A read that meets silence or the Cancel button, at every single command, as part of a connect and on its
// own.

#include "progresswatch.h"
#include "readingrig.h"

#include <QProgressDialog>
#include <QTest>

using namespace WindowWords;

namespace {

/// Numbers of commands in a read, from 1 on.
constexpr int firstText = 10;
constexpr int lastText = 13;

/// A rig with a logger of basic firmware.
struct BasicReadingRig : ReadingRig
{
    explicit BasicReadingRig(bool connecting)
        : ReadingRig(connecting, basicLogger(), readCommands())
    {
    }
};

/// Rows for the commands @p first to @p last of a read.
void addRows(int first, int last)
{
    for (int command = first; command <= last; ++command) {
        const QByteArray name = readCommands().at(command - 1);
        QTest::addRow("%d %s in a connect", command, name.constData()) << command << true;
        QTest::addRow("%d %s in a read", command, name.constData()) << command << false;
    }
}

void addColumns()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("connecting");
}

/// The panels after a read that lost the texts from the command @p command on.
QStringList panelsWithoutTexts(int command)
{
    const QStringList lines{QStringLiteral("lineSender = "), QStringLiteral("lineRecipient = "),
                            QStringLiteral("lineInfo = "), QStringLiteral("lineBarcode = ")};
    return panelsWith(panelsOfBasicLogger(), lines.mid(command - firstText));
}

} // namespace

class TestMainWindowReadFailures : public QObject
{
    Q_OBJECT

private slots:
    void failsAtSilence_data();
    void failsAtSilence();
    void doesWithoutSilentTexts_data();
    void doesWithoutSilentTexts();
    void stopsAtCancel_data();
    void stopsAtCancel();
    void cancelsBy_data();
    void cancelsBy();
    void movesBarUpToFailure_data();
    void movesBarUpToFailure();
    void connectsAnewAfterFailedRead();
};

void TestMainWindowReadFailures::failsAtSilence_data()
{
    addColumns();
    addRows(1, firstText - 1);
    addRows(stepsOfRead, stepsOfRead);
}

void TestMainWindowReadFailures::failsAtSilence()
{
    QFETCH(const int, command);
    QFETCH(const bool, connecting);
    BasicReadingRig rig(connecting);
    rig.disturb(rig.number(command), Fault::Kind::Silence);
    rig.expectFailure();
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(command));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.takeStatusLog(), rig.statusesOfLostRead(QStringLiteral("Read failed. Please retry.")));
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowReadFailures::doesWithoutSilentTexts_data()
{
    addColumns();
    addRows(firstText, lastText);
}

void TestMainWindowReadFailures::doesWithoutSilentTexts()
{
    QFETCH(const int, command);
    QFETCH(const bool, connecting);
    BasicReadingRig rig(connecting);
    rig.disturb(rig.number(command), Fault::Kind::Silence);
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsUpTo(command) << "G3"
                                                   << "m");
    QCOMPARE(panels(rig), panelsWithoutTexts(command));
    QCOMPARE(differences(rig, rig.readState()), QString());
}

void TestMainWindowReadFailures::stopsAtCancel_data()
{
    addColumns();
    addRows(2, stepsOfRead); // the first command goes out before the dialog is there
}

// The command under way is waited out. Among the texts the shipment type still follows.
void TestMainWindowReadFailures::stopsAtCancel()
{
    QFETCH(const int, command);
    QFETCH(const bool, connecting);
    BasicReadingRig rig(connecting);
    rig.atCommand(rig.number(command), [&rig] { rig.pressCancel(); });
    rig.run();
    const bool isText = command >= firstText && command <= lastText;
    QCOMPARE(rig.wire(),
             rig.commandsUpTo(command) + (isText ? QList<QByteArray>{"G3", "m"} : QList<QByteArray>{"m"}));
    QCOMPARE(panels(rig), emptyPanels());
    QCOMPARE(rig.takeStatusLog(), rig.statusesOfLostRead(QStringLiteral("Read successful")));
    QCOMPARE(differences(rig, rig.lostState()), QString());
}

void TestMainWindowReadFailures::cancelsBy_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("the Escape key") << true;
    QTest::newRow("closing the dialog") << false;
}

void TestMainWindowReadFailures::cancelsBy()
{
    QFETCH(const bool, byKey);
    BasicReadingRig rig(false);
    rig.atCommand(5, [&rig, byKey] {
        if (byKey)
            QTest::keyClick(rig.progressDialog(), Qt::Key_Escape);
        else
            rig.progressDialog()->close();
    });
    rig.run();
    QCOMPARE(rig.wire(), rig.commandsOfReadEndingAt(5));
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadFailures::movesBarUpToFailure_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("cancelled");
    QTest::addColumn<QList<int>>("values");
    const auto row = [](const char* name, int command, bool cancelled, const QList<int>& values) {
        QTest::newRow(name) << command << cancelled << values;
    };
    row("the first command fails", 1, false, {17});
    row("the first step fails", 2, false, {17});
    row("Gt fails", 6, false, {0, 1, 2, 3, 17});
    row("G3 fails", stepsOfRead, false, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
    row("cancelled at the first step", 2, true, {17});
    row("cancelled at Gt", 6, true, {0, 1, 2, 3, 17});
    row("cancelled at G1", 11, true, {0, 1, 2, 3, 4, 5, 6, 7, 8, 17});
    row("cancelled at G3", stepsOfRead, true, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17});
}

void TestMainWindowReadFailures::movesBarUpToFailure()
{
    QFETCH(const int, command);
    QFETCH(const bool, cancelled);
    BasicReadingRig rig(false);
    if (cancelled) {
        rig.atCommand(command, [&rig] { rig.pressCancel(); });
    } else {
        rig.disturb(command, Fault::Kind::Silence);
        expectReadFailed(rig.robot);
    }
    const ProgressWatch watch;
    rig.run();
    QCOMPARE(watch.dialogs().size(), 1);
    QTEST(watch.dialogs().first().values, "values");
    QCOMPARE(differences(rig, disconnected()), QString());
}

void TestMainWindowReadFailures::connectsAnewAfterFailedRead()
{
    BasicReadingRig rig(false);
    rig.disturb(6, Fault::Kind::Silence);
    expectReadFailed(rig.robot);
    rig.run();
    rig.logger->faults().clear();
    rig.logger->clearExchanges();
    rig.press("buttonConnect");
    QCOMPARE(rig.wire(), connectCommands());
    QCOMPARE(panels(rig), panelsOfBasicLogger());
    QCOMPARE(differences(rig, connected()), QString());
}

QTEST_MAIN(TestMainWindowReadFailures)
#include "tst_mainwindow_readfailures.moc"
