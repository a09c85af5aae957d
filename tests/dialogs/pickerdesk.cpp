// The picker of an automatic date and time, and the hands that use it.

#include "pickerdesk.h"

const QDateTime stored(QDate(2031, 5, 7), QTime(12, 34, 56), Qt::UTC);

QPushButton* buttonOf(const QDialog* picker, const char* text)
{
    for (auto* button : picker->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String(text))
            return button;
    }
    qFatal("no button says %s", text);
    return nullptr;
}

QDateTimeEdit* editorOf(const QDialog* picker)
{
    return picker->findChild<QDateTimeEdit*>();
}

QCalendarWidget* calendarOf(const QDialog* picker)
{
    return picker->findChild<QCalendarWidget*>();
}

bool pickAt(const AdvancedDesk& desk, const char* tool, const std::function<void(QDialog*)>& action)
{
    const DialogHand hand(action);
    desk.button(tool)->click();
    return hand.dialogsSeen() == 1;
}

PickerDesk::PickerDesk()
{
    dialog.lSetTimeZoneName(QStringLiteral("GMT+2:00"));
    dialog.lSetTimeZoneOffset(7200);
    dialog.lSetStartDate(true, stored);
    dialog.lSetStopDate(true, stored.addDays(1));
    open();
}
