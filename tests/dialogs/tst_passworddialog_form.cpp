// The unlock dialog as it stands: its texts, its order, its size.

#include "passworddesk.h"
#include "places.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

/// Sixty of the widest letter: no slot of the logger holds more.
LoggerModel loggerWithLongTexts()
{
    LoggerModel model = lockedLogger(LoggerModel::State::Finished);
    for (QString& text : model.settings().texts)
        text = QString(LoggerModel::maxTextLength, QLatin1Char('W'));
    return model;
}

bool hasText(const QWidget* widget)
{
    return qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget) ||
           qobject_cast<const QGroupBox*>(widget);
}

/// The visible widgets whose text needs more room than they have, or that reach out of the dialog.
QStringList cutWidgets(const PasswordDialog& dialog)
{
    QStringList cut;
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        const QSize wanted = hasText(widget) ? widget->sizeHint() : widget->minimumSizeHint();
        const QRect place(widget->mapTo(&dialog, QPoint(0, 0)), widget->size());
        if (widget->isVisible() &&
            (widget->size().expandedTo(wanted) != widget->size() || !dialog.rect().contains(place)))
            cut << widget->objectName();
    }
    return cut;
}

} // namespace

class TestPasswordDialogForm : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void texts_data();
    void texts();
    void fromTopToBottom();
    void informationGrid();
    void buttonsInOneRow();
    void togglesInformation();
    void enterTriesThePassword();
    void escapeCancels();
    void cannotBeResized();
    void comesInItsFinalSize();
    void nothingIsCut_data();
    void nothingIsCut();
};

void TestPasswordDialogForm::form()
{
    QWidget window;
    const PasswordDialog dialog(&window);
    QCOMPARE(dialog.parentWidget(), &window);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Password protected device"));
    QVERIFY(dialog.isModal());
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(dialog.findChild<QGroupBox*>(QStringLiteral("groupInfo"))->isHidden());
    QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("linePassw"))->echoMode(), QLineEdit::Password);
    QCOMPARE(dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QCOMPARE(dialog.layout()->sizeConstraint(), QLayout::SetFixedSize);
    QVERIFY(!dialog.lUnlocked());
}

void TestPasswordDialogForm::texts_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* widget, const char* property, const char* text) {
        QTest::newRow(widget) << QByteArray(property) << QString(text);
    };
    row("label", "text", "This device is password protected. Please unlock it to continue:");
    row("linePassw", "text", "");
    row("labelState", "text", "-");
    row("groupInfo", "title", "Logger Information");
    row("label_2", "text", "Sender:");
    row("labelSender", "text", "-");
    row("label_4", "text", "Recipient:");
    row("labelRecipient", "text", "-");
    row("label_5", "text", "Information:");
    row("labelInformation", "text", "-");
    row("buttonToggleInfo", "text", "More...");
}

void TestPasswordDialogForm::texts()
{
    QFETCH(QByteArray, property);
    const PasswordDialog dialog(nullptr);
    const auto* widget = dialog.findChild<QWidget*>(QString(QTest::currentDataTag()));
    QVERIFY(widget);
    QTEST(widget->property(property).toString(), "text");
}

void TestPasswordDialogForm::fromTopToBottom()
{
    PasswordDesk desk;
    desk.open();
    desk.pressToggle();
    QCoreApplication::processEvents();
    QCOMPARE(firstNotBelow(desk.dialog, "label linePassw labelState groupInfo buttonBox"), QString());
}

void TestPasswordDialogForm::informationGrid()
{
    const PasswordDesk desk;
    const auto* grid = qobject_cast<QGridLayout*>(desk.find<QGroupBox>("groupInfo")->layout());
    QVERIFY(grid);
    const QList<QPair<const char*, const char*>> rows = {
        {"label_2", "labelSender"}, {"label_4", "labelRecipient"}, {"label_5", "labelInformation"}};
    QCOMPARE(grid->rowCount(), rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        QCOMPARE(grid->itemAtPosition(row, 0)->widget(), desk.find<QWidget>(rows.at(row).first));
        QCOMPARE(grid->itemAtPosition(row, 1)->widget(), desk.find<QWidget>(rows.at(row).second));
    }
}

void TestPasswordDialogForm::buttonsInOneRow()
{
    PasswordDesk desk;
    desk.open();
    QCOMPARE(firstNotBeside(desk.dialog, "buttonToggleInfo buttonBox"), QString());
}

void TestPasswordDialogForm::togglesInformation()
{
    PasswordDesk desk;
    desk.open();
    const QSize small = desk.dialog.size();
    for (int times = 0; times < 2; ++times) {
        desk.pressToggle();
        QVERIFY(desk.isShowingInfo());
        QCOMPARE(desk.text("buttonToggleInfo"), QStringLiteral("Less..."));
        QTRY_VERIFY(desk.dialog.height() > small.height());
        desk.pressToggle();
        QVERIFY(!desk.isShowingInfo());
        QCOMPARE(desk.text("buttonToggleInfo"), QStringLiteral("More..."));
        QTRY_COMPARE(desk.dialog.size(), small);
    }
    QCOMPARE(desk.takeWire(), showingCommands());
}

void TestPasswordDialogForm::enterTriesThePassword()
{
    PasswordDesk desk;
    desk.open();
    auto* line = desk.find<QLineEdit>("linePassw");
    QTest::keyClicks(line, rightPassword());
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(desk.takeWire(), showingCommands() << "?Secret");
    QVERIFY(desk.dialog.lUnlocked());
    QVERIFY(!desk.dialog.isVisible());
}

void TestPasswordDialogForm::escapeCancels()
{
    PasswordDesk desk;
    desk.open();
    QTest::keyClick(desk.find<QLineEdit>("linePassw"), Qt::Key_Escape);
    QCOMPARE(desk.takeWire(), showingCommands());
    QVERIFY(!desk.dialog.isVisible());
}

void TestPasswordDialogForm::cannotBeResized()
{
    PasswordDesk desk;
    desk.open();
    QCOMPARE(desk.dialog.minimumSize(), desk.dialog.maximumSize());
}

// It gets onto the screen, and into the middle of its window, with the size of what it has read.
void TestPasswordDialogForm::comesInItsFinalSize()
{
    PasswordDesk desk;
    desk.dialog.open();
    const QSize first = desk.dialog.size();
    QVERIFY(QTest::qWaitForWindowExposed(&desk.dialog));
    QCoreApplication::processEvents();
    QCOMPARE(desk.dialog.size(), first);
}

void TestPasswordDialogForm::nothingIsCut_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("longTexts");
    for (const int size : {8, 11, 20}) {
        QTest::addRow("%d points", size) << size << false;
        QTest::addRow("%d points, long texts", size) << size << true;
    }
}

void TestPasswordDialogForm::nothingIsCut()
{
    QFETCH(int, size);
    QFETCH(bool, longTexts);
    PasswordDesk desk(longTexts ? loggerWithLongTexts() : lockedLogger());
    desk.window.setStyleSheet(QStringLiteral("font-size: %1pt").arg(size));
    desk.open();
    QCOMPARE(desk.find<QWidget>("label")->font().pointSize(), size);
    QCOMPARE(cutWidgets(desk.dialog), QStringList());
    desk.pressToggle();
    QCoreApplication::processEvents();
    QCOMPARE(cutWidgets(desk.dialog), QStringList());
}

QTEST_MAIN(TestPasswordDialogForm)
#include "tst_passworddialog_form.moc"
