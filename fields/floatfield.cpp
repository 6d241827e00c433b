#include <LibControl/fields/floatfield.h>

#include <LibControl/common/utilities.h>

#include <QDebug>

#include <cfloat>
#include <climits>
#include <cmath>

namespace {

// Archives up to this version stored amounts in single precision.
constexpr unsigned int LastSinglePrecisionVersion = 65713;
constexpr double SameAmountTolerance = 0.009;

double roundHalfAwayFromZero(double value)
{
    return std::trunc(value > 0 ? value + 0.5 : value - 0.5);
}

// What a float cast does on IEEE hardware, spelled out so that values
// beyond the float range become infinities without undefined behaviour.
double narrowToSingle(double value)
{
    if (std::isfinite(value) && std::fabs(value) > double(FLT_MAX))
        return std::copysign(HUGE_VAL, value);
    return double(float(value));
}

int saturatedInt(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= double(INT_MAX))
        return INT_MAX;
    if (value <= double(INT_MIN))
        return INT_MIN;
    return int(value);
}

QString amountText(double value, int decimals)
{
    // -0.0 would print as "-0.00".
    return QString::number(value == 0.0 ? 0.0 : value, 'f', qMax(0, decimals));
}

} // namespace

bool CFloatField::p_for_quillon = false;

CFloatField::CFloatField(int versionFrom, int versionTo)
    : CField(0, true, unsigned(versionFrom), unsigned(versionTo), FIELD_ATTR_NONE, 0)
    , m_dValue(0.0)
    , m_bCheckNegative(true)
    , m_bInversePrint(false)
    , m_nDecimalsToSave(2)
{
}

CFloatField::CFloatField(double value, int lineCode)
    : CFloatField(true, value, lineCode, false, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST)
{
}

CFloatField::CFloatField(double value, int lineCode, bool allowNegative, unsigned int versionFrom,
                         ENUMTYPE_FIELD_ATTR attr)
    : CFloatField(true, value, lineCode, allowNegative, attr, 0, versionFrom)
{
}

CFloatField::CFloatField(bool checkNegative, double value, int lineCode, bool allowNegative,
                         ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom)
    : CField(lineCode, allowNegative, versionFrom, FIELD_VERSION_LAST, attr, extra)
    , m_dValue(value)
    , m_bCheckNegative(checkNegative)
    , m_bInversePrint(false)
    , m_nDecimalsToSave(2)
{
}

CFloatField::~CFloatField() = default;

CFloatField &CFloatField::operator=(CFloatField const &other)
{
    m_dValue = other.m_dValue;
    return *this;
}

CFloatField &CFloatField::operator=(double value)
{
    m_dValue = p_for_quillon ? roundHalfAwayFromZero(value) : RoundFloatAtDecision(value, 2);
    return *this;
}

bool CFloatField::operator!=(CFloatField const &other) const
{
    bool const nanHere = std::isnan(m_dValue);
    bool const nanThere = std::isnan(other.m_dValue);
    if (nanHere || nanThere)
        return nanHere != nanThere;
    // Infinities of one sign give a NaN difference and so compare equal.
    return std::fabs(m_dValue - other.m_dValue) >= SameAmountTolerance;
}

double CFloatField::operator+(CFloatField other) const { return m_dValue + other.m_dValue; }
double CFloatField::operator-(CFloatField other) const { return m_dValue - other.m_dValue; }
double CFloatField::operator*(CFloatField other) const { return m_dValue * other.m_dValue; }
double CFloatField::operator/(CFloatField other) const { return m_dValue / other.m_dValue; }
double CFloatField::operator+(double other) const { return m_dValue + other; }
double CFloatField::operator-(double other) const { return m_dValue - other; }
double CFloatField::operator*(double other) const { return m_dValue * other; }
double CFloatField::operator/(double other) const { return m_dValue / other; }

int CFloatField::getIntVal(bool round) const
{
    if (!round)
        return saturatedInt(std::trunc(m_dValue));
    return saturatedInt(std::trunc(m_dValue >= 0 ? m_dValue + 0.5 : m_dValue - 0.5));
}

void CFloatField::setNDecimalsToSave(int decimals)
{
    m_nDecimalsToSave = decimals;
}

bool CFloatField::isIndeterminate(double value)
{
    return std::isnan(value);
}

int CFloatField::GetType() const
{
    return 3;
}

void CFloatField::Serialize(unsigned int version, MyDataStream &ar)
{
    if (!isArchivedIn(version))
        return;
    if (ar.IsStoring()) {
        ar << m_dValue;
        return;
    }
    ar >> m_dValue;
    if (version <= LastSinglePrecisionVersion)
        m_dValue = narrowToSingle(m_dValue);
}

int CFloatField::ValidateAndCorrect()
{
    if (m_bCheckNegative && !m_bAllowNegative && m_dValue < 0)
        m_dValue = 0.0;
    return 0;
}

int CFloatField::readFromString(CString const &text)
{
    bool ok = false;
    double const value = QString(text).remove(QLatin1Char(',')).toDouble(&ok);
    m_dValue = ok ? value : 0.0;
    return 0;
}

int CFloatField::toString(CString &out)
{
    out = amountText(m_dValue, m_nDecimalsToSave);
    return 0;
}

QDebug operator<<(QDebug debug, CFloatField const &field)
{
    QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "FF(id: " << field.m_nLineCode << ", value: "
                              << amountText(field.m_dValue, field.m_nDecimalsToSave) << ')';
    return debug;
}
