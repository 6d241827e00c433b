#include <LibControl/common/encodings.h>

#include <QUrl>

namespace {

bool isBase64Char(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '/';
}

bool isAsciiSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

// QByteArray::fromBase64 accepts anything and skips what it does not know,
// so the text is checked first.
bool isWellFormedBase64(QByteArray const &compact)
{
    if (compact.size() % 4 != 0)
        return false;
    int padding = 0;
    if (compact.endsWith("=="))
        padding = 2;
    else if (compact.endsWith('='))
        padding = 1;
    int const dataChars = compact.size() - padding;
    for (int i = 0; i < dataChars; ++i) {
        if (!isBase64Char(compact.at(i)))
            return false;
    }
    return true;
}

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

QByteArray base64Encode(QByteArray const &data)
{
    return data.toBase64();
}

bool base64Decode(QByteArray const &text, QByteArray &out)
{
    out.clear();
    QByteArray compact;
    compact.reserve(text.size());
    for (char c : text) {
        if (!isAsciiSpace(c))
            compact += c;
    }
    if (!isWellFormedBase64(compact))
        return false;
    out = QByteArray::fromBase64(compact);
    return true;
}

QByteArray urlEncode(QString const &text)
{
    return QUrl::toPercentEncoding(text);
}

QString urlDecode(QByteArray const &encoded)
{
    // Qt's decoder turns a malformed escape into a garbage byte; keep it instead.
    QByteArray bytes;
    bytes.reserve(encoded.size());
    for (int i = 0; i < encoded.size(); ++i) {
        int const high = i + 2 < encoded.size() ? hexValue(encoded.at(i + 1)) : -1;
        int const low = high >= 0 ? hexValue(encoded.at(i + 2)) : -1;
        if (encoded.at(i) == '%' && low >= 0) {
            bytes += char(high * 16 + low);
            i += 2;
        } else {
            bytes += encoded.at(i);
        }
    }
    return QString::fromUtf8(bytes);
}

QByteArray urlEncodeForm(QVector<QPair<QString, QString>> const &fields)
{
    QByteArray body;
    for (auto const &field : fields) {
        if (!body.isEmpty())
            body += '&';
        body += urlEncode(field.first) + '=' + urlEncode(field.second);
    }
    return body;
}
