// Advanced options: the picker of an automatic date and time, in figures on the device's clock.

#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/titleroom.h"

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QDebug>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

struct Picker
{
    explicit Picker(QDialog* dialog)
        : calendar(new QCalendarWidget(dialog))
        , zone(new QLabel(dialog))
        , editor(new QDateTimeEdit(dialog))
        , now(new QPushButton(dialog))
        , ok(new QPushButton(dialog))
        , cancel(new QPushButton(dialog))
    {
    }

    QCalendarWidget* calendar;
    QLabel* zone;
    QDateTimeEdit* editor;
    QPushButton* now;
    QPushButton* ok;
    QPushButton* cancel;
};

void layOut(const Picker& picker, QDialog* dialog)
{
    auto* grid = new QGridLayout(dialog);
    grid->addWidget(picker.calendar, 0, 0, 1, 4);
    grid->addWidget(picker.zone, 2, 0);
    grid->addWidget(picker.editor, 2, 1, 1, 2);
    grid->addWidget(picker.now, 2, 3);
    grid->addWidget(picker.ok, 4, 0, 1, 2);
    grid->addWidget(picker.cancel, 4, 2, 1, 2);
}

/// In the computer's zone, the editor would take the hour that is skipped in spring for a mistake. Enter
/// means Ok, not the first button.
void setUp(const Picker& picker)
{
    picker.zone->setBuddy(picker.editor);
    picker.editor->setTimeSpec(Qt::UTC);
    picker.editor->setDisplayFormat(QStringLiteral("hh:mm dd/MMM/yyyy"));
    picker.now->setAutoDefault(false);
    picker.ok->setDefault(true);
}

void keepInStep(QCalendarWidget* calendar, QDateTimeEdit* editor)
{
    QObject::connect(calendar, &QCalendarWidget::selectionChanged, editor,
                     [calendar, editor] { editor->setDate(calendar->selectedDate()); });
    QObject::connect(editor, &QDateTimeEdit::dateChanged, calendar, &QCalendarWidget::setSelectedDate);
}

void showDate(const Picker& picker, const QDateTime& date)
{
    const QDateTime utc = date.toTimeSpec(Qt::UTC);
    picker.editor->setDate(utc.date());
    picker.editor->setTime(utc.time());
    picker.calendar->setSelectedDate(utc.date());
}

} // namespace

bool AdvancedOptionsDialog::plPickDateTime(QDateTime* date, const QString& title)
{
    QDialog dialog(this);
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog.setWindowTitle(title);
    const Picker picker(&dialog);
    picker.zone->setText(timeZoneName + QStringLiteral(": "));
    picker.now->setText(tr("Now"));
    picker.ok->setText(tr("Ok"));
    picker.cancel->setText(tr("Cancel"));
    layOut(picker, &dialog);
    setUp(picker);
    keepInStep(picker.calendar, picker.editor);
    showDate(picker, *date);
    makeRoomForTitle(&dialog);
    connect(picker.now, &QPushButton::clicked, &dialog,
            [this, &picker] { showDate(picker, QDateTime::currentDateTime().addSecs(timeZoneOffset)); });
    connect(picker.ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    connect(picker.cancel, &QPushButton::clicked, &dialog, &QDialog::close);
    if (dialog.exec() != Accepted)
        return false;
    *date = QDateTime(picker.editor->date(), picker.editor->time(), Qt::UTC);
    qDebug() << "Selected timestamp: " << date->toSecsSinceEpoch();
    return true;
}

// The texts are made anew even if nothing was chosen.
void AdvancedOptionsDialog::plSelectStartDate()
{
    plPickDateTime(&startDate, tr("Select a START Date and Time"));
    plUpdateDateTimeDisplays();
}

void AdvancedOptionsDialog::plSelectStopDate()
{
    plPickDateTime(&stopDate, tr("Select a STOP Date and Time"));
    plUpdateDateTimeDisplays();
}
