// The window's observable state, taken down and compared in one go.

#include "windowstate.h"

#include "support/windowrig.h"
#include "windowwords.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QKeySequence>
#include <QPushButton>
#include <QSerialPort>

namespace {

constexpr const char* panelObjects[] = {"labelDeviceName",
                                        "labelFirmwareVersion",
                                        "labelHardwareRevision",
                                        "labelSerial",
                                        "labelType",
                                        "lineSender",
                                        "lineRecipient",
                                        "lineInfo",
                                        "lineBarcode",
                                        "comboTemp",
                                        "comboSampling",
                                        "comboDelay",
                                        "comboType"};

QString disconnectedStatus()
{
    return QStringLiteral("Disconnected from ttyACM0");
}

struct Look
{
    QString text;
    QString icon;
    QString toolTip;
};

Look lookOf(ConnectLook look)
{
    if (look == ConnectLook::Connect)
        return {QStringLiteral("Connect"), QStringLiteral(":/icon_connect.png"),
                QStringLiteral("Connect to device (%1)")};
    return {QStringLiteral("Disconnect"), QStringLiteral(":/icon_disconnect.png"),
            QStringLiteral("Disconnect from device (%1)")};
}

QImage smallImage(const QImage& image)
{
    return image.scaled(32, 32, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Mean difference of the colour values of two images of the same size.
int distance(const QImage& one, const QImage& other)
{
    qint64 sum = 0;
    for (qsizetype i = 0; i < one.sizeInBytes(); ++i)
        sum += qAbs(one.constBits()[i] - other.constBits()[i]);
    return static_cast<int>(sum / one.sizeInBytes());
}

QString shown(const WindowRig& rig, const char* object)
{
    if (QByteArray(object).startsWith("combo"))
        return rig.find<QComboBox>(object)->currentText();
    return rig.text(object);
}

class Comparison
{
public:
    template<typename Value>
    void compare(const char* what, const Value& actual, const Value& expected)
    {
        if (!(actual == expected))
            note(
                QStringLiteral("%1: is %2, should be %3").arg(QLatin1String(what)).arg(actual).arg(expected));
    }
    void note(const QString& line)
    {
        if (!line.isEmpty())
            lines << line;
    }
    QString result() const { return lines.join(QLatin1Char('\n')); }

private:
    QStringList lines;
};

void compareButton(Comparison& comparison, const WindowRig& rig, ConnectLook expected)
{
    const auto* button = rig.find<QPushButton>("buttonConnect");
    const Look look = lookOf(expected);
    const QString keys = QKeySequence(QStringLiteral("Ctrl+K")).toString(QKeySequence::NativeText);
    comparison.compare("button", button->text(), look.text);
    comparison.compare("tooltip", button->toolTip(), look.toolTip.arg(keys));
    const int off = iconDistance(*button, look.icon);
    if (off > largestIconDistance)
        comparison.note(QStringLiteral("icon: %1 away from %2").arg(off).arg(look.icon));
}

void compareControls(Comparison& comparison, const WindowRig& rig, Controls expected)
{
    comparison.note(rig.controlsMixture());
    comparison.compare("controls enabled", int(rig.isEnabled("buttonRead")),
                       int(expected == Controls::Enabled));
    comparison.compare("buttonConnect enabled", int(rig.isEnabled("buttonConnect")), 1);
}

void compareLink(Comparison& comparison, WindowRig& rig, const WindowState& expected)
{
    for (SimulatedPort* port : rig.bench.ports())
        rig.bench.unplug(port);
    rig.logger = nullptr;
    if (expected.link == Link::Closed)
        WindowWords::expectNoDevice(rig.robot);
    else if (expected.modified)
        WindowWords::expectDisconnecting(rig.robot, WindowWords::Yes);
    rig.press("buttonConnect");
    comparison.compare("status after the next click", rig.status(),
                       expected.link == Link::Closed ? expected.status : disconnectedStatus());
}

} // namespace

void noteEnabledControls(WindowRig& rig, QStringList* commands)
{
    QObject::connect(rig.logger, &SimulatedPort::sCommandReceived, rig.logger,
                     [&rig, commands](int, const QByteArray& command) {
                         if (rig.isEnabled("buttonRead") || !rig.controlsMixture().isEmpty())
                             *commands << QString::fromLatin1(command);
                     });
}

int iconDistance(const QAbstractButton& button, const QString& imagePath)
{
    const QImage shown = button.icon().pixmap(button.iconSize()).toImage();
    const QImage wanted(imagePath);
    if (shown.isNull() || wanted.isNull())
        return farthestIconDistance;
    return distance(smallImage(shown), smallImage(wanted));
}

WindowState beforeAnyConnect()
{
    return {};
}

WindowState connected()
{
    return {QStringLiteral("Connected to device on ttyACM0"), ConnectLook::Disconnect, Link::Open,
            Controls::Enabled};
}

WindowState disconnected()
{
    return {disconnectedStatus()};
}

WindowState mixed()
{
    return {QStringLiteral("Connected to device on ttyACM0"), ConnectLook::Disconnect};
}

WindowState idle(const QString& status, bool modified)
{
    return {status, ConnectLook::Disconnect, Link::Open, Controls::Enabled, modified};
}

QString differences(WindowRig& rig, const WindowState& expected)
{
    Comparison comparison;
    comparison.compare("status", rig.status(), expected.status);
    compareButton(comparison, rig, expected.look);
    comparison.compare("title", rig.title(),
                       QStringLiteral("Brumalogger Configuration Tool") +
                           QLatin1String(expected.modified ? "*" : ""));
    compareControls(comparison, rig, expected.controls);
    comparison.compare("progress dialog still there", int(rig.progressDialog() != nullptr), 0);
    compareLink(comparison, rig, expected);
    comparison.note(rig.robot.problems());
    return comparison.result();
}

QString closedWindowRemains(const WindowRig& rig)
{
    QStringList left;
    QCoreApplication::processEvents();
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            left << QString::fromLatin1(widget->metaObject()->className()) +
                        QStringLiteral(" is still visible");
    }
    QSerialPort otherProgram(QStringLiteral("ttyACM0"));
    if (!otherProgram.open(QIODevice::ReadWrite))
        left << QStringLiteral("the port is still taken");
    left << rig.robot.problems();
    left.removeAll(QString());
    return left.join(QLatin1Char('\n'));
}

QStringList visibleLabels(const WindowRig& rig, const QList<const char*>& names)
{
    QStringList shown;
    for (const char* name : names) {
        if (rig.find<QWidget>(name)->isVisible())
            shown << QStringLiteral("%1 = %2").arg(QLatin1String(name), rig.text(name));
    }
    return shown;
}

QStringList panels(const WindowRig& rig)
{
    QStringList lines;
    for (const char* object : panelObjects)
        lines << QStringLiteral("%1 = %2").arg(QLatin1String(object), shown(rig, object));
    return lines;
}

QStringList panelsOfBasicLogger()
{
    return {QStringLiteral("labelDeviceName = Brumalogger USB"),
            QStringLiteral("labelFirmwareVersion = 1.1.9"),
            QStringLiteral("labelHardwareRevision = 2.4"),
            QStringLiteral("labelSerial = BL-0042"),
            QStringLiteral("labelType = Single-use"),
            QStringLiteral("lineSender = Northern Pharma"),
            QStringLiteral("lineRecipient = City Hospital"),
            QStringLiteral("lineInfo = Batch 7"),
            QStringLiteral("lineBarcode = B1234"),
            QStringLiteral("comboTemp = -10°C to -1°C"),
            QStringLiteral("comboSampling = 10 minutes"),
            QStringLiteral("comboDelay = 1 hour"),
            QStringLiteral("comboType = Land")};
}

QStringList emptyPanels()
{
    QStringList lines;
    for (const char* object : panelObjects) {
        const QString name = QLatin1String(object);
        lines << name + QLatin1String(name.startsWith(QLatin1String("label")) ? " =  - " : " = ");
    }
    return panelsWith(lines,
                      {QStringLiteral("comboTemp = 2°C to 8°C"), QStringLiteral("comboSampling = 1 minute"),
                       QStringLiteral("comboDelay = 1 minute"), QStringLiteral("comboType =  ")});
}

QStringList panelsWith(const QStringList& panels, const QStringList& changes)
{
    QStringList changed = panels;
    for (const QString& change : changes) {
        const QString object = change.section(QLatin1Char(' '), 0, 0) + QLatin1Char(' ');
        for (QString& line : changed) {
            if (line.startsWith(object))
                line = change;
        }
    }
    return changed;
}

QStringList setupNumbers(const WindowRig& rig)
{
    return {QStringLiteral("spinSampling = %1").arg(rig.find<QSpinBox>("spinSampling")->value()),
            QStringLiteral("spinDelay = %1").arg(rig.find<QSpinBox>("spinDelay")->value()),
            QStringLiteral("spindTempMin = %1").arg(rig.find<QDoubleSpinBox>("spindTempMin")->value()),
            QStringLiteral("spindTempMax = %1").arg(rig.find<QDoubleSpinBox>("spindTempMax")->value()),
            QStringLiteral("checkLock = %1").arg(rig.find<QCheckBox>("checkLock")->isChecked())};
}
