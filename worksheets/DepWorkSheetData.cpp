#include <LibControl/worksheets/DepWorkSheetData.h>

#include <LibControl/worksheets/dependantinfo.h>

CWSDepBaseData::CWSDepBaseData(unsigned int version)
    : m_pDepInfo(nullptr)
    , DepIdx(0, 0, FIELD_ATTR_NONE, 0, version)
{
    addField(DepIdx, "DepIdx");
}

CWSDepBaseData::~CWSDepBaseData() = default;

void CWSDepBaseData::SetDepInfo(DependantInfoStruct *depInfo)
{
    m_pDepInfo = depInfo;
}

DependantInfoStruct *CWSDepBaseData::GetDepInfo() const
{
    return m_pDepInfo;
}

_OneDependantInfoStru const *CWSDepBaseData::selectedDependant() const
{
    if (!m_pDepInfo || DepIdx.m_nValue < 1)
        return nullptr;
    return m_pDepInfo->getDependant(DepIdx.m_nValue - 1);
}

double CWSDepBaseData::selectedNetIncome() const
{
    _OneDependantInfoStru const *dependant = selectedDependant();
    return dependant ? dependant->m_dNetIncome : 0.0;
}
