// A configuration file that is none: the dialog stays as it is.

#include "settingsdesk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

class TestSettingsDialogDamage : public QObject
{
    Q_OBJECT

private slots:
    void nothingToRead_data();
    void nothingToRead();
    void folder();
    void forbiddenFile();
};

void TestSettingsDialogDamage::nothingToRead_data()
{
    QByteArray binary;
    QRandomGenerator random(11);
    for (int i = 0; i < 5000; ++i)
        binary.append(static_cast<char>(random.generate()));
    const QByteArray enormous(8 << 20, 'x');
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("nonsense") << QByteArray("2.0\nnonsense");
    QTest::newRow("binary") << binary;
    QTest::newRow("binary behind the version") << "2.0\n" + binary;
    QTest::newRow("enormous") << enormous;
    QTest::newRow("enormous behind the version") << "2.0\n" + enormous + '\n' + enormous;
}

void TestSettingsDialogDamage::nothingToRead()
{
    QFETCH(const QByteArray, bytes);
    SettingsDesk desk;
    QFile file(QStringLiteral("blconf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
    file.close();
    QVERIFY(!desk.dialog.loadSettings());
    QCOMPARE(desk.summary(), desk.defaults());
    desk.check("checkUsePool");
    QVERIFY(!desk.dialog.loadSettings());
    QVERIFY(desk.dialog.poolEnabled());
    desk.dialog.accept();
    QCOMPARE(WorkFolder::configuration().value(QStringLiteral("useserverpool")), QStringLiteral("1"));
}

void TestSettingsDialogDamage::folder()
{
    SettingsDesk desk;
    QVERIFY(QDir().mkdir(QStringLiteral("blconf")));
    QVERIFY(!desk.dialog.loadSettings());
    QCOMPARE(desk.summary(), desk.defaults());
    desk.dialog.accept();
    QVERIFY(QDir(QStringLiteral("blconf")).isEmpty());
    QCOMPARE(desk.robot.problems(), QString());
}

void TestSettingsDialogDamage::forbiddenFile()
{
    SettingsDesk desk({{QStringLiteral("fontsize"), QStringLiteral("17")}});
    QVERIFY(QFile::setPermissions(QStringLiteral("blconf"), {}));
    const bool readable = QFileInfo(QStringLiteral("blconf")).isReadable(); // as it is to the superuser
    QCOMPARE(desk.dialog.loadSettings(), readable);
    if (readable)
        QCOMPARE(desk.dialog.fontSize(), 17);
    else
        QCOMPARE(desk.summary(), desk.defaults());
}

QTEST_MAIN(TestSettingsDialogDamage)
#include "tst_settingsdialog_damage.moc"
