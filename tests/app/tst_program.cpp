// The program as a process of its own: its window comes up whatever the arguments, and closing it is the end.
//
// Runs on an X server, where a window can be closed from outside as a window manager does it.

#include "programrig.h"
#include "support/workfolder.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopedPointer>
#include <QSize>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <functional>

namespace {

const QString italianName = QStringLiteral("brumaloger-config-gui_it.qm");
const QString configurationName = QStringLiteral("blconf");
const QByteArray unreadable = "Unable to read configuration file.";
const QString title = QStringLiteral("Brumalogger Configuration Tool");

/// Log lines without the one that shows when the configuration was written.
QByteArray undated(const QByteArray& log)
{
    QList<QByteArray> lines = log.split('\n');
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QByteArray& line) { return line.contains("_gendate_:"); }),
                lines.end());
    return lines.join('\n');
}

/// What a first start leaves in the configuration, besides the size of the computer's own font.
Settings defaults()
{
    return {{QStringLiteral("preseten"), QStringLiteral("0")},
            {QStringLiteral("presetpath"), QString()},
            {QStringLiteral("timeserver"), QStringLiteral("time.google.com")},
            {QStringLiteral("disabletime"), QStringLiteral("0")},
            {QStringLiteral("useserverpool"), QStringLiteral("0")},
            {QStringLiteral("disablefast"), QStringLiteral("0")},
            {QStringLiteral("winwidth"), QStringLiteral("850")},
            {QStringLiteral("winheight"), QStringLiteral("789")}};
}

/// The configuration that the program left, without the font's size if there is one.
Settings configurationBesidesTheFont()
{
    Settings left = WorkFolder::configuration();
    if (left.value(QStringLiteral("fontsize")).toInt() > 0)
        left.remove(QStringLiteral("fontsize"));
    return left;
}

/// Puts something in the place of a file.
using FilePlace = std::function<bool(const QString& path)>;

} // namespace

Q_DECLARE_METATYPE(FilePlace)

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void runsUntilItsWindowIsClosed();
    void ignoresItsArguments_data();
    void ignoresItsArguments();
    void keepsItsSettingsFromStartToStart_data();
    void keepsItsSettingsFromStartToStart();
    void firstStartLeavesItsDefaults();
    void startsWithADamagedFile_data();
    void startsWithADamagedFile();
    void startsWithoutAFileToOpen_data();
    void startsWithoutAFileToOpen();
    void startsWithAForbiddenFile();
    void logsItsLanguage_data();
    void logsItsLanguage();
    void looksForNothingBesideItself();

private:
    /// The lines of its log in which the program says that it is unable to do or doesn't support something.
    QByteArray complaints(const QString& file, const QStringList& arguments = {});
    /// Goes to a new folder.
    void enter(const Settings& settings);

    QScopedPointer<Screen> screen;
    QScopedPointer<ProgramRig> program;
    QScopedPointer<WorkFolder> folder;
    QSize lastSize; ///< of the window that complaints() saw
};

// Stays connected all the time: an X server without clients starts all over again.
void TestProgram::initTestCase()
{
    screen.reset(new Screen);
    QVERIFY(screen->isConnected());
}

void TestProgram::cleanupTestCase()
{
    screen.reset();
}

void TestProgram::init()
{
    program.reset(new ProgramRig(*screen));
    folder.reset(new WorkFolder({{QStringLiteral("fontsize"), QStringLiteral("9")}}));
}

void TestProgram::cleanup()
{
    program.reset();
    folder.reset();
}

QByteArray TestProgram::complaints(const QString& file, const QStringList& arguments)
{
    const xcb_window_t window = program->start(arguments, file);
    lastSize = window == 0 ? QSize() : screen->sizeOf(window);
    if (window == 0 || !program->end(window))
        return "the program did not run";
    QByteArrayList lines;
    for (const QByteArray& line : program->process.readAllStandardError().split('\n')) {
        if (line.startsWith("Un"))
            lines << line;
    }
    return lines.join('\n');
}

void TestProgram::enter(const Settings& settings)
{
    folder.reset(); // first, for it leads back to where it came from
    folder.reset(new WorkFolder(settings));
}

void TestProgram::runsUntilItsWindowIsClosed()
{
    const xcb_window_t window = program->start({});
    QVERIFY(window != 0);
    QCOMPARE(screen->titleOf(window), title);
    QCOMPARE(screen->sizeOf(window), QSize(850, 789));
    QCOMPARE(program->process.state(), QProcess::Running);

    QVERIFY(program->end(window));
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
}

void TestProgram::ignoresItsArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList("--help");
    QTest::newRow("version") << QStringList("--version");
    QTest::newRow("unknown option") << QStringList("--frobnicate=7");
    QTest::newRow("file") << QStringList("some.preset");
    QTest::newRow("port") << QStringList("/dev/ttyACM0");
    QTest::newRow("empty") << QStringList(QString());
    QTest::newRow("many") << QStringList({"-c", "-v", "--", "-", "1", "Ünïcode"});
}

void TestProgram::ignoresItsArguments()
{
    QFETCH(const QStringList, arguments);
    const xcb_window_t plain = program->start({});
    QVERIFY(plain != 0);
    const QSize plainSize = screen->sizeOf(plain);
    QVERIFY(program->end(plain));
    const QByteArray plainErrors = undated(program->process.readAllStandardError());
    QCOMPARE(program->process.readAllStandardOutput(), QByteArray());

    const xcb_window_t window = program->start(arguments);
    QVERIFY(window != 0);
    QCOMPARE(screen->titleOf(window), title);
    QCOMPARE(screen->sizeOf(window), plainSize);
    QVERIFY(program->end(window));
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
    QCOMPARE(program->process.readAllStandardOutput(), QByteArray());
    QCOMPARE(undated(program->process.readAllStandardError()), plainErrors);
}

void TestProgram::keepsItsSettingsFromStartToStart_data()
{
    Settings left{{QStringLiteral("fontsize"), QStringLiteral("11")},
                  {QStringLiteral("preseten"), QStringLiteral("0")},
                  {QStringLiteral("presetpath"), QStringLiteral("/größer/some.bpr")},
                  {QStringLiteral("timeserver"), QStringLiteral("stdtime.gov.hk")},
                  {QStringLiteral("disabletime"), QStringLiteral("1")},
                  {QStringLiteral("useserverpool"), QStringLiteral("0")},
                  {QStringLiteral("disablefast"), QStringLiteral("1")},
                  {QStringLiteral("language"), QStringLiteral("en_us")},
                  {QStringLiteral("winwidth"), QStringLiteral("910")},
                  {QStringLiteral("winheight"), QStringLiteral("805")}};
    Settings found = left;
    found.remove(QStringLiteral("preseten"));
    found.insert(QStringLiteral("disablefast"), QStringLiteral("7"));
    QTest::addColumn<Settings>("found");
    QTest::addColumn<Settings>("left");
    QTest::newRow("without preset and time") << found << left;

    const Settings other{{QStringLiteral("preseten"), QStringLiteral("1")},
                         {QStringLiteral("useserverpool"), QStringLiteral("1")},
                         {QStringLiteral("disabletime"), QStringLiteral("0")},
                         {QStringLiteral("disablefast"), QStringLiteral("0")}};
    for (auto setting = other.cbegin(); setting != other.cend(); ++setting)
        left.insert(setting.key(), setting.value());
    QTest::newRow("with preset and the pool's time") << left << left;
}

void TestProgram::keepsItsSettingsFromStartToStart()
{
    QFETCH(const Settings, found);
    enter(found);
    for (int round = 0; round < 2; round++) {
        const xcb_window_t window = program->start({});
        QVERIFY(window != 0);
        QCOMPARE(screen->sizeOf(window), QSize(910, 805));
        QVERIFY(program->end(window));
        QTEST(WorkFolder::configuration(), "left");
    }
}

void TestProgram::firstStartLeavesItsDefaults()
{
    enter({});
    const xcb_window_t window = program->start({});
    QVERIFY(window != 0);
    QVERIFY(program->end(window));
    QCOMPARE(configurationBesidesTheFont(), defaults());
}

void TestProgram::startsWithADamagedFile_data()
{
    QByteArray binary;
    QRandomGenerator random(12);
    for (int i = 0; i < 5000; ++i)
        binary.append(static_cast<char>(random.generate()));
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("binary") << binary;
    QTest::newRow("enormous") << "2.0\n" + QByteArray(8 << 20, 'A');
}

void TestProgram::startsWithADamagedFile()
{
    QFETCH(const QByteArray, bytes);
    QFile file(QStringLiteral("blconf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
    file.close();
    const xcb_window_t window = program->start({});
    QVERIFY(window != 0);
    QVERIFY(program->end(window));
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
    QCOMPARE(configurationBesidesTheFont(), defaults());
}

void TestProgram::startsWithoutAFileToOpen_data()
{
    QTest::addColumn<FilePlace>("place");
    QTest::newRow("a folder in its place")
        << FilePlace([](const QString& path) { return QDir().mkdir(path); });
    QTest::newRow("a link to itself")
        << FilePlace([](const QString& path) { return QFile::link(path, path); });
}

// Nothing of it is read, and what is in its place stays there.
void TestProgram::startsWithoutAFileToOpen()
{
    QFETCH(const FilePlace, place);
    enter({});
    QVERIFY(place(configurationName));
    QCOMPARE(complaints(QStringLiteral(PROGRAM_FILE)), unreadable);
    QCOMPARE(lastSize, QSize(850, 789));
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
             QStringList(configurationName));
    QVERIFY(!QFileInfo(configurationName).isFile());
}

// The superuser may read any file, unless that right is taken away.
void TestProgram::startsWithAForbiddenFile()
{
    const Settings hidden{{QStringLiteral("winwidth"), QStringLiteral("910")},
                          {QStringLiteral("winheight"), QStringLiteral("805")},
                          {QStringLiteral("language"), QStringLiteral("xx_yy")}};
    enter(hidden);
    QVERIFY(QFile::setPermissions(configurationName, {}));
    if (QFileInfo(configurationName).isReadable())
        QCOMPARE(complaints(QStringLiteral("setpriv"),
                            {QStringLiteral("--bounding-set=-dac_override,-dac_read_search"),
                             QStringLiteral(PROGRAM_FILE)}),
                 unreadable);
    else
        QCOMPARE(complaints(QStringLiteral(PROGRAM_FILE)), unreadable);
    QCOMPARE(lastSize, QSize(850, 789));
    QCOMPARE(program->process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program->process.exitCode(), 0);
    QVERIFY(QFile::setPermissions(configurationName, QFile::ReadOwner));
    QCOMPARE(WorkFolder::configuration(), hidden);
}

void TestProgram::logsItsLanguage_data()
{
    QTest::addColumn<QByteArray>("complaint");
    QTest::newRow("xx_yy") << QByteArray("Unsupported language setting: \"xx_yy\"");
    QTest::newRow("fr_fr") << QByteArray("Unable to load translation file \"brumaloger-config-gui_fr\"");
    QTest::newRow("it_ch") << QByteArray();
}

void TestProgram::logsItsLanguage()
{
    QFETCH(const QByteArray, complaint);
    enter({{QStringLiteral("language"), QLatin1String(QTest::currentDataTag())}});
    QVERIFY(QFile::copy(QStringLiteral(ITALIAN_FILE), italianName));
    QCOMPARE(complaints(QStringLiteral(PROGRAM_FILE)), complaint);
}

void TestProgram::looksForNothingBesideItself()
{
    const QTemporaryDir home;
    const QString file = home.filePath(QStringLiteral("brumalogger-config-gui"));
    enter({{QStringLiteral("language"), QStringLiteral("xx_yy")}});
    QVERIFY(QFile::copy(QStringLiteral("blconf"), home.filePath(QStringLiteral("blconf"))));
    QVERIFY(QFile::copy(QStringLiteral(PROGRAM_FILE), file));
    enter({});
    QCOMPARE(complaints(file), unreadable);
    QCOMPARE(configurationBesidesTheFont(), defaults());

    enter({{QStringLiteral("language"), QStringLiteral("it_ch")}});
    QVERIFY(QFile::copy(QStringLiteral(ITALIAN_FILE), home.filePath(italianName)));
    QCOMPARE(complaints(file), QByteArray("Unable to load translation file \"brumaloger-config-gui_it\""));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
