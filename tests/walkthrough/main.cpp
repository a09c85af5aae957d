// Does the operator's main job in the tool's window, with mouse and keyboard: connect, edit, write, start.
// Leaves a picture of every stage in the current folder and ends with 0 if the window said what it should.

#include "app/mainwindow.h"
#include "support/dialogrobot.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTest>

#include <cstdio>

namespace {

constexpr int timePatience = 30000; // milliseconds

class Walk
{
public:
    int run();

private:
    template<typename Widget>
    Widget* find(const char* name) const
    {
        return window.findChild<Widget*>(QLatin1String(name));
    }

    void press(const char* button) { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
    void choose(const char* combo, const QString& entry);
    void type(const char* line, const QString& text);
    void setValue(const char* spinBox, const QString& value);
    void edit();
    QString status() const { return find<QStatusBar>("statusBar")->currentMessage(); }
    bool check(const QString& stage, const QString& expected);
    int fail(const QString& stage) const;
    void takePicture(const QString& name);

    MainWindow window;
    DialogRobot robot;
};

int Walk::run()
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    QApplication::setActiveWindow(&window); // there is no window manager to do it
    const QString fetched = QStringLiteral("Successfully fetched time and date from time.google.com.");
    if (!QTest::qWaitFor([&] { return status() == fetched; }, timePatience))
        return fail(QStringLiteral("time"));
    QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
    if (!check(QStringLiteral("connected"), QStringLiteral("Connected to device on ttyACM0")))
        return 1;

    edit();
    takePicture(QStringLiteral("edited"));
    press("buttonWrite");
    if (!check(QStringLiteral("written"), QStringLiteral("Write successful")))
        return 1;

    robot.expectQuestion(QStringLiteral("Confirm"),
                         QStringLiteral("Do you wish to start the device?\nThis operation cannot be undone."),
                         QMessageBox::Yes);
    press("buttonStart");
    return check(QStringLiteral("started"), QStringLiteral("Disconnected from ttyACM0")) ? 0 : 1;
}

void Walk::edit()
{
    choose("comboSampling", QStringLiteral("10 minutes"));
    choose("comboDelay", QStringLiteral("1 hour"));
    choose("comboTemp", QStringLiteral("Custom"));
    setValue("spindTempMin", QStringLiteral("-20.5"));
    setValue("spindTempMax", QStringLiteral("6"));
    type("lineSender", QStringLiteral("Nordkühlhaus Straße 4"));
    type("lineRecipient", QStringLiteral("City Hospital, Pharmacy"));
    type("lineInfo", QStringLiteral("Vaccines, batch 2026-11"));
    type("lineBarcode", QStringLiteral("4006381333"));
    choose("comboType", QStringLiteral("Air"));
}

void Walk::choose(const char* combo, const QString& entry)
{
    find<QComboBox>(combo)->setCurrentText(entry);
}

void Walk::type(const char* line, const QString& text)
{
    auto* edit = find<QLineEdit>(line);
    edit->setFocus();
    edit->selectAll();
    for (const QChar letter : text) // keyClicks() knows no letters beyond ASCII
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

void Walk::setValue(const char* spinBox, const QString& value)
{
    auto* box = find<QDoubleSpinBox>(spinBox);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, box->locale().toString(value.toDouble()));
    QTest::keyClick(box, Qt::Key_Return);
    box->findChild<QLineEdit*>()->deselect();
}

bool Walk::check(const QString& stage, const QString& expected)
{
    takePicture(stage);
    if (status() != expected || !robot.problems().isEmpty())
        return fail(stage) == 0;
    std::printf("%s: %s\n", qPrintable(stage), qPrintable(expected));
    return true;
}

int Walk::fail(const QString& stage) const
{
    std::fprintf(stderr, "%s: the status is \"%s\"\n%s\n", qPrintable(stage), qPrintable(status()),
                 qPrintable(robot.problems()));
    return 1;
}

void Walk::takePicture(const QString& name)
{
    QCoreApplication::processEvents();
    QGuiApplication::primaryScreen()->grabWindow(window.winId()).save(name + QStringLiteral(".png"));
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    return Walk().run();
}
