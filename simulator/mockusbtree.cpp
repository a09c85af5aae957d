// Ports in the mock hardware tree: a USB device with a terminal below it, and the terminal's name in /dev.

// Before Qt, whose keyword "signals" is a name in GLib.
#include <umockdev.h>

#include "simulator/mockusbtree.h"

#include <QVector>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Owned text of GLib, as a Qt one.
QByteArray takeText(gchar* text)
{
    QByteArray copy(text);
    g_free(text);
    return copy;
}

/// Keys and values of a device in a row, as udev has them.
class Properties
{
public:
    void add(const char* key, const QByteArray& value) { texts << key << value; }
    /// Pointers into these properties, with the null that ends them.
    QVector<gchar*> pointers()
    {
        QVector<gchar*> all;
        for (QByteArray& text : texts)
            all << text.data();
        return all << nullptr;
    }

private:
    QVector<QByteArray> texts;
};

QByteArray identifier(int number)
{
    return QByteArray::number(number, 16).rightJustified(4, '0');
}

// udev keeps names twice: with blanks as underscores, and with everything unusual as an escape.
void addName(const char* plainKey, const char* encodedKey, const QString& name, Properties* properties)
{
    if (name.isEmpty())
        return;
    QByteArray encoded;
    for (const char c : name.toUtf8()) {
        const bool plain = QByteArray("#+-.:=@_").contains(c) || (isalnum(static_cast<uchar>(c)) != 0);
        encoded += plain ? QByteArray(1, c) : "\\x" + QByteArray(1, c).toHex();
    }
    properties->add(plainKey, QString(name).replace(QLatin1Char(' '), QLatin1Char('_')).toUtf8());
    properties->add(encodedKey, encoded);
}

void addIdentity(const UsbIdentity& identity, Properties* properties)
{
    properties->add("ID_BUS", "usb");
    addName("ID_VENDOR", "ID_VENDOR_ENC", identity.manufacturer, properties);
    addName("ID_MODEL", "ID_MODEL_ENC", identity.description, properties);
    if (identity.vendor >= 0)
        properties->add("ID_VENDOR_ID", identifier(identity.vendor));
    if (identity.product >= 0)
        properties->add("ID_MODEL_ID", identifier(identity.product));
}

QByteArray addDevice(UMockdevTestbed* testbed, const char* subsystem, const QByteArray& name,
                     const QByteArray& parent, Properties properties)
{
    QVector<gchar*> attributes = {nullptr};
    QVector<gchar*> pointers = properties.pointers();
    return takeText(umockdev_testbed_add_devicev(testbed, subsystem, name.constData(),
                                                 parent.isEmpty() ? nullptr : parent.constData(),
                                                 attributes.data(), pointers.data()));
}

// The library starts the tree's thread, which reads the environment, and only then names the tree's folder
// there. A new name moves the environment in memory; a new value doesn't, so the name is made before.
UMockdevTestbed* newTestbed()
{
    qputenv("UMOCKDEV_DIR", "");
    return umockdev_testbed_new();
}

} // namespace

bool MockUsbTree::isUsable()
{
    void* const preloaded = dlopen("libumockdev-preload.so.0", RTLD_LAZY | RTLD_NOLOAD);
    if (preloaded != nullptr)
        dlclose(preloaded);
    return preloaded != nullptr;
}

// A port that was opened has its ioctls answered by the tree, and its last one, at its closing, would wait
// for ever if the tree were gone by then. So there is one, and it stays until the process ends.
MockUsbTree& MockUsbTree::instance()
{
    static MockUsbTree tree;
    return tree;
}

MockUsbTree::MockUsbTree()
    : testbed(newTestbed())
{
    mkdir((root() + "/dev").constData(), 0755);
}

MockUsbTree::~MockUsbTree()
{
    const QList<QString> left = devices.keys();
    for (const QString& portName : left)
        remove(portName);
    g_object_unref(testbed);
}

// Each plugging has a bus name of its own, as a device that comes back has on a real bus.
bool MockUsbTree::add(const QString& portName, const UsbIdentity& identity, const QByteArray& terminalPath)
{
    Device device;
    Properties usb;
    usb.add("DEVTYPE", "usb_device");
    device.usbPath = addDevice(testbed, "usb", "1-" + QByteArray::number(++pluggings), {}, usb);
    Properties tty;
    tty.add("DEVNAME", "/dev/" + portName.toUtf8());
    addIdentity(identity, &tty);
    device.ttyPath = addDevice(testbed, "tty", portName.toUtf8(), device.usbPath, tty);
    devices.insert(portName, device);

    const bool named = symlink(terminalPath.constData(), nodePath(portName).constData()) == 0;
    if (!named)
        remove(portName);
    return named;
}

void MockUsbTree::remove(const QString& portName)
{
    const Device device = devices.take(portName);
    unlink(nodePath(portName).constData());
    umockdev_testbed_remove_device(testbed, device.ttyPath.constData());
    umockdev_testbed_remove_device(testbed, device.usbPath.constData());
}

QByteArray MockUsbTree::nodePath(const QString& portName) const
{
    return root() + "/dev/" + portName.toUtf8();
}

QByteArray MockUsbTree::root() const
{
    return takeText(umockdev_testbed_get_root_dir(testbed));
}
