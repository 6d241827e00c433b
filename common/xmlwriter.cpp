#include <LibControl/common/xmlwriter.h>

#include <cmath>
#include <limits>

namespace {

constexpr int EscapeMask = 4 | 8;

// Out-of-range amounts saturate and NaN gives 0 instead of an undefined cast.
long long roundHalfAwayFromZero(double value)
{
    double const rounded = std::trunc(value > 0 ? value + 0.5 : value - 0.5);
    if (std::isnan(rounded))
        return 0;
    if (rounded >= 9.2233720368547758e18)
        return std::numeric_limits<long long>::max();
    if (rounded <= -9.2233720368547758e18)
        return std::numeric_limits<long long>::min();
    return static_cast<long long>(rounded);
}

} // namespace

CString convertToXMLString(CString const &text, int maxLength, int flags)
{
    if ((flags & EscapeMask) == 0)
        return text;
    if (text.isEmpty() || maxLength < 0)
        return CString();
    int const count = maxLength == 0 ? text.length() : qMin(maxLength, text.length());
    QString out;
    out.reserve(count + 16);
    for (int i = 0; i < count; ++i) {
        QChar const c = text.at(i);
        switch (c.unicode()) {
        case '"': out += QLatin1String("&#34;"); break;
        case '\'': out += QLatin1String("&#39;"); break;
        case '&': out += QLatin1String("&#38;"); break;
        case '<': out += QLatin1String("&#60;"); break;
        case '>': out += QLatin1String("&#62;"); break;
        default: out += c;
        }
    }
    return CString(out);
}

CString convertToXMLString(CString const &text)
{
    return convertToXMLString(text, 0, 4);
}

CString convertToXMLString(CString const &text, int maxLength)
{
    return convertToXMLString(text, maxLength, 4);
}

void xmlWriteOpenTag(FILE *file, char const *tag)
{
    if (!file)
        return;
    fprintf(file, "<%s>\n", tag);
}

void xmlWriteCloseTag(FILE *file, char const *tag)
{
    if (!file)
        return;
    fprintf(file, "</%s>\n", tag);
}

void xmlWriteTag(FILE *file, char const *tag, CString const &value)
{
    if (!file)
        return;
    fprintf(file, "<%s>%s</%s>\n", tag, convertToXMLString(value).toStdStringUTF8().c_str(), tag);
}

void xmlWriteTag(FILE *file, char const *tag, char const *value)
{
    xmlWriteTag(file, tag, CString(value));
}

void xmlWriteTagIfNotEmpty(FILE *file, char const *tag, CString const &value)
{
    CString trimmed(value);
    trimmed.Trim();
    if (!file || trimmed.IsEmpty())
        return;
    // Double encoding on purpose: UTF-8 bytes re-read as Latin-1.
    xmlWriteTag(file, tag, trimmed.toStdStringUTF8().c_str());
}

void xmlWriteTagIfNotEmpty(FILE *file, char const *tag, char const *value)
{
    xmlWriteTagIfNotEmpty(file, tag, CString(value));
}

void xmlWriteTagForLong(FILE *file, char const *tag, double value)
{
    if (!file)
        return;
    fprintf(file, "<%s>%lld</%s>\n", tag, roundHalfAwayFromZero(value), tag);
}

void xmlWriteTagForBool(FILE *file, char const *tag, bool value, bool onlyWhenTrue)
{
    if (!file || (onlyWhenTrue && !value))
        return;
    fprintf(file, "<%s>%s</%s>\n", tag, value ? "1" : "0", tag);
}

void writeXMLOpenTagString(CString &out, char const *tag)
{
    out += QStringLiteral("<%1>\n").arg(QString::fromUtf8(tag));
}

void writeXMLCloseTagString(CString &out, char const *tag)
{
    out += QStringLiteral("</%1>\n").arg(QString::fromUtf8(tag));
}

void writeXMLString(CString &out, char const *tag, CString const &value, int maxLength, int flags)
{
    CString const converted = convertToXMLString(value, maxLength, flags);
    if (converted.trimmed().isEmpty())
        return;
    out += QStringLiteral("<%1>%2</%1>\n").arg(QString::fromUtf8(tag), converted);
}

void writeXMLString(CString &out, char const *tag, CString const &value, int maxLength)
{
    writeXMLString(out, tag, value, maxLength, 4);
}

void writeXMLString(CString &out, char const *tag, CString const &value)
{
    writeXMLString(out, tag, value, 0, 4);
}

void writeXMLInteger(CString &out, char const *tag, int value, int width)
{
    QString text = QString::number(value);
    if (width >= 1)
        text = QStringLiteral("%1").arg(value, width, 10, QLatin1Char('0'));
    writeXMLString(out, tag, CString(text), 0, 0);
}

void writeXMLInteger(CString &out, char const *tag, int value)
{
    writeXMLInteger(out, tag, value, 0);
}

void writeXMLForLong(CString &out, char const *tag, long value, bool)
{
    writeXMLString(out, tag, CString(QString::number(value)), 0, 0);
}

void writeXMLForLong64(CString &out, char const *tag, long long value, bool)
{
    writeXMLString(out, tag, CString(QString::number(value)), 0, 0);
}

void writeXMLForLong(CString &out, char const *tag, double value, bool flag)
{
    writeXMLForLong64(out, tag, roundHalfAwayFromZero(value), flag);
}

void writeXMLForBool(CString &out, char const *tag, bool value, bool onlyWhenTrue)
{
    if (onlyWhenTrue && !value)
        return;
    writeXMLString(out, tag, CString(value ? "1" : "0"), 0, 0);
}
