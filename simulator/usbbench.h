#pragma once

#include "simulator/simulatedport.h"
#include "simulator/usbidentity.h"

#include <QObject>
#include <QString>
#include <QVector>

class MockUsbTree;

/// A mock USB port: plugs loggers into the hardware tree that this process and its children see.
///
/// The process must have been started under umockdev-wrapper, and there is one bench at a time.
class UsbBench : public QObject
{
    Q_OBJECT

public:
    explicit UsbBench(QObject* parent = nullptr);
    ~UsbBench() override;

    /// True under umockdev-wrapper.
    static bool isUsable();

    /// Plugs in a copy of @p model under @p portName, or the next free "ttyACM<n>" if that is empty. The port
    /// belongs to the bench; null when the system has no pseudo-terminal left or the name is taken.
    SimulatedPort* plug(const LoggerModel& model = {}, const UsbIdentity& identity = {},
                        const QString& portName = {});
    /// Takes the logger out of the hardware tree and hangs up its line; the object is deleted later.
    void unplug(SimulatedPort* port);

    /// The loggers plugged in at present.
    QVector<SimulatedPort*> ports() const { return plugged; }

private:
    QString freePortName() const;
    bool isTaken(const QString& portName) const;
    void onUnplugged(SimulatedPort* port);

    MockUsbTree& tree;
    QVector<SimulatedPort*> plugged;
};
