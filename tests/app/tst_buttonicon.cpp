// The icon of a button: from the small image where that will do, from the large one where not, and the same
// drawing in both.

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
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<QSize>("unpacked");
    QTest::newRow("usual") << QSize(24, 24) << QSize(48, 48);
    QTest::newRow("largest small") << QSize(48, 48) << QSize(48, 48);
    QTest::newRow("a little wider") << QSize(49, 48) << QSize(408, 409);
    QTest::newRow("a little higher") << QSize(48, 49) << QSize(408, 409);
}

void TestButtonIcon::size()
{
    QFETCH(const QSize, shown);
    const QIcon icon = buttonIcon(QStringLiteral(":/icon_read.png"), shown);
    QCOMPARE(icon.availableSizes().size(), 1);
    QTEST(icon.availableSizes().constFirst(), "unpacked");
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
