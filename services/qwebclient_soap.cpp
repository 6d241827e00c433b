// Hand-made multipart posts, SOAP calls and the authorisation helpers.

#include <LibControl/services/qwebclient.h>

#include <LibControl/common/cstring.h>

#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkRequest>

#include <climits>
#include <cstring>

namespace {

bool isGiven(const char *text)
{
    return text && *text;
}

std::string stdUpToNul(const QByteArray &data)
{
    const int nul = data.indexOf('\0');
    return std::string(data.constData(), size_t(nul < 0 ? data.size() : nul));
}

void addBasicOrBearer(QNetworkRequest &request, const char *user, const char *password)
{
    if (user && qstricmp(user, "authorization_bearer") == 0) {
        requestAddAuthHeader(request, password, "Bearer");
        return;
    }
    if (!isGiven(user))
        return;
    const QByteArray pair = QByteArray(user) + ':' + QByteArray(password ? password : "");
    QByteArray encoded(Base64encode_len(pair.size()), '\0');
    Base64encode(encoded.data(), pair.constData(), pair.size());
    requestAddAuthHeader(request, encoded.constData(), "Basic");
}

QHttpPart soapEnvelopePart(const CString &envelope)
{
    QHttpPart part;
    part.setRawHeader("Content-Type", "text/xml; charset=iso-8859-1");
    part.setRawHeader("Content-Transfer-Encoding", "8bit");
    part.setRawHeader("Content-ID", "<soapPart>");
    part.setBody(envelope.toLocal8Bit());
    return part;
}

QHttpPart soapAttachmentPart(const std::string &attachment)
{
    QHttpPart part;
    part.setRawHeader("Content-Type", "text/plain; charset=iso-8859-1");
    part.setBody(QByteArray(attachment.data(), int(attachment.size())));
    return part;
}

} // namespace

bool QWebClient::postByMultiPart(QString &result, const char *name, const char *content)
{
    // No blank line between the part header and the content: the receiving
    // servers parse exactly this layout.
    QByteArray body = QByteArray("--AaB03x\r\nContent-Disposition: form-data; name=\"") + name + "\";\r\n";
    body += content;
    body += "\r\n--AaB03x--\r\n";

    QNetworkRequest request = newRequest(urlText() + QLatin1String("?fn=1&md=2"));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArray("multipart/form-data; boundary=AaB03x"));
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    const QByteArray reply = waitFor(startManager()->post(request, body), Hooks::None);
    result = QString::fromUtf8(stdUpToNul(reply).c_str());
    return true;
}

bool QWebClient::postSoapXML(
    const std::string &body, const QString &contentType, const char *user, const char *password, std::string &result)
{
    return postSoapXML(QByteArray(body.data(), int(body.size())), contentType, user, password, result);
}

bool QWebClient::postSoapXML(
    const QByteArray &body, const QString &contentType, const char *user, const char *password, std::string &result)
{
    QNetworkRequest request = newRequest(urlText());
    request.setHeader(QNetworkRequest::ContentTypeHeader, contentType);
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    request.setRawHeader("SOAPAction", "testest");
    addBasicOrBearer(request, user, password);
    result = stdUpToNul(waitFor(startManager()->post(request, body), Hooks::None));
    return true;
}

bool QWebClient::callSoapT2(const CString &envelope, const std::string &attachment, QString &result)
{
    QNetworkRequest request = newRequest(urlText());
    request.setHeader(QNetworkRequest::ContentTypeHeader,
        QByteArray("multipart/related; boundary=\"MULTI-PARTS-FORM-DATA-BOUNDARY\"; "
                   "type=\"text/xml\"; start=\"<soapPart>\""));
    request.setRawHeader("SOAPAction", "testest");
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);

    QNetworkAccessManager *manager = startManager();
    auto *body = new QHttpMultiPart(QHttpMultiPart::RelatedType, manager);
    body->setBoundary("MULTI-PARTS-FORM-DATA-BOUNDARY");
    body->append(soapEnvelopePart(envelope));
    body->append(soapAttachmentPart(attachment));
    const QByteArray reply = waitFor(manager->post(request, body), Hooks::None);
    result = QString::fromUtf8(stdUpToNul(reply).c_str());
    return true;
}

void requestAddAuthHeader(QNetworkRequest &request, const char *credentials, const char *scheme)
{
    if (!isGiven(credentials) || !isGiven(scheme))
        return;
    const QString value
        = QStringLiteral("%1 %2").arg(QString::fromLocal8Bit(scheme), QString::fromLocal8Bit(credentials));
    request.setRawHeader("Authorization", value.toLocal8Bit());
}

int Base64encode_len(int len)
{
    const qint64 groups = (qMax(len, 0) + qint64(2)) / 3;
    return int(qMin<qint64>(groups * 4 + 1, INT_MAX));
}

int Base64encode(char *encoded, const char *string, int len)
{
    if (!encoded)
        return 0;
    const QByteArray text = string && len > 0 ? QByteArray::fromRawData(string, len).toBase64() : QByteArray();
    std::memcpy(encoded, text.constData(), size_t(text.size()));
    encoded[text.size()] = '\0';
    return text.size() + 1;
}
