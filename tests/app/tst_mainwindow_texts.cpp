// The text lines: what becomes of each change, the limits, the counters, the cursor.

#include "procedurerig.h"
#include "windowwords.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <memory>

namespace {

struct TextLine
{
    const char* edit;
    const char* counter;
    int limit;
    int slot; ///< where the logger keeps its text
};

constexpr TextLine textLines[] = {
    {"lineSender", "labelCountSender", 60, 0},
    {"lineRecipient", "labelCountRecipient", 60, 1},
    {"lineInfo", "labelCountInfo", 60, 2},
    {"lineBarcode", "labelCountBarcode", 10, 4},
};

QString count(int length, int limit)
{
    return QStringLiteral("(%1/%2)").arg(length).arg(limit);
}

/// Text that differs at each of its first 70 places from the next one.
QString longText(int length)
{
    return QStringLiteral("0123456789").repeated(10).left(length);
}

} // namespace

Q_DECLARE_METATYPE(TextLine)

class TestMainWindowTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void startsEmpty_data() { eachLine(); }
    void startsEmpty();
    void takesUpToTheLimit_data() { eachLine(); }
    void takesUpToTheLimit();
    void keepsTheLimitInTheMiddle_data() { eachLine(); }
    void keepsTheLimitInTheMiddle();
    void cutsPastedText_data() { eachLine(); }
    void cutsPastedText();
    void cursorJumpsToTheEnd_data() { eachLine(); }
    void cursorJumpsToTheEnd();
    void transliterates_data();
    void transliterates();
    void transliteratesWhatIsTyped();
    void countsAfterDeleting();
    void linesAreApart();
    void textsFromTheLogger();

private:
    static void eachLine();
    TextLine line() const;
    QLineEdit* edit(const char* name) const { return rig->find<QLineEdit>(name); }
    void paste(QLineEdit* edit, const QString& text);

    std::unique_ptr<ProcedureRig> rig; ///< connected, so that the lines can be used
};

void TestMainWindowTexts::initTestCase()
{
    rig = std::make_unique<ProcedureRig>();
    rig->plugAndConnect();
}

void TestMainWindowTexts::init()
{
    for (const TextLine& row : textLines)
        edit(row.edit)->clear();
}

void TestMainWindowTexts::cleanup()
{
    QCOMPARE(rig->robot.problems(), QString());
}

void TestMainWindowTexts::cleanupTestCase()
{
    rig.reset();
}

void TestMainWindowTexts::eachLine()
{
    QTest::addColumn<TextLine>("line");
    for (const TextLine& row : textLines)
        QTest::newRow(row.edit) << row;
}

TextLine TestMainWindowTexts::line() const
{
    return *static_cast<TextLine*>(QTest::qData("line", qMetaTypeId<TextLine>()));
}

void TestMainWindowTexts::paste(QLineEdit* edit, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
}

void TestMainWindowTexts::startsEmpty()
{
    QCOMPARE(rig->text(line().counter), count(0, line().limit));
    QCOMPARE(edit(line().edit)->maxLength(), QLineEdit().maxLength());
}

void TestMainWindowTexts::takesUpToTheLimit()
{
    const TextLine row = line();
    for (int length = 1; length <= row.limit; ++length) {
        QTest::keyClicks(edit(row.edit), longText(length).right(1));
        QCOMPARE(edit(row.edit)->text(), longText(length));
        QCOMPARE(rig->text(row.counter), count(length, row.limit));
    }
    QTest::keyClicks(edit(row.edit), QStringLiteral("x"));
    QCOMPARE(edit(row.edit)->text(), longText(row.limit));
    QCOMPARE(rig->text(row.counter), count(row.limit, row.limit));
}

void TestMainWindowTexts::keepsTheLimitInTheMiddle()
{
    const TextLine row = line();
    edit(row.edit)->setText(longText(row.limit));
    edit(row.edit)->setCursorPosition(1);
    QTest::keyClicks(edit(row.edit), QStringLiteral("x"));
    QCOMPARE(edit(row.edit)->text(), QStringLiteral("0x") + longText(row.limit).mid(1, row.limit - 2));
    QCOMPARE(rig->text(row.counter), count(row.limit, row.limit));
}

void TestMainWindowTexts::cutsPastedText()
{
    const TextLine row = line();
    paste(edit(row.edit), longText(70));
    QCOMPARE(edit(row.edit)->text(), longText(row.limit));
    QCOMPARE(rig->text(row.counter), count(row.limit, row.limit));
}

void TestMainWindowTexts::cursorJumpsToTheEnd()
{
    QLineEdit* edit = this->edit(line().edit);
    edit->setText(QStringLiteral("abde"));
    edit->setCursorPosition(2);
    QTest::keyClicks(edit, QStringLiteral("c"));
    QCOMPARE(edit->text(), QStringLiteral("abcde"));
    QCOMPARE(edit->cursorPosition(), 5);

    edit->setCursorPosition(1);
    QTest::keyClick(edit, Qt::Key_Backspace);
    QCOMPARE(edit->text(), QStringLiteral("bcde"));
    QCOMPARE(edit->cursorPosition(), 4);
}

void TestMainWindowTexts::transliterates_data()
{
    QTest::addColumn<TextLine>("line");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("expected");
    const TextLine& sender = textLines[0];
    const TextLine& barcode = textLines[3];
    const QString capitalAe = QStringLiteral("Æ");
    QTest::newRow("accent") << sender << "é"
                            << "e";
    QTest::newRow("sharp s") << barcode << "ß"
                             << "s";
    QTest::newRow("ligature counts two") << sender << "Œ"
                                         << "OE";
    QTest::newRow("whole text") << textLines[2] << "Çà ñ, Straße"
                                << "Ca n, Strase";
    QTest::newRow("Cyrillic") << textLines[1] << "Аптека"
                              << "Аптека";
    QTest::newRow("growing to the limit")
        << sender << capitalAe.repeated(30) << QStringLiteral("AE").repeated(30);
    QTest::newRow("growing beyond the limit")
        << sender << capitalAe.repeated(60) << QStringLiteral("AE").repeated(30);
    QTest::newRow("cut in the middle of a growth") << barcode << "123456789Æ"
                                                   << "123456789A";
    QTest::newRow("cut after the growth") << barcode << "ÆÆÆÆÆÆ"
                                          << "AEAEAEAEAE";
}

// Pasted at once or put there by the program, it comes to the same.
void TestMainWindowTexts::transliterates()
{
    QFETCH(const QString, pasted);
    QFETCH(const QString, expected);
    const TextLine row = line();
    QLineEdit* edit = this->edit(row.edit);
    paste(edit, pasted);
    QCOMPARE(edit->text(), expected);
    QCOMPARE(rig->text(row.counter), count(expected.size(), row.limit));
    edit->clear();
    QCOMPARE(rig->text(row.counter), count(0, row.limit));
    edit->setText(pasted);
    QCOMPARE(edit->text(), expected);
    QCOMPARE(rig->text(row.counter), count(expected.size(), row.limit));
}

void TestMainWindowTexts::transliteratesWhatIsTyped()
{
    QLineEdit* sender = edit("lineSender");
    QTest::sendKeyEvent(QTest::Click, sender, Qt::Key_Eacute, QStringLiteral("é"), Qt::NoModifier);
    QCOMPARE(sender->text(), QStringLiteral("e"));
    QCOMPARE(rig->text("labelCountSender"), QStringLiteral("(1/60)"));
    sender->setText(QStringLiteral("Sant"));
    QTest::sendKeyEvent(QTest::Click, sender, Qt::Key_Eacute, QStringLiteral("é"), Qt::NoModifier);
    QCOMPARE(sender->text(), QStringLiteral("Sante"));
    QCOMPARE(rig->text("labelCountSender"), QStringLiteral("(5/60)"));
}

void TestMainWindowTexts::countsAfterDeleting()
{
    QLineEdit* sender = edit("lineSender");
    QTest::keyClicks(sender, QStringLiteral("abc"));
    QTest::keyClick(sender, Qt::Key_Backspace);
    QCOMPARE(rig->text("labelCountSender"), QStringLiteral("(2/60)"));
    sender->selectAll();
    QTest::keyClick(sender, Qt::Key_Delete);
    QCOMPARE(rig->text("labelCountSender"), QStringLiteral("(0/60)"));
}

void TestMainWindowTexts::linesAreApart()
{
    for (const TextLine& row : textLines)
        QTest::keyClicks(edit(row.edit), longText(row.slot + 1));
    for (const TextLine& row : textLines) {
        QCOMPARE(edit(row.edit)->text(), longText(row.slot + 1));
        QCOMPARE(rig->text(row.counter), count(row.slot + 1, row.limit));
    }
}

void TestMainWindowTexts::textsFromTheLogger()
{
    auto& texts = rig->logger->model().settings().texts;
    texts[0] = QStringLiteral("Größe");
    texts[1] = longText(70);
    texts[2] = QString();
    texts[4] = QStringLiteral("Æ-1234567890");
    WindowWords::expectReadQuestion(rig->robot, QMessageBox::Yes);
    edit("lineInfo")->setText(QStringLiteral("changed"));
    rig->press("buttonRead");
    QCOMPARE(edit("lineSender")->text(), QStringLiteral("Grose"));
    QCOMPARE(rig->text("labelCountSender"), QStringLiteral("(5/60)"));
    QCOMPARE(edit("lineRecipient")->text(), longText(60));
    QCOMPARE(rig->text("labelCountRecipient"), QStringLiteral("(60/60)"));
    QCOMPARE(edit("lineInfo")->text(), QString());
    QCOMPARE(rig->text("labelCountInfo"), QStringLiteral("(0/60)"));
    QCOMPARE(edit("lineBarcode")->text(), QStringLiteral("AE-1234567"));
    QCOMPARE(rig->text("labelCountBarcode"), QStringLiteral("(10/10)"));
}

QTEST_MAIN(TestMainWindowTexts)
#include "tst_mainwindow_texts.moc"
