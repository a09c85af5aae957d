// Which words about presets are said in the operator's language, and which in none but the program's own.

#include "markingtranslator.h"
#include "presetrig.h"
#include "windowstate.h"

#include <QDir>
#include <QTest>

using namespace TimeWords;

namespace {

const QStringList filter{QStringLiteral("Brumalogger preset files (*.bpr)")};

QString marked(const QString& text)
{
    return MarkingTranslator::marked(text);
}

} // namespace

class TestMainWindowPresetsLanguages : public QObject
{
    Q_OBJECT

private slots:
    void saved();
    void notSaved();
    void loaded();
    void unreadable();
    void zoneWithoutServers();
    void zoneWithoutTime();
    void remarkInTheReport();
};

// The file is the same in every language.
void TestMainWindowPresetsLanguages::saved()
{
    const MarkingTranslator translator;
    PresetRig rig;
    rig.plugAndConnect();
    const QString path = rig.document(QStringLiteral("own.bpr"));
    rig.save(path);
    QCOMPARE(rig.hand.title, marked(QStringLiteral("Save to preset")));
    QCOMPARE(rig.hand.filters, filter);
    QCOMPARE(rig.status(), QStringLiteral("Succesfully saved ") + path);
    QCOMPARE(presetIn(path), presetOfBasicLogger());
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsLanguages::notSaved()
{
    const MarkingTranslator translator;
    PresetRig rig;
    rig.plugAndConnect();
    const QString path = rig.document(QStringLiteral("taken.bpr"));
    QVERIFY(QDir().mkpath(path));
    rig.robot.expectWarning(QStringLiteral("Error"), QStringLiteral("Unable to save preset file!"));
    rig.save(rig.document(QStringLiteral("taken")));
    QCOMPARE(rig.status(), QStringLiteral("Succesfully saved ") + path);
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsLanguages::loaded()
{
    const MarkingTranslator translator;
    PresetRig rig;
    rig.plugAndConnect();
    const QString path = rig.document(QStringLiteral("own.bpr"));
    writePreset(path, presetOfBasicLogger());
    rig.load(path);
    QCOMPARE(rig.hand.title, marked(QStringLiteral("Load preset")));
    QCOMPARE(rig.hand.filters, filter);
    QCOMPARE(rig.status(), marked(QStringLiteral("Loaded ") + path));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsLanguages::unreadable()
{
    const MarkingTranslator translator;
    PresetRig rig;
    rig.plugAndConnect();
    writeDamagedPreset(defaultPreset);
    rig.robot.expectWarning(marked(QStringLiteral("Error")),
                            marked(QStringLiteral("Unable to read from selected file. File is corrupted.")));
    rig.press("buttonPreset");
    QCOMPARE(rig.robot.problems(), QString());
}

// A title that isn't translated, over a text that is.
void TestMainWindowPresetsLanguages::zoneWithoutServers()
{
    const Servers silent;
    const MarkingTranslator translator;
    PresetRig rig(timeAndPresets());
    rig.plugAndConnect();
    rig.robot.expectWarning(
        QStringLiteral("Warning"),
        marked(QStringLiteral("Loaded preset sets a Time Zone (GMT+5:30) but Time Server(s) cannot be "
                              "reached for synchronization.\nTime Zone will be ignored.")));
    rig.apply(presetOfZone(QStringLiteral("GMT+5:30")));
    QCOMPARE(rig.status(), marked(QStringLiteral("Loaded default.bpr")));
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowPresetsLanguages::zoneWithoutTime()
{
    const MarkingTranslator translator;
    PresetRig rig;
    rig.plugAndConnect();
    rig.robot.expectWarning(
        marked(QStringLiteral("Warning")),
        marked(QStringLiteral("Loaded preset sets a Time Zone (GMT+5:30) but Time Configuration is "
                              "currently disabled.\nTime Zone will be ignored.")));
    rig.apply(presetOfZone(QStringLiteral("GMT+5:30")));
    QCOMPARE(rig.robot.problems(), QString());
}

// It stands beside the report's own words, which are English.
void TestMainWindowPresetsLanguages::remarkInTheReport()
{
    const Servers servers(NtpAnswer::currentTime());
    const MarkingTranslator translator;
    PresetRig rig(timeAndPresets());
    QVERIFY(rig.comesTo(marked(fetchedServer)));
    rig.plugAndConnect();
    rig.apply(presetOfZone(QStringLiteral("GMT+2:00")));
    QCOMPARE(rig.text("lineInfo"), QStringLiteral("ALL DATES/TIMES ARE GMT+2:00. IGNORE GMT REMARK BELOW."));
    QCOMPARE(rig.text("labelTimeZone"), QStringLiteral("GMT+2:00"));
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowPresetsLanguages)
#include "tst_mainwindow_presets_languages.moc"
