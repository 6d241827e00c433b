#include "samplereturn.h"

#include <LibControl/common/utilities.h>

char const *const SampleReturn::Key = "sample-return-2025";

namespace {

// 2025 federal brackets; the lowest rate is the year's blended 14.5 %.
struct Bracket
{
    double threshold;
    double rate;
};

Bracket const FederalBrackets2025[] = {
    {0.0, 0.145}, {57375.0, 0.205}, {114750.0, 0.26}, {177882.0, 0.29}, {253414.0, 0.33},
};

void setDependant(_OneDependantInfoStru &dependant, char const *first, char const *last, QDate birth,
                  int relationship, double netIncome)
{
    qstrncpy(dependant.m_szFirstName, first, sizeof dependant.m_szFirstName);
    qstrncpy(dependant.m_szLastName, last, sizeof dependant.m_szLastName);
    dependant.m_dateBirth = birth;
    dependant.m_nRelationship = relationship;
    dependant.m_dNetIncome = netIncome;
}

} // namespace

SampleReturn::SampleReturn() : t1(&federal)
{
    double base = 0.0;
    double previousThreshold = 0.0;
    double previousRate = 0.0;
    for (Bracket const &bracket : FederalBrackets2025) {
        base += (bracket.threshold - previousThreshold) * previousRate;
        federal.addLevel(bracket.threshold, bracket.rate, RoundFloatAtDecision(base, 2));
        previousThreshold = bracket.threshold;
        previousRate = bracket.rate;
    }
    t1.SetDepInfo(&dependants);
    t1.setMainTaxProvince(ENUMTYPE_PROVINCE(9));
}

void SampleReturn::fillExample()
{
    dependants.AllocData(2);
    setDependant(*dependants.getDependant(0), "Emma", "Tremblay", QDate(2012, 5, 14), 1, 0.0);
    setDependant(*dependants.getDependant(1), "Noah", "Tremblay", QDate(2019, 11, 2), 0, 0.0);
    dependants.getDependant(1)->fld_Infirm.m_nValue = 1;

    t1.fld_FirstName.m_strValue = CString("Marie");
    t1.fld_LastName.m_strValue = CString("Tremblay");
    t1.fld_SIN.m_strValue = CString("046454286");
    t1.fld_Address.m_strValue = CString("120 Rue Principale");
    t1.fld_City.m_strValue = CString("Ottawa");
    t1.fld_Province.m_nValue = 9;
    t1.fld_PostalCode.m_strValue = CString("K1A 0B1");
    t1.fld_Email.m_strValue = CString("marie.tremblay@example.com");
    t1.fld_BirthDate.m_date = QDate(1984, 3, 9);
    t1.fld_MaritalStatus.m_nValue = 5;
    t1.fld_ElectionsCanada.m_nValue = 1;
    t1.fld_10100_Employment = 78450.00;
    t1.fld_12100_Interest = 312.48;
    t1.fld_12000_Dividends = 1150.00;
    t1.fld_20800_RRSP = 6500.00;
    t1.fld_30800_CPP = 4034.10;
    t1.fld_31200_EI = 1077.48;
    t1.fld_33099_Medical = 845.20;
    t1.fld_43700_TaxDeducted = 9850.00;
    t1.fld_SignedOn.m_date = QDate(2026, 4, 20);
    t1.ws30400.DepIdx.m_nValue = 1;
    t1.ws30450.DepIdx.m_nValue = 2;
}

bool SampleReturn::sameAs(SampleReturn &other)
{
    if (t1 != other.t1 || dependants != other.dependants)
        return false;
    auto mine = t1.m_listWorksheets.begin();
    auto theirs = other.t1.m_listWorksheets.begin();
    for (; mine != t1.m_listWorksheets.end() && theirs != other.t1.m_listWorksheets.end(); ++mine, ++theirs) {
        if (Common_Func_OperatorNotEqual((*mine)->m_fields, (*theirs)->m_fields))
            return false;
    }
    return true;
}
