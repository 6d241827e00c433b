// Integer and flag fields, and the XML elements every field shares.

#include "fieldarchive.h"

#include <LibControl/fields/IntField.h>

#include <QtTest>

class tst_IntField : public QObject
{
    Q_OBJECT

private slots:
    void archivePayload_data();
    void archivePayload();
    void versionGate_data();
    void versionGate();
    void retiredFieldShowsMinusOneWhenAbsent();
    void intFromText_data();
    void intFromText();
    void boolFromText_data();
    void boolFromText();
    void savableInXml_data();
    void savableInXml();
    void xmlElements_data();
    void xmlElements();
};

void tst_IntField::archivePayload_data()
{
    QTest::addColumn<int>("kind"); // 0 integer, 1 flag
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("hex");

    QTest::newRow("integer nine") << 0 << 9 << QByteArray("09000000");
    QTest::newRow("integer minus two") << 0 << -2 << QByteArray("feffffff");
    QTest::newRow("integer large") << 0 << 0x12345678 << QByteArray("78563412");
    QTest::newRow("flag set") << 1 << 1 << QByteArray("01000000");
    QTest::newRow("flag clear") << 1 << 0 << QByteArray("00000000");
}

void tst_IntField::archivePayload()
{
    QFETCH(int, kind);
    QFETCH(int, value);
    QFETCH(QByteArray, hex);

    CIntField integer(value, FIELD_ATTR_NONE);
    CBoolField flag(value);
    CField &written = kind == 0 ? static_cast<CField &>(integer) : flag;
    QCOMPARE(storeField(written, FIELD_VERSION_FIRST).toHex(), hex);

    CIntField integerBack(7, FIELD_ATTR_NONE);
    CBoolField flagBack(7);
    CField &read = kind == 0 ? static_cast<CField &>(integerBack) : flagBack;
    QCOMPARE(loadField(read, FIELD_VERSION_FIRST, QByteArray::fromHex(hex)), QDataStream::Ok);
    QCOMPARE(kind == 0 ? integerBack.m_nValue : flagBack.m_nValue, value);
}

void tst_IntField::versionGate_data()
{
    QTest::addColumn<unsigned int>("version");
    QTest::addColumn<bool>("archived");

    // The field lives in 0x10020..0x10100.
    QTest::newRow("older than field") << 0x1001Fu << false;
    QTest::newRow("first version") << 0x10020u << true;
    QTest::newRow("inside range") << 0x10050u << true;
    QTest::newRow("last version") << 0x10100u << true;
    QTest::newRow("newer than field") << 0x10101u << false;
}

void tst_IntField::versionGate()
{
    QFETCH(unsigned int, version);
    QFETCH(bool, archived);

    CIntField field(0, 5, FIELD_ATTR_NONE, 0, 0x10020);
    field.m_nVersionTo = 0x10100;
    QCOMPARE(storeField(field, version).size(), archived ? 4 : 0);

    QCOMPARE(loadField(field, version, QByteArray::fromHex("2a000000")), QDataStream::Ok);
    QCOMPARE(field.m_nValue, archived ? 42 : 5);
}

void tst_IntField::retiredFieldShowsMinusOneWhenAbsent()
{
    CIntFieldNotused inRange(0x10000, 0x10100);
    loadField(inRange, 0x10050, QByteArray::fromHex("03000000"));
    QCOMPARE(inRange.m_nValue, 3);

    CIntFieldNotused retired(0x10000, 0x10100);
    QCOMPARE(storeField(retired, 0x10200).size(), 0);
    loadField(retired, 0x10200, QByteArray::fromHex("03000000"));
    QCOMPARE(retired.m_nValue, -1);
    QCOMPARE(retired.GetType(), 0);
}

void tst_IntField::intFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("printed");

    QTest::newRow("negative") << "-12" << -12 << "-12";
    QTest::newRow("zero") << "0" << 0 << "0";
    QTest::newRow("letters") << "abc" << 0 << "0";
    QTest::newRow("trailing letters") << "12abc" << 0 << "0";
    QTest::newRow("beyond int range") << "3000000000" << 0 << "0";
    QTest::newRow("largest int") << "2147483647" << 2147483647 << "2147483647";
}

void tst_IntField::intFromText()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    QFETCH(QString, printed);

    CIntField field(99, FIELD_ATTR_NONE);
    QCOMPARE(field.readFromString(CString(text)), 0);
    QCOMPARE(field.m_nValue, value);
    CString out;
    QCOMPARE(field.toString(out), 0);
    QCOMPARE(QString(out), printed);
}

void tst_IntField::boolFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("false") << "false" << 0;
    QTest::newRow("FALSE in capitals") << "FALSE" << 0;
    QTest::newRow("zero") << "0" << 0;
    QTest::newRow("NO in capitals") << "NO" << 0;
    QTest::newRow("no") << "no" << 0;
    QTest::newRow("empty text") << "" << 1;
    QTest::newRow("yes") << "yes" << 1;
    QTest::newRow("no with spaces") << " no " << 1;
    QTest::newRow("double zero") << "00" << 1;
}

void tst_IntField::boolFromText()
{
    QFETCH(QString, text);
    QFETCH(int, value);

    CBoolField field(1 - value);
    QCOMPARE(field.readFromString(CString(text)), 0);
    QCOMPARE(field.m_nValue, value);
    CString out;
    field.toString(out);
    QCOMPARE(QString(out), QString::number(value));
}

void tst_IntField::savableInXml_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("savable");

    QTest::newRow("ordinary name") << "fld_income" << true;
    QTest::newRow("notused inside") << "fld_notused_3" << false;
    QTest::newRow("different case") << "fld_NotUsed" << true;
}

void tst_IntField::savableInXml()
{
    QFETCH(QString, name);
    QFETCH(bool, savable);

    CIntField field(4, FIELD_ATTR_NONE);
    field.m_strName = name.toStdString();
    QCOMPARE(field.canFieldSavedInXML(), savable);

    CString out("untouched");
    QCOMPARE(field.writeToString(out), savable ? 0 : -1);
    QCOMPARE(field.writeToXmlForPdf(out), savable ? 0 : -1);
    if (!savable)
        QCOMPARE(QString(out), QStringLiteral("untouched"));
}

void tst_IntField::xmlElements_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("printValue");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("printElement");

    QTest::newRow("plain") << "fld_age" << "" << 41 << "<f n=\"fld_age\">41</f>"
                           << "<f><c>fld_age</c><v>41</v></f>";
    QTest::newRow("with print value") << "fld_prov" << "Ontario" << 9
                                      << "<f n=\"fld_prov\" p=\"Ontario\">9</f>"
                                      << "<f><c>fld_prov</c><v>9</v></f>";
    QTest::newRow("percent sign in name") << "fld_%2" << "" << -1 << "<f n=\"fld_%2\">-1</f>"
                                          << "<f><c>fld_%2</c><v>-1</v></f>";
}

void tst_IntField::xmlElements()
{
    QFETCH(QString, name);
    QFETCH(QString, printValue);
    QFETCH(int, value);
    QFETCH(QString, element);
    QFETCH(QString, printElement);

    CIntField field(value, FIELD_ATTR_NONE);
    field.m_strName = name.toStdString();
    field.m_strPrintValue = printValue.toStdString();
    CString out;
    QCOMPARE(field.writeToString(out), 0);
    QCOMPARE(QString(out), element);
    QCOMPARE(field.writeToXmlForPdf(out), 0);
    QCOMPARE(QString(out), printElement);
}

QTEST_GUILESS_MAIN(tst_IntField)
#include "tst_intfield.moc"
