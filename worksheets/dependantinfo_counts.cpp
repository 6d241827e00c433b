#include <LibControl/worksheets/dependantinfo.h>

namespace {

// The age window of the children counts: a bound of 0 (or below 1 for the
// upper one) means "no bound".
bool withinAges(int age, int minAge, int maxAge)
{
    return age >= 0 && (minAge <= 0 || age >= minAge) && (maxAge < 1 || age <= maxAge);
}

} // namespace

template<typename Predicate>
int DependantInfoStruct::countNamed(Predicate predicate) const
{
    int count = 0;
    for (int i = 0; i < m_nCount; ++i) {
        _OneDependantInfoStru const &dependant = m_pData[size_t(i)];
        if (dependant.isNamed() && predicate(dependant))
            ++count;
    }
    return count;
}

int DependantInfoStruct::GetInfirmDependantsNumberNotUnderAge(int minAge) const
{
    return countNamed([minAge](_OneDependantInfoStru const &d) {
        int const age = d.getAge();
        return age >= minAge && age >= 0 && d.IsInfirmOrDisabled();
    });
}

int DependantInfoStruct::GetDisabledDependantsBetweenAges(int minAge, int maxAge) const
{
    return countNamed([minAge, maxAge](_OneDependantInfoStru const &d) {
        int const age = d.getAge();
        return age >= minAge && age >= 0 && (maxAge <= 0 || age <= maxAge) && d.IsDisabled();
    });
}

int DependantInfoStruct::GetInfirmDependentNumberUnderAge18() const
{
    return countNamed([](_OneDependantInfoStru const &d) { return d.getAge() < 18 && d.IsInfirmOrDisabled(); });
}

int DependantInfoStruct::GetDepChildrenNumberBetweenAges(int minAge, int maxAge) const
{
    return countNamed([minAge, maxAge](_OneDependantInfoStru const &d) { return withinAges(d.getAge(), minAge, maxAge); });
}

int DependantInfoStruct::GetDepNumberBetweenAges(int minAge, int maxAge) const
{
    return GetDepChildrenNumberBetweenAges(minAge, maxAge);
}

int DependantInfoStruct::GetDepChildrenNumberBetweenAges_Infirm(int minAge, int maxAge, bool infirm) const
{
    return countNamed([minAge, maxAge, infirm](_OneDependantInfoStru const &d) {
        return withinAges(d.getAge(), minAge, maxAge) && d.IsInfirmOrDisabled() == infirm;
    });
}

int DependantInfoStruct::GetMonthsDepChildrenAtAge_Infirm(int age) const
{
    int months = 0;
    for (int i = 0; i < m_nCount; ++i) {
        _OneDependantInfoStru const &dependant = m_pData[size_t(i)];
        if (dependant.isNamed() && dependant.getAge() == age)
            months += dependant.m_dateBirth.month();
    }
    return months;
}

int DependantInfoStruct::GetDepNumberBetweenAgesAndRelation(int minAge, int maxAge, int relation) const
{
    // The ages are part of the signature only; callers count by relationship.
    Q_UNUSED(minAge);
    Q_UNUSED(maxAge);
    return countNamed([relation](_OneDependantInfoStru const &d) { return d.m_nRelationship == relation; });
}

int DependantInfoStruct::GetDepChildrenNumberForLine305() const
{
    return countNamed([](_OneDependantInfoStru const &d) {
        int const age = d.getAge();
        return age >= 0 && (age < 18 || d.IsInfirmOrDisabled());
    });
}

int DependantInfoStruct::GetDepOtherThanChildrenNumberForLine305() const
{
    return countNamed([](_OneDependantInfoStru const &d) {
        int const age = d.getAge();
        int const relation = d.m_nRelationship;
        if (age < 0 || relation <= 1)
            return false;
        if (relation == 8 || relation == 9)
            return age <= 17 || d.IsInfirmOrDisabled();
        return relation >= 2 && relation <= 5;
    });
}
