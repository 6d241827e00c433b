// Loads a form block from arbitrary bytes with a fixed key, then uses the
// form: a damaged block must change nothing and crash nothing.

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/datastream.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/worksheets/DepWorkSheetData.h>

#include <QBuffer>

#include <cstddef>
#include <cstdint>

namespace {

class FuzzForm : public CTaxData_Form
{
public:
    FuzzForm()
        : CTaxData_Form(FORM_T1GENERAL)
        , fld_count(10, 0, FIELD_ATTR_INCREASE_NEXTYEAR)
        , fld_amount(0.0, 20)
        , fld_name(30, "", 20, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST)
        , fld_flag(40, 0)
        , fld_date(50, FIELD_ATTR_DATE_NEXTYEAR)
        , fld_stamp(FIELD_ATTR_NONE)
    {
        CField *fields[] = {&fld_count, &fld_amount, &fld_name, &fld_flag, &fld_date, &fld_stamp};
        char const *names[] = {"fld_count", "fld_amount", "fld_name", "fld_flag", "fld_date", "fld_stamp"};
        for (int i = 0; i < 6; ++i) {
            fields[i]->m_strName = names[i];
            m_fields.push_back(fields[i]);
        }
        addFieldOldName("fld_amount", "fld_amt");
        worksheet.m_strName = "WS";
        m_listWorksheets.push_back(&worksheet);
    }

    CIntField fld_count;
    CFloatField fld_amount;
    CStringField fld_name;
    CBoolField fld_flag;
    CDateField fld_date;
    CDateTimeField fld_stamp;
    CWSDisabilityTransferAmtData worksheet;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    static bool const textsInXml = (CStringField::setLargeSizeSerializeOption(0x10000, 100), true);
    static_cast<void>(textsInXml);

    QByteArray bytes(reinterpret_cast<char const *>(data), int(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    MyDataStream ar(&buffer);
    FuzzForm form;
    form.Serialize(0x101F4, CString("fuzz-key"), ar);

    FuzzForm other;
    static_cast<CTaxData_Form &>(other) = form;
    static_cast<void>(other != form);
    std::map<int, _ReFileFieldCompareStru> changes;
    form.ReFileCompareFields(&other, changes);
    form.worksheet.Calculate();
    form.ChangeToNewYearData(false);

    QByteArray stored;
    QBuffer out(&stored);
    out.open(QIODevice::WriteOnly);
    MyDataStream outAr(&out);
    form.Serialize(0x101F4, CString("fuzz-key"), outAr);
    form.SerializeXml("fuzz", 1, outAr);
    return 0;
}
