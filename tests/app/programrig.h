#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QScopedPointer>
#include <QSize>
#include <QSocketNotifier>
#include <QString>
#include <QStringList>

#include <xcb/xcb.h>

constexpr int patience = 60000; // milliseconds; a busy machine starts a program slowly

/// A client of the X server that sees windows appear on the screen, and can ask them to close.
class Screen : public QObject
{
    Q_OBJECT

public:
    Screen();
    ~Screen() override;

    bool isConnected() const { return xcb_connection_has_error(connection) == 0; }
    QString titleOf(xcb_window_t window) const;
    QSize sizeOf(xcb_window_t window) const;
    /// What the button in a title bar does.
    void close(xcb_window_t window) const;
    /// Gives @p window the keyboard, and presses and releases a key that has @p letter, which takes no Shift.
    void press(xcb_window_t window, char letter, uint16_t modifiers = 0) const;
    void pressReturn(xcb_window_t window) const { press(window, '\r'); }

signals:
    void sWindowShown(quint32);

private:
    void onEvents();
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root; }
    xcb_atom_t atom(const char* name) const;
    xcb_keycode_t keyFor(xcb_keysym_t symbol) const;

    xcb_connection_t* connection;
    QScopedPointer<QSocketNotifier> notifier;
};

/// The program as a process of its own. Its configuration is in the current folder.
class ProgramRig
{
public:
    explicit ProgramRig(const Screen& screen);
    /// Kills it if it still runs.
    ~ProgramRig();
    ProgramRig(const ProgramRig&) = delete;
    ProgramRig& operator=(const ProgramRig&) = delete;

    /// Starts it and waits for its window; 0 if none came.
    xcb_window_t start(const QStringList& arguments = {}, const QString& file = QStringLiteral(PROGRAM_FILE));
    /// Closes its window and waits for its end.
    bool end(xcb_window_t window);

    QProcess process;

private:
    const Screen& screen;
};
