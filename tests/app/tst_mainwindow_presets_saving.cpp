// Saving to a preset: the choice of the file, and what comes into it.

#include "dialogs/advancedoptionsdialog.h"
#include "extendedrig.h"
#include "presetrig.h"
#include "setuppanel.h"
#include "support/loglines.h"
#include "windowstate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QTest>

class TestMainWindowPresetsSaving : public QObject
{
    Q_OBJECT

private slots:
    void asksForAFile();
    void namesTheFile_data();
    void namesTheFile();
    void endsWithoutAName_data() { addNamelessRows(); }
    void endsWithoutAName();
    void savesEveryKey();
    void savesWhatAnExtendedLoggerHas();
    void savesWhatTheSpinBoxesHold_data();
    void savesWhatTheSpinBoxesHold();
    void savesTextsAsTheyStand();
    void saysItCouldNot();
    void leavesTheMarkOfChangesAlone_data();
    void leavesTheMarkOfChangesAlone();
    void replacesAFile();
    void carriesTheTableOver();
    void logsTheName();
    void sendsNothing();
};

void TestMainWindowPresetsSaving::asksForAFile()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.save(QString());
    QCOMPARE(rig.hand.showings, 1);
    QCOMPARE(rig.hand.title, QStringLiteral("Save to preset"));
    QCOMPARE(rig.hand.directory, rig.documents);
    QCOMPARE(rig.hand.filters, QStringList("Brumalogger preset files (*.bpr)"));
    QCOMPARE(rig.hand.mode, QFileDialog::AcceptSave);
    QCOMPARE(rig.hand.parent, &rig.window);
}

void TestMainWindowPresetsSaving::namesTheFile_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    QTest::newRow("no extension") << "cold"
                                  << "cold.bpr";
    QTest::newRow("extension") << "cold.bpr"
                               << "cold.bpr";
    QTest::newRow("extension and a blank") << "cold.bpr "
                                           << "cold.bpr";
    QTest::newRow("a blank") << "cold \t"
                             << "cold.bpr";
    QTest::newRow("capitals") << "cold.BPR"
                              << "cold.BPR.bpr";
    QTest::newRow("one capital") << "cold.bpR"
                                 << "cold.bpR.bpr";
    QTest::newRow("no point") << "coldbpr"
                              << "coldbpr.bpr";
    QTest::newRow("other extension") << "cold.txt"
                                     << "cold.txt.bpr";
    QTest::newRow("extension inside") << "cold.bpr.old"
                                      << "cold.bpr.old.bpr";
    QTest::newRow("nothing else") << ".bpr"
                                  << ".bpr";
    QTest::newRow("beyond ASCII") << "Kühlhaus ½"
                                  << "Kühlhaus ½.bpr";
}

void TestMainWindowPresetsSaving::namesTheFile()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, saved);
    PresetRig rig;
    rig.plugAndConnect();
    rig.save(rig.document(typed));
    QCOMPARE(QDir(rig.documents).entryList(QDir::Files | QDir::Hidden), QStringList(saved));
    QCOMPARE(presetIn(rig.document(saved)), presetOfBasicLogger());
    QCOMPARE(differences(rig, idle(QStringLiteral("Succesfully saved ") + rig.document(saved), false)),
             QString());
}

void TestMainWindowPresetsSaving::endsWithoutAName()
{
    QFETCH(const QString, typed);
    PresetRig rig;
    rig.plugAndConnect();
    rig.takeStatusLog();
    const LogLines log;
    rig.save(typed.isEmpty() ? QString() : rig.document(typed));
    QCOMPARE(log.all().filter(QStringLiteral("Saving")), QStringList());
    QCOMPARE(rig.takeStatusLog(), QStringList());
    QCOMPARE(QDir(rig.documents).entryList(QDir::Files | QDir::Hidden), QStringList());
    QCOMPARE(differences(rig, connected()), QString());
}

void TestMainWindowPresetsSaving::savesEveryKey()
{
    PresetRig rig;
    rig.plugAndConnect();
    AdvancedOptionsDialog& options = *rig.options();
    options.lSetPolicies(0x1103);
    options.lSetPassword(QStringLiteral("Sesam öffne dich"));
    options.lSetStartDate(true, figures(1, 2, 2031, 3, 4, 5));
    options.lSetStopDate(true, figures(31, 12, 2031, 23, 59, 58));
    rig.save(rig.document(QStringLiteral("all")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("all.bpr"))),
             presetWith(presetOfBasicLogger(),
                        {{QStringLiteral("policies"), QStringLiteral("4355")},
                         {QStringLiteral("password"), QStringLiteral("Sesam öffne dich")},
                         {QStringLiteral("startdate_en"), QStringLiteral("1")},
                         {QStringLiteral("startdate"), QStringLiteral("03:04:05 01/02/2031")},
                         {QStringLiteral("stopdate_en"), QStringLiteral("1")},
                         {QStringLiteral("stopdate"), QStringLiteral("23:59:58 31/12/2031")}}));
    QCOMPARE(rig.robot.problems(), QString());
}

// The dates are the figures on the logger's clock, whatever its zone and that of the computer.
void TestMainWindowPresetsSaving::savesWhatAnExtendedLoggerHas()
{
    PresetRig rig;
    rig.plugAndConnect(secureLogger());
    rig.save(rig.document(QStringLiteral("secure")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("secure.bpr"))),
             presetWith(presetOfBasicLogger(),
                        {{QStringLiteral("policies"), QStringLiteral("4355")},
                         {QStringLiteral("timezone"), QStringLiteral("GMT+2:00")},
                         {QStringLiteral("startdate_en"), QStringLiteral("1")},
                         {QStringLiteral("startdate"), QStringLiteral("08:00:00 16/05/2024")},
                         {QStringLiteral("stopdate_en"), QStringLiteral("1")},
                         {QStringLiteral("stopdate"), QStringLiteral("09:00:00 20/05/2024")}}));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsSaving::savesWhatTheSpinBoxesHold_data()
{
    QTest::addColumn<QString>("combo");
    QTest::addColumn<QString>("spin");
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("sampling") << "comboSampling"
                              << "spinSampling" << 7.0 << "samplet"
                              << "420";
    QTest::newRow("longest sampling") << "comboSampling"
                                      << "spinSampling" << 960.0 << "samplet"
                                      << "57600";
    QTest::newRow("delay") << "comboDelay"
                           << "spinDelay" << 1.0 << "startdl"
                           << "60";
    QTest::newRow("longest delay") << "comboDelay"
                                   << "spinDelay" << 960.0 << "startdl"
                                   << "57600";
    QTest::newRow("minimum") << "comboTemp"
                             << "spindTempMin" << -20.25 << "mintemp"
                             << "-20.25";
    QTest::newRow("no minimum") << "comboTemp"
                                << "spindTempMin" << -1000.0 << "mintemp"
                                << "-10";
    QTest::newRow("zero") << "comboTemp"
                          << "spindTempMax" << 0.0 << "maxtemp"
                          << "0";
    QTest::newRow("maximum") << "comboTemp"
                             << "spindTempMax" << 71.5 << "maxtemp"
                             << "71.5";
}

void TestMainWindowPresetsSaving::savesWhatTheSpinBoxesHold()
{
    QFETCH(const QString, combo);
    QFETCH(const QString, spin);
    QFETCH(const double, number);
    QFETCH(const QString, key);
    QFETCH(const QString, text);
    PresetRig rig;
    rig.plugAndConnect();
    const Panel panel{rig};
    panel.choose(combo.toLatin1(), QStringLiteral("Custom"));
    panel.type(spin.toLatin1(), number);
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))),
             presetWith(presetOfBasicLogger(), {{key, text}}));
}

// A "=" is a matter of the file; that of blanks and of shipment types isn't.
void TestMainWindowPresetsSaving::savesTextsAsTheyStand()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.type("lineSender", QStringLiteral("  two blanks and one "));
    rig.type("lineRecipient", QString());
    rig.type("lineInfo", QStringLiteral("%1 & <b>"));
    rig.type("lineBarcode", QStringLiteral("4006381333"));
    rig.find<QComboBox>("comboType")->setCurrentIndex(0);
    rig.find<QCheckBox>("checkLock")->setChecked(false);
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))),
             presetWith(presetOfBasicLogger(),
                        {{QStringLiteral("sender"), QStringLiteral("  two blanks and one ")},
                         {QStringLiteral("recipient"), QString()},
                         {QStringLiteral("info"), QStringLiteral("%1 & <b>")},
                         {QStringLiteral("type"), QStringLiteral(" ")},
                         {QStringLiteral("buttonlock"), QStringLiteral("0")}}));
}

// The name of a folder takes no file. What the status bar says is wrong, and so it is meant to be.
void TestMainWindowPresetsSaving::saysItCouldNot()
{
    PresetRig rig;
    rig.plugAndConnect();
    const QString folder = rig.document(QStringLiteral("taken.bpr"));
    QVERIFY(QDir().mkpath(folder));
    rig.robot.expectWarning(QStringLiteral("Error"), QStringLiteral("Unable to save preset file!"));
    rig.save(rig.document(QStringLiteral("taken")));
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(differences(rig, idle(QStringLiteral("Succesfully saved ") + folder, false)), QString());
}

void TestMainWindowPresetsSaving::leavesTheMarkOfChangesAlone_data()
{
    QTest::addColumn<bool>("modified");
    QTest::newRow("without changes") << false;
    QTest::newRow("with changes") << true;
}

void TestMainWindowPresetsSaving::leavesTheMarkOfChangesAlone()
{
    QFETCH(const bool, modified);
    PresetRig rig;
    rig.plugAndConnect();
    if (modified)
        rig.type("lineInfo", QStringLiteral("Batch 8"));
    const QStringList before = panels(rig) + setupNumbers(rig);
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(panels(rig) + setupNumbers(rig), before);
    QCOMPARE(rig.isModified(), modified);
}

void TestMainWindowPresetsSaving::replacesAFile()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.save(rig.document(QStringLiteral("own")));
    rig.type("lineInfo", QStringLiteral("Batch 8"));
    // The dialog doesn't know of the extension that is going to be added, and asks nothing.
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))).value(QStringLiteral("info")),
             QStringLiteral("Batch 8"));
    QCOMPARE(rig.robot.problems(), QString());
}

// Also from a save that failed.
void TestMainWindowPresetsSaving::carriesTheTableOver()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.options()->lSetStartDate(true, figures(1, 2, 2031, 3, 4, 5));
    QVERIFY(QDir().mkpath(rig.document(QStringLiteral("taken.bpr"))));
    rig.robot.expectWarning(QStringLiteral("Error"), QStringLiteral("Unable to save preset file!"));
    rig.save(rig.document(QStringLiteral("taken")));
    rig.options()->lSetStartDate(false, QDateTime());
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(presetIn(rig.document(QStringLiteral("own.bpr"))),
             presetWith(presetOfBasicLogger(),
                        {{QStringLiteral("startdate"), QStringLiteral("03:04:05 01/02/2031")}}));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsSaving::logsTheName()
{
    PresetRig rig;
    rig.plugAndConnect();
    const LogLines log;
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(
        log.all().filter(QStringLiteral("aving")),
        QStringList(QStringLiteral("debug: Saving to  \"%1\"").arg(rig.document(QStringLiteral("own.bpr")))));
}

void TestMainWindowPresetsSaving::sendsNothing()
{
    PresetRig rig;
    rig.plugAndConnect();
    rig.save(rig.document(QStringLiteral("own")));
    QCOMPARE(rig.wire(), QList<QByteArray>());
}

QTEST_MAIN(TestMainWindowPresetsSaving)
#include "tst_mainwindow_presets_saving.moc"
