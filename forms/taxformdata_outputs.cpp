#include <LibControl/forms/taxformdata.h>

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/forms/formoutputs.h>
#include <LibControl/worksheets/WorkSheetData.h>

#include <QDate>
#include <QDateTime>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

enum TypeCode { IntType = 0, BoolType = 1, StringType = 2, FloatType = 3, DateType = 4, DateTimeType = 5 };

// Text fields get at most this many test letters.
constexpr int TestTextLength = 10;
constexpr double TestAmount = 12345.67;

std::string removeAll(std::string text, std::string const &what)
{
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at))
        text.erase(at, what.size());
    return text;
}

std::string javaIdentifier(CField const &field)
{
    std::string identifier;
    DotChangeToUnderscore(field.m_strName, identifier);
    return identifier;
}

// The declaration up to the version arguments; false for a type with no Java class.
bool writeJavaDeclarationStart(FILE *f, CField &field, char const *id)
{
    int const line = field.m_nLineCode;
    int const extra = field.m_nExtra;
    switch (field.GetType()) {
    case IntType:
        if (line != 0)
            std::fprintf(f, "IntField %s = new IntField(\"%s\", -1, \"%d\", %d", id, id, line, extra);
        else
            std::fprintf(f, "IntField %s = new IntField(\"%s\", -1, null, %d", id, id, extra);
        return true;
    case BoolType:
        if (line != 0)
            std::fprintf(f, "BoolField %s = new BoolField(\"%s\", \"%d\", %d", id, id, line, extra);
        else
            std::fprintf(f, "BoolField %s = new BoolField(\"%s\", null, %d", id, id, extra);
        return true;
    case StringType: {
        int const width = static_cast<CStringField &>(field).m_nSize;
        if (line != 0)
            std::fprintf(f, "StringField %s = new StringField(\"%s\", %d, \"%d\", %d", id, id, width, line, extra);
        else
            std::fprintf(f, "StringField %s = new StringField(\"%s\", %d, null, %d", id, id, width, extra);
        return true;
    }
    case FloatType:
        if (line != 0)
            std::fprintf(f, "FloatField %s = new FloatField(\"%s\", \"%d\", %d", id, id, line, extra);
        else
            std::fprintf(f, "FloatField %s = new FloatField(\"%s\", null, %d", id, id, extra);
        return true;
    case DateType:
        std::fprintf(f, "DateField %s = new DateField(\"%s\"", id, id);
        return true;
    case DateTimeType:
        std::fprintf(f, "DateTimeField %s = new DateTimeField(\"%s\"", id, id);
        return true;
    default:
        return false;
    }
}

// The element that opens a layout row; false for a type the layout has no control for.
bool writeLayoutElementStart(FILE *f, CField &field, char const *name)
{
    switch (field.GetType()) {
    case IntType:
        // Every integer field is laid out as a choice among options.
        std::fprintf(f, "\t<radio name=\"%s\" ", name);
        return true;
    case BoolType:
        std::fprintf(f, "\t<check name=\"%s\" ", name);
        return true;
    case StringType:
        std::fprintf(f, "\t<string name=\"%s\" size=\"%d\" ", name, static_cast<CStringField &>(field).m_nSize);
        return true;
    case FloatType:
        std::fprintf(f, "\t<float name=\"%s\" ", name);
        return true;
    case DateType:
        std::fprintf(f, "\t<date name=\"%s\" ", name);
        return true;
    default:
        return false;
    }
}

void writeLayoutRow(FILE *f, CField &field)
{
    std::string const name = removeAll(field.m_strName, "fld_");
    std::fprintf(f, "<row>\n");
    if (writeLayoutElementStart(f, field, name.c_str())) {
        if (field.m_strName.find("notused") != std::string::npos
            || field.m_strName.find("NotUsed") != std::string::npos)
            std::fprintf(f, "notused=\"1\"");
        if (field.m_nVersionFrom > FIELD_VERSION_FIRST)
            std::fprintf(f, " version=\"0x%08x\"", field.m_nVersionFrom);
        if (field.m_nVersionTo < FIELD_VERSION_LAST)
            std::fprintf(f, " versionend=\"0x%08x\"", field.m_nVersionTo);
        std::fprintf(f, "/>\n");
    }
    std::fprintf(f, "</row>\n");
}

void fillTestText(CStringField &field)
{
    int const room = std::max(0, field.m_nSize - int(field.m_strValue.size()));
    field.m_strValue += QString(std::min(room, TestTextLength), QLatin1Char('a'));
}

} // namespace

void DotChangeToUnderscore(std::string const &name, std::string &out)
{
    out = name;
    size_t const dot = out.find('.');
    if (dot != std::string::npos)
        out[dot] = '_';
}

int CTaxData_Form::WriteJavaFile(char const *folder, char const *className, bool forPrint)
{
    if (!className || !*className)
        return -1;
    if (!folder)
        return -5;
    std::string const path = std::string(folder) + '/' + className + ".java";
    FILE *f = std::fopen(path.c_str(), "w");
    if (!f)
        return -5;

    if (forPrint)
        std::fprintf(f, "package vorbex.fmxprint.v2023;\n\nimport vorbex.makereport.*;\n\n");
    else
        std::fprintf(f, "package vorbex.makereport;\nimport java.io.*;\nimport java.util.Vector;\n\n");
    std::fprintf(f, "public class %s extends TaxFormData\n{\n", className);
    WriteJavaFileDeclaration(f);
    for (CWSBaseData *worksheet : m_listWorksheets)
        worksheet->WriteJavaFileDeclaration(f);
    std::fprintf(f, "\npublic %s()\n{\n", className);
    WriteJavaFileContruction(f);
    for (CWSBaseData *worksheet : m_listWorksheets)
        worksheet->WriteJavaFileContruction(f);
    std::fprintf(f, "}\n");
    WriteJavaFileImplementation(f);
    std::fprintf(f, "}\n");
    std::fclose(f);
    return 0;
}

void CTaxData_Form::WriteJavaFileDeclaration(FILE *f)
{
    if (!f)
        return;
    for (CField *field : m_fields) {
        std::string const id = javaIdentifier(*field);
        if (writeJavaDeclarationStart(f, *field, id.c_str()))
            std::fprintf(f, ", %-ld, %-ld);\n", long(field->m_nVersionFrom), long(field->m_nVersionTo));
    }
}

void CTaxData_Form::WriteJavaFileContruction(FILE *f)
{
    if (!f)
        return;
    for (CField *field : m_fields)
        std::fprintf(f, "m_data.add(%s);\n", javaIdentifier(*field).c_str());
}

void CTaxData_Form::WriteJavaFileImplementation(FILE *f)
{
    Q_UNUSED(f);
}

int CTaxData_Form::WriteLumenFormXmlFile(char const *folder, char const *formName, char const *fileName,
                                         unsigned int flags)
{
    // The flags select nothing in the text written here.
    Q_UNUSED(flags);
    if (!fileName || !*fileName)
        return -1;
    if (!folder)
        return -5;
    std::string const path = std::string(folder) + "/xml/" + fileName;
    FILE *f = std::fopen(path.c_str(), "w");
    if (!f)
        return -5;

    std::string const className = removeAll(formName ? formName : "", "TaxData_");
    std::fprintf(f, "<form classname=\"%s\">\n<tab title=\"page 1\">\n<section maxindent=\"6\">\n", className.c_str());
    for (CField *field : m_fields)
        writeLayoutRow(f, *field);
    std::fprintf(f, "</section>\n</tab>\n</form>\n");
    std::fclose(f);
    return 0;
}

void CTaxData_Form::FillTestPrintData()
{
    for (CField *field : m_fields) {
        switch (field->GetType()) {
        case IntType:
            static_cast<CIntField *>(field)->m_nValue = javaIdentifier(*field) == "fld_moreentry_num" ? 0 : 1;
            break;
        case BoolType:
            static_cast<CBoolField *>(field)->m_nValue = 1;
            break;
        case StringType:
            fillTestText(*static_cast<CStringField *>(field));
            break;
        case FloatType:
            static_cast<CFloatField *>(field)->m_dValue = TestAmount;
            break;
        case DateType:
            static_cast<CDateField *>(field)->m_date = QDate::currentDate();
            break;
        case DateTimeType:
            static_cast<CDateTimeField *>(field)->m_dateTime = QDateTime::currentDateTime();
            break;
        default:
            break;
        }
    }
}
