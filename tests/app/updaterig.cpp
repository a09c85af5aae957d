// A window beside a web server that does what a test tells it.

#include "updaterig.h"

#include "update/filedownloader.h"
#include "update/updatechecker.h"

#include <QSignalSpy>
#include <QTest>

UpdateRig::HeldServer::HeldServer(const QByteArray& file)
{
    setAnswer(httpAnswer(file));
    hold();
}

UpdateRig::UpdateRig(const QByteArray& file, const Settings& settings)
    : server(file)
    , rig(settings)
    , checker(rig.window.findChild<UpdateChecker*>())
{
    rig.skipIdleWaits();
    if (!QTest::qWaitFor([this] { return !server.requests().isEmpty(); }))
        qFatal("nobody asks for the version file");
}

bool UpdateRig::prompt()
{
    const int before = rig.robot.boxes().size();
    server.release();
    return QTest::qWaitFor([this, before] { return rig.robot.boxes().size() > before; });
}

void UpdateRig::promptAt(int command)
{
    rig.atCommand(command, [this] { prompted = prompt(); });
}

void UpdateRig::promptOverBox(int box)
{
    overBox(box, [this] { return prompt(); });
}

void UpdateRig::closeOverBox(int box)
{
    overBox(box, [this] { return prompt() && QTest::qWaitFor([this] { return !rig.window.isVisible(); }); });
}

void UpdateRig::overBox(int box, const std::function<bool()>& action)
{
    auto* watcher = new QObject(&rig.robot);
    QObject::connect(&rig.robot, &DialogRobot::sBoxOpened, watcher,
                     [this, watcher, action, left = box]() mutable {
                         if (--left == 0) {
                             watcher->deleteLater();
                             prompted = action();
                         }
                     });
}

ConnectedUpdateRig::ConnectedUpdateRig(const QByteArray& file, const LoggerModel& model,
                                       const Settings& settings)
    : UpdateRig(file, settings)
{
    rig.plugAndConnect(model);
}

bool UpdateRig::release()
{
    QSignalSpy downloaded(checker->findChild<FileDownloader*>(), &FileDownloader::downloaded);
    server.release();
    return downloaded.wait();
}
