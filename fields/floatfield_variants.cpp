#include <LibControl/fields/floatfield.h>

#include <LibControl/common/utilities.h>

#include <cmath>

CIntFloatField::CIntFloatField(double value, int lineCode) : CFloatField(value, lineCode)
{
    m_nDecimalsToSave = 0;
}

CIntFloatField::CIntFloatField(double value, int lineCode, bool allowNegative, unsigned int versionFrom,
                               ENUMTYPE_FIELD_ATTR attr)
    : CFloatField(value, lineCode, allowNegative, versionFrom, attr)
{
    m_nDecimalsToSave = 0;
}

CIntFloatField::CIntFloatField(bool checkNegative, double value, int lineCode, bool allowNegative,
                               ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom)
    : CFloatField(checkNegative, value, lineCode, allowNegative, attr, extra, versionFrom)
{
    m_nDecimalsToSave = 0;
}

CIntFloatField::~CIntFloatField() = default;

CIntFloatField &CIntFloatField::operator=(double value)
{
    m_dValue = std::trunc(value > 0 ? value + 0.5 : value - 0.5);
    return *this;
}

CDecimalFloatField::CDecimalFloatField(int decimals, double value, int lineCode) : CFloatField(value, lineCode)
{
    m_nDecimalsToSave = decimals;
}

CDecimalFloatField::CDecimalFloatField(int decimals, double value, int lineCode, bool allowNegative,
                                       unsigned int versionFrom, ENUMTYPE_FIELD_ATTR attr)
    : CFloatField(value, lineCode, allowNegative, versionFrom, attr)
{
    m_nDecimalsToSave = decimals;
}

CDecimalFloatField::CDecimalFloatField(int decimals, bool checkNegative, double value, int lineCode,
                                       bool allowNegative, ENUMTYPE_FIELD_ATTR attr, int extra,
                                       unsigned int versionFrom)
    : CFloatField(checkNegative, value, lineCode, allowNegative, attr, extra, versionFrom)
{
    m_nDecimalsToSave = decimals;
}

CDecimalFloatField::~CDecimalFloatField() = default;

CFloatFieldInversePrint::CFloatFieldInversePrint(bool checkNegative, double value, int lineCode)
    : CFloatField(checkNegative, value, lineCode, false, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST)
{
    m_bInversePrint = true;
}

CFloatFieldInversePrint::CFloatFieldInversePrint(bool checkNegative, double value, int lineCode,
                                                 bool allowNegative, ENUMTYPE_FIELD_ATTR attr, int extra,
                                                 unsigned int versionFrom)
    : CFloatField(checkNegative, value, lineCode, allowNegative, attr, extra, versionFrom)
{
    m_bInversePrint = true;
}

CFloatFieldInversePrint::~CFloatFieldInversePrint() = default;

CFloatFieldNotused::CFloatFieldNotused(unsigned int versionFrom, unsigned int versionTo)
    : CFloatField(true, 0.0, 0, true, FIELD_ATTR_NONE, 0, versionFrom)
{
    m_nVersionTo = versionTo;
}

CFloatFieldNotused::~CFloatFieldNotused() = default;

CPercentField::CPercentField(double value, int lineCode, bool allowNegative, unsigned int versionFrom)
    : CFloatField(true, value, lineCode, allowNegative, FIELD_ATTR_NONE, 0, versionFrom)
{
    m_nDecimalsToSave = 4;
}

CPercentField::CPercentField(bool checkNegative, double value, int lineCode, bool allowNegative,
                             ENUMTYPE_FIELD_ATTR attr, int extra, unsigned int versionFrom)
    : CFloatField(checkNegative, value, lineCode, allowNegative, attr, extra, versionFrom)
{
    m_nDecimalsToSave = 4;
}

CPercentField::~CPercentField() = default;

CPercentField &CPercentField::operator=(double value)
{
    m_dValue = RoundFloatAtDecision(value, 4);
    return *this;
}

int CPercentField::ValidateAndCorrect()
{
    if (m_dValue < 0)
        m_dValue = 0.0;
    else if (m_dValue > 100)
        m_dValue = 100.0;
    return 0;
}
