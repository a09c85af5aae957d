// The icon of a button: no larger than it is shown, and its own drawing at every size.

#include "app/buttonicon.h"
#include "windowstate.h"

#include <QImage>
#include <QPushButton>
#include <QTest>

namespace {

constexpr const char* images[] = {":/icon_connect.png", ":/icon_disconnect.png", ":/icon_read.png",
                                  ":/icon_write.png",   ":/icon_load.png",       ":/icon_start.png"};

} // namespace

class TestButtonIcon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void size_data();
    void size();
    void drawing_data();
    void drawing();
};

void TestButtonIcon::initTestCase()
{
    Q_INIT_RESOURCE(images);
}

void TestButtonIcon::size_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<QSize>("kept");
    QTest::newRow("square") << ":/icon_load.png" << QSize(24, 24) << QSize(24, 24);
    QTest::newRow("a little higher") << ":/icon_read.png" << QSize(24, 24) << QSize(23, 24);
    QTest::newRow("in a wide place") << ":/icon_load.png" << QSize(48, 32) << QSize(32, 32);
    QTest::newRow("in a high place") << ":/icon_load.png" << QSize(32, 48) << QSize(32, 32);
    QTest::newRow("whole") << ":/icon_read.png" << QSize(408, 409) << QSize(408, 409);
}

void TestButtonIcon::size()
{
    QFETCH(const QString, path);
    QFETCH(const QSize, shown);
    QFETCH(const QSize, kept);
    QCOMPARE(buttonIcon(path, shown).availableSizes(), {kept});
}

void TestButtonIcon::drawing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("width");
    for (const QString path : images) {
        for (const int width : {24, 32, 48, 64})
            QTest::addRow("%s at %d", qPrintable(path), width) << path << width;
    }
}

void TestButtonIcon::drawing()
{
    QFETCH(const QString, path);
    QFETCH(const int, width);
    const QSize size(width, width);
    QPushButton button;
    button.setIconSize(size);
    button.setIcon(buttonIcon(path, size));
    for (const char* image : images) {
        const bool own = path == QLatin1String(image);
        const int distance = iconDistance(button, QLatin1String(image));
        QVERIFY2((distance <= largestIconDistance) == own, qPrintable(QString::number(distance)));
    }
}

QTEST_MAIN(TestButtonIcon)
#include "tst_buttonicon.moc"
