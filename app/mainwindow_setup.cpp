// The setup panel: its lists, list choices to numbers and back, the limits of the text lines.

#include "app/mainwindow.h"

#include "app/devicetext.h"
#include "ui_mainwindow.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int shortestMinutes = 1;
constexpr int longestMinutes = 960;
constexpr double smallestSpan = 1.0;

struct SampleTime
{
    const char* label;
    int seconds;
};

/// Serves the sampling time and the start delay; there is no entry for no delay.
constexpr SampleTime sampleTimeRows[] = {
    {QT_TRANSLATE_NOOP("MainWindow", "1 minute"), 60},
    {QT_TRANSLATE_NOOP("MainWindow", "5 minutes"), 300},
    {QT_TRANSLATE_NOOP("MainWindow", "10 minutes"), 600},
    {QT_TRANSLATE_NOOP("MainWindow", "15 minutes"), 900},
    {QT_TRANSLATE_NOOP("MainWindow", "30 minutes"), 1800},
    {QT_TRANSLATE_NOOP("MainWindow", "1 hour"), 3600},
    {QT_TRANSLATE_NOOP("MainWindow", "2 hours"), 7200},
    {QT_TRANSLATE_NOOP("MainWindow", "3 hours"), 10800},
    {QT_TRANSLATE_NOOP("MainWindow", "4 hours"), 14400},
};

struct TempRange
{
    const char* label;
    float minimum;
    float maximum;
};

constexpr TempRange tempRangeRows[] = {
    {QT_TRANSLATE_NOOP("MainWindow", "2°C to 8°C"), 2, 8},
    {QT_TRANSLATE_NOOP("MainWindow", "-10°C to -1°C"), -10, -1},
    {QT_TRANSLATE_NOOP("MainWindow", "-8°C to -2°C"), -8, -2},
    {QT_TRANSLATE_NOOP("MainWindow", "2°C to 25°C"), 2, 25},
    {QT_TRANSLATE_NOOP("MainWindow", "15°C to 25°C"), 15, 25},
    {QT_TRANSLATE_NOOP("MainWindow", "15°C to 30°C"), 15, 30},
    {QT_TRANSLATE_NOOP("MainWindow", "-30°C to -15°C"), -30, -15},
};

/// The last entry of both lists, which has no numbers of its own.
constexpr auto customLabel = QT_TRANSLATE_NOOP("MainWindow", "Custom");

/// The codes on the device, which the list shows as they are.
constexpr const char* shipmentTypeCodes[] = {" ", "Air", "Land", "Sea"};

// The first index of value, or the list's length.
template<typename List, typename Value>
int indexOrEnd(const List& list, const Value& value)
{
    return static_cast<int>(std::distance(list.begin(), std::find(list.begin(), list.end(), value)));
}

} // namespace

const MainWindow::TextSlot MainWindow::textSlots[] = {
    {&Ui::MainWindow::lineSender, &Ui::MainWindow::labelCountSender, 0, maxReportTextLength},
    {&Ui::MainWindow::lineRecipient, &Ui::MainWindow::labelCountRecipient, 1, maxReportTextLength},
    {&Ui::MainWindow::lineInfo, &Ui::MainWindow::labelCountInfo, 2, maxReportTextLength},
    {&Ui::MainWindow::lineBarcode, &Ui::MainWindow::labelCountBarcode, 4, maxBarcodeLength},
};

void MainWindow::plFillLists()
{
    for (const SampleTime& row : sampleTimeRows) {
        sampleTimeLabels << tr(row.label);
        sampleTimes << row.seconds;
    }
    sampleTimeLabels << tr(customLabel);
    for (const TempRange& row : tempRangeRows) {
        tempRangeLabels << tr(row.label);
        tempRanges << qMakePair(row.minimum, row.maximum);
    }
    tempRangeLabels << tr(customLabel);
    for (const char* code : shipmentTypeCodes)
        shipmentTypes << QLatin1String(code);
}

void MainWindow::plInsertLists()
{
    ui->comboSampling->addItems(sampleTimeLabels);
    ui->comboDelay->addItems(sampleTimeLabels);
    ui->comboTemp->addItems(tempRangeLabels);
    ui->comboType->addItems(shipmentTypes);
    ui->spinSampling->setRange(shortestMinutes, longestMinutes);
    ui->spinDelay->setRange(shortestMinutes, longestMinutes);
    ui->spindTempMin->setRange(-30, 79);
    ui->spindTempMax->setRange(-29, 80);
}

void MainWindow::plConnectCounters()
{
    for (const TextSlot& slot : textSlots) {
        QLineEdit* edit = ui->*slot.edit;
        connect(edit, &QLineEdit::textChanged, this,
                [this, edit, counter = ui->*slot.counter, limit = slot.limit] {
                    plUpdateTextCounter(edit, counter, limit);
                });
    }
}

void MainWindow::plUpdateSamplingTime()
{
    plShowMinutes(ui->comboSampling, ui->spinSampling);
}

void MainWindow::plUpdateStartDelay()
{
    plShowMinutes(ui->comboDelay, ui->spinDelay);
}

// "Custom" keeps the value that the spin box has.
void MainWindow::plShowMinutes(QComboBox* combo, QSpinBox* spin)
{
    const int index = combo->currentIndex();
    const bool custom = index == sampleTimeLabels.size() - 1;
    spin->setEnabled(custom);
    if (!custom)
        spin->setValue(sampleTimes.value(index) / secondsPerMinute);
}

void MainWindow::plUpdateTempRange()
{
    const int index = ui->comboTemp->currentIndex();
    const bool custom = index == tempRangeLabels.size() - 1;
    ui->spindTempMin->setEnabled(custom);
    ui->spindTempMax->setEnabled(custom);
    if (!custom) {
        const QPair<float, float> range = tempRanges.value(index);
        ui->spindTempMin->setValue(range.first);
        ui->spindTempMax->setValue(range.second);
    }
}

void MainWindow::plSetSamplingTime(int seconds)
{
    plChooseMinutes(ui->comboSampling, ui->spinSampling, seconds);
}

void MainWindow::plSetStartDelay(int seconds)
{
    plChooseMinutes(ui->comboDelay, ui->spinDelay, seconds);
}

// Half minutes are lost, and the spin box clamps.
void MainWindow::plChooseMinutes(QComboBox* combo, QSpinBox* spin, int seconds)
{
    combo->setCurrentIndex(indexOrEnd(sampleTimes, seconds));
    spin->setValue(seconds / secondsPerMinute);
}

// Without a look at the range. A box that is switched off under the operator's hands loses the focus, which
// is no editing, and a notice in the middle of a preset would give the device time to go.
void MainWindow::plSetTempRange(float min, float max)
{
    const QSignalBlocker minimum(ui->spindTempMin);
    const QSignalBlocker maximum(ui->spindTempMax);
    ui->comboTemp->setCurrentIndex(indexOrEnd(tempRanges, qMakePair(min, max)));
    ui->spindTempMax->setValue(max);
    ui->spindTempMin->setValue(min);
}

void MainWindow::plSetShipmentType(const QString& type)
{
    ui->comboType->setCurrentIndex(qMax(0, shipmentTypes.indexOf(type)));
}

// Whichever box was edited, it is the maximum that moves.
void MainWindow::plValidateTempRange()
{
    const auto min = static_cast<float>(ui->spindTempMin->value());
    const auto max = static_cast<float>(ui->spindTempMax->value());
    if (min + smallestSpan > max) {
        ui->spindTempMax->setValue(min + smallestSpan);
        // The notice takes the focus. That would end the editing once more, with a second notice on top.
        const QSignalBlocker quietMinimum(ui->spindTempMin);
        const QSignalBlocker quietMaximum(ui->spindTempMax);
        plInform(tr("Notice"), tr("Maximum temperature must be at least\n"
                                  "one degree higher than minimum temperature."));
    }
}

// Setting the text on every run puts the cursor at the end, also after a keystroke in the middle.
void MainWindow::plUpdateTextCounter(QLineEdit* edit, QLabel* counter, int limit)
{
    edit->setText(plSanitizeDeviceText(edit->text()).left(limit));
    counter->setText(QStringLiteral("(%1/%2)").arg(edit->text().size()).arg(limit));
}

QString MainWindow::plSanitizeDeviceText(const QString& text) const
{
    return transliterated(text);
}
