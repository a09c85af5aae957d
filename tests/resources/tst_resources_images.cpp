// The images that the program carries, under their paths and in their sizes.

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTest>

namespace {

constexpr int guideWidth = 700; // pixels, which the guide's window has room for

constexpr const char* screenshots[] = {"devinfo.PNG",      "devinfo_timetool.PNG", "devsetup.PNG",
                                       "optionalinfo.PNG", "settings.PNG",         "settings_time.PNG",
                                       "tzeditor.PNG"};

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestResourcesImages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void image_data();
    void image();
    void iconHasFiveSizes();
    void macIconIsANote();
    void screenshot_data();
    void screenshot();
    void portugueseSetIsTheEnglishOne_data();
    void portugueseSetIsTheEnglishOne();
    void screenshotsDiffer();
};

void TestResourcesImages::initTestCase()
{
    Q_INIT_RESOURCE(images);
    Q_INIT_RESOURCE(pages);
}

void TestResourcesImages::image_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow(":/icon_connect.png") << QSize(408, 408);
    QTest::newRow(":/icon_disconnect.png") << QSize(409, 409);
    QTest::newRow(":/icon_read.png") << QSize(408, 409);
    QTest::newRow(":/icon_write.png") << QSize(408, 409);
    QTest::newRow(":/icon_load.png") << QSize(408, 408);
    QTest::newRow(":/icon_start.png") << QSize(408, 409);
    QTest::newRow(":/logo_prw_nobg.png") << QSize(1143, 380);
}

void TestResourcesImages::image()
{
    const QImage image(QLatin1String(QTest::currentDataTag()), "PNG");
    QTEST(image.size(), "size");
}

void TestResourcesImages::iconHasFiveSizes()
{
    QImageReader reader(QStringLiteral(":/logo.ico"), "ico");
    QCOMPARE(reader.imageCount(), 5);
    QSize smallest(1000, 1000);
    for (int i = 0; i < reader.imageCount(); ++i) {
        QVERIFY(reader.jumpToImage(i));
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        smallest = smallest.boundedTo(image.size());
    }
    QCOMPARE(smallest, QSize(16, 16));
}

void TestResourcesImages::macIconIsANote()
{
    const QByteArray note = read(QStringLiteral(":/logo.icns"));
    QCOMPARE(note.size(), 720);
    QVERIFY(!note.startsWith("icns"));
    for (const char letter : note)
        QVERIFY((letter >= ' ' && letter <= '~') || letter == '\n');
}

void TestResourcesImages::screenshot_data()
{
    QTest::addColumn<QString>("path");
    for (const char* language : {"en", "it", "pt_br"}) {
        for (const char* name : screenshots) {
            const QString path =
                QStringLiteral(":/images/%1/guide/%1/%2").arg(QLatin1String(language), QLatin1String(name));
            QTest::newRow(qPrintable(path)) << path;
        }
    }
}

void TestResourcesImages::screenshot()
{
    QFETCH(const QString, path);
    const QImage image(path, "PNG");
    QVERIFY(!image.isNull());
    QVERIFY(image.width() <= guideWidth);
    QVERIFY(image.width() > 200 && image.height() > 40);
}

void TestResourcesImages::portugueseSetIsTheEnglishOne_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : screenshots)
        QTest::newRow(name) << name;
}

void TestResourcesImages::portugueseSetIsTheEnglishOne()
{
    QFETCH(const QString, name);
    const QByteArray bytes = read(QStringLiteral(":/images/en/guide/en/") + name);
    QVERIFY(!bytes.isEmpty());
    QCOMPARE(read(QStringLiteral(":/images/pt_br/guide/pt_br/") + name), bytes);
}

void TestResourcesImages::screenshotsDiffer()
{
    QList<QByteArray> seen;
    for (const char* name : screenshots) {
        const QByteArray bytes = read(QStringLiteral(":/images/en/guide/en/") + QLatin1String(name));
        QVERIFY2(!seen.contains(bytes), name);
        seen << bytes;
    }
}

QTEST_APPLESS_MAIN(TestResourcesImages)
#include "tst_resources_images.moc"
