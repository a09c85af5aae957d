// Every combination of sampling time, start delay and range that the setup panel offers, saved to a preset
// and loaded back. The shipment type and the lock go through them so that each type with each lock meets
// every two of the three: 800 files for the 6400 combinations of all five, since opening and closing the file
// dialog takes nearly all of a run's time. They suffice because no key of a file depends on another, but for
// the two ends of the range: a key's value comes from its own control, and goes back into that alone.

#include "presetrig.h"
#include "setuppanel.h"
#include "windowstate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTest>

namespace {

/// A place in every list at once.
struct Choice
{
    int sampling;
    int delay;
    int range;
    int type;
    bool lock;
};

void choose(const PresetRig& rig, const Choice& choice)
{
    const std::initializer_list<std::pair<const char*, int>> lists = {{"comboSampling", choice.sampling},
                                                                      {"comboDelay", choice.delay},
                                                                      {"comboTemp", choice.range},
                                                                      {"comboType", choice.type}};
    for (const auto& [combo, index] : lists)
        rig.find<QComboBox>(combo)->setCurrentIndex(index);
    rig.find<QCheckBox>("checkLock")->setChecked(choice.lock);
}

/// Own values where the list says "Custom".
void typeCustomValues(PresetRig& rig)
{
    const Panel panel{rig};
    if (rig.isEnabled("spinSampling"))
        panel.type("spinSampling", 17);
    if (rig.isEnabled("spinDelay"))
        panel.type("spinDelay", 959);
    if (rig.isEnabled("spindTempMin")) {
        panel.type("spindTempMax", 71.25);
        panel.type("spindTempMin", -0.75);
    }
}

QStringList panelOf(const PresetRig& rig)
{
    QStringList shown = panels(rig) + setupNumbers(rig);
    for (const char* spin : {"spinSampling", "spinDelay", "spindTempMin", "spindTempMax"})
        shown << QLatin1String(rig.isEnabled(spin) ? "enabled" : "disabled");
    return shown;
}

constexpr int timeEntries = 10;
constexpr int rangeEntries = 8;
constexpr int typeEntries = 4;

/// With any two of the lists' entries held, the third goes through every type with every lock.
Choice choiceOf(int sampling, int delay, int range)
{
    const int typeAndLock = (sampling + delay + range) % (2 * typeEntries);
    return {sampling, delay, range, typeAndLock % typeEntries, typeAndLock >= typeEntries};
}

} // namespace

class TestMainWindowPresetsRoundtrip : public QObject
{
    Q_OBJECT

private slots:
    void everyCombination_data();
    void everyCombination();

private:
    static void saveAndLoad(PresetRig& rig, const Choice& choice);
};

void TestMainWindowPresetsRoundtrip::saveAndLoad(PresetRig& rig, const Choice& choice)
{
    choose(rig, choice);
    typeCustomValues(rig);
    const QStringList shown = panelOf(rig);
    rig.save(rig.document(QStringLiteral("own")));
    // Somewhere else in every list
    choose(rig, {(choice.sampling + 1) % timeEntries, (choice.delay + 1) % timeEntries,
                 (choice.range + 1) % rangeEntries, (choice.type + 1) % typeEntries, !choice.lock});
    rig.press("buttonPreset");
    QCOMPARE(panelOf(rig), shown);
    QCOMPARE(rig.status(), QStringLiteral("Loaded Documents/own.bpr"));
}

void TestMainWindowPresetsRoundtrip::everyCombination_data()
{
    QTest::addColumn<int>("sampling");
    for (int sampling = 0; sampling < timeEntries; ++sampling)
        QTest::addRow("sampling time %d", sampling) << sampling;
}

void TestMainWindowPresetsRoundtrip::everyCombination()
{
    QFETCH(const int, sampling);
    PresetRig rig(quietSettingsWith({{QStringLiteral("preseten"), QStringLiteral("1")},
                                     {QStringLiteral("presetpath"), QStringLiteral("Documents/own.bpr")}}));
    rig.plugAndConnect();
    for (int delay = 0; delay < timeEntries; ++delay) {
        for (int range = 0; range < rangeEntries; ++range) {
            saveAndLoad(rig, choiceOf(sampling, delay, range));
            if (QTest::currentTestFailed())
                return;
        }
    }
    QCOMPARE(rig.robot.problems(), QString());
}

QTEST_MAIN(TestMainWindowPresetsRoundtrip)
#include "tst_mainwindow_presets_roundtrip.moc"
