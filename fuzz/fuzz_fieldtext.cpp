// Reads arbitrary text into every field type through readFromString, and
// through the loose number reader, then asks each field for its texts.

#include <LibControl/common/utilities.h>
#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    if (size > 64 * 1024)
        return 0;
    std::string const bytes(reinterpret_cast<char const *>(data), size);
    myStringToDouble(bytes);

    CString const text(QString::fromUtf8(bytes.data(), int(bytes.size())));
    CIntField integer(0, FIELD_ATTR_NONE);
    CBoolField flag(0);
    CStringField name("", 40);
    CStringField keepBlanks(0, "", 200, FIELD_ATTR_KEEP_BLANKS, 0, FIELD_VERSION_FIRST);
    CFloatField amount(0.0, 1);
    CIntFloatField whole(0.0, 1);
    CDecimalFloatField rate(3, 0.0, 1);
    CPercentField share(0.0, 1, false, FIELD_VERSION_FIRST);
    CDateField date(FIELD_ATTR_NONE);
    CDateTimeField stamp(FIELD_ATTR_NONE);

    CField *const fields[] = {&integer, &flag, &name, &keepBlanks, &amount, &whole, &rate, &share, &date, &stamp};
    for (CField *field : fields) {
        field->m_strName = "fld_fuzz";
        field->readFromString(text);
        field->ValidateAndCorrect();
        CString out;
        field->toString(out);
        field->writeToString(out);
        field->writeToXmlForPdf(out);
    }

    name.m_strValue = text;
    name.removeCOInAddr();
    name.removeContinuousSpaces();
    static_cast<std::string>(name);
    amount = amount.m_dValue;
    whole = amount.m_dValue;
    share = amount.m_dValue;
    amount.getIntVal(true);
    amount.getIntVal(false);
    date.set1YLater();
    date.IsAfter(2020, 1, 1);
    return 0;
}
