#ifndef LIBCONTROL_SERVICES_QSERVERSOCKET_H
#define LIBCONTROL_SERVICES_QSERVERSOCKET_H

#include <LibControl/libcontrol_export.h>

#include <QByteArray>
#include <QHash>
#include <QObject>

class QTcpServer;
class QTcpSocket;

/**
 * A TCP server on the loopback address (IPv4 127.0.0.1 only) that gathers
 * each connection's incoming bytes in a buffer of its own.
 *
 * After every read, dataReceived() carries everything the connection has
 * sent so far, not only the new bytes: there is no framing, the receiver
 * decides from the accumulated bytes when a message is complete. A
 * connection's socket and buffer are released when it disconnects.
 *
 * The outcome of listening is logged at construction ("port:", the port,
 * " Listening:" and "succ" or "fail"; then "Listening: succ", or the critical
 * "Listening failed! Reason:" and the error). A server that could not listen
 * (port taken, say) stays a valid object that never receives connections.
 * Everything runs in the owning thread's event loop.
 */
class LIBCONTROL_EXPORT QServerSocket : public QObject
{
    Q_OBJECT
public:
    /**
     * Starts listening on 127.0.0.1 at `port`, taken as a 16-bit unsigned
     * number; 0 picks a free port (see serverPort()).
     */
    explicit QServerSocket(int port, QObject *parent = nullptr);
    ~QServerSocket() override;

    /** Stops listening; open connections stay open. */
    void close();
    /** The server's last error text; empty while all went well. */
    QString errorString() const;
    /** True while the server accepts connections. */
    bool isListening() const;
    /** The port actually listened on (the chosen one when constructed with 0); 0 when not listening. */
    quint16 serverPort() const;

Q_SIGNALS:
    /** Everything `socket` has received so far; `socket` stays valid until control returns to the event loop. */
    void dataReceived(QTcpSocket *socket, QByteArray data);

public Q_SLOTS:
    /** Takes every pending connection and gives it an empty buffer. */
    void newConnection();
    /** Appends what the sending socket has available to its buffer and emits dataReceived(). */
    void readyRead();
    /** Releases the sending socket (later) and its buffer. */
    void disconnected();

private:
    void release(QTcpSocket *socket);

    int m_port;
    QTcpServer *m_server;
    QHash<QTcpSocket *, QByteArray *> m_buffers;
    // One per connection, set to 0 and not otherwise used.
    QHash<QTcpSocket *, int *> m_counters;
};

#endif
