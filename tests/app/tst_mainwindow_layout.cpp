// Where the widgets stand in the window, in which order the Tab key reaches them, its sizes and its icon.

#include "app/mainwindow.h"
#include "dialogs/settingsdialog.h"
#include "formrows.h"
#include "procedurerig.h"

#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QImage>
#include <QRegularExpression>
#include <QScreen>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

/// Puts the process into a folder of its own for as long as it lives.
class OtherFolder
{
public:
    OtherFolder() { QDir::setCurrent(folder.path()); }
    ~OtherFolder() { QDir::setCurrent(before); }

private:
    QString before = QDir::currentPath();
    QTemporaryDir folder;
};

constexpr const char* hiddenAtStart[] = {"labelTimeZone",        "labelTimeZoneStatic", "labelLastReset",
                                         "labelLastResetStatic", "buttonAdvanced",      "buttonToolTimeZone"};

/// True if the form's file itself sets the property to true.
bool formSets(const QString& property)
{
    QFile file(QStringLiteral(FORM_FILE));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no form file");
    const QRegularExpression setting(
        QStringLiteral("<property name=\"%1\">\\s*<bool>true</bool>").arg(property));
    return setting.match(QString::fromUtf8(file.readAll())).hasMatch();
}

constexpr QSize formSize(850, 789);

/// Where a widget is in the window.
QRect placeOf(const WindowRig& rig, const char* name)
{
    const auto* widget = rig.find<QWidget>(name);
    return {widget->mapTo(&rig.window, QPoint(0, 0)), widget->size()};
}

int topOf(const WindowRig& rig, const char* name)
{
    return placeOf(rig, name).top();
}

/// Widgets of one row, from left to right.
using Row = QList<const char*>;

/// The first widget that is not in one row with, and right of, the one before it; empty if there is none.
QString outOfRow(const WindowRig& rig, const Row& row)
{
    for (int i = 1; i < row.size(); ++i) {
        const QRect left = placeOf(rig, row.at(i - 1));
        const QRect right = placeOf(rig, row.at(i));
        if (qAbs(left.center().y() - right.center().y()) > 1 || left.right() >= right.left())
            return QLatin1String(row.at(i));
    }
    return {};
}

bool isGroup(const FormRow& row)
{
    return qstrcmp(row.className, "QGroupBox") == 0;
}

} // namespace

class TestMainWindowLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { makeMockHardware(); }
    void grid_data();
    void grid();
    void groups();
    void stacksItsGroups();
    void setupFromTopToBottom();
    void trackingInOneRow();
    void tabOrder();
    void sizes();
    void growsWithItsFont_data();
    void growsWithItsFont();
    void savedSizeGrowsWithADevicesValues();
    void iconFromWorkingDirectory();
    void noIconWithoutTheFile();
    void unifiedTitle();
    void hiddenWidgets();
};

void TestMainWindowLayout::grid_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    const auto pair = [](int row, const char* left, const char* right) {
        QTest::newRow(left) << row << 0;
        QTest::newRow(right) << row << 1;
    };
    pair(0, "label", "labelDeviceName");
    pair(1, "label_3", "labelFirmwareVersion");
    pair(2, "label_20", "labelHardwareRevision");
    pair(3, "label_5", "labelSerial");
    pair(4, "label_22", "labelType");
    pair(5, "labelLastResetStatic", "labelLastReset");
    QTest::newRow("labelLowBattery") << 6 << 0;
    pair(8, "label_8", "labelDateTime");
    QTest::newRow("buttonToolTimeZone") << 8 << 2;
    pair(9, "labelTimeZoneStatic", "labelTimeZone");

    const auto line = [&pair](int row, const char* left, const char* edit, const char* counter) {
        pair(row, left, edit);
        QTest::newRow(counter) << row << 2;
    };
    line(0, "label_13", "lineSender", "labelCountSender");
    line(1, "label_14", "lineRecipient", "labelCountRecipient");
    line(2, "label_17", "lineInfo", "labelCountInfo");
}

void TestMainWindowLayout::grid()
{
    const MainWindow window;
    auto* widget = child<QWidget>(window, QTest::currentDataTag());
    const auto* grid = qobject_cast<QGridLayout*>(widget->parentWidget()->layout());
    QVERIFY(grid);
    QCOMPARE(grid->columnCount(), 3);
    int row = -1;
    int column = -1;
    int rowSpan = 0;
    int columnSpan = 0;
    grid->getItemPosition(grid->indexOf(widget), &row, &column, &rowSpan, &columnSpan);
    QTEST(row, "row");
    QTEST(column, "column");
}

// The rows of the form come group by group, with the buttons below the groups last.
void TestMainWindowLayout::groups()
{
    const MainWindow window;
    const QWidget* group = nullptr;
    for (const FormRow& row : formRows) {
        auto* widget = child<QWidget>(window, row.name);
        if (isGroup(row)) {
            group = widget;
            continue;
        }
        if (qstrcmp(row.name, "buttonConnect") == 0)
            group = window.centralWidget();
        QCOMPARE(widget->parentWidget(), group);
    }
    QCOMPARE(group, window.centralWidget());
}

void TestMainWindowLayout::stacksItsGroups()
{
    const ProcedureRig rig;
    QCOMPARE(topOf(rig, "groupInfo"), topOf(rig, "groupSetup"));
    QCOMPARE(outOfRow(rig, {"groupInfo", "groupSetup"}), QString());
    const QStringList stack = {"menuBar",     "groupInfo",     "groupInfo_2",
                               "groupInfo_3", "buttonConnect", "statusBar"};
    for (int i = 1; i < stack.size(); ++i)
        QVERIFY2(topOf(rig, qPrintable(stack.at(i - 1))) < topOf(rig, qPrintable(stack.at(i))),
                 qPrintable(stack.at(i)));
    QCOMPARE(outOfRow(rig, {"buttonConnect", "buttonRead", "buttonWrite", "buttonPreset", "buttonStart"}),
             QString());
    QCOMPARE(rig.window.statusBar(), rig.find<QStatusBar>("statusBar"));
}

// With both the check box and the button on show, of which any logger has only one.
void TestMainWindowLayout::setupFromTopToBottom()
{
    const ProcedureRig rig;
    rig.find<QWidget>("buttonAdvanced")->show();
    QCoreApplication::processEvents(); // the panel makes room for it
    int bottom = placeOf(rig, "groupSetup").top();
    for (const Row& row :
         {Row{"labelSampling", "comboSampling"}, Row{"label_7", "spinSampling"},
          Row{"labelDelay", "comboDelay"}, Row{"label_6", "spinDelay"}, Row{"labelTemp", "comboTemp"},
          Row{"label_2", "spindTempMin", "label_4", "spindTempMax"}, Row{"checkLock"},
          Row{"buttonAdvanced"}}) {
        QCOMPARE(outOfRow(rig, row), QString());
        const QRect place = placeOf(rig, row.last());
        QVERIFY2(place.top() > bottom, row.last());
        bottom = place.bottom();
    }
    QVERIFY(bottom < placeOf(rig, "groupSetup").bottom());
}

void TestMainWindowLayout::trackingInOneRow()
{
    const ProcedureRig rig;
    QCOMPARE(outOfRow(rig, {"label_28", "lineBarcode", "labelCountBarcode", "label_29", "comboType"}),
             QString());
}

void TestMainWindowLayout::tabOrder()
{
    ProcedureRig rig;
    rig.activate();
    rig.plugAndConnect();
    const QStringList order = {"comboSampling", "comboDelay", "checkLock",   "lineSender",
                               "lineRecipient", "lineInfo",   "lineBarcode", "comboType",
                               "buttonConnect", "buttonRead", "buttonWrite", "buttonStart"};
    rig.find<QWidget>("comboSampling")->setFocus();
    QStringList reached;
    for (int i = 0; i < order.size(); ++i) {
        QVERIFY(rig.window.focusWidget());
        reached << rig.window.focusWidget()->objectName();
        QTest::keyClick(rig.window.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(reached, order);
    QCOMPARE(rig.robot.problems(), QString());
}

void TestMainWindowLayout::sizes()
{
    ProcedureRig rig;
    QCOMPARE(rig.window.size(), QSize(850, 789));
    QCOMPARE(rig.window.minimumSize(), QSize(760, 680));
    rig.window.resize(100, 100);
    QCOMPARE(rig.window.size(), QSize(760, 680));
}

void TestMainWindowLayout::growsWithItsFont_data()
{
    QTest::addColumn<int>("font");
    QTest::addColumn<bool>("grows");
    QTest::newRow("8") << 8 << false;
    QTest::newRow("11") << 11 << false;
    QTest::newRow("20") << 20 << true;
}

// As far as the screen goes; a screen can be smaller than the form's own size.
void TestMainWindowLayout::growsWithItsFont()
{
    QFETCH(const int, font);
    QFETCH(const bool, grows);
    const ProcedureRig rig;
    auto* settings = rig.window.findChild<SettingsDialog*>();
    child<QSpinBox>(*settings, "spinFont")->setValue(font);
    settings->accept();
    const QSize needed = rig.window.minimumSizeHint();
    QCOMPARE(needed.width() > formSize.width(), grows);
    QCOMPARE(rig.window.size(), formSize.expandedTo(needed.boundedTo(rig.window.screen()->availableSize())));
}

void TestMainWindowLayout::savedSizeGrowsWithADevicesValues()
{
    constexpr QSize saved(770, 690);
    ProcedureRig rig(quietSettingsWith({{QStringLiteral("winwidth"), QString::number(saved.width())},
                                        {QStringLiteral("winheight"), QString::number(saved.height())},
                                        {QStringLiteral("fontsize"), QStringLiteral("20")}}));
    QCOMPARE(rig.window.size(), saved);
    rig.plugAndConnect();
    const QSize needed = rig.window.minimumSizeHint();
    QVERIFY(needed.width() > saved.width());
    QCOMPARE(rig.window.size(), saved.expandedTo(needed.boundedTo(rig.window.screen()->availableSize())));
}

void TestMainWindowLayout::iconFromWorkingDirectory()
{
    const OtherFolder folder;
    QImage picture(32, 32, QImage::Format_ARGB32);
    picture.fill(QColor(200, 30, 60));
    QVERIFY(picture.save(QStringLiteral("logo.ico"), "ICO"));
    const MainWindow window;
    const QImage shown = window.windowIcon().pixmap(32, 32).toImage();
    QCOMPARE(shown.size(), picture.size());
    QCOMPARE(shown.pixelColor(16, 16), QColor(200, 30, 60));
}

void TestMainWindowLayout::noIconWithoutTheFile()
{
    const OtherFolder folder;
    const MainWindow window;
    QVERIFY(window.windowIcon().pixmap(32, 32).isNull());
}

// Only one platform has such a title bar; on the others the window itself forgets it.
void TestMainWindowLayout::unifiedTitle()
{
    QVERIFY(formSets(QStringLiteral("unifiedTitleAndToolBarOnMac")));
}

void TestMainWindowLayout::hiddenWidgets()
{
    const ProcedureRig rig;
    for (const FormRow& row : formRows) {
        const bool hidden = std::any_of(std::begin(hiddenAtStart), std::end(hiddenAtStart),
                                        [&row](const char* name) { return qstrcmp(name, row.name) == 0; });
        QVERIFY2(rig.find<QWidget>(row.name)->isVisible() != hidden, row.name);
    }
}

QTEST_MAIN(TestMainWindowLayout)
#include "tst_mainwindow_layout.moc"
