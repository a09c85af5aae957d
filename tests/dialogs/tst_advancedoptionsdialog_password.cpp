// The dialog of advanced options: the password's field and the warnings around it.

#include "advanceddesk.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace {

constexpr int longest = 30;

QString passwordOf(int length)
{
    QString text;
    for (int i = 0; i < length; i++)
        text += QChar('a' + i % 26);
    return text;
}

void expectTruncation(AdvancedDesk& desk)
{
    desk.robot.expectWarning(
        QStringLiteral("Password too long"),
        QStringLiteral("Password may not be larger than 30 characters.\nYour input was truncated."));
}

void expectDisclaimer(AdvancedDesk& desk)
{
    desk.robot.expectWarning(
        QStringLiteral("Attention"),
        QStringLiteral(
            "<p>Once a device is password protected, it can only be unlocked with the "
            "<b>Brumalogger Configuration Tool</b>.<br>Ensure that the customer receiving the "
            "logger can install and use this software before shipping a locked <b>Brumalogger "
            "USB</b>.<br>Furthermore, note that it is <b>not possible</b> to recover or restore the "
            "password of a locked device.</p>"));
}

} // namespace

class TestAdvancedOptionsDialogPassword : public QObject
{
    Q_OBJECT

private slots:
    void fieldFollowsTheOptions_data();
    void fieldFollowsTheOptions();
    void longestPasswordPasses();
    void pastedPasswordIsCut();
    void typedPasswordIsCut();
    void storedPasswordIsCutInTheFieldOnly();
    void storedPasswordIsCutWhenAccepted();
    void storedPasswordStaysWithoutOptions();
    void showsWhileHeldDown();
    void spaceBarShowsAsWell();
    void destroyedWhileHeldDown();
    void disclaimer_data();
    void disclaimer();
    void enterAccepts();
};

void TestAdvancedOptionsDialogPassword::fieldFollowsTheOptions_data()
{
    QTest::addColumn<bool>("config");
    QTest::addColumn<QByteArray>("reports");
    QTest::addColumn<bool>("enabled");
    for (const bool config : {false, true}) {
        for (const char* reports : {"radioPasswNone", "radioPasswOnce", "radioPasswAlways"})
            QTest::addRow("%s, %s", config ? "config" : "no config", reports)
                << config << QByteArray(reports) << (config || qstrcmp(reports, "radioPasswNone") != 0);
    }
}

void TestAdvancedOptionsDialogPassword::fieldFollowsTheOptions()
{
    QFETCH(bool, config);
    QFETCH(QByteArray, reports);
    AdvancedDesk desk;
    desk.open();
    desk.check("checkConfigPassw", config);
    desk.check(reports);
    QTEST(desk.isEnabled("linePassw"), "enabled");
    QTEST(desk.isEnabled("buttonShow"), "enabled");
    desk.check("checkConfigPassw", false);
    desk.check("radioPasswNone");
    QVERIFY(!desk.isEnabled("linePassw") && !desk.isEnabled("buttonShow"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::longestPasswordPasses()
{
    AdvancedDesk desk;
    desk.open();
    desk.check("checkConfigPassw");
    desk.passwordField()->setText(passwordOf(longest));
    QVERIFY(desk.accept());
    QCOMPARE(desk.dialog.lPassword(), passwordOf(longest));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::pastedPasswordIsCut()
{
    AdvancedDesk desk;
    desk.open();
    desk.check("checkConfigPassw");
    QApplication::clipboard()->setText(passwordOf(longest + 1));
    expectTruncation(desk);
    desk.passwordField()->paste();
    QCOMPARE(desk.passwordField()->text(), passwordOf(longest));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::typedPasswordIsCut()
{
    AdvancedDesk desk;
    desk.open();
    desk.check("checkConfigPassw");
    expectTruncation(desk);
    QTest::keyClicks(desk.passwordField(), passwordOf(longest + 1));
    QCOMPARE(desk.passwordField()->text(), passwordOf(longest));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::storedPasswordIsCutInTheFieldOnly()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(passwordOf(longest + 5));
    for (int showing = 0; showing < 2; showing++) {
        expectTruncation(desk);
        desk.open();
        QCOMPARE(desk.passwordField()->text(), passwordOf(longest));
        desk.dialog.reject();
        QCOMPARE(desk.dialog.lPassword(), passwordOf(longest + 5));
    }
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::storedPasswordIsCutWhenAccepted()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(passwordOf(longest + 5));
    desk.dialog.lSetPolicies(259 + 4);
    expectTruncation(desk);
    desk.openAndAccept();
    QCOMPARE(desk.dialog.lPassword(), passwordOf(longest));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::storedPasswordStaysWithoutOptions()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QStringLiteral("earlier"));
    desk.open();
    desk.passwordField()->clear();
    QVERIFY(desk.accept());
    QCOMPARE(desk.dialog.lPassword(), QStringLiteral("earlier"));
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::showsWhileHeldDown()
{
    AdvancedDesk desk;
    desk.open();
    desk.check("checkConfigPassw");
    QCOMPARE(desk.passwordField()->echoMode(), QLineEdit::Password);
    QTest::mousePress(desk.button("buttonShow"), Qt::LeftButton);
    QCOMPARE(desk.passwordField()->echoMode(), QLineEdit::Normal);
    QTest::mouseRelease(desk.button("buttonShow"), Qt::LeftButton);
    QCOMPARE(desk.passwordField()->echoMode(), QLineEdit::Password);
}

void TestAdvancedOptionsDialogPassword::spaceBarShowsAsWell()
{
    AdvancedDesk desk;
    desk.open();
    desk.check("checkConfigPassw");
    QTest::keyPress(desk.button("buttonShow"), Qt::Key_Space);
    QCOMPARE(desk.passwordField()->echoMode(), QLineEdit::Normal);
    QTest::keyRelease(desk.button("buttonShow"), Qt::Key_Space);
    QCOMPARE(desk.passwordField()->echoMode(), QLineEdit::Password);
}

// The end of the dialog takes the focus from the button, which is a release.
void TestAdvancedOptionsDialogPassword::destroyedWhileHeldDown()
{
    int releases = 0;
    {
        AdvancedDesk desk;
        desk.open();
        desk.check("checkConfigPassw");
        connect(desk.button("buttonShow"), &QAbstractButton::released, qApp, [&releases] { ++releases; });
        QTest::mousePress(desk.button("buttonShow"), Qt::LeftButton);
        QVERIFY(desk.button("buttonShow")->hasFocus());
    }
    QCOMPARE(releases, 1);
}

void TestAdvancedOptionsDialogPassword::disclaimer_data()
{
    QTest::addColumn<int>("policies");
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<bool>("told");
    const auto row = [](const char* name, int policies, const char* control, bool told) {
        QTest::newRow(name) << policies << QByteArray(control) << told;
    };
    row("configuration on", 259, "checkConfigPassw", true);
    row("configuration off", 259 + 4, "checkConfigPassw", false);
    row("configuration off, reports once", 259 + 4 + 1024, "checkConfigPassw", true);
    row("configuration off, reports always", 259 + 4 + 2048, "checkConfigPassw", true);
    row("reports once", 259, "radioPasswOnce", true);
    row("reports once, again", 259 + 1024, "radioPasswOnce", true);
    row("reports always", 259, "radioPasswAlways", true);
    row("reports free", 259 + 1024, "radioPasswNone", false);
    row("reports free, configuration on", 259 + 4 + 1024, "radioPasswNone", false);
    row("nothing to do with it", 259 + 4, "checkStartButton", false);
}

void TestAdvancedOptionsDialogPassword::disclaimer()
{
    QFETCH(int, policies);
    QFETCH(QByteArray, control);
    QFETCH(bool, told);
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(policies);
    desk.open();
    if (told)
        expectDisclaimer(desk);
    desk.button(control)->click();
    QCOMPARE(desk.robot.problems(), QString());
}

void TestAdvancedOptionsDialogPassword::enterAccepts()
{
    AdvancedDesk desk;
    desk.open();
    desk.check("checkConfigPassw");
    QTest::keyClicks(desk.passwordField(), QStringLiteral("secret"));
    QTest::keyClick(desk.passwordField(), Qt::Key_Return);
    QVERIFY(!desk.dialog.isVisible());
    QCOMPARE(desk.dialog.lPassword(), QStringLiteral("secret"));
    QCOMPARE(desk.robot.problems(), QString());
}

QTEST_MAIN(TestAdvancedOptionsDialogPassword)
#include "tst_advancedoptionsdialog_password.moc"
