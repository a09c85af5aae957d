// The dialog of advanced options: the policies word on its way to the controls and back.

#include "advanceddesk.h"

#include <QTest>

namespace {

constexpr int allWords = 0x10000;
constexpr int allChoices = 0x100;
constexpr int once = 0x0400;
constexpr int always = 0x0800;
constexpr int resetDone = 0x2000;
constexpr int anyStart = 0x0001 | 0x0002;
constexpr int anyStop = 0x0100 | 0x0200;

struct Bit
{
    int value;
    const char* control;
};

constexpr Bit bits[] = {
    {0x0001, "checkStartButton"}, {0x0002, "checkStartSoftware"}, {0x0004, "checkConfigPassw"},
    {0x0100, "checkStopButton"},  {0x0200, "checkStopUSBAttach"}, {once, "radioPasswOnce"},
    {always, "radioPasswAlways"}, {resetDone, "radioResetDone"},
};

constexpr int otherBits[] = {8, 16, 32, 64, 128, 4096, 16384, 32768};

/// Both report choices can't be shown; the stricter one is.
int shownWord(int word)
{
    return (word & always) ? word & ~once : word;
}

/// One of the 256 combinations of the bits that have a control; as many of the other bits are set as of these
/// are not.
int wordOf(int choice)
{
    int word = 0;
    for (int i = 0; i < 8; i++) {
        const bool on = choice & (1 << i);
        word |= on ? bits[i].value : otherBits[i];
    }
    return word;
}

/// The name of a control that shows @p word wrongly, with the word; empty if none does.
QString wrongControl(const AdvancedDesk& desk, int word)
{
    const auto isWrong = [&desk](const char* control, bool on) { return desk.isChecked(control) != on; };
    const auto told = [word](const char* control) { return QStringLiteral("%1, %2").arg(control).arg(word); };
    for (const Bit& bit : bits) {
        if (isWrong(bit.control, shownWord(word) & bit.value))
            return told(bit.control);
    }
    if (isWrong("radioPasswNone", !(word & (once | always))))
        return told("radioPasswNone");
    return isWrong("radioResetAlways", !(word & resetDone)) ? told("radioResetAlways") : QString();
}

bool isCautioned(int word)
{
    return (word & resetDone) && (word & (once | always));
}

/// Every combination of the bits that have a control, with none, one or all of the others. A box takes
/// milliseconds, and 24576 words would bring one.
bool isCautionAnswered(int word)
{
    int others = 0;
    for (const int bit : otherBits)
        others += (word & bit) ? 1 : 0;
    return others <= 1 || others == 8;
}

/// Changes what would make the dialog refuse @p word, or bring a caution that isn't answered, and returns the
/// word that is shown then.
int changeByHand(AdvancedDesk& desk, int word)
{
    if (!(word & anyStop)) {
        desk.check("checkStopButton");
        word |= 0x0100;
    }
    if (isCautioned(word) && !isCautionAnswered(word)) {
        desk.check("radioResetAlways");
        word &= ~resetDone;
    }
    return word;
}

/// Titles of the message boxes that accepting @p word brings; @p startByDate if an automatic start is on.
QStringList boxesFor(int word, bool startByDate = false)
{
    if (!startByDate && !(word & anyStart))
        return {QStringLiteral("No START enabled")};
    if (!(word & anyStop))
        return {QStringLiteral("No STOP enabled")};
    if (isCautioned(word))
        return {QStringLiteral("Attention")};
    return {};
}

QStringList titlesFrom(const AdvancedDesk& desk, int first)
{
    QStringList titles;
    for (const DialogRobot::Box& box : desk.robot.boxes().mid(first))
        titles << box.title;
    return titles;
}

bool isAccepted(int word)
{
    return (word & anyStart) && (word & anyStop);
}

} // namespace

class TestAdvancedOptionsDialogPolicies : public QObject
{
    Q_OBJECT

private slots:
    void wordOfADevice();
    void bothReportChoices();
    void bitsWithoutAControl();
    void singleUseKeepsItsReset();
    void controlsMakeTheWord_data();
    void controlsMakeTheWord();
    void everyChoiceShownAndAccepted();
    void everyWord();
};

void TestAdvancedOptionsDialogPolicies::wordOfADevice()
{
    AdvancedDesk desk;
    desk.dialog.lSetPolicies(259);
    desk.open();
    for (const char* on :
         {"checkStartButton", "checkStartSoftware", "checkStopButton", "radioPasswNone", "radioResetAlways"})
        QVERIFY2(desk.isChecked(on), on);
    for (const char* off :
         {"checkConfigPassw", "checkStopUSBAttach", "radioPasswOnce", "radioPasswAlways", "radioResetDone"})
        QVERIFY2(!desk.isChecked(off), off);
}

void TestAdvancedOptionsDialogPolicies::bothReportChoices()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QStringLiteral("secret"));
    desk.dialog.lSetPolicies(259 + once + always);
    desk.open();
    QVERIFY(desk.isChecked("radioPasswAlways") && !desk.isChecked("radioPasswOnce"));
    desk.dialog.reject();
    QCOMPARE(desk.dialog.lPolicies(), 259 + once + always);
    desk.openAndAccept();
    QCOMPARE(desk.dialog.lPolicies(), 259 + always);
}

void TestAdvancedOptionsDialogPolicies::bitsWithoutAControl()
{
    for (const int bit : otherBits) {
        AdvancedDesk desk;
        desk.dialog.lSetPolicies(259 + bit);
        desk.open();
        desk.check("checkStopUSBAttach");
        QVERIFY(desk.accept());
        QCOMPARE(desk.dialog.lPolicies(), 259 + bit + 512);
    }
}

void TestAdvancedOptionsDialogPolicies::singleUseKeepsItsReset()
{
    for (const int reset : {0, resetDone}) {
        AdvancedDesk desk;
        desk.dialog.lSetMultiuse(false);
        desk.dialog.lSetPolicies(259 + reset);
        desk.openAndAccept();
        QVERIFY(!desk.isEnabled("groupMultiuse"));
        QCOMPARE(desk.isChecked("radioResetDone"), reset != 0);
        QCOMPARE(desk.dialog.lPolicies(), 259 + reset);
    }
}

void TestAdvancedOptionsDialogPolicies::controlsMakeTheWord_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    const int others = 0xd0f8;
    const int plain = others | 0x0003 | 0x0300;
    const auto row = [](const char* control, int before, int after) {
        QTest::newRow(control) << before << after;
    };
    row("checkStartButton", plain, plain & ~0x0001);
    row("checkStartSoftware", plain, plain & ~0x0002);
    row("checkConfigPassw", plain, plain | 0x0004);
    row("checkStopButton", plain, plain & ~0x0100);
    row("checkStopUSBAttach", plain, plain & ~0x0200);
    row("radioPasswOnce", plain | always, plain | once);
    row("radioPasswAlways", plain | once, plain | always);
    row("radioPasswNone", plain | once, plain);
    row("radioResetDone", plain, plain | resetDone);
    row("radioResetAlways", plain | resetDone, plain);
}

void TestAdvancedOptionsDialogPolicies::controlsMakeTheWord()
{
    QFETCH(int, before);
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QStringLiteral("secret"));
    desk.dialog.lSetPolicies(before);
    desk.open();
    auto* control = desk.button(QTest::currentDataTag());
    control->setChecked(!control->isChecked());
    QVERIFY(desk.accept());
    QTEST(desk.dialog.lPolicies(), "after");
    QCOMPARE(desk.robot.problems(), QString());
}

// The robot closes the boxes, which it wasn't told of; their titles are compared here.
void TestAdvancedOptionsDialogPolicies::everyChoiceShownAndAccepted()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QStringLiteral("secret"));
    for (int choice = 0; choice < allChoices; choice++) {
        const int word = wordOf(choice);
        const int boxesBefore = desk.robot.boxes().size();
        desk.dialog.lSetPolicies(word);
        desk.dialog.show();
        QCOMPARE(wrongControl(desk, word), QString());
        QCOMPARE(desk.accept(), isAccepted(word));
        QCOMPARE(titlesFrom(desk, boxesBefore), boxesFor(word));
        desk.dialog.reject();
        QCOMPARE(desk.dialog.lPolicies(), isAccepted(word) ? shownWord(word) : word);
    }
}

// To show the dialog for each would take minutes, so it only gets the event of it, and an automatic start.
// Words without a STOP get one by hand, and most that bring the caution another reset. What is left alone
// comes back as it was, except that both report choices become one.
void TestAdvancedOptionsDialogPolicies::everyWord()
{
    AdvancedDesk desk;
    desk.dialog.lSetPassword(QStringLiteral("secret"));
    desk.dialog.lSetStartDate(true, QDateTime::currentDateTimeUtc().addDays(2));
    for (int word = 0; word < allWords; word++) {
        desk.dialog.lSetPolicies(word);
        QShowEvent showing;
        QCoreApplication::sendEvent(&desk.dialog, &showing);
        QCOMPARE(wrongControl(desk, word), QString());
        const int expected = changeByHand(desk, shownWord(word));
        const int boxesBefore = desk.robot.boxes().size();
        desk.dialog.accept();
        QCOMPARE(desk.dialog.lPolicies(), expected);
        QCOMPARE(titlesFrom(desk, boxesBefore), boxesFor(expected, true));
    }
}

QTEST_MAIN(TestAdvancedOptionsDialogPolicies)
#include "tst_advancedoptionsdialog_policies.moc"
