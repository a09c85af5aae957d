// A settings dialog and the hands that use it.

#include "settingsdesk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTest>

SettingsDesk::SettingsDesk(const Settings& settings)
    : folder(settings)
    , dialog(&window)
{
    window.resize(900, 800);
    dialog.setConfigPath(QStringLiteral("blconf"));
}

bool SettingsDesk::isChecked(const char* box) const
{
    return find<QCheckBox>(box)->isChecked();
}

bool SettingsDesk::isEnabled(const char* widget) const
{
    return find<QWidget>(widget)->isEnabled();
}

void SettingsDesk::check(const char* box, bool checked) const
{
    find<QCheckBox>(box)->setChecked(checked);
}

void SettingsDesk::choose(const char* combo, int row) const
{
    find<QComboBox>(combo)->setCurrentIndex(row);
}

void SettingsDesk::open()
{
    dialog.open();
    if (!QTest::qWaitForWindowExposed(&dialog))
        qFatal("the dialog was never exposed");
}

QString SettingsDesk::summary() const
{
    const auto word = [](bool set, const char* name) {
        return QLatin1String(set ? "" : "no ") + QLatin1String(name);
    };
    const QSize size = dialog.savedWindowSize();
    return QStringList({word(dialog.presetEnabled(), "preset"),
                        QLatin1Char('"') + dialog.presetPath() + QLatin1Char('"'),
                        word(dialog.timeEnabled(), "time"), word(dialog.poolEnabled(), "pool"),
                        word(dialog.fastEnabled(), "fast"), QStringLiteral("%1 pt").arg(dialog.fontSize()),
                        dialog.timeServer(), QStringLiteral("%1x%2").arg(size.width()).arg(size.height())})
        .join(QStringLiteral(", "));
}

QString SettingsDesk::defaults() const
{
    return QStringLiteral("no preset, \"\", time, no pool, fast, %1 pt, time.google.com, 0x0")
        .arg(dialog.font().pointSize());
}
