#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/forms/formoutputs.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/worksheets/NonDepWorkSheetData.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

// A form over fields owned by the test.
class TestForm : public CTaxData_Form
{
public:
    TestForm(std::initializer_list<std::pair<CField *, char const *>> fields)
        : CTaxData_Form(FORM_T1GENERAL)
    {
        for (auto const &[field, name] : fields) {
            field->m_strName = name;
            m_fields.push_back(field);
        }
    }
};

// One field of every kind the generators know, plus a retired one.
struct SampleFields
{
    CIntField count{0, 0, FIELD_ATTR_NONE};
    CBoolField flag{5, 0, FIELD_ATTR_NONE, 2, FIELD_VERSION_FIRST};
    CStringField name{30000, "", 20, FIELD_VERSION_FIRST};
    CFloatField dotted{0.0, 10100, false, 0x10083, FIELD_ATTR_NONE};
    CDateField birth{FIELD_ATTR_NONE};
    CFloatFieldNotused retired{0x10050, 0x10100};
    CDateTimeField stamp{FIELD_ATTR_NONE};

    std::unique_ptr<TestForm> form()
    {
        return std::make_unique<TestForm>(std::initializer_list<std::pair<CField *, char const *>>{
            {&count, "fld_count"},
            {&flag, "fld_flag"},
            {&name, "fld_name"},
            {&dotted, "fld_a.b.c"},
            {&birth, "fld_birth"},
            {&retired, "fld_line_notused"},
            {&stamp, "fld_stamp"}});
    }
};

QString readText(QString const &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("<missing>");
    return QString::fromUtf8(file.readAll());
}

} // namespace

class tst_FormOutputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dotChangeToUnderscore_data();
    void dotChangeToUnderscore();
    void javaFile_data();
    void javaFile();
    void layoutFile();
    void refusals_data();
    void refusals();
    void testPrintData_data();
    void testPrintData();
    void testPrintDates();
};

void tst_FormOutputs::dotChangeToUnderscore_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("identifier");

    QTest::newRow("only the first dot") << "fld_a.b.c" << "fld_a_b.c";
    QTest::newRow("no dot") << "fld_plain" << "fld_plain";
    QTest::newRow("leading dot") << ".x" << "_x";
    QTest::newRow("empty") << "" << "";
}

void tst_FormOutputs::dotChangeToUnderscore()
{
    QFETCH(QString, name);
    QFETCH(QString, identifier);

    std::string out = "stale";
    DotChangeToUnderscore(name.toStdString(), out);
    QCOMPARE(QString::fromStdString(out), identifier);
}

void tst_FormOutputs::javaFile_data()
{
    QTest::addColumn<bool>("forPrint");
    QTest::addColumn<QString>("header");

    QTest::newRow("for print") << true
                               << "package vorbex.fmxprint.v2023;\n\n"
                                  "import vorbex.makereport.*;\n\n";
    QTest::newRow("for reports") << false
                                 << "package vorbex.makereport;\n"
                                    "import java.io.*;\n"
                                    "import java.util.Vector;\n\n";
}

void tst_FormOutputs::javaFile()
{
    QFETCH(bool, forPrint);
    QFETCH(QString, header);

    SampleFields fields;
    auto form = fields.form();
    DataWS58600 worksheet;
    worksheet.m_strName = "WS586";
    form->m_listWorksheets.push_back(&worksheet);

    QTemporaryDir dir;
    QCOMPARE(form->WriteJavaFile(dir.path().toUtf8().constData(), "TaxDataSample", forPrint), 0);

    // Versions in decimal: 0x10000 = 65536, 0x0FFFFFFF = 268435455,
    // 0x10083 = 65667, 0x10050 = 65616, 0x10100 = 65792.
    QCOMPARE(readText(dir.filePath("TaxDataSample.java")),
             header
                 + "public class TaxDataSample extends TaxFormData\n"
                   "{\n"
                   "IntField fld_count = new IntField(\"fld_count\", -1, null, 0, 65536, 268435455);\n"
                   "BoolField fld_flag = new BoolField(\"fld_flag\", \"5\", 2, 65536, 268435455);\n"
                   "StringField fld_name = new StringField(\"fld_name\", 20, \"30000\", 0, 65536, 268435455);\n"
                   "FloatField fld_a_b.c = new FloatField(\"fld_a_b.c\", \"10100\", 0, 65667, 268435455);\n"
                   "DateField fld_birth = new DateField(\"fld_birth\", 65536, 268435455);\n"
                   "FloatField fld_line_notused = new FloatField(\"fld_line_notused\", null, 0, 65616, 65792);\n"
                   "DateTimeField fld_stamp = new DateTimeField(\"fld_stamp\", 65536, 268435455);\n"
                   "FloatField WS586_fld_5860 = new FloatField(\"WS586_fld_5860\", 65667, 268435455);\n"
                   "FloatField WS586_fld_claim = new FloatField(\"WS586_fld_claim\", 65667, 268435455);\n"
                   "\n"
                   "public TaxDataSample()\n"
                   "{\n"
                   "m_data.add(fld_count);\n"
                   "m_data.add(fld_flag);\n"
                   "m_data.add(fld_name);\n"
                   "m_data.add(fld_a_b.c);\n"
                   "m_data.add(fld_birth);\n"
                   "m_data.add(fld_line_notused);\n"
                   "m_data.add(fld_stamp);\n"
                   "m_data.add(WS586_fld_5860);\n"
                   "m_data.add(WS586_fld_claim);\n"
                   "}\n"
                   "}\n");
}

void tst_FormOutputs::layoutFile()
{
    SampleFields fields;
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir("xml"));

    QCOMPARE(fields.form()->WriteLumenFormXmlFile(dir.path().toUtf8().constData(), "TaxData_Sample", "sample.xml", 0),
             0);

    // Element starts end in a space, so a version attribute follows two spaces.
    QCOMPARE(readText(dir.filePath("xml/sample.xml")),
             QStringLiteral("<form classname=\"Sample\">\n"
                            "<tab title=\"page 1\">\n"
                            "<section maxindent=\"6\">\n"
                            "<row>\n\t<radio name=\"count\" />\n</row>\n"
                            "<row>\n\t<check name=\"flag\" />\n</row>\n"
                            "<row>\n\t<string name=\"name\" size=\"20\" />\n</row>\n"
                            "<row>\n\t<float name=\"a.b.c\"  version=\"0x00010083\"/>\n</row>\n"
                            "<row>\n\t<date name=\"birth\" />\n</row>\n"
                            "<row>\n\t<float name=\"line_notused\" notused=\"1\" version=\"0x00010050\" "
                            "versionend=\"0x00010100\"/>\n</row>\n"
                            "<row>\n</row>\n"
                            "</section>\n"
                            "</tab>\n"
                            "</form>\n"));
}

void tst_FormOutputs::refusals_data()
{
    QTest::addColumn<bool>("java");
    QTest::addColumn<QByteArray>("fileName");
    QTest::addColumn<int>("result");

    QTest::newRow("java: empty class name") << true << QByteArray("") << -1;
    QTest::newRow("java: no class name") << true << QByteArray() << -1;
    QTest::newRow("java: folder missing") << true << QByteArray("absent/TaxDataSample") << -5;
    QTest::newRow("layout: empty file name") << false << QByteArray("") << -1;
    QTest::newRow("layout: no file name") << false << QByteArray() << -1;
    QTest::newRow("layout: no xml folder") << false << QByteArray("sample.xml") << -5;
}

void tst_FormOutputs::refusals()
{
    QFETCH(bool, java);
    QFETCH(QByteArray, fileName);
    QFETCH(int, result);

    SampleFields fields;
    QTemporaryDir dir;
    QByteArray const folder = dir.path().toUtf8();
    char const *name = fileName.isNull() ? nullptr : fileName.constData();
    auto form = fields.form();
    QCOMPARE(java ? form->WriteJavaFile(folder.constData(), name, true)
                  : form->WriteLumenFormXmlFile(folder.constData(), "TaxData_Sample", name, 0),
             result);
    QCOMPARE(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
}

void tst_FormOutputs::testPrintData_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("value");

    QTest::newRow("integer") << "int" << "fld_count" << 0 << "1";
    QTest::newRow("more-entry counter stays 0") << "int" << "fld_moreentry_num" << 0 << "0";
    QTest::newRow("flag") << "bool" << "fld_flag" << 0 << "1";
    QTest::newRow("text gets ten letters") << "text" << "fld_name" << 20 << "Joaaaaaaaaaa";
    QTest::newRow("text fills its width") << "text" << "fld_name" << 5 << "Joaaa";
    QTest::newRow("full text unchanged") << "text" << "fld_name" << 2 << "Jo";
    QTest::newRow("amount") << "float" << "fld_amount" << 0 << "12345.67";
}

void tst_FormOutputs::testPrintData()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    QFETCH(int, width);
    QFETCH(QString, value);

    CIntField integer{0, 7, FIELD_ATTR_NONE};
    CBoolField flag{0};
    CStringField text{"Jo", width};
    CFloatField amount{0.0, 0};
    CField *field = kind == "int" ? static_cast<CField *>(&integer)
        : kind == "bool"          ? static_cast<CField *>(&flag)
        : kind == "text"          ? static_cast<CField *>(&text)
                                  : static_cast<CField *>(&amount);
    QByteArray const fieldName = name.toUtf8();
    TestForm form{{field, fieldName.constData()}};

    form.FillTestPrintData();
    CString out;
    field->toString(out);
    QCOMPARE(QString(out), value);
}

void tst_FormOutputs::testPrintDates()
{
    CDateField date{FIELD_ATTR_NONE};
    CDateTimeField stamp{FIELD_ATTR_NONE};
    stamp.m_dateTime = QDateTime();
    TestForm form{{&date, "fld_date"}, {&stamp, "fld_stamp"}};

    form.FillTestPrintData();
    QVERIFY(date.m_date.isValid());
    QVERIFY(stamp.m_dateTime.isValid());
}

QTEST_GUILESS_MAIN(tst_FormOutputs)
#include "tst_formoutputs.moc"
