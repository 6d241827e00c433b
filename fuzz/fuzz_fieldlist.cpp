// Loads a mixed field list, every field class included, from arbitrary
// bytes. The first four input bytes (little-endian) are the archive version;
// the rest is the archive. The loaded list is then written back and put
// through the XML texts.

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>

#include <QBuffer>
#include <QtEndian>

#include <cstdint>
#include <cstring>

namespace {

struct Record
{
    CIntField count{0, 1, FIELD_ATTR_NONE};
    CIntFieldNotused oldCount{0x10000, 0x10100};
    CBoolField flag{0};
    CBoolFieldNotused oldFlag{0x10080, 0x10200};
    CStringField name{"", 30};
    CStringFieldNotused oldName{12, 0x10000, 0x10180};
    CStringField notes{3, "", 4096, FIELD_ATTR_KEEP_BLANKS, 0, 0x10040};
    CFloatField amount{0.0, 1};
    CIntFloatField whole{0.0, 2};
    CDecimalFloatField rate{3, 0.0, 3};
    CFloatFieldInversePrint inverse{true, 0.0, 4};
    CFloatFieldNotused oldAmount{0x10000, 0x100B1};
    CPercentField share{0.0, 5, false, 0x100B2};
    CDateField birth{FIELD_ATTR_NONE};
    CDateTimeField stamp{FIELD_ATTR_NONE};

    std::vector<CField *> fields{&count, &oldCount, &flag, &oldFlag, &name, &oldName, &notes, &amount,
                                 &whole, &rate, &inverse, &oldAmount, &share, &birth, &stamp};
};

void writeTexts(std::vector<CField *> &fields)
{
    for (CField *field : fields) {
        CString out;
        field->ValidateAndCorrect();
        field->writeToString(out);
        field->writeToXmlForPdf(out);
        field->readFromString(out);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    static bool const configured = [] {
        CStringField::setLargeSizeSerializeOption(0x10100, 1024);
        return true;
    }();
    (void)configured;
    if (size < 4 || size > (1 << 20))
        return 0;

    uint32_t version = 0;
    std::memcpy(&version, data, 4);
    version = qFromLittleEndian(version);
    QByteArray archive(reinterpret_cast<char const *>(data) + 4, int(size - 4));

    Record record;
    {
        QBuffer buffer(&archive);
        buffer.open(QIODevice::ReadOnly);
        MyDataStream ar(&buffer);
        Common_Serialize_Func(int(version), ar, record.fields);
    }

    QByteArray written;
    {
        QBuffer buffer(&written);
        buffer.open(QIODevice::WriteOnly);
        MyDataStream ar(&buffer);
        Common_Serialize_Func(int(version), ar, record.fields);
    }

    Record copy;
    Common_Func_OperatorAssign(record.fields, copy.fields);
    Common_Func_OperatorNotEqual(record.fields, copy.fields);
    writeTexts(copy.fields);
    Common_ClearData_Func(&copy.fields);
    return 0;
}
