// The mock tree and the thread that the library gives it, which reads the environment.

#include "simulator/usbbench.h"

#include <QDir>
#include <QSerialPort>
#include <QTest>
#include <QVector>

#include <cstdlib>
#include <dlfcn.h>

namespace {

/// A variable of the environment being set.
struct Setting
{
    QByteArray name;
    bool isNew;
    int threads; ///< of the process, at that moment
};

/// All that was set so far.
QVector<Setting>& settings()
{
    static QVector<Setting> all;
    return all;
}

int threads()
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    return tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

} // namespace

// In the place of the C library's.
extern "C" int setenv(const char* name, const char* value, int replace) noexcept
{
    const bool isNew = getenv(name) == nullptr;
    using Function = int(const char*, const char*, int);
    const int result = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, "setenv"))(name, value, replace);
    settings().append({name, isNew, threads()});
    return result;
}

class TestMockUsbTree : public QObject
{
    Q_OBJECT

private slots:
    void namesNoVariableBesideTheThread();
};

// A new name moves the environment in memory, and the thread would read what is no longer there.
void TestMockUsbTree::namesNoVariableBesideTheThread()
{
    QVERIFY2(UsbBench::isUsable(), "start this test under umockdev-wrapper");
    settings().clear();
    const int othersThreads = threads();
    UsbBench bench;
    QSerialPort port(bench.plug()->portName());
    QVERIFY(port.open(QIODevice::ReadWrite));
    QVERIFY(threads() > othersThreads);
    QVERIFY(!settings().isEmpty());
    for (const Setting& setting : qAsConst(settings()))
        QVERIFY2(!setting.isNew || setting.threads == othersThreads, setting.name);
}

QTEST_GUILESS_MAIN(TestMockUsbTree)
#include "tst_mockusbtree.moc"
