// Text fields: the fixed-width and length-prefixed archive forms, the XML
// text and its cleaning side effect, and the address clean-up rules.

#include "fieldarchive.h"

#include <LibControl/fields/IntField.h>

#include <QtTest>

class tst_StringField : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void fixedWidthPayload_data();
    void fixedWidthPayload();
    void fixedWidthLoad_data();
    void fixedWidthLoad();
    void lengthPrefixedWhen_data();
    void lengthPrefixedWhen();
    void lengthPrefixedLoad_data();
    void lengthPrefixedLoad();
    void fromText_data();
    void fromText();
    void xmlTextTrimsField();
    void savableInXml_data();
    void savableInXml();
    void validateAndCorrect_data();
    void validateAndCorrect();
    void removeCareOf_data();
    void removeCareOf();
    void comparison_data();
    void comparison();
};

void tst_StringField::init()
{
    CStringField::p_for_large_size_serialize = false;
    CStringField::p_for_large_size_serialize_version = 0;
    CStringField::p_for_large_size_serialize_size = 0;
}

void tst_StringField::fixedWidthPayload_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("size");
    QTest::addColumn<QByteArray>("hex");

    QTest::newRow("shorter, zero filled") << "Bob" << 8 << QByteArray("426f620000000000");
    QTest::newRow("exactly the width") << "Bob" << 3 << QByteArray("426f62");
    QTest::newRow("cut at the width") << "Bobby" << 2 << QByteArray("426f");
    QTest::newRow("empty") << "" << 4 << QByteArray("00000000");
    QTest::newRow("accent written as UTF-8") << QStringLiteral("Caf\u00e9") << 6 << QByteArray("436166c3a900");
    QTest::newRow("cut inside a character") << QStringLiteral("Caf\u00e9") << 4 << QByteArray("436166c3");
    QTest::newRow("no width") << "Bob" << 0 << QByteArray("");
}

void tst_StringField::fixedWidthPayload()
{
    QFETCH(QString, text);
    QFETCH(int, size);
    QFETCH(QByteArray, hex);

    CStringField field("", size);
    field.m_strValue = text;
    QCOMPARE(storeField(field, FIELD_VERSION_FIRST).toHex(), hex);
}

void tst_StringField::fixedWidthLoad_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("complete");

    QTest::newRow("up to the zero byte") << QByteArray("426f6200414141") << 7 << "Bob" << true;
    QTest::newRow("no zero byte") << QByteArray("426f62") << 3 << "Bob" << true;
    QTest::newRow("UTF-8 read as Latin-1") << QByteArray("436166c3a900") << 6 << QStringLiteral("Caf\u00c3\u00a9")
                                           << true;
    QTest::newRow("truncated stream") << QByteArray("426f") << 4 << "" << false;
}

void tst_StringField::fixedWidthLoad()
{
    QFETCH(QByteArray, hex);
    QFETCH(int, size);
    QFETCH(QString, text);
    QFETCH(bool, complete);

    CStringField field("old", size);
    QDataStream::Status const status = loadField(field, FIELD_VERSION_FIRST, QByteArray::fromHex(hex));
    QCOMPARE(status == QDataStream::Ok, complete);
    QCOMPARE(QString(field.m_strValue), text);
}

void tst_StringField::lengthPrefixedWhen_data()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::addColumn<unsigned int>("version");
    QTest::addColumn<int>("size");
    QTest::addColumn<QByteArray>("hex");

    // setLargeSizeSerializeOption(0x10200, 100) for the rows switched on.
    QTest::newRow("switch off") << false << 0x10300u << 200 << QByteArray("48690000") + QByteArray(392, '0');
    QTest::newRow("all three hold") << true << 0x10300u << 200 << QByteArray("020000004869");
    QTest::newRow("at the version and width") << true << 0x10200u << 100 << QByteArray("020000004869");
    QTest::newRow("older archive") << true << 0x101FFu << 200 << QByteArray("48690000") + QByteArray(392, '0');
    QTest::newRow("narrower field") << true << 0x10300u << 99 << QByteArray("48690000") + QByteArray(190, '0');
}

void tst_StringField::lengthPrefixedWhen()
{
    QFETCH(bool, switchedOn);
    QFETCH(unsigned int, version);
    QFETCH(int, size);
    QFETCH(QByteArray, hex);

    if (switchedOn)
        CStringField::setLargeSizeSerializeOption(0x10200, 100);
    CStringField field("Hi", size);
    QCOMPARE(storeField(field, version).toHex(), hex);

    CStringField back("", size);
    QCOMPARE(loadField(back, version, QByteArray::fromHex(hex)), QDataStream::Ok);
    QCOMPARE(QString(back.m_strValue), QStringLiteral("Hi"));
}

void tst_StringField::lengthPrefixedLoad_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("complete");

    QTest::newRow("UTF-8 text, not cut to the width") << QByteArray("0b000000436166c3a920746f74616c")
                                                      << QStringLiteral("Caf\u00e9 total") << true;
    QTest::newRow("zero count") << QByteArray("00000000") << "" << true;
    QTest::newRow("negative count") << QByteArray("ffffffff4869") << "" << true;
    QTest::newRow("huge count, few bytes") << QByteArray("ffffff7f4869") << "" << false;
    QTest::newRow("count cut short") << QByteArray("0100") << "" << false;
}

void tst_StringField::lengthPrefixedLoad()
{
    QFETCH(QByteArray, hex);
    QFETCH(QString, text);
    QFETCH(bool, complete);

    CStringField::setLargeSizeSerializeOption(0x10000, 10);
    CStringField field("old", 10);
    QDataStream::Status const status = loadField(field, FIELD_VERSION_FIRST, QByteArray::fromHex(hex));
    QCOMPARE(status == QDataStream::Ok, complete);
    QCOMPARE(QString(field.m_strValue), text);
}

void tst_StringField::fromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("value");

    QTest::newRow("trimmed then cut") << "  Toronto  " << 5 << "Toron";
    QTest::newRow("fits") << " Ajax " << 10 << "Ajax";
    QTest::newRow("inner spaces kept") << "Main  St" << 10 << "Main  St";
    QTest::newRow("no width") << "Ajax" << 0 << "";
}

void tst_StringField::fromText()
{
    QFETCH(QString, text);
    QFETCH(int, size);
    QFETCH(QString, value);

    CStringField field("old", size);
    QCOMPARE(field.readFromString(CString(text)), 0);
    QCOMPARE(QString(field.m_strValue), value);
}

void tst_StringField::xmlTextTrimsField()
{
    CStringField::setLargeSizeSerializeOption(0x10000, 1000);
    CStringField field("A&B ", 10);
    field.m_strName = "fld_name";
    CString out;
    QCOMPARE(field.toString(out), 0);
    QCOMPARE(QString(out), QStringLiteral("A&#38;B"));
    QCOMPARE(QString(field.m_strValue), QStringLiteral("A&B"));

    field.m_strValue = QStringLiteral(" <O'Neil> \"Jr\" ");
    field.m_nSize = 8;
    QCOMPARE(field.writeToString(out), 0);
    QCOMPARE(QString(out), QStringLiteral("<f n=\"fld_name\">&#60;O&#39;Neil&#62;</f>"));
}

void tst_StringField::savableInXml_data()
{
    QTest::addColumn<bool>("optionSet");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("savable");

    // setLargeSizeSerializeOption(0x10000, 256) for the rows with the option.
    QTest::newRow("before the option is set") << false << 10 << "fld_city" << false;
    QTest::newRow("narrower than threshold") << true << 255 << "fld_city" << true;
    QTest::newRow("at the threshold") << true << 256 << "fld_notes" << false;
    QTest::newRow("retired name") << true << 10 << "fld_city_notused" << false;
}

void tst_StringField::savableInXml()
{
    QFETCH(bool, optionSet);
    QFETCH(int, size);
    QFETCH(QString, name);
    QFETCH(bool, savable);

    if (optionSet)
        CStringField::setLargeSizeSerializeOption(0x10000, 256);
    CStringField field("x", size);
    field.m_strName = name.toStdString();
    QCOMPARE(field.canFieldSavedInXML(), savable);
    CString out;
    QCOMPARE(field.writeToString(out), savable ? 0 : -1);
}

void tst_StringField::validateAndCorrect_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("keepBlanks");
    QTest::addColumn<QString>("corrected");

    QTest::newRow("trim and halve pairs") << "  Main  St  " << false << "Main St";
    QTest::newRow("one pass only") << "a   b" << false << "a  b";
    QTest::newRow("four spaces") << "a    b" << false << "a  b";
    QTest::newRow("keep blanks bit") << "  Main  St  " << true << "  Main  St  ";
}

void tst_StringField::validateAndCorrect()
{
    QFETCH(QString, text);
    QFETCH(bool, keepBlanks);
    QFETCH(QString, corrected);

    auto const attr = keepBlanks ? ENUMTYPE_FIELD_ATTR(FIELD_ATTR_KEEP_BLANKS | FIELD_ATTR_CLEAR_TEXT_NEXTYEAR)
                                 : FIELD_ATTR_CLEAR_TEXT_NEXTYEAR;
    CStringField field(0, "", 40, attr, 0, FIELD_VERSION_FIRST);
    field.m_strValue = text;
    QCOMPARE(field.ValidateAndCorrect(), 0);
    QCOMPARE(QString(field.m_strValue), corrected);
}

void tst_StringField::removeCareOf_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cleaned");

    QTest::newRow("care of with colon keeps it") << "C/O: Jane Roe" << ": Jane Roe";
    QTest::newRow("every spelling") << "c/o C/o c/O C/O x" << "    x";
    QTest::newRow("at suite") << "A/S: 12 Main" << ": 12 Main";
    QTest::newRow("lower-case at suite stays") << "a/s 12 Main" << "a/s 12 Main";
    QTest::newRow("inside a word") << "XC/OY" << "XY";
    QTest::newRow("nothing to remove") << "12 Main St" << "12 Main St";
}

void tst_StringField::removeCareOf()
{
    QFETCH(QString, text);
    QFETCH(QString, cleaned);

    CStringField field("", 40);
    field.m_strValue = text;
    field.removeCOInAddr();
    QCOMPARE(QString(field.m_strValue), cleaned);
}

void tst_StringField::comparison_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("differ");

    QTest::newRow("inner and outer spaces") << "Main  St" << " Main St" << false;
    QTest::newRow("tab inside") << "Main\tSt" << "Main St" << false;
    QTest::newRow("case counts") << "main st" << "MAIN ST" << true;
    QTest::newRow("different words") << "Main St" << "Main Ave" << true;
}

void tst_StringField::comparison()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, differ);

    CStringField x("", 20);
    CStringField y("", 20);
    x.m_strValue = a;
    y.m_strValue = b;
    QCOMPARE(x != y, differ);

    y = x;
    QCOMPARE(QString(y.m_strValue), a);
    QCOMPARE(y.m_nSize, 20);
}

QTEST_GUILESS_MAIN(tst_StringField)
#include "tst_stringfield.moc"
