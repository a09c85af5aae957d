// Variables of the environment that tests set, beside threads that may be reading it.

#include "support/environmentvariable.h"

#include <QDateTime>
#include <QTest>

class TestEnvironmentVariable : public QObject
{
    Q_OBJECT

private slots:
    void isNeverNew_data() { addVariableRows(); }
    void isNeverNew();
    void setsAndRestores_data() { addVariableRows(); }
    void setsAndRestores();
    void zoneIsTheComputers();

private:
    static void addVariableRows();
};

void TestEnvironmentVariable::addVariableRows()
{
    QTest::addColumn<QByteArray>("none");
    QTest::newRow("HOME") << QByteArray("");
    QTest::newRow("TZ") << QByteArray(":/etc/localtime");
    QTest::newRow("XDG_CONFIG_HOME") << QByteArray("");
    QTest::newRow("XDG_RUNTIME_DIR") << QByteArray("");
}

// This program is started without any of them.
void TestEnvironmentVariable::isNeverNew()
{
    QVERIFY(qEnvironmentVariableIsSet(QTest::currentDataTag()));
    QTEST(qgetenv(QTest::currentDataTag()), "none");
}

void TestEnvironmentVariable::setsAndRestores()
{
    {
        const EnvironmentVariable variable(QTest::currentDataTag(), "of its own");
        QCOMPARE(qgetenv(QTest::currentDataTag()), QByteArray("of its own"));
    }
    isNeverNew();
}

void TestEnvironmentVariable::zoneIsTheComputers()
{
    const QDateTime time(QDate(2026, 1, 15), QTime(12, 0), Qt::UTC);
    const QTime before = time.toLocalTime().time();
    {
        const LocalZone zone("XXX-5:45");
        QCOMPARE(time.toLocalTime().time(), QTime(17, 45));
    }
    QCOMPARE(time.toLocalTime().time(), before);
}

QTEST_APPLESS_MAIN(TestEnvironmentVariable)
#include "tst_environmentvariable.moc"
