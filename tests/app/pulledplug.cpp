// The plug pulled under a procedure, and what the window is worth afterwards.

#include "pulledplug.h"

#include "windowstate.h"
#include "windowwords.h"

void pullAt(ProcedureRig& rig, int command, QList<QByteArray>* wire)
{
    rig.atCommand(command, [&rig, wire] {
        *wire = rig.wire();
        rig.bench.unplug(rig.logger);
    });
}

void expectLostInRead(ProcedureRig& rig, bool inLastCommand)
{
    if (!inLastCommand)
        WindowWords::expectReadFailed(rig.robot);
    WindowWords::expectInvalidDevice(rig.robot);
}

QString troubleWithNextLogger(ProcedureRig& rig)
{
    LoggerModel model = basicLogger();
    model.settings().serial = QStringLiteral("BL-0043");
    rig.unplugAll();
    rig.plug(model);
    rig.press("buttonConnect");
    if (rig.wire() != connectCommands())
        return QStringLiteral("%1 commands on the wire").arg(rig.wire().size());
    if (panels(rig) != panelsWith(panelsOfBasicLogger(), {QStringLiteral("labelSerial = BL-0043")}))
        return panels(rig).join(QLatin1String(", "));
    return differences(rig, connected());
}
