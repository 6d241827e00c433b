#include <LibControl/services/qserversocket.h>

#include <QDebug>
#include <QTcpServer>
#include <QTcpSocket>

QServerSocket::QServerSocket(int port, QObject *parent)
    : QObject(parent)
    , m_port(port)
    , m_server(new QTcpServer(this))
{
    // Lets dataReceived() cross threads and be recorded by signal spies.
    qRegisterMetaType<QTcpSocket *>();
    connect(m_server, &QTcpServer::newConnection, this, &QServerSocket::newConnection);
    const bool listening = m_server->listen(QHostAddress::LocalHost, static_cast<quint16>(port));
    qInfo() << "port:" << m_port << " Listening:" << (listening ? "succ" : "fail");
    if (listening)
        qInfo() << "Listening: succ";
    else
        qCritical().noquote() << "Listening failed! Reason:" << m_server->errorString();
}

QServerSocket::~QServerSocket()
{
    // The sockets are children of the server and go with it; only the
    // buffers are ours to free.
    qDeleteAll(m_buffers);
    qDeleteAll(m_counters);
}

void QServerSocket::close()
{
    m_server->close();
}

QString QServerSocket::errorString() const
{
    return m_server->errorString();
}

bool QServerSocket::isListening() const
{
    return m_server->isListening();
}

quint16 QServerSocket::serverPort() const
{
    return m_server->serverPort();
}

void QServerSocket::newConnection()
{
    while (m_server->hasPendingConnections()) {
        QTcpSocket *socket = m_server->nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, &QServerSocket::readyRead);
        connect(socket, &QTcpSocket::disconnected, this, &QServerSocket::disconnected);
        // A socket deleted by a receiver of dataReceived() never reports its
        // disconnection; its buffer must not outlive it.
        connect(socket, &QObject::destroyed, this, [this, socket] { release(socket); });
        release(socket);
        m_buffers.insert(socket, new QByteArray);
        m_counters.insert(socket, new int(0));
    }
}

void QServerSocket::readyRead()
{
    auto *socket = qobject_cast<QTcpSocket *>(sender());
    QByteArray *buffer = m_buffers.value(socket);
    if (!buffer)
        return;
    while (socket->bytesAvailable() > 0)
        buffer->append(socket->readAll());
    emit dataReceived(socket, *buffer);
}

void QServerSocket::disconnected()
{
    auto *socket = qobject_cast<QTcpSocket *>(sender());
    if (!socket)
        return;
    release(socket);
    socket->deleteLater();
}

void QServerSocket::release(QTcpSocket *socket)
{
    delete m_buffers.take(socket);
    delete m_counters.take(socket);
}
