// The pictures of the guide: panels of the window with a logger in it, settings, Time Zone Editor.

#include "picturewalk.h"

#include "app/languages.h"
#include "dialogs/settingsdialog.h"
#include "dialogs/timezonedialog.h"

#include <QAction>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr int edge = 6;         // pixels around what is in a picture
constexpr int guideWidth = 700; // what the guide's window has room for

/// Saves the part of @p shown that has all of @p widgets, as it is on the screen.
bool takePart(const QWidget& shown, const QList<QWidget*>& widgets, const char* name)
{
    QRect area;
    for (const QWidget* widget : widgets)
        area |= QRect(widget->mapTo(&shown, QPoint()), widget->size());
    area = area.adjusted(-edge, -edge, edge, edge) & shown.rect();
    QCoreApplication::processEvents();
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(shown.winId(), area.x(), area.y(),
                                                                         area.width(), area.height());
    return picture.width() <= guideWidth && picture.save(QLatin1String(name) + QStringLiteral(".PNG"), "PNG");
}

} // namespace

bool PictureWalk::doJob()
{
    window.lSetLanguages(languageTable());
    pressKeys(Qt::Key_K);
    if (status() != MainWindow::tr("Connected to device on %1").arg(QStringLiteral("ttyACM0")))
        return fail(QStringLiteral("connected"));
    window.setMinimumSize(0, 0);
    window.resize(window.minimumSizeHint()); // no more than the panels take
    window.setFocus();                       // no cursor in the pictures
    if (!takePanels() || !takeSettings() || !takeZoneEditor() || !takeTexts())
        return fail(QStringLiteral("pictures"));
    return true;
}

bool PictureWalk::takePanels()
{
    auto* button = find<QToolButton>("buttonToolTimeZone");
    const QList<QWidget*> timeLines{find<QLabel>("label_8"), find<QLabel>("labelTimeZoneStatic"),
                                    find<QLabel>("labelTimeZone"), button};
    return button->isVisible() && takePart(window, {find<QGroupBox>("groupInfo")}, "devinfo") &&
           takePart(window, timeLines, "devinfo_timetool") &&
           takePart(window, {find<QGroupBox>("groupSetup")}, "devsetup");
}

// The guide has less room than the window: without the panels it can be as narrow.
bool PictureWalk::takeTexts()
{
    for (const char* panel : {"groupInfo", "groupSetup"})
        find<QGroupBox>(panel)->hide();
    window.setMinimumSize(0, 0);
    window.resize(guideWidth, window.minimumSizeHint().height());
    return takePart(window, {find<QGroupBox>("groupInfo_2"), find<QGroupBox>("groupInfo_3")}, "optionalinfo");
}

bool PictureWalk::takeSettings()
{
    auto* dialog = window.findChild<SettingsDialog*>();
    return takeDialog(
        dialog, [this] { find<QAction>("actionSettings")->trigger(); },
        [dialog] {
            return takePart(*dialog, {dialog}, "settings") &&
                   takePart(*dialog, {child<QGroupBox>(*dialog, "groupBox_3")}, "settings_time");
        });
}

bool PictureWalk::takeZoneEditor()
{
    auto* dialog = window.findChild<TimeZoneDialog*>();
    return takeDialog(
        dialog, [this] { find<QToolButton>("buttonToolTimeZone")->click(); },
        [dialog] { return takePart(*dialog, {dialog}, "tzeditor"); });
}

bool PictureWalk::takeDialog(QDialog* dialog, const std::function<void()>& open,
                             const std::function<bool()>& take)
{
    bool taken = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, dialog, [&] {
        if (!isOnScreen(*dialog))
            return;
        look.stop();
        taken = take();
        dialog->reject();
    });
    look.start(1);
    open();
    return taken;
}
