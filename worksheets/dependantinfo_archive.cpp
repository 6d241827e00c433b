#include <LibControl/worksheets/dependantinfo.h>

#include <LibControl/common/dates.h>
#include <LibControl/fields/datastream.h>

#include <QIODevice>

#include <cstring>

namespace {

// Archive versions at which the record layout changed.
constexpr int TextDateVersion = 0x10210; // above: birth date as "yyyyMMdd"
constexpr int DoubleIncomeVersion = 0x100b2; // from: net income as a double

constexpr int NameBytes = 80;
constexpr int DateBytes = 8;

void writeName(MyDataStream &ar, char const (&name)[NameBytes])
{
    char padded[NameBytes] = {};
    std::memcpy(padded, name, qstrnlen(name, NameBytes));
    ar.writeRawData(padded, NameBytes);
}

void readName(MyDataStream &ar, char (&name)[NameBytes])
{
    if (ar.readRawData(name, NameBytes) != NameBytes) {
        std::memset(name, 0, NameBytes);
        ar.setStatus(QDataStream::ReadPastEnd);
    }
    name[NameBytes - 1] = '\0';
}

void writeBirthDate(MyDataStream &ar, QDate const &date)
{
    CString text;
    FormatQDate(text, date, DateFormatCompact);
    QByteArray bytes = text.toLatin1().leftJustified(DateBytes, '0', true);
    ar.writeRawData(bytes.constData(), DateBytes);
}

QDate readBirthDate(MyDataStream &ar, int version)
{
    QDate date;
    if (version > TextDateVersion) {
        char text[DateBytes];
        if (ar.readRawData(text, DateBytes) != DateBytes) {
            ar.setStatus(QDataStream::ReadPastEnd);
            return date;
        }
        ReadQDate2(CString(QString::fromLatin1(text, DateBytes)), DateFormatCompact, date);
        return date;
    }
    double dayNumber = 0.0;
    ar >> dayNumber;
    return ar.status() == QDataStream::Ok ? DateAsDouble::convertDoubleToDate(dayNumber) : date;
}

double readNetIncome(MyDataStream &ar, int version)
{
    if (version >= DoubleIncomeVersion) {
        double value = 0.0;
        ar >> value;
        return value;
    }
    // The oldest files held a single-precision float.
    quint32 bits = 0;
    ar >> bits;
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return double(value);
}

} // namespace

qint64 _OneDependantInfoStru::minimumArchiveSize(int version)
{
    // Names, placeholder, birth date, relationship, net income; the fields
    // may be absent at old versions, so they are not counted.
    qint64 const incomeBytes = version >= DoubleIncomeVersion ? 8 : 4;
    return 2 * NameBytes + 4 + DateBytes + 4 + incomeBytes;
}

void _OneDependantInfoStru::serilize(int version, MyDataStream &ar)
{
    if (ar.IsStoring()) {
        writeName(ar, m_szFirstName);
        writeName(ar, m_szLastName);
        ar << qint32(0);
        writeBirthDate(ar, m_dateBirth);
        ar << qint32(m_nRelationship) << m_dNetIncome;
        Common_Serialize_Func(version, ar, m_fields);
        return;
    }
    readName(ar, m_szFirstName);
    readName(ar, m_szLastName);
    qint32 placeholder = 0;
    qint32 relationship = 0;
    ar >> placeholder;
    m_dateBirth = readBirthDate(ar, version);
    ar >> relationship;
    m_nRelationship = relationship;
    m_dNetIncome = readNetIncome(ar, version);
    if (ar.status() == QDataStream::Ok)
        Common_Serialize_Func(version, ar, m_fields);
}

void DependantInfoStruct::serilize(int version, MyDataStream &ar)
{
    if (ar.IsStoring()) {
        ar << qint32(m_nCount);
        for (int i = 0; i < m_nCount; ++i)
            m_pData[size_t(i)].serilize(version, ar);
        Common_Serialize_Func(version, ar, m_fields);
        return;
    }
    qint32 count = 0;
    ar >> count;
    FreeData();
    if (ar.status() != QDataStream::Ok)
        return;
    // A damaged count must not make us allocate for records that are not there.
    qint64 const available = ar.device() ? ar.device()->bytesAvailable() : 0;
    if (count > 0 && count > available / _OneDependantInfoStru::minimumArchiveSize(version)) {
        ar.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    AllocData(count);
    for (int i = 0; i < m_nCount && ar.status() == QDataStream::Ok; ++i)
        m_pData[size_t(i)].serilize(version, ar);
    if (ar.status() == QDataStream::Ok)
        Common_Serialize_Func(version, ar, m_fields);
}
