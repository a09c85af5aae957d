// Time Zone Editor: the clocks on display, and the zone that the logger's clock is to show.

#include "dialogs/timezonedialog.h"

#include "time/timemanager.h"
#include "ui_timezonedialog.h"

#include <QDebug>
#include <QMessageBox>
#include <QShowEvent>

#include <utility>

namespace {

constexpr int displayInterval = 1000; // milliseconds

QString zoneSuffix(const TimeZoneMatch& zone)
{
    if (zone.id == -1)
        return TimeZoneDialog::tr(" (Time Zone Unknown)");
    return QStringLiteral(" (") + zone.name + QLatin1Char(')');
}

} // namespace

TimeZoneDialog::TimeZoneDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::TimeZoneDialog)
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    connect(&displayTimer, &QTimer::timeout, this, &TimeZoneDialog::plUpdateDisplay);
    connect(ui->comboTimezone, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TimeZoneDialog::plOnComboChange);
}

TimeZoneDialog::~TimeZoneDialog()
{
    delete ui;
}

void TimeZoneDialog::setTimeManager(QSharedPointer<TimeManager> manager)
{
    timeManager = std::move(manager);
    setReferenceTime(timeManager->currentTimeUtc());
    serverName = timeManager->serverName();
    ui->comboTimezone->clear();
    for (const TimeZoneMatch& zone : timeManager->timeZones())
        ui->comboTimezone->addItem(zone.name);
    displayTimer.start(displayInterval);
}

void TimeZoneDialog::setDeviceTime(const QDateTime& time)
{
    deviceClock.setTime(time);
}

void TimeZoneDialog::setReferenceTime(const QDateTime& time)
{
    referenceClock.setTime(time);
    newDeviceClock.setTime(time);
}

int TimeZoneDialog::chosenOffset() const
{
    return plChosenZone().offset;
}

QString TimeZoneDialog::chosenName() const
{
    return plChosenZone().name;
}

TimeZoneMatch TimeZoneDialog::plChosenZone() const
{
    return timeManager ? timeManager->timeZones().value(ui->comboTimezone->currentIndex()) : TimeZoneMatch();
}

// The base class puts the dialog into the middle of its parent, so it has to have its new size by then. A
// window manager that brings a minimised dialog back doesn't open it anew: what was chosen stays.
void TimeZoneDialog::showEvent(QShowEvent* event)
{
    if (timeManager && !event->spontaneous()) {
        plShowSource();
        plGuessComputerZone();
        plGuessDeviceZone();
        plOnComboChange(ui->comboTimezone->currentIndex());
        plFitSize();
    }
    QDialog::showEvent(event);
}

// The values of both groups stand in one line. The groups have not told the dialog's layout yet that their
// labels changed.
void TimeZoneDialog::plFitSize()
{
    ui->gridReference->setColumnMinimumWidth(0, ui->label_8->sizeHint().width());
    for (QWidget* group : {ui->groupBox_2, ui->groupBox_3})
        group->updateGeometry();
    adjustSize();
}

// Named even if its last query failed.
void TimeZoneDialog::plShowSource()
{
    if (!serverSource)
        ui->labelSource->setText(tr("This computer's clock"));
    else
        ui->labelSource->setText(timeManager->isPoolQuery() ? tr("Server pool") : timeManager->serverName());
}

void TimeZoneDialog::plGuessComputerZone()
{
    const QDateTime local = referenceClock.time().toLocalTime();
    localZoneSuffix = zoneSuffix(timeManager->matchTimeZoneByDateTime(local.date(), local.time()));
}

void TimeZoneDialog::plGuessDeviceZone()
{
    const QDateTime shown = deviceClock.timeUtc();
    const TimeZoneMatch zone = timeManager->matchTimeZoneByDateTime(shown.date(), shown.time());
    deviceZoneSuffix = zoneSuffix(zone);
    if (zone.id == -1)
        ui->comboTimezone->setCurrentIndex(0);
    else
        ui->comboTimezone->setCurrentText(zone.name);
}

void TimeZoneDialog::plOnComboChange(int index)
{
    if (ui->comboTimezone->count() == 0)
        return;
    chosenOffsetSecs = timeManager->timeZones().value(index).offset;
    plUpdateDisplay();
}

void TimeZoneDialog::plUpdateDisplay()
{
    if (!timeManager)
        return;
    const QDateTime utc = timeManager->currentTimeUtc();
    ui->labelRefLocal->setText(timeManager->currentTimeLocal().toString(displayFormat) + localZoneSuffix);
    ui->labelRefUTC->setText(utc.toString(displayFormat));
    ui->labelNewDeviceTime->setText(utc.addSecs(chosenOffsetSecs).toString(displayFormat));
    ui->labelDeviceTime->setText(deviceClock.timeUtc().toString(displayFormat) + deviceZoneSuffix);
}

// A rejection can come from outside while the confirmation is open, and takes it along.
void TimeZoneDialog::done(int result)
{
    if (result == QDialog::Accepted && !plConfirm())
        return;
    for (QMessageBox* box : findChildren<QMessageBox*>())
        box->reject();
    qDebug() << "Chose offset:" << chosenOffset();
    QDialog::done(result);
}

// What was closed meanwhile isn't accepted any more.
bool TimeZoneDialog::plConfirm()
{
    const bool open = isVisible();
    const QMessageBox::StandardButton answer = QMessageBox::warning(
        this, tr("Attention"), tr("Are you sure you want to change the device's time setting?"),
        QMessageBox::Ok | QMessageBox::Cancel);
    return answer == QMessageBox::Ok && isVisible() == open;
}
