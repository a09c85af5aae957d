#pragma once

#include <QByteArray>
#include <QObject>
#include <QTcpServer>

/// A web server under a test's control, at the maker's address: takes requests of any kind and answers each
/// with the same bytes, however wrong they are, or not at all.
class HttpResponder : public QObject
{
    Q_OBJECT

public:
    explicit HttpResponder(quint16 port = 80);

    /// The answer, head and all, after which the connection is closed. Without one there is silence.
    void setAnswer(const QByteArray& bytes) { answer = bytes; }
    /// Holds back every answer until release().
    void hold() { held = true; }
    /// Answers what was held back, and from now on at once.
    void release();
    /// The heads of all requests so far, as they came.
    const QByteArrayList& requests() const { return received; }

private:
    void take(QTcpSocket* socket);
    void respond(QTcpSocket* socket) const;

    QTcpServer server;
    QByteArray answer;
    QByteArrayList received;
    QList<QTcpSocket*> waiting;
    bool held = false;
};

/// A complete answer with @p body.
QByteArray httpAnswer(const QByteArray& body);
