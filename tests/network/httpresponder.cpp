// A web server that does what a test tells it.

#include "network/httpresponder.h"

#include <QTcpSocket>

HttpResponder::HttpResponder(quint16 port)
{
    if (!server.listen(QHostAddress(QStringLiteral("127.2.0.1")), port))
        qFatal("no web server: %s", qPrintable(server.errorString()));
    connect(&server, &QTcpServer::newConnection, this, [this] {
        QTcpSocket* socket = server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { take(socket); });
    });
}

void HttpResponder::release()
{
    held = false;
    for (QTcpSocket* socket : qAsConst(waiting))
        respond(socket);
    waiting.clear();
}

// The head may come in pieces.
void HttpResponder::take(QTcpSocket* socket)
{
    if (!socket->peek(socket->bytesAvailable()).endsWith("\r\n\r\n"))
        return;
    received << socket->readAll();
    if (held)
        waiting << socket;
    else
        respond(socket);
}

void HttpResponder::respond(QTcpSocket* socket) const
{
    if (answer.isEmpty())
        return;
    socket->write(answer);
    socket->disconnectFromHost();
}

QByteArray httpAnswer(const QByteArray& body)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}
