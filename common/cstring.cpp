#include <LibControl/common/cstring.h>

#include <LibControl/common/xmlwriter.h>

#include <QRegularExpression>

#include <cstdarg>
#include <cstring>

namespace {

std::string bytesUpToNul(QByteArray const &bytes)
{
    return std::string(bytes.constData(), qstrnlen(bytes.constData(), uint(bytes.size())));
}

// Deliberately signed: a byte at or above 0x80 widens into U+FF80..U+FFFF.
QChar widenSigned(char c)
{
    return QChar(ushort(short(static_cast<signed char>(c))));
}

} // namespace

CString::CString() : QString(QLatin1String("")) { }

CString::CString(char const *text) : QString(text ? QString::fromLatin1(text) : QString()) { }

CString::CString(QString const &other) : QString(other) { }

CString &CString::operator=(char const *text)
{
    QString::operator=(text ? QString::fromLatin1(text) : QString());
    return *this;
}

CString &CString::operator=(QString const &other)
{
    QString::operator=(other);
    return *this;
}

void CString::LoadString(char const *text)
{
    QString::operator=(text ? QString::fromUtf8(text) : QString());
}

bool CString::IsEmpty() const
{
    return length() == 0;
}

void CString::Empty()
{
    QString::operator=(QString());
}

int CString::GetLength() const
{
    return length();
}

char CString::GetAt(int index) const
{
    ushort code = at(index).unicode();
    return code < 256 ? char(code) : 0;
}

void CString::TrimLeft()
{
    // Unicode properties on, so that every Unicode space counts.
    static QRegularExpression const leading(QStringLiteral("^\\s+"), QRegularExpression::UseUnicodePropertiesOption);
    remove(leading);
}

void CString::TrimRight()
{
    static QRegularExpression const trailing(QStringLiteral("\\s+$"), QRegularExpression::UseUnicodePropertiesOption);
    remove(trailing);
}

void CString::Trim()
{
    TrimLeft();
    TrimRight();
}

int CString::Replace(char oldChar, char newChar)
{
    replace(widenSigned(oldChar), widenSigned(newChar), Qt::CaseSensitive);
    return 0;
}

int CString::Replace(char const *oldText, char const *newText)
{
    replace(QString::fromUtf8(oldText), QString::fromUtf8(newText), Qt::CaseSensitive);
    return 0;
}

int CString::Remove(char c)
{
    remove(widenSigned(c), Qt::CaseSensitive);
    return 0;
}

CString CString::Mid(int start, int count) const
{
    return CString(mid(start, count > 0 ? count : -1));
}

CString CString::Left(int n) const
{
    return CString(left(n));
}

CString CString::Right(int n) const
{
    return CString(right(n));
}

int CString::Compare(char const *text) const
{
    return compare(QString::fromUtf8(text), Qt::CaseSensitive);
}

int CString::Compare(CString const &other) const
{
    return compare(other, Qt::CaseSensitive);
}

int CString::CompareNoCase(char const *text) const
{
    return compare(QString::fromUtf8(text), Qt::CaseInsensitive);
}

int CString::CompareNoCase(CString const &other) const
{
    return compare(other, Qt::CaseInsensitive);
}

int CString::Find(char const *text) const
{
    return indexOf(QString::fromUtf8(text), 0, Qt::CaseSensitive);
}

int CString::ReverseFind(char const *text) const
{
    return lastIndexOf(QString::fromUtf8(text), -1, Qt::CaseSensitive);
}

void CString::MakeUpper()
{
    QString::operator=(toUpper());
}

void CString::MakeLower()
{
    QString::operator=(toLower());
}

CString CString::toXmlString() const
{
    return convertToXMLString(*this);
}

std::string CString::toStdStringLatin1(int limit) const
{
    return bytesUpToNul((limit > 0 ? left(limit) : QString(*this)).toLatin1());
}

std::string CString::toStdStringUTF8(int limit) const
{
    return bytesUpToNul((limit > 0 ? left(limit) : QString(*this)).toUtf8());
}

CString CString::sprintf2023(char const *format, ...)
{
    va_list args;
    va_start(args, format);
    CString result(QString::vasprintf(format, args));
    va_end(args);
    return result;
}
