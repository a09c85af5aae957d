// Connect, edit, write, start.

#include "basicwalk.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>

bool BasicWalk::doJob()
{
    pressKeys(Qt::Key_K);
    if (!check(QStringLiteral("connected"), QStringLiteral("Connected to device on ttyACM0")))
        return false;

    edit();
    takePicture(window, QStringLiteral("edited"));
    press("buttonWrite");
    if (!check(QStringLiteral("written"), QStringLiteral("Write successful")))
        return false;

    robot.expectQuestion(QStringLiteral("Confirm"),
                         QStringLiteral("Do you wish to start the device?\nThis operation cannot be undone."),
                         QMessageBox::Yes);
    press("buttonStart");
    return check(QStringLiteral("started"), QStringLiteral("Disconnected from ttyACM0"));
}

void BasicWalk::edit()
{
    find<QComboBox>("comboSampling")->setCurrentText(QStringLiteral("10 minutes"));
    find<QComboBox>("comboDelay")->setCurrentText(QStringLiteral("1 hour"));
    find<QComboBox>("comboTemp")->setCurrentText(QStringLiteral("Custom"));
    setValue("spindTempMin", QStringLiteral("-20.5"));
    setValue("spindTempMax", QStringLiteral("6"));
    typeOver(find<QLineEdit>("lineSender"), QStringLiteral("Nordkühlhaus Straße 4"));
    typeOver(find<QLineEdit>("lineRecipient"), QStringLiteral("City Hospital, Pharmacy"));
    typeOver(find<QLineEdit>("lineInfo"), QStringLiteral("Vaccines, batch 2026-11"));
    typeOver(find<QLineEdit>("lineBarcode"), QStringLiteral("4006381333"));
    find<QComboBox>("comboType")->setCurrentText(QStringLiteral("Air"));
}

void BasicWalk::setValue(const char* spinBox, const QString& value)
{
    auto* box = find<QDoubleSpinBox>(spinBox);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, box->locale().toString(value.toDouble()));
    QTest::keyClick(box, Qt::Key_Return);
    box->findChild<QLineEdit*>()->deselect();
}
