// The disclaimer that older loggers' operators accept before the Time Zone Editor.

#include "markingtranslator.h"
#include "windowstate.h"
#include "zonerig.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace WindowWords;
using namespace ZoneWords;

namespace {

/// The page is not there as long as this is.
class MissingPage
{
public:
    MissingPage();
    ~MissingPage();
    MissingPage(const MissingPage&) = delete;
    MissingPage& operator=(const MissingPage&) = delete;
};

WindowState untouched()
{
    return idle(QStringLiteral("Connected to device on ttyACM0"), false);
}

QString pageOf(const QDialog* dialog)
{
    return dialog->findChild<QTextEdit*>()->toPlainText().simplified();
}

void expectPage(const QString& text, const QString& part)
{
    QVERIFY2(text.contains(part), qPrintable(part + QStringLiteral(" is not in: ") + text));
}

} // namespace

// These have to be called from outside of any namespace.
static void takePageAway()
{
    Q_CLEANUP_RESOURCE(pages);
}

static void putPageBack()
{
    Q_INIT_RESOURCE(pages);
}

MissingPage::MissingPage()
{
    takePageAway();
}

MissingPage::~MissingPage()
{
    putPageBack();
}

class TestMainWindowZoneEditorDisclaimer : public QObject
{
    Q_OBJECT

private slots:
    void comesByFirmware_data();
    void comesByFirmware();
    void form();
    void sameInEveryLanguage();
    void enterAccepts();
    void says_data();
    void says();
    void rejected_data();
    void rejected();
    void missing();
    void comesEachTime();
};

void TestMainWindowZoneEditorDisclaimer::comesByFirmware_data()
{
    QTest::addColumn<QString>("firmware");
    QTest::addColumn<bool>("comes");
    QTest::newRow("1.1.5") << "1.1.5" << true;
    QTest::newRow("1.1.9") << "01.01.09" << true;
    QTest::newRow("1001999") << "1.1.999" << true;
    QTest::newRow("1002000") << "1.2.0" << false;
    QTest::newRow("2.0.0") << "2.0.0" << false;
    QTest::newRow("none that anybody could read") << "new" << true;
}

void TestMainWindowZoneEditorDisclaimer::comesByFirmware()
{
    QFETCH(const QString, firmware);
    QFETCH(const bool, comes);
    LoggerModel model = comes ? olderLogger() : newerLogger();
    model.settings().firmware = firmware;
    ZoneRig zones(model);
    zones.press();
    QCOMPARE(zones.hand.titles(), comes ? QStringList({disclaimer, editor}) : QStringList({editor}));
    QCOMPARE(differences(zones.rig, untouched()), QString());
}

void TestMainWindowZoneEditorDisclaimer::form()
{
    ZoneRig zones(olderLogger());
    int looks = 0;
    zones.hand.atDisclaimer([&](QDialog* dialog) {
        looks++;
        QCOMPARE(dialog->size(), QSize(450, 450));
        QCOMPARE(dialog->parent(), &zones.rig.window);
        QVERIFY(dialog->isModal());
        QVERIFY(!dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        QVERIFY(qobject_cast<QVBoxLayout*>(dialog->layout()));
        QVERIFY(dialog->findChild<QTextEdit*>()->isReadOnly());
        const auto* buttons = dialog->findChild<QDialogButtonBox*>();
        QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
            QCOMPARE(buttons->button(button)->autoDefault(), button == QDialogButtonBox::Ok);
            QCOMPARE(buttons->button(button)->isDefault(), button == QDialogButtonBox::Ok);
        }
        looks++;
    });
    zones.press();
    QCOMPARE(looks, 2);
    QCOMPARE(zones.rig.window.findChildren<QTextEdit*>().size(), 0);
}

void TestMainWindowZoneEditorDisclaimer::sameInEveryLanguage()
{
    ZoneRig zones(olderLogger());
    QString page;
    zones.hand.atDisclaimer([&page](QDialog* dialog) { page = pageOf(dialog); });
    zones.press();
    const QString before = page;
    const MarkingTranslator translator;
    page.clear();
    zones.press();
    QVERIFY(!page.isEmpty());
    QCOMPARE(page, before);
    QCOMPARE(zones.hand.titles().mid(2), QStringList({disclaimer, editor}));
}

void TestMainWindowZoneEditorDisclaimer::enterAccepts()
{
    ZoneRig zones(olderLogger());
    bool acceptedByKey = false;
    zones.hand.atDisclaimer([&](QDialog* dialog) {
        QTest::keyClick(dialog->findChild<QTextEdit*>(), Qt::Key_Return);
        acceptedByKey = dialog->result() == QDialog::Accepted && !dialog->isVisible();
    });
    zones.press();
    QVERIFY(acceptedByKey);
    QCOMPARE(zones.hand.titles(), QStringList({disclaimer, editor}));
}

void TestMainWindowZoneEditorDisclaimer::says_data()
{
    QTest::addColumn<QStringList>("parts");
    QTest::newRow("what the function does") << QStringList({"can set your device to any time zone"});
    QTest::newRow("which devices it is for")
        << QStringList({"firmware version 1.1.5 and below", "beta phase", "not fully supported"});
    QTest::newRow("the report") << QStringList({"PDF report", "still say GMT", "cannot be removed"});
    QTest::newRow("the reset") << QStringList(
        {"Multiuse device", "date and time survive a RESET", "nothing on the device"});
    QTest::newRow("no network") << QStringList({"Without internet connectivity", "neither identify nor show",
                                                "not set to GMT", "only its time and date"});
    QTest::newRow("what Ok means") << QStringList(
        {"By clicking Ok", "aware of these limitations", "waive any liability", "beta function"});
}

void TestMainWindowZoneEditorDisclaimer::says()
{
    QFETCH(const QStringList, parts);
    ZoneRig zones(olderLogger());
    QString text;
    zones.hand.atDisclaimer([&text](QDialog* dialog) { text = pageOf(dialog); });
    zones.press();
    for (const QString& part : parts)
        expectPage(text, part);
}

void TestMainWindowZoneEditorDisclaimer::rejected_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("Cancel") << true;
    QTest::newRow("Escape") << false;
}

void TestMainWindowZoneEditorDisclaimer::rejected()
{
    QFETCH(const bool, byButton);
    ZoneRig zones(olderLogger());
    const QStringList before = zones.choice();
    zones.hand.atDisclaimer([byButton](QDialog* dialog) {
        if (byButton)
            QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel),
                              Qt::LeftButton);
        else
            QTest::keyClick(dialog, Qt::Key_Escape);
    });
    zones.press();
    QCOMPARE(zones.hand.titles(), QStringList({disclaimer}));
    QCOMPARE(zones.choice(), before);
    QCOMPARE(zones.rig.wire(), QList<QByteArray>());
    QCOMPARE(differences(zones.rig, untouched()), QString());
}

void TestMainWindowZoneEditorDisclaimer::missing()
{
    ZoneRig zones(olderLogger());
    const MissingPage missingPage;
    zones.change(QStringLiteral("GMT+9:00"));
    QCOMPARE(zones.hand.titles(), QStringList({editor}));
    QCOMPARE(zones.rig.text("labelTimeZone"), QStringLiteral("GMT+9:00"));
    QCOMPARE(differences(zones.rig, idle(updating, true)), QString());
}

void TestMainWindowZoneEditorDisclaimer::comesEachTime()
{
    ZoneRig zones(olderLogger());
    zones.press();
    zones.press();
    QCOMPARE(zones.hand.titles(), QStringList({disclaimer, editor, disclaimer, editor}));
}

QTEST_MAIN(TestMainWindowZoneEditorDisclaimer)
#include "tst_mainwindow_zoneeditordisclaimer.moc"
