#pragma once

#include "simulator/usbidentity.h"

#include <QByteArray>
#include <QHash>
#include <QString>

struct _UMockdevTestbed; // NOLINT(bugprone-reserved-identifier): the library's own name

/// The mock hardware tree: serial ports on a USB bus, as udev and /dev show them to this process.
class MockUsbTree
{
public:
    /// True in a process started under umockdev-wrapper; without it there can be no tree.
    static bool isUsable();

    /// The tree of this process, made by the first call.
    static MockUsbTree& instance();

    MockUsbTree(const MockUsbTree&) = delete;
    MockUsbTree& operator=(const MockUsbTree&) = delete;

    /// Puts a port called @p portName into the tree, with @p terminalPath behind its name in /dev.
    bool add(const QString& portName, const UsbIdentity& identity, const QByteArray& terminalPath);
    void remove(const QString& portName);

private:
    MockUsbTree();
    ~MockUsbTree();

    struct Device
    {
        QByteArray usbPath;
        QByteArray ttyPath;
    };

    QByteArray nodePath(const QString& portName) const;
    QByteArray root() const;

    _UMockdevTestbed* testbed;
    QHash<QString, Device> devices;
    int pluggings = 0;
};
