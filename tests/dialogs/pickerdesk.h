#pragma once

#include "advanceddesk.h"

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QPushButton>

// The picker of an automatic date and time has no object names; its widgets go by what they are or say.

QPushButton* buttonOf(const QDialog* picker, const char* text);
QDateTimeEdit* editorOf(const QDialog* picker);
QCalendarWidget* calendarOf(const QDialog* picker);

/// Opens the picker by its button and does @p action there; false if none came, or more than one.
bool pickAt(const AdvancedDesk& desk, const char* tool, const std::function<void(QDialog*)>& action);

/// What a PickerDesk has as its start; its stop is a day later.
extern const QDateTime stored;

/// A desk whose stored dates are on, two hours east.
class PickerDesk : public AdvancedDesk
{
public:
    PickerDesk();
    bool pick(const char* tool, const std::function<void(QDialog*)>& action) const
    {
        return pickAt(*this, tool, action);
    }
};
