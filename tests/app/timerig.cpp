// A window beside time servers that do what a test tells them.

#include "timerig.h"

#include "dialogs/settingsdialog.h"
#include "time/timepoolworker.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

Settings timeSettings(bool pool)
{
    return quietSettingsWith(
        {{QStringLiteral("disabletime"), QStringLiteral("0")},
         {QStringLiteral("useserverpool"), pool ? QStringLiteral("1") : QStringLiteral("0")}});
}

Servers::Servers(const NtpAnswer& answer)
{
    for (int i = 1; i <= poolSize; i++) {
        all.push_back(std::make_unique<NtpResponder>());
        all.back()->setAnswer(answer);
        if (!all.back()->listen(QHostAddress(QStringLiteral("127.1.0.%1").arg(i))))
            qFatal("no server at 127.1.0.%d: %s", i, qPrintable(all.back()->errorString()));
    }
}

void Servers::answer(const NtpAnswer& answer)
{
    for (const auto& server : all)
        server->setAnswer(answer);
}

void Servers::answer(int number, const NtpAnswer& answer)
{
    all.at(static_cast<size_t>(number - 1))->setAnswer(answer);
}

void Servers::release()
{
    for (const auto& server : all)
        server->release();
}

int Servers::requests() const
{
    int count = 0;
    for (const auto& server : all)
        count += server->requests().size();
    return count;
}

void Servers::awaitRequest() const
{
    if (!QTest::qWaitFor([this] { return requests() > 0; }))
        qFatal("nobody asks for the time");
}

TimeRig::TimeRig(const Settings& settings)
    : ProcedureRig(settings)
    , dialog(window.findChild<SettingsDialog*>())
{
}

void TimeRig::check(const char* settingsBox, bool checked)
{
    child<QCheckBox>(*dialog, settingsBox)->setChecked(checked);
}

bool TimeRig::comesTo(const QString& message)
{
    return QTest::qWaitFor([&] { return status() == message; }, queryPatience);
}

QString TimeRig::zone() const
{
    const auto* button = find<QToolButton>("buttonToolTimeZone");
    QStringList words;
    if (find<QLabel>("labelTimeZone")->isVisible())
        words << text("labelTimeZone");
    if (find<QLabel>("labelTimeZoneStatic")->isVisible())
        words << QStringLiteral("label");
    if (button->isVisible())
        words << (button->isEnabled() ? QStringLiteral("button") : QStringLiteral("disabled button"));
    return words.join(QStringLiteral(", "));
}

DoubtfulRig::DoubtfulRig(const LoggerModel& model)
    : WaitingRig(Q_INT64_C(3) * 86400 * 1000)
{
    rig.plugAndConnect(model);
    rig.takeStatusLog();
}

SynchronisedRig::SynchronisedRig(const LoggerModel& model, qint64 ahead)
    : servers(NtpAnswer::currentTime(ahead))
    , rig(timeSettings())
{
    if (!rig.comesTo(TimeWords::fetchedServer))
        qFatal("the answer never came");
    rig.plugAndConnect(model);
    rig.takeStatusLog();
}

bool otherQueryPasses()
{
    NtpResponder other;
    other.setAnswer(NtpAnswer::currentTime());
    TimePoolWorker worker;
    QSignalSpy answered(&worker, &TimePoolWorker::sQuerySuccesful);
    worker.query(QStringLiteral("several.test"));
    return other.listen(QHostAddress(QStringLiteral("127.3.0.1"))) && answered.wait();
}
