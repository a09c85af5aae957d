// The window's form: what stands in it, and with which words.

#include "app/mainwindow.h"
#include "formrows.h"
#include "markingtranslator.h"
#include "support/windowrig.h"
#include "windowstate.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QShortcut>
#include <QTest>

namespace {

constexpr const char* buttonImages[] = {":/icon_connect.png", ":/icon_disconnect.png", ":/icon_read.png",
                                        ":/icon_write.png",   ":/icon_load.png",       ":/icon_start.png"};

bool isLine(const FormRow& row)
{
    return qstrcmp(row.className, "QLineEdit") == 0;
}

QString shownText(const QWidget* widget)
{
    const auto* group = qobject_cast<const QGroupBox*>(widget);
    return group ? group->title() : widget->property("text").toString();
}

/// The button image that the button's icon looks like.
QString likestImage(const QAbstractButton& button)
{
    QMap<int, QString> images;
    for (const char* image : buttonImages)
        images.insert(iconDistance(button, QLatin1String(image)), QLatin1String(image));
    return images.firstKey() < farthestIconDistance ? images.first() : QString();
}

QStringList namesOf(const QList<QAction*>& actions)
{
    QStringList names;
    for (const QAction* action : actions)
        names << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
    return names;
}

} // namespace

class TestMainWindowForm : public QObject
{
    Q_OBJECT

private slots:
    void widget_data();
    void widget();
    void textsAreTranslated();
    void titleIsNotTranslated();
    void shipmentTypesAreNotTranslated();
    void menuBar();
    void menu_data();
    void menu();
    void action_data();
    void action();
    void labelsWithMenus();
    void button_data();
    void button();
    void advancedButton();
    void slotsInOrder();
};

void TestMainWindowForm::widget_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("text");
    for (const FormRow& row : formRows)
        QTest::newRow(row.name) << row.className << QString::fromUtf8(row.text);
}

void TestMainWindowForm::widget()
{
    QFETCH(const QString, className);
    const MainWindow window;
    const auto* widget = child<QWidget>(window, QTest::currentDataTag());
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    QFETCH(const QString, text);
    if (!text.isNull())
        QCOMPARE(shownText(widget), text);
}

void TestMainWindowForm::textsAreTranslated()
{
    const MarkingTranslator translator;
    const MainWindow window;
    for (const FormRow& row : formRows) {
        if (row.text && !isLine(row))
            QCOMPARE(shownText(child<QWidget>(window, row.name)),
                     MarkingTranslator::marked(QString::fromUtf8(row.text)));
    }
    QCOMPARE(child<QWidget>(window, "buttonAdvanced")->toolTip(),
             QStringLiteral("<Advanced security and startup options>"));
    for (const char* name : {"comboSampling", "comboDelay", "comboTemp"}) {
        const auto* combo = child<QComboBox>(window, name);
        for (int i = 0; i < combo->count(); ++i)
            QVERIFY2(combo->itemText(i).startsWith(QLatin1Char('<')), qPrintable(combo->itemText(i)));
    }
    QCOMPARE(child<QAction>(window, "actionSave")->text(), QStringLiteral("<Save all to preset>"));
    QCOMPARE(child<QMenu>(window, "menuAbout")->title(), QStringLiteral("<Help>"));
}

void TestMainWindowForm::titleIsNotTranslated()
{
    const MarkingTranslator translator;
    const MainWindow window;
    QCOMPARE(window.windowTitle(), QStringLiteral("Brumalogger Configuration Tool"));
    QCOMPARE(window.objectName(), QStringLiteral("MainWindow"));
    QVERIFY(!window.parent());
}

// They are the codes that the logger stores.
void TestMainWindowForm::shipmentTypesAreNotTranslated()
{
    const MarkingTranslator translator;
    const MainWindow window;
    const auto* combo = child<QComboBox>(window, "comboType");
    for (int i = 0; i < combo->count(); ++i)
        QVERIFY2(!combo->itemText(i).startsWith(QLatin1Char('<')), qPrintable(combo->itemText(i)));
    QCOMPARE(combo->count(), 4);
}

void TestMainWindowForm::menuBar()
{
    const MainWindow window;
    QList<QAction*> menus;
    for (const char* name : {"menuFile", "menuAbout"})
        menus << child<QMenu>(window, name)->menuAction();
    QCOMPARE(window.findChild<QMenuBar*>()->actions(), menus);
}

void TestMainWindowForm::menu_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("actions");
    QTest::newRow("menuFile") << "File" << QStringList({"actionSave", "actionLoad", "-", "actionSettings"});
    QTest::newRow("menuAbout") << "Help"
                               << QStringList({"actionWebHelp", "actionQuickstart", "-", "actionAbout"});
}

void TestMainWindowForm::menu()
{
    const MainWindow window;
    const auto* menu = child<QMenu>(window, QTest::currentDataTag());
    QTEST(menu->title(), "title");
    QTEST(namesOf(menu->actions()), "actions");
}

void TestMainWindowForm::action_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QKeySequence>("shortcut");
    QTest::newRow("actionSave") << "Save all to preset" << QKeySequence("Ctrl+S");
    QTest::newRow("actionLoad") << "Load from preset" << QKeySequence("Ctrl+O");
    QTest::newRow("actionSettings") << "Settings" << QKeySequence();
    QTest::newRow("actionWebHelp") << "Online help" << QKeySequence();
    QTest::newRow("actionQuickstart") << "Quickstart guide" << QKeySequence();
    QTest::newRow("actionAbout") << "About" << QKeySequence();
}

void TestMainWindowForm::action()
{
    const MainWindow window;
    const auto* action = child<QAction>(window, QTest::currentDataTag());
    QTEST(action->text(), "text");
    QTEST(action->shortcut(), "shortcut");
}

void TestMainWindowForm::labelsWithMenus()
{
    const MainWindow window;
    QStringList names;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->contextMenuPolicy() == Qt::CustomContextMenu)
            names << widget->objectName();
    }
    names.sort();
    QCOMPARE(names, QStringList({"labelDeviceName", "labelFirmwareVersion", "labelHardwareRevision",
                                 "labelLastReset", "labelSerial", "labelType"}));
}

void TestMainWindowForm::button_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("icon");
    QTest::newRow("buttonConnect") << "Ctrl+K"
                                   << "Connect to device (%1)"
                                   << ":/icon_connect.png";
    QTest::newRow("buttonRead") << "Ctrl+R"
                                << "Read data from device (%1)"
                                << ":/icon_read.png";
    QTest::newRow("buttonWrite") << "Ctrl+W"
                                 << "Write data to device (%1)"
                                 << ":/icon_write.png";
    QTest::newRow("buttonStart") << "Ctrl+A"
                                 << "Start device (%1)"
                                 << ":/icon_start.png";
    QTest::newRow("buttonPreset") << "Ctrl+P"
                                  << "Load default preset (%1)"
                                  << ":/icon_load.png";
}

void TestMainWindowForm::button()
{
    QFETCH(const QString, key);
    QFETCH(const QString, toolTip);
    QFETCH(const QString, icon);
    const MainWindow window;
    const auto* button = child<QAbstractButton>(window, QTest::currentDataTag());
    const QKeySequence keys(key);
    QCOMPARE(button->toolTip(), toolTip.arg(keys.toString(QKeySequence::NativeText)));

    QCOMPARE(likestImage(*button), icon);

    const auto shortcuts = button->findChildren<QShortcut*>();
    QCOMPARE(shortcuts.size(), 1);
    QCOMPARE(shortcuts.first()->key(), keys);
    QCOMPARE(shortcuts.first()->context(), Qt::WindowShortcut);
}

void TestMainWindowForm::advancedButton()
{
    const MainWindow window;
    QCOMPARE(child<QWidget>(window, "buttonAdvanced")->toolTip(),
             QStringLiteral("Advanced security and startup options"));
}

// The class has slots in a fixed order, no others and no signals.
void TestMainWindowForm::slotsInOrder()
{
    const QStringList told = {"lUpdateAvailable(QString,QString)",
                              "lUpdateMandatory(QString,QString)",
                              "plConnect()",
                              "plSave()",
                              "plLoad()",
                              "plReadFromDevice()",
                              "plWriteToDevice()",
                              "plStartLogger()",
                              "plUpdateTempRange()",
                              "plUpdateSamplingTime()",
                              "plUpdateStartDelay()",
                              "plUpdateDateTime()",
                              "plValidateTempRange()",
                              "plProcessTimeZoneDialog()",
                              "plProcessAdvancedOptionsDialog()",
                              "plProcessCustomLabelMenu(QLabel*)",
                              "plChangesOcurred(bool)",
                              "plChangesOcurred()",
                              "plSettingsAccepted()",
                              "plOnTimeManagerConnect()",
                              "plOnTimeManagerTimeout()"};
    const QMetaObject& meta = MainWindow::staticMetaObject;
    QStringList found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        found << QString::fromLatin1(method.methodSignature());
        QVERIFY2(method.methodType() == QMetaMethod::Slot, qPrintable(found.last()));
    }
    QCOMPARE(found, told);
    for (const char* slot : {"plReadFromDevice()", "plWriteToDevice()"})
        QCOMPARE(meta.method(meta.indexOfSlot(slot)).returnType(), int(QMetaType::Bool));
}

QTEST_MAIN(TestMainWindowForm)
#include "tst_mainwindow_form.moc"
