#pragma once

#include <QString>
#include <QStringList>

class QAbstractButton;
class WindowRig;

/// What the Connect button offers, by its text, its icon and its tooltip.
enum class ConnectLook { Connect, Disconnect };
/// Whether the program holds the port.
enum class Link { Closed, Open };
enum class Controls { Disabled, Enabled };

/// All that an operator sees of the window or can find out with one click, its panels apart.
struct WindowState
{
    QString status;
    ConnectLook look = ConnectLook::Connect;
    Link link = Link::Closed;
    Controls controls = Controls::Disabled;
    bool modified = false;
};

/// Nothing was connected yet.
WindowState beforeAnyConnect();
WindowState connected();
WindowState disconnected();
/// What a failed or cancelled read leaves behind in a connect: the looks of a connection without the link.
WindowState mixed();
/// Connected and idle after something else than a connect.
WindowState idle(const QString& status, bool modified);

/// What in the window is not as @p expected, and which boxes came that the robot did not expect, or the other
/// way round; empty when all is well.
///
/// The link is judged by the next click on the button, with all plugs pulled: it closes an open link and
/// finds no device without one. So this is the last look at a window, and the loggers are gone after it.
QString differences(WindowRig& rig, const WindowState& expected);

/// What is left of a window that was closed, in words; empty if nothing is.
QString closedWindowRemains(const WindowRig& rig);

/// Writes down each command that the logger receives from now on while any control is enabled.
void noteEnabledControls(WindowRig& rig, QStringList* commands);

/// How far the icon of @p button is from the image at @p imagePath, both at the same small size. The same
/// image cut down in two ways is at most largestIconDistance away.
int iconDistance(const QAbstractButton& button, const QString& imagePath);
constexpr int largestIconDistance = 25;
constexpr int farthestIconDistance = 255;

/// "object = what it shows" for those of the labels @p names that are on show.
QStringList visibleLabels(const WindowRig& rig, const QList<const char*>& names);

/// "object = what it shows" for the panels' labels, text lines and lists.
QStringList panels(const WindowRig& rig);
/// The panels after a read of basicLogger().
QStringList panelsOfBasicLogger();
/// The panels without a device.
QStringList emptyPanels();
/// @p panels with other values for some objects, given as "object = value".
QStringList panelsWith(const QStringList& panels, const QStringList& changes);
/// "object = value" for the numbers of the setup panel and the button lock.
QStringList setupNumbers(const WindowRig& rig);
