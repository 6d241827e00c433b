#include <LibControl/fields/addressvalidation.h>

#include <LibControl/common/addresschecks.h>
#include <LibControl/fields/IntField.h>

#include <string>

namespace {

// Country values of the address blocks.
enum Country { NoCountry = 0, Canada = 1, UnitedStates = 2 };

// The longest street number an address block takes.
constexpr int MaxStreetNumberLength = 8;

// Collects the messages of one validation and counts them.
class AddressReport
{
public:
    AddressReport(std::list<CString> &messages, char const *format, char const *context)
        : m_messages(messages)
        , m_format(format)
        , m_context(context)
    { }

    void add(char const *label)
    {
        m_messages.push_back(QString::asprintf(m_format, label, m_context));
        ++m_count;
    }

    long count() const { return m_count; }

private:
    std::list<CString> &m_messages;
    char const *m_format;
    char const *m_context;
    long m_count = 0;
};

bool postalCodeFits(CStringField const &postalCode, bool (*check)(char const *))
{
    return !postalCode.IsEmptyIfRemoveBlank() && check(std::string(postalCode).c_str());
}

// The checks after the street: city, then province or state and postal code by country.
void validateRest(AddressReport &report, CStringField const &city, CIntField const &province, CIntField const &country,
    CStringField const &postalCode)
{
    if (city.IsEmptyIfRemoveBlank())
        report.add("City");
    switch (country.m_nValue) {
    case Canada:
        if (province.m_nValue == 0)
            report.add("Province");
        if (!postalCodeFits(postalCode, CheckCAPostCode))
            report.add("Postal code");
        break;
    case UnitedStates:
        if (province.m_nValue == 0)
            report.add("State");
        if (!postalCodeFits(postalCode, CheckUSPostCode))
            report.add("Postal code");
        break;
    case NoCountry:
        report.add("Country");
        break;
    default:
        break;
    }
}

long finish(long &errorCount, AddressReport const &report)
{
    errorCount += report.count();
    return report.count();
}

} // namespace

long validateAddr(long &errorCount, std::list<CString> &messages, CStringField &streetNumber, CStringField &streetName,
    CStringField &city, CIntField const &province, CIntField const &country, CStringField &postalCode,
    char const *format, char const *context)
{
    AddressReport report(messages, format, context);
    if (streetNumber.IsEmptyIfRemoveBlank() || streetNumber.m_strValue.GetLength() > MaxStreetNumberLength
        || streetName.IsEmptyIfRemoveBlank())
        report.add("Street number/name");
    validateRest(report, city, province, country, postalCode);
    return finish(errorCount, report);
}

long validateAddr2(long &errorCount, std::list<CString> &messages, CStringField &streetNumber, CStringField &,
    CStringField &city, CIntField const &province, CIntField const &country, CStringField &postalCode,
    char const *format, char const *context)
{
    AddressReport report(messages, format, context);
    if (streetNumber.IsEmptyIfRemoveBlank())
        report.add("Street address");
    validateRest(report, city, province, country, postalCode);
    return finish(errorCount, report);
}
