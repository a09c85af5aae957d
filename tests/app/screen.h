#pragma once

#include <QObject>
#include <QScopedPointer>
#include <QSize>
#include <QString>

#include <xcb/xcb.h>

class QSocketNotifier;

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

signals:
    void sWindowShown(quint32);

private:
    void onEvents();
    xcb_window_t root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root; }
    xcb_atom_t atom(const char* name) const;

    xcb_connection_t* connection;
    QScopedPointer<QSocketNotifier> notifier;
};
