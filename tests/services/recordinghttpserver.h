#ifndef LIBCONTROL_TESTS_RECORDINGHTTPSERVER_H
#define LIBCONTROL_TESTS_RECORDINGHTTPSERVER_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>

/**
 * A one-thread HTTP/1.1 server on 127.0.0.1 (a free port) that records the
 * raw bytes of every request and answers each with a canned response. It is
 * served by whatever event loop runs, the client's nested one included.
 */
class RecordingHttpServer : public QObject
{
public:
    struct Request
    {
        QByteArray head; // request line and headers, without the blank line
        QByteArray body;

        QByteArray requestLine() const { return head.left(head.indexOf("\r\n")); }
        /** The value of header `name` (any case); null when absent. */
        QByteArray header(const QByteArray &name) const
        {
            for (const QByteArray &line : head.split('\n')) {
                const int colon = line.indexOf(':');
                if (colon > 0 && line.left(colon).trimmed().toLower() == name.toLower())
                    return line.mid(colon + 1).trimmed();
            }
            return QByteArray();
        }
    };

    RecordingHttpServer()
    {
        connect(&m_server, &QTcpServer::newConnection, this, &RecordingHttpServer::accept);
        m_server.listen(QHostAddress::LocalHost, 0);
    }

    QByteArray url(const char *path = "/svc") const
    {
        return "http://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + path;
    }

    void setResponse(const QByteArray &body, int status = 200)
    {
        m_body = body;
        m_status = status;
    }
    /** Makes the server accept requests and never answer them. */
    void setSilent(bool silent) { m_silent = silent; }

    QList<Request> requests;
    int connections = 0;

private:
    void accept()
    {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            ++connections;
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_pending.remove(socket);
                socket->deleteLater();
            });
        }
    }

    void read(QTcpSocket *socket)
    {
        QByteArray &pending = m_pending[socket];
        pending += socket->readAll();
        const int end = pending.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        Request request { pending.left(end), QByteArray() };
        const int length = request.header("Content-Length").toInt();
        if (pending.size() < end + 4 + length)
            return;
        request.body = pending.mid(end + 4, length);
        pending.remove(0, end + 4 + length);
        requests.append(request);
        if (!m_silent)
            respond(socket);
    }

    void respond(QTcpSocket *socket)
    {
        socket->write("HTTP/1.1 " + QByteArray::number(m_status)
            + " Canned\r\nContent-Type: text/plain\r\n"
              "Content-Length: "
            + QByteArray::number(m_body.size()) + "\r\nConnection: close\r\n\r\n");
        socket->write(m_body);
        socket->disconnectFromHost();
    }

    QHash<QTcpSocket *, QByteArray> m_pending;
    QByteArray m_body = "canned reply";
    int m_status = 200;
    bool m_silent = false;
    // Last, so that its sockets go first and their disconnection still finds m_pending.
    QTcpServer m_server;
};

#endif
