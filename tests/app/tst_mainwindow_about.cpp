// The About box, piece by piece.

#include "procedurerig.h"
#include "support/browser.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <QTranslator>

namespace {

const QString title = QStringLiteral("About Brumalogger Configuration Tool");

/// The About box as it is on the screen.
struct Shown
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::Critical;
    QMessageBox::StandardButtons buttons;
    bool hasParent = true;
    bool flagsAreDefault = false;
    QStringList links;
};

/// Clicks all over the box and tells what was opened.
QStringList pressLinks(QWidget* label)
{
    constexpr int step = 6;
    const Browser browser;
    for (int y = 0; y < label->height(); y += step) {
        for (int x = 0; x < label->width(); x += step)
            QTest::mouseClick(label, Qt::LeftButton, {}, {x, y});
    }
    QStringList links;
    for (const QUrl& url : browser.opened)
        links << url.toString();
    links.removeDuplicates();
    return links;
}

Shown lookAt(QMessageBox* box)
{
    const QMessageBox plain(QMessageBox::NoIcon, QString(), QString());
    return {box->windowTitle(),
            box->text(),
            box->icon(),
            box->standardButtons(),
            box->parent() != nullptr,
            box->windowFlags() == plain.windowFlags(),
            pressLinks(box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))};
}

/// Opens the box, looks at it and closes it.
Shown about(const ProcedureRig& rig)
{
    Shown shown;
    QObject::connect(&rig.robot, &DialogRobot::sBoxOpened, &rig.robot, [&shown] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            shown = lookAt(box);
            box->close();
        }
    });
    rig.find<QAction>("actionAbout")->trigger();
    return shown;
}

/// Turns every text of the window into another.
class Translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QLatin1Char('*') + QString::fromUtf8(text);
    }
};

} // namespace

class TestMainWindowAbout : public QObject
{
    Q_OBJECT

private slots:
    void box();
    void text();
    void logo();
    void links();
    void onlyTheTitleIsTranslated();
    void isThereWithALogger();
};

void TestMainWindowAbout::box()
{
    const Shown shown = about(ProcedureRig());
    QCOMPARE(shown.title, title);
    QCOMPARE(shown.icon, QMessageBox::NoIcon);
    QCOMPARE(shown.buttons, QMessageBox::Ok);
    QVERIFY(!shown.hasParent);
    QVERIFY(shown.flagsAreDefault);
}

void TestMainWindowAbout::text()
{
    QCOMPARE(about(ProcedureRig()).text,
             QStringLiteral(
                 "<img src=\":/logo_prw_nobg.png\" width=300><I></I><center>Brumalogger Configuration Tool "
                 "v" PROGRAM_VERSION "<p></p><p></p>Made by Polar Ridge Works: "
                 "<a href=\"http://www.polarridgeworks.example\">www.polarridgeworks.example</a>"
                 "<p>The USB driver is installed with wdi-simple, a tool of "
                 "<a href=\"https://github.com/pbatard/libwdi\">libwdi</a>.</p></center>"));
    QCOMPARE(QStringLiteral(PROGRAM_VERSION), QStringLiteral("1.3.3"));
}

void TestMainWindowAbout::logo()
{
    const ProcedureRig rig;
    const QImage image(QStringLiteral(":/logo_prw_nobg.png"));
    QVERIFY(image.width() >= 300);
}

void TestMainWindowAbout::links()
{
    QCOMPARE(about(ProcedureRig()).links,
             QStringList({"http://www.polarridgeworks.example", "https://github.com/pbatard/libwdi"}));
}

void TestMainWindowAbout::onlyTheTitleIsTranslated()
{
    const QString untranslated = about(ProcedureRig()).text;
    Translator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const Shown shown = about(ProcedureRig());
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(shown.title, '*' + title);
    QCOMPARE(shown.text, untranslated);
}

void TestMainWindowAbout::isThereWithALogger()
{
    ProcedureRig rig;
    rig.plugAndConnect();
    QCOMPARE(about(rig).title, title);
    QCOMPARE(rig.wire(), QList<QByteArray>());
    QVERIFY(rig.controlsEnabled());
}

QTEST_MAIN(TestMainWindowAbout)
#include "tst_mainwindow_about.moc"
