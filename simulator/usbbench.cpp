// Plugging loggers in and out.

#include "simulator/usbbench.h"

#include "simulator/mockusbtree.h"

#include <algorithm>
#include <memory>

UsbBench::UsbBench(QObject* parent)
    : QObject(parent)
    , tree(MockUsbTree::instance())
{
}

UsbBench::~UsbBench()
{
    const QVector<SimulatedPort*> left = plugged;
    for (SimulatedPort* port : left)
        port->hangUp();
}

bool UsbBench::isUsable()
{
    return MockUsbTree::isUsable();
}

SimulatedPort* UsbBench::plug(const LoggerModel& model, const UsbIdentity& identity, const QString& portName)
{
    const QString name = portName.isEmpty() ? freePortName() : portName;
    if (isTaken(name))
        return nullptr;
    auto port = std::make_unique<SimulatedPort>(model, name, this);
    if (!port->isPlugged() || !tree.add(name, identity, port->terminalPath()))
        return nullptr;
    SimulatedPort* const kept = port.release();
    connect(kept, &SimulatedPort::sUnplugged, this, [this, kept] { onUnplugged(kept); });
    plugged.append(kept);
    return kept;
}

void UsbBench::unplug(SimulatedPort* port)
{
    port->hangUp();
}

QString UsbBench::freePortName() const
{
    const auto name = [](int number) { return QStringLiteral("ttyACM%1").arg(number); };
    int number = 0;
    while (isTaken(name(number)))
        ++number;
    return name(number);
}

bool UsbBench::isTaken(const QString& portName) const
{
    return std::any_of(plugged.cbegin(), plugged.cend(),
                       [&portName](const SimulatedPort* port) { return port->portName() == portName; });
}

// The port itself may have brought this about, so it lives until control is back in the event loop.
void UsbBench::onUnplugged(SimulatedPort* port)
{
    plugged.removeOne(port);
    tree.remove(port->portName());
    port->deleteLater();
}
