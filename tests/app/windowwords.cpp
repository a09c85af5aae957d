// The words of the window's boxes.

#include "windowwords.h"

void WindowWords::expectNoDevice(DialogRobot& robot)
{
    robot.expectWarning(
        QStringLiteral("Notice"),
        QStringLiteral(
            "<p>No device found!<br>"
            "Make sure the device is connected and try again.<br>"
            "If your Brumalogger USB is already connected as a USB Thumb Drive, this software tool will "
            "be <b>unable</b> to connect to it.</p>"));
}

void WindowWords::expectDisconnecting(DialogRobot& robot, QMessageBox::StandardButton answer)
{
    robot.expectQuestion(QStringLiteral("Disconnecting"),
                         QStringLiteral("There are modifications that were not written to the device.\n"
                                        "Do you really wish to disconnect?"),
                         answer);
}

void WindowWords::expectExit(DialogRobot& robot, QMessageBox::StandardButton answer)
{
    robot.expectQuestion(QStringLiteral("Exit"),
                         QStringLiteral("There are modifications that were not written to the device.\n"
                                        "Do you really wish to exit?"),
                         answer);
}

void WindowWords::expectReadQuestion(DialogRobot& robot, QMessageBox::StandardButton answer)
{
    robot.expectQuestion(QStringLiteral("Read from device"),
                         QStringLiteral("Reading from the device now will erase your changes.\n"
                                        "Do you wish to proceed?"),
                         answer);
}

void WindowWords::expectReadFailed(DialogRobot& robot)
{
    robot.expectWarning(
        QStringLiteral("Warning"),
        QStringLiteral("<p>Read procedure failed.<br>"
                       "Please retry the Read operation.<br>"
                       "If the issue persists, select <b>Disable fast Read/Write</b> under the "
                       "<b>Settings</b> menu.</p>"));
}

void WindowWords::expectInvalidDevice(DialogRobot& robot)
{
    robot.expectWarning(QStringLiteral("Warning"),
                        QStringLiteral("This device is in an invalid state.\n"
                                       "No connection can be established. Aborting."));
}

void WindowWords::expectReadIncorrect(DialogRobot& robot)
{
    robot.expectWarning(
        QStringLiteral("Notice"),
        QStringLiteral("<p>Connected to device, but failed to read it correctly.<br>"
                       "Please retry the Read operation.<br>"
                       "If the issue persists, select <b>Disable fast Read/Write</b> under the "
                       "<b>Settings</b> menu.</p>"));
}

void WindowWords::expectConnectFailed(DialogRobot& robot)
{
    expectReadFailed(robot);
    expectReadIncorrect(robot);
}

void WindowWords::expectRangeNotice(DialogRobot& robot)
{
    robot.expectInformation(QStringLiteral("Notice"),
                            QStringLiteral("Maximum temperature must be at least\n"
                                           "one degree higher than minimum temperature."));
}

void WindowWords::expectWrongPassword(DialogRobot& robot)
{
    robot.expectWarning(QStringLiteral("Unlock device"), QStringLiteral("Incorrect password."),
                        "PasswordDialog");
}

void WindowWords::expectPasswordUnanswered(DialogRobot& robot)
{
    robot.expectWarning(QStringLiteral("Unlock device"),
                        QStringLiteral("Failed while trying to unlock device."), "PasswordDialog");
}

void WindowWords::expectNoAnswerToPassword(DialogRobot& robot)
{
    expectPasswordUnanswered(robot);
    expectWrongPassword(robot);
}

void WindowWords::expectWriteFailed(DialogRobot& robot)
{
    robot.expectWarning(
        QStringLiteral("Warning"),
        QStringLiteral("<p>Write procedure failed.<br>"
                       "Parameters on device may be in an undefined state.\n"
                       "Executing the procedure again is recommended.\n"
                       "If the issue persists, select <b>Disable fast Read/Write</b> under the "
                       "<b>Settings</b> menu.</p>"));
}

void WindowWords::expectWriteCanceled(DialogRobot& robot)
{
    robot.expectWarning(QStringLiteral("Warning"),
                        QStringLiteral("Write procedure canceled by user.\n"
                                       "Parameters on device may be in an undefined state.\n"
                                       "Executing the procedure again is recommended."));
}

void WindowWords::expectInvalidDates(DialogRobot& robot)
{
    robot.expectWarning(
        QStringLiteral("Check your START/STOP dates"),
        QStringLiteral(
            "<p>Your current settings for the automatic START and/or STOP dates are invalid "
            "(probably outdated). Please check the <b>Advanced Options</b> panel before continuing "
            "with the <b>Write</b> operation.</p>"));
}

void WindowWords::expectResetCaution(DialogRobot& robot)
{
    robot.expectWarning(
        QStringLiteral("Attention"),
        QStringLiteral(
            "<p>Your current security configuration is <b>valid</b>.<br> However, it only allows a RESET "
            "after the reports are generated, and <em>report generation</em> is password "
            "protected.<br>Please note that, in such configuration, forgetting the device's password "
            "will render it inoperative and non-resettable.<br>Please store its password "
            "properly.</p>"),
        "AdvancedOptionsDialog");
}

void WindowWords::expectPasswordDisclaimer(DialogRobot& robot)
{
    robot.expectWarning(
        QStringLiteral("Attention"),
        QStringLiteral(
            "<p>Once a device is password protected, it can only be unlocked with the <b>Brumalogger "
            "Configuration Tool</b>.<br>Ensure that the customer receiving the logger can install and "
            "use this software before shipping a locked <b>Brumalogger USB</b>.<br>Furthermore, note "
            "that it is <b>not possible</b> to recover or restore the password of a locked "
            "device.</p>"),
        "AdvancedOptionsDialog");
}

void WindowWords::expectStartModified(DialogRobot& robot, QMessageBox::StandardButton answer)
{
    robot.expectQuestion(QStringLiteral("Starting logger"),
                         QStringLiteral("There are modifications that were not written to the device.\n"
                                        "Do you really wish to start the device?"),
                         answer);
}

void WindowWords::expectStartConfirm(DialogRobot& robot, QMessageBox::StandardButton answer)
{
    robot.expectQuestion(QStringLiteral("Confirm"),
                         QStringLiteral("Do you wish to start the device?\nThis operation cannot be undone."),
                         answer);
}

void WindowWords::expectStartDisabled(DialogRobot& robot)
{
    robot.expectWarning(QStringLiteral("Software START is disabled"),
                        QStringLiteral("Software START is disabled on this logger."));
}

void WindowWords::expectStartFailed(DialogRobot& robot)
{
    robot.expectInformation(QStringLiteral("Error"), QStringLiteral("Failed to start the device"));
}

void WindowWords::expectAbout(DialogRobot& robot)
{
    robot.expectPlain(
        QStringLiteral("About Brumalogger Configuration Tool"),
        QStringLiteral(
            "<img src=\":/logo_prw_nobg.png\" width=300><I></I><center>Brumalogger Configuration Tool v1.3.3"
            "<p></p><p></p>Made by Polar Ridge Works: "
            "<a href=\"http://www.polarridgeworks.example\">www.polarridgeworks.example</a>"
            "<p>The USB driver is installed with wdi-simple, a tool of "
            "<a href=\"https://github.com/pbatard/libwdi\">libwdi</a>.</p></center>"),
        QMessageBox::Ok, QMessageBox::Ok);
}

void WindowWords::expectUpdate(DialogRobot& robot, const QString& version, QMessageBox::StandardButton answer)
{
    robot.expectPlain(QStringLiteral("Update Available"),
                      QStringLiteral("Brumalogger Configuration Tool v") + version +
                          QStringLiteral(" is available for download.<p></p>Updating your current version "
                                         "(v1.3.3) is recommended.<p></p>Click Ok to download it.</center>"),
                      QMessageBox::Ok | QMessageBox::Cancel, answer);
}

void WindowWords::expectMandatoryUpdate(DialogRobot& robot, const QString& version,
                                        QMessageBox::StandardButton answer)
{
    robot.expectPlain(QStringLiteral("Update Required"),
                      QStringLiteral("Brumalogger Configuration Tool v") + version +
                          QStringLiteral(" is available for download.<p></p>Updating your current version "
                                         "(v1.3.3) is mandatory.<p></p>This version contains important "
                                         "changes, so the update <font color='red'>must</font> be "
                                         "performed.<p></p>Click Ok to download it, or Cancel to quit the "
                                         "application.</center>"),
                      QMessageBox::Ok | QMessageBox::Cancel, answer);
}
