#include <LibControl/worksheets/taxstairs.h>

#include <LibControl/fields/floatfield.h>

STRUCT_TAX_STAIRS_JURISDICTION::STRUCT_TAX_STAIRS_JURISDICTION()
    : m_nLevelCount(0)
    , m_pLevels(new STRUCT_TAX_STAIRS_LEVEL[MaxLevels]())
{
}

STRUCT_TAX_STAIRS_JURISDICTION::~STRUCT_TAX_STAIRS_JURISDICTION()
{
    delete[] m_pLevels;
}

int STRUCT_TAX_STAIRS_JURISDICTION::addLevel(double threshold, double rate, double baseTax)
{
    if (m_nLevelCount < MaxLevels)
        m_pLevels[m_nLevelCount++] = {threshold, rate, baseTax};
    return m_nLevelCount;
}

STRUCT_TAX_STAIRS_LEVEL const *STRUCT_TAX_STAIRS_JURISDICTION::levelFor(double income) const
{
    if (m_nLevelCount < 1)
        return nullptr;
    // The first bracket whose threshold reaches the income ends the search;
    // the income belongs to the bracket before it.
    for (int i = 1; i < m_nLevelCount; ++i) {
        if (m_pLevels[i].m_dThreshold >= income)
            return &m_pLevels[i - 1];
    }
    return &m_pLevels[m_nLevelCount - 1];
}

double STRUCT_TAX_STAIRS_JURISDICTION::CalcAlgoForTax(double income) const
{
    if (m_nLevelCount == 0)
        return 0.0;
    if (m_nLevelCount == 1)
        return income * m_pLevels[0].m_dRate;
    STRUCT_TAX_STAIRS_LEVEL const *level = levelFor(income);
    // Every step goes through an amount field so that it is rounded as the
    // forms round.
    CFloatField value(0.0, 0, true, 0, FIELD_ATTR_NONE);
    value = income - level->m_dThreshold;
    value = value.m_dValue * level->m_dRate;
    value = value.m_dValue + level->m_dBaseTax;
    return value.m_dValue;
}

void STRUCT_TAX_STAIRS_JURISDICTION::CalcAlgoForSetFieldsToCalcTax(double income, double &threshold, double &rate,
                                                                   double &baseTax) const
{
    STRUCT_TAX_STAIRS_LEVEL const *level = levelFor(income);
    if (!level)
        return;
    threshold = level->m_dThreshold;
    rate = level->m_dRate;
    baseTax = level->m_dBaseTax;
}

void STRUCT_TAX_STAIRS_JURISDICTION::GetIncomeThresholds(std::list<double> &out) const
{
    for (int i = 1; i < m_nLevelCount; ++i)
        out.push_back(m_pLevels[i].m_dThreshold);
}

void STRUCT_TAX_STAIRS_JURISDICTION::CalcAlgoForSpouseF260S2(double income, double &tax) const
{
    tax = 0.0;
    if (m_nLevelCount >= 2 && income - m_pLevels[1].m_dThreshold >= 0.009)
        tax = CalcAlgoForTax(income);
}
