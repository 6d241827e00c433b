// Network commands: a loopback server that shows what arrives, and HTTP requests.

#include "commands.h"

#include <LibControl/services/qserversocket.h>
#include <LibControl/services/qwebclient.h>

#include <QCoreApplication>
#include <QTcpSocket>
#include <QUrl>
#include <QUrlQuery>

namespace {

constexpr int PreviewBytes = 40;
constexpr int HttpTimeoutMs = 60000;

// Printable ASCII as is, everything else as \xNN, cut after PreviewBytes.
QString preview(const QByteArray &data)
{
    QString text;
    for (const char c : data.left(PreviewBytes)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte < 0x7f && byte != '\\')
            text += QLatin1Char(c);
        else
            text += QStringLiteral("\\x%1").arg(uint(byte), 2, 16, QLatin1Char('0'));
    }
    if (data.size() > PreviewBytes)
        text += QStringLiteral("...");
    return text;
}

bool splitPairs(Tool::Context &ctx, const QStringList &pairs, QList<QPair<QByteArray, QByteArray>> &items)
{
    for (const QString &pair : pairs) {
        const int equals = pair.indexOf(QLatin1Char('='));
        if (equals <= 0) {
            Tool::usageError(ctx, "http", QStringLiteral("expects NAME=VALUE, got \"%1\"").arg(pair));
            return false;
        }
        items.append({ pair.left(equals).toUtf8(), pair.mid(equals + 1).toUtf8() });
    }
    return true;
}

} // namespace

namespace Tool {

int serveCommand(Context &ctx)
{
    if (ctx.args.size() != 1)
        return usageError(ctx, "serve", QStringLiteral("expects PORT"));
    int port = 0;
    if (!parseInt(ctx, "serve", ctx.args[0], port))
        return Usage;
    if (port < 0 || port > 65535)
        return usageError(ctx, "serve", QStringLiteral("port out of range: %1").arg(port));

    QServerSocket server(port);
    if (!server.isListening()) {
        ctx.err << "libcontrol serve: cannot listen on 127.0.0.1:" << port << ": " << server.errorString() << '\n';
        return Failed;
    }
    ctx.out << "listening on 127.0.0.1:" << server.serverPort() << " (interrupt to stop)\n";
    ctx.out.flush();
    QObject::connect(&server, &QServerSocket::dataReceived, [&ctx](QTcpSocket *socket, const QByteArray &data) {
        ctx.out << "connection " << socket->peerPort() << ": " << data.size() << " bytes: " << preview(data) << '\n';
        ctx.out.flush();
    });
    return QCoreApplication::exec();
}

int httpCommand(Context &ctx)
{
    if (ctx.args.size() < 2)
        return usageError(ctx, "http", QStringLiteral("expects get|post URL [NAME=VALUE...]"));
    const QString method = ctx.args[0];
    if (method != QLatin1String("get") && method != QLatin1String("post"))
        return usageError(ctx, "http", QStringLiteral("unknown method \"%1\"").arg(method));
    QUrl url(ctx.args[1], QUrl::StrictMode);
    if (!url.isValid() || (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https")))
        return usageError(ctx, "http", QStringLiteral("not an http or https URL: \"%1\"").arg(ctx.args[1]));
    QList<QPair<QByteArray, QByteArray>> items;
    if (!splitPairs(ctx, ctx.args.mid(2), items))
        return Usage;

    QString result;
    if (method == QLatin1String("get")) {
        // The client sends GET to its URL as is, so the pairs go into the URL.
        QUrlQuery query(url);
        for (const auto &item : items)
            query.addQueryItem(QString::fromUtf8(item.first), QString::fromUtf8(item.second));
        url.setQuery(query);
        QWebClient client(url.toEncoded().constData(), false);
        client.setTimeoutMs(HttpTimeoutMs);
        client.get(result);
    } else {
        QWebClient client(url.toEncoded().constData(), false);
        client.setTimeoutMs(HttpTimeoutMs);
        for (const auto &item : items)
            client.addQueryItem(item.first.constData(), item.second.constData());
        client.post(result);
    }
    ctx.out << result << '\n';
    return Ok;
}

} // namespace Tool
