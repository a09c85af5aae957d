// The line as such, read with plain system calls at the other end.

#include "simulator/pseudoterminal.h"

#include <QSignalSpy>
#include <QTest>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// The reader's end, opened as a program would open it.
class Reader
{
public:
    explicit Reader(const PseudoTerminal& line)
        : end(open(line.path().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
    }
    ~Reader() { close(); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    bool isOpen() const { return end >= 0; }
    void close()
    {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
    bool send(const QByteArray& bytes) const
    {
        return write(end, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size();
    }
    /// What stands ready, at most a whole buffer of it.
    QByteArray take() const
    {
        std::array<char, 8192> bytes{};
        const ssize_t count = read(end, bytes.data(), bytes.size());
        return count > 0 ? QByteArray(bytes.data(), static_cast<int>(count)) : QByteArray();
    }
    /// The next bytes that come.
    QByteArray await() const
    {
        QByteArray bytes;
        const bool came = QTest::qWaitFor([&] { return !(bytes = take()).isEmpty(); });
        return came ? bytes : QByteArray("(nothing)");
    }

private:
    int end;
};

} // namespace

class TestPseudoTerminal : public QObject
{
    Q_OBJECT

private slots:
    void carriesBytesUnchanged();
    void givesNoEcho();
    void livesThroughReaders();
    void carriesMoreThanItHolds();
    void keepsPiecesApart();
    void announcesNothingUnasked();
    void hangsUpAtClose();
    void closesFromWithinItsSignal();
};

void TestPseudoTerminal::carriesBytesUnchanged()
{
    PseudoTerminal line;
    QVERIFY(line.isOpen());
    const Reader reader(line);
    QVERIFY(reader.isOpen());
    QByteArray allBytes;
    for (int byte = 0; byte < 256; ++byte)
        allBytes.append(static_cast<char>(byte));
    line.send(allBytes);
    QCOMPARE(reader.await(), allBytes);

    QSignalSpy received(&line, &PseudoTerminal::sReceived);
    QVERIFY(reader.send(allBytes));
    QVERIFY(received.wait());
    QCOMPARE(received.count(), 1);
    QCOMPARE(received.first().first().toByteArray(), allBytes);
}

void TestPseudoTerminal::givesNoEcho()
{
    PseudoTerminal line;
    QSignalSpy received(&line, &PseudoTerminal::sReceived);
    line.send("echo\r\n"); // before anyone has set up the terminal
    const Reader reader(line);
    QCOMPARE(reader.await(), QByteArray("echo\r\n"));
    QVERIFY(reader.send("Gs"));
    QVERIFY(received.wait());
    QCOMPARE(received.first().first().toByteArray(), QByteArray("Gs"));
}

void TestPseudoTerminal::livesThroughReaders()
{
    PseudoTerminal line;
    QSignalSpy received(&line, &PseudoTerminal::sReceived);
    for (int turn = 1; turn <= 3; ++turn) {
        Reader reader(line);
        QVERIFY(reader.send("i"));
        QTRY_COMPARE(received.count(), turn);
        line.send("reply");
        QCOMPARE(reader.await(), QByteArray("reply"));
        reader.close();
    }
    QVERIFY(line.isOpen());
}

void TestPseudoTerminal::carriesMoreThanItHolds()
{
    PseudoTerminal line;
    const Reader reader(line);
    const QByteArray much(100000, 'x');
    line.send(much);
    line.send("end");
    QByteArray taken;
    QTRY_VERIFY((taken += reader.take()).endsWith("end"));
    QCOMPARE(taken.size(), much.size() + 3);
}

void TestPseudoTerminal::keepsPiecesApart()
{
    PseudoTerminal line;
    const Reader reader(line);
    QSignalSpy taken(&line, &PseudoTerminal::sTaken);
    line.send("before");
    line.sendPieces({"o", {}, "k", "\r\n"});
    for (const char* piece : {"before", "o", "k", "\r\n"}) {
        QCOMPARE(taken.count(), 0);
        QCOMPARE(reader.await(), QByteArray(piece));
    }
    QTRY_COMPARE(taken.count(), 1);
}

void TestPseudoTerminal::announcesNothingUnasked()
{
    PseudoTerminal line;
    const Reader reader(line);
    QSignalSpy taken(&line, &PseudoTerminal::sTaken);
    line.send("plain");
    QCOMPARE(reader.await(), QByteArray("plain"));
    line.sendPieces({"apart"});
    QCOMPARE(reader.await(), QByteArray("apart"));
    QTRY_COMPARE(taken.count(), 1);
}

void TestPseudoTerminal::hangsUpAtClose()
{
    PseudoTerminal line;
    const Reader reader(line);
    QVERIFY(reader.take().isEmpty());
    QCOMPARE(errno, EAGAIN);
    line.close();
    QVERIFY(!line.isOpen());
    line.send("too late");
    QVERIFY(reader.take().isEmpty());
    QVERIFY(!reader.send("x"));
    QCOMPARE(errno, EIO);
    line.close();
}

void TestPseudoTerminal::closesFromWithinItsSignal()
{
    PseudoTerminal line;
    const Reader reader(line);
    QSignalSpy received(&line, &PseudoTerminal::sReceived);
    connect(&line, &PseudoTerminal::sReceived, &line, [&line] { line.close(); });
    QVERIFY(reader.send("i"));
    QVERIFY(received.wait());
    QVERIFY(!line.isOpen());
    QVERIFY(!reader.send("i"));
    QCOMPARE(received.count(), 1);
}

QTEST_GUILESS_MAIN(TestPseudoTerminal)
#include "tst_pseudoterminal.moc"
