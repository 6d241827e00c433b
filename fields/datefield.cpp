#include <LibControl/fields/DateField.h>

#include <LibControl/common/dates.h>

#include <limits>

namespace {

constexpr int CompactDateCode = 18;
constexpr int DateTimeCode = 28;

// The range of day numbers that make a valid QDate.
constexpr qint64 FirstValidDay = -784350574879LL;
constexpr qint64 LastValidDay = 784354017364LL;
constexpr qint64 NullDay = std::numeric_limits<qint64>::min();

} // namespace

QDate const CDateField::s_zeroDate(0, 0, 0);

CDateField::CDateField(ENUMTYPE_FIELD_ATTR attr) : CDateField(QDate(), false, attr, 0, FIELD_VERSION_FIRST)
{
}

CDateField::CDateField(int lineCode, ENUMTYPE_FIELD_ATTR attr)
    : CDateField(QDate(), false, attr, 0, FIELD_VERSION_FIRST)
{
    m_nLineCode = lineCode;
}

CDateField::CDateField(QDate date, bool allowNegative, ENUMTYPE_FIELD_ATTR attr, int extra,
                       unsigned int versionFrom)
    : CField(0, allowNegative, versionFrom, FIELD_VERSION_LAST, attr, extra)
    , m_date(date)
{
}

CDateField::~CDateField() = default;

CDateField &CDateField::operator=(CDateField const &other)
{
    m_date = other.m_date;
    return *this;
}

CDateField &CDateField::operator=(QDate const &date)
{
    m_date = date;
    return *this;
}

bool CDateField::operator!=(CDateField const &other) const
{
    return m_date != other.m_date;
}

void CDateField::setNull()
{
    m_date = s_zeroDate;
}

void CDateField::setZero()
{
    m_date = s_zeroDate;
}

void CDateField::setCurTime()
{
    m_date = QDate::currentDate();
}

void CDateField::set1YLater()
{
    m_date.setDate(m_date.year() + 1, m_date.month(), m_date.day());
}

int CDateField::getYear() const
{
    return m_date.year();
}

int CDateField::getMonth() const
{
    return m_date.month();
}

int CDateField::getDay() const
{
    return m_date.day();
}

bool CDateField::IsZero() const
{
    // An invalid QDate holds no day number in range, so this also covers the
    // out-of-range and zero-date cases.
    return !m_date.isValid() || m_date == emptyEditDate() || m_date == s_zeroDate;
}

bool CDateField::IsValid() const
{
    return !IsZero();
}

bool CDateField::IsAfter(int y, int m, int d) const
{
    return IsValid() && m_date > QDate(y, m, d);
}

bool CDateField::IsNotAfter(int y, int m, int d) const
{
    return IsValid() && !(m_date > QDate(y, m, d));
}

bool CDateField::IsBefore(int y, int m, int d) const
{
    return IsValid() && m_date < QDate(y, m, d);
}

bool CDateField::IsNotBefore(int y, int m, int d) const
{
    return IsValid() && !(m_date < QDate(y, m, d));
}

QDate CDateField::emptyEditDate()
{
    return QDate(1752, 9, 14);
}

int CDateField::GetType() const
{
    return 4;
}

void CDateField::Serialize(unsigned int version, MyDataStream &ar)
{
    if (!isArchivedIn(version))
        return;
    if (ar.IsStoring()) {
        ar << qint64(m_date.isValid() ? m_date.toJulianDay() : NullDay);
        return;
    }
    qint64 day = NullDay;
    ar >> day;
    bool const usable = ar.status() == QDataStream::Ok && day >= FirstValidDay && day <= LastValidDay;
    m_date = usable ? QDate::fromJulianDay(day) : s_zeroDate;
}

int CDateField::readFromString(CString const &text)
{
    ReadQDate2(text, CompactDateCode, m_date);
    return 0;
}

int CDateField::toString(CString &out)
{
    FormatQDate(out, m_date, CompactDateCode);
    return 0;
}

CDateTimeField::CDateTimeField(ENUMTYPE_FIELD_ATTR attr)
    : CField(0, false, FIELD_VERSION_FIRST, FIELD_VERSION_LAST, attr, 0)
    , m_dateTime(QDateTime::currentDateTime())
{
}

CDateTimeField::~CDateTimeField() = default;

int CDateTimeField::GetType() const
{
    return 5;
}

int CDateTimeField::readFromString(CString const &text)
{
    ReadQDateTime(text, DateTimeCode, m_dateTime);
    return 0;
}

int CDateTimeField::toString(CString &out)
{
    FormatQDateTime(out, m_dateTime, DateTimeCode);
    return 0;
}
