#pragma once

#include <QByteArray>
#include <QString>

class WindowRig;

/// The setup panel as an operator sees it. Widgets go by their object names.
class Panel
{
public:
    explicit Panel(WindowRig& rig)
        : rig(rig)
    {
    }

    QString choice(const char* combo) const;
    void choose(const char* combo, const QString& entry) const;
    int minutes(const char* spin) const;
    /// Types a number and leaves the box by the Return key.
    void type(const char* spin, double number) const;
    /// The temperature range as "2 to 8", with a star behind the number of a box that is enabled.
    QString range() const;
    /// Presses Write and gives the command that begins so, or "nothing".
    QByteArray written(const QByteArray& command) const;

private:
    WindowRig& rig;
};
