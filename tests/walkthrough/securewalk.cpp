// Unlock, edit the advanced options, write, read back, compare.

#include "securewalk.h"

#include "app/extendedrig.h"
#include "app/windowwords.h"
#include "dialogs/advancedoptionsdialog.h"
#include "dialogs/passworddialog.h"
#include "support/nextchance.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int edge = 8; // pixels
const QString newPassword = QStringLiteral("Open 4 Me");

/// At its left edge: a wide check box with a short text doesn't hear a click in its middle.
void click(const QWidget* dialog, const char* name)
{
    auto* button = dialog->findChild<QAbstractButton*>(QLatin1String(name));
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(edge, button->height() / 2));
}

} // namespace

bool SecureWalk::doJob()
{
    if (!unlock() || !check(QStringLiteral("unlocked"), QStringLiteral("Connected to device on ttyACM0")))
        return false;
    if (!editOptions())
        return fail(QStringLiteral("options"));
    typeOver(find<QLineEdit>("lineSender"), QStringLiteral("Northern Pharma"));
    find<QComboBox>("comboTemp")->setCurrentIndex(2);
    pressKeys(Qt::Key_W);
    return check(QStringLiteral("written"), QStringLiteral("Write successful")) && comparedAfterRead();
}

// A wrong password first.
bool SecureWalk::unlock()
{
    auto* dialog = window.findChild<PasswordDialog*>();
    auto* line = dialog->findChild<QLineEdit*>();
    robot.expectWarning(QStringLiteral("Unlock device"), QStringLiteral("Incorrect password."),
                        "PasswordDialog");
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, dialog, [&] {
        if (!isOnScreen(*dialog))
            return;
        look.stop();
        click(dialog, "buttonToggleInfo");
        typeOver(line, QStringLiteral("secret"));
        takePicture(*dialog, QStringLiteral("locked"));
        QTest::keyClick(line, Qt::Key_Return);
        typeOver(line, rightPassword);
        QTest::keyClick(line, Qt::Key_Return);
    });
    look.start(1);
    pressKeys(Qt::Key_K);
    return !look.isActive() && dialog->lUnlocked();
}

bool SecureWalk::editOptions()
{
    auto* dialog = window.findChild<AdvancedOptionsDialog*>();
    atNextChance(dialog, [this, dialog] { edit(dialog); });
    WindowWords::expectPasswordDisclaimer(robot);
    press("buttonAdvanced");
    return !dialog->isVisible() && robot.problems().isEmpty();
}

void SecureWalk::edit(AdvancedOptionsDialog* dialog)
{
    click(dialog, "radioPasswAlways");
    typeOver(dialog->findChild<QLineEdit*>("linePassw"), newPassword);
    click(dialog, "checkStartButton");
    click(dialog, "checkStopUSBAttach");
    click(dialog, "checkLockButton");
    click(dialog, "checkStartDate");
    pick(dialog, "toolStartDate", QDateTime(QDate(2037, 3, 1), QTime(8, 30)));
    click(dialog, "checkStopDate");
    pick(dialog, "toolStopDate", QDateTime(QDate(2037, 3, 8), QTime(17, 0)));
    takePicture(*dialog, QStringLiteral("options"));
    dialog->accept();
    if (dialog->isVisible())
        dialog->reject();
}

void SecureWalk::pick(AdvancedOptionsDialog* dialog, const char* button, const QDateTime& date)
{
    atNextChance(dialog, [button, date] {
        QWidget* picker = QApplication::activeModalWidget();
        auto* editor = picker->findChild<QDateTimeEdit*>();
        editor->setDate(date.date());
        editor->setTime(date.time());
        takePicture(*picker, QLatin1String(button));
        for (auto* choice : picker->findChildren<QPushButton*>()) {
            if (choice->text() == QStringLiteral("Ok"))
                choice->click();
        }
    });
    click(dialog, button);
}

bool SecureWalk::comparedAfterRead()
{
    const QStringList written = fields();
    pressKeys(Qt::Key_R);
    if (!check(QStringLiteral("read"), QStringLiteral("Read successful")))
        return false;
    const QStringList read = fields();
    for (int i = 0; i < written.size(); ++i) {
        if (written.at(i) != read.at(i))
            std::fprintf(stderr, "written %s; read %s\n", qPrintable(written.at(i)), qPrintable(read.at(i)));
        else
            std::printf("%s\n", qPrintable(read.at(i)));
    }
    return written == read;
}

QStringList SecureWalk::fields() const
{
    QStringList all;
    for (const char* line : {"lineSender", "lineRecipient", "lineInfo", "lineBarcode"})
        all << QStringLiteral("%1: %2").arg(QLatin1String(line), find<QLineEdit>(line)->text());
    for (const char* combo : {"comboTemp", "comboSampling", "comboDelay", "comboType"})
        all << QStringLiteral("%1: %2").arg(QLatin1String(combo), find<QComboBox>(combo)->currentText());
    for (const char* box : {"spindTempMin", "spindTempMax", "spinSampling", "spinDelay"})
        all << QStringLiteral("%1: %2").arg(QLatin1String(box), find<QAbstractSpinBox>(box)->text());

    return all + storedOptions(window);
}
