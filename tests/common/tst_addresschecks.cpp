#include <LibControl/common/addresschecks.h>

#include <QtTest>

namespace {

// A null QByteArray stands for a null pointer.
char const *cText(QByteArray const &bytes)
{
    return bytes.isNull() ? nullptr : bytes.constData();
}

} // namespace

class tst_AddressChecks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void personalNames_data();
    void personalNames();
    void businessNames_data();
    void businessNames();
    void cityNames_data();
    void cityNames();
    void letterAndDigitStrings_data();
    void letterAndDigitStrings();
    void commonAddressRules_data();
    void commonAddressRules();
    void streetAndCareOfLines_data();
    void streetAndCareOfLines();
    void purifiedAddress_data();
    void purifiedAddress();
    void canadianPostalCodes_data();
    void canadianPostalCodes();
    void zipAndCountryCodes_data();
    void zipAndCountryCodes();
    void rawPostalCodes_data();
    void rawPostalCodes();
    void rawPhoneDigits_data();
    void rawPhoneDigits();
    void phoneNumbers_data();
    void phoneNumbers();
    void phoneEntered_data();
    void phoneEntered();
    void phoneFormatting_data();
    void phoneFormatting();
    void emailAddresses_data();
    void emailAddresses();
};

void tst_AddressChecks::personalNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("apostrophe and hyphen") << QByteArray("O'Neil-Smith") << true;
    QTest::newRow("refused last byte") << QByteArray("Smith#") << false;
    QTest::newRow("refused inner byte") << QByteArray("Jo#n") << false;
    QTest::newRow("two letters") << QByteArray("Jo") << true;
    QTest::newRow("two bytes, only ends judged") << QByteArray("J-") << true;
    QTest::newRow("empty") << QByteArray("") << true;
    QTest::newRow("null") << QByteArray() << true;
    QTest::newRow("starts with a digit") << QByteArray("1John") << false;
    QTest::newRow("ends with a hyphen") << QByteArray("Anne-") << true;
    QTest::newRow("ends with a full stop") << QByteArray("Anne.") << false;
    QTest::newRow("Latin-1 accent inside") << QByteArray("Ren\xE9"
                                                         "e")
                                           << true;
    QTest::newRow("Latin-1 accent first") << QByteArray("\xC9mile") << false;
    QTest::newRow("UTF-8 accent inside") << QByteArray("Ren\xC3\xA9"
                                                       "e")
                                         << true;
    QTest::newRow("UTF-8 accent first") << QByteArray("\xC3\x89mile") << false;
    QTest::newRow("UTF-8 accent last") << QByteArray("Jos\xC3\xA9") << false;
}

void tst_AddressChecks::personalNames()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, accepted);
    QCOMPARE(CheckName(cText(name)), accepted);
    QCOMPARE(CheckSpouseName(cText(name)), accepted);
}

void tst_AddressChecks::businessNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("plain ending in a letter") << QStringLiteral("Les Cafes Ltd") << true;
    QTest::newRow("accent inside") << QString::fromUtf8("Les Caf\u00E9s Ltd") << true;
    QTest::newRow("accent first") << QString::fromUtf8("\u00C9mile Inc") << false;
    QTest::newRow("Greek letter first") << QString::fromUtf8("\u03A9mega Ltd") << false;
    QTest::newRow("ampersand inside") << QStringLiteral("Smith & Sons") << false;
}

void tst_AddressChecks::businessNames()
{
    QFETCH(QString, name);
    QFETCH(bool, accepted);
    QCOMPARE(CheckBusiName(name), accepted);
}

void tst_AddressChecks::cityNames_data()
{
    QTest::addColumn<QString>("city");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accents in the table") << QString::fromUtf8("Saint-J\u00E9r\u00F4me") << true;
    QTest::newRow("ring A is not in the table") << QString::fromUtf8("\u00C5ngstr\u00F6m") << false;
    QTest::newRow("tilde O is not in the table") << QString::fromUtf8("\u00D5") << false;
    QTest::newRow("multiplication sign is in the table") << QString::fromUtf8("\u00D7") << true;
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("\u0141\u00F3d\u017A") << false;
    QTest::newRow("slash") << QStringLiteral("Grand Falls/Windsor") << true;
    QTest::newRow("exclamation mark") << QStringLiteral("Toronto!") << false;
    QTest::newRow("empty") << QString() << true;
}

void tst_AddressChecks::cityNames()
{
    QFETCH(QString, city);
    QFETCH(bool, accepted);
    QCOMPARE(CheckCityName(city), accepted);
}

void tst_AddressChecks::letterAndDigitStrings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("alphaOrSpace");
    QTest::addColumn<bool>("digits");
    QTest::newRow("empty") << QString() << true << true;
    QTest::newRow("words") << QStringLiteral("John Smith") << true << false;
    QTest::newRow("extra letter characters") << QStringLiteral("Jean-Luc $<>%") << true << false;
    QTest::newRow("letters and digits") << QStringLiteral("Ann3") << false << false;
    QTest::newRow("digits") << QStringLiteral("0123") << false << true;
    QTest::newRow("digits with a space") << QStringLiteral("12 3") << false << false;
    QTest::newRow("accented letter") << QString::fromUtf8("\u00E9") << false << false;
    QTest::newRow("Arabic-Indic digits") << QString::fromUtf8("\u0661\u0662") << false << false;
}

void tst_AddressChecks::letterAndDigitStrings()
{
    QFETCH(QString, text);
    QFETCH(bool, alphaOrSpace);
    QFETCH(bool, digits);
    QCOMPARE(CheckIsAlphaOrSpace(text), alphaOrSpace);
    QCOMPARE(CheckIsDigitStr(text, 0), digits);
}

void tst_AddressChecks::commonAddressRules_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("trimmed");
    QTest::newRow("final full stop") << QStringLiteral("12 Main St.") << true << QStringLiteral("12 Main St.");
    QTest::newRow("leading full stop") << QStringLiteral(".12 Main St") << false << QStringLiteral(".12 Main St");
    QTest::newRow("care-of marker") << QStringLiteral("c/o John") << false << QStringLiteral("c/o John");
    QTest::newRow("mixed-case marker not looked for")
        << QStringLiteral("C/o John") << true << QStringLiteral("C/o John");
    QTest::newRow("spaces trimmed in place")
        << QStringLiteral("  12 Main St \t") << true << QStringLiteral("12 Main St");
    QTest::newRow("blank becomes empty") << QStringLiteral("   ") << true << QString();
    QTest::newRow("leading number sign") << QStringLiteral("#12 Main") << false << QStringLiteral("#12 Main");
    QTest::newRow("trailing parenthesis")
        << QStringLiteral("12 Main (rear)") << false << QStringLiteral("12 Main (rear)");
}

void tst_AddressChecks::commonAddressRules()
{
    QFETCH(QString, address);
    QFETCH(bool, accepted);
    QFETCH(QString, trimmed);
    CString text = address;
    QCOMPARE(CheckAddress_common(text), accepted);
    QCOMPARE(QString(text), trimmed);
}

void tst_AddressChecks::streetAndCareOfLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("street");
    QTest::addColumn<bool>("careOf");
    QTest::newRow("street with a full stop") << QStringLiteral("12 Main St.") << true << true;
    QTest::newRow("unit, number sign and comma") << QStringLiteral("Apt #4, 12 Main St") << true << false;
    QTest::newRow("parentheses inside") << QStringLiteral("12 (rear) Main") << true << false;
    QTest::newRow("name with ampersand") << QStringLiteral("Doe & Sons") << true << true;
    QTest::newRow("name with apostrophe and hyphen") << QStringLiteral("J. O'Brien-Smith") << true << true;
    QTest::newRow("last byte not letter, digit or full stop") << QStringLiteral("12 Main St!") << false << false;
    QTest::newRow("accent inside refuses the line") << QString::fromUtf8("12 rue J\u00E9r\u00F4me") << false << false;
    QTest::newRow("Greek letter first") << QString::fromUtf8("\u03A9mega 12") << false << false;
    QTest::newRow("care-of marker") << QStringLiteral("C/O Jane Doe") << false << false;
    QTest::newRow("empty") << QString() << true << true;
}

void tst_AddressChecks::streetAndCareOfLines()
{
    QFETCH(QString, line);
    QFETCH(bool, street);
    QFETCH(bool, careOf);
    CString streetLine = line;
    CString careOfLine = line;
    QCOMPARE(CheckAddress(streetLine), street);
    QCOMPARE(CheckAddrCO(careOfLine), careOf);
}

void tst_AddressChecks::purifiedAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("purified");
    QTest::newRow("lower-case marker") << QStringLiteral("c/o Jane") << QStringLiteral("Jane");
    QTest::newRow("upper-case marker") << QStringLiteral("C/O Jane") << QStringLiteral("Jane");
    QTest::newRow("mixed case kept") << QStringLiteral("C/o Jane") << QStringLiteral("C/o Jane");
    QTest::newRow("marker without space kept") << QStringLiteral("c/oJane") << QStringLiteral("c/oJane");
    QTest::newRow("every occurrence") << QStringLiteral("a c/o b C/O c") << QStringLiteral("a b c");
}

void tst_AddressChecks::purifiedAddress()
{
    QFETCH(QString, address);
    QFETCH(QString, purified);
    QCOMPARE(QString(GetPurifiedAddr(address)), purified);
}

void tst_AddressChecks::canadianPostalCodes_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("with a space") << QByteArray("K1A 0B1") << true;
    QTest::newRow("with a hyphen") << QByteArray("K1A-0B1") << true;
    QTest::newRow("six characters") << QByteArray("K1A0B1") << true;
    QTest::newRow("lower case") << QByteArray("k1a0b1") << true;
    QTest::newRow("no letter excluded") << QByteArray("D1A 0B1") << true;
    QTest::newRow("text after the seventh ignored") << QByteArray("K1A 0B1 extra") << true;
    QTest::newRow("underscore separator") << QByteArray("K1A_0B1") << false;
    QTest::newRow("five characters") << QByteArray("K1A0B") << false;
    QTest::newRow("two spaces") << QByteArray("K1A  0B1") << false;
    QTest::newRow("Latin-1 letter") << QByteArray("\xC9"
                                                  "1A0B1")
                                    << false;
    QTest::newRow("null") << QByteArray() << false;
}

void tst_AddressChecks::canadianPostalCodes()
{
    QFETCH(QByteArray, code);
    QFETCH(bool, accepted);
    QCOMPARE(CheckCAPostCode(cText(code)), accepted);
}

void tst_AddressChecks::zipAndCountryCodes_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("ZIP") << "zip" << QByteArray("12345") << true;
    QTest::newRow("ZIP+4 with hyphen") << "zip" << QByteArray("12345-6789") << true;
    QTest::newRow("nine with a hyphen") << "zip" << QByteArray("12345-678") << true;
    QTest::newRow("hyphens anywhere") << "zip" << QByteArray("-----") << true;
    QTest::newRow("four digits") << "zip" << QByteArray("1234") << false;
    QTest::newRow("letter") << "zip" << QByteArray("1234a") << false;
    QTest::newRow("country") << "country" << QByteArray("CAN") << true;
    QTest::newRow("country in lower case") << "country" << QByteArray("can") << false;
    QTest::newRow("two-letter country") << "country" << QByteArray("CA") << false;
    QTest::newRow("country with a digit") << "country" << QByteArray("C1N") << false;
}

void tst_AddressChecks::zipAndCountryCodes()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, code);
    QFETCH(bool, accepted);
    if (kind == QLatin1String("zip"))
        QCOMPARE(CheckUSPostCode(code.constData()), accepted);
    else
        QCOMPARE(CheckCountryCode(code.constData()), accepted);
}

void tst_AddressChecks::rawPostalCodes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("canadian");
    QTest::addColumn<QString>("us");
    QTest::newRow("spaced lower case") << QStringLiteral("k1a 0b1") << QStringLiteral("K1A0B1")
                                       << QStringLiteral("k1a 0");
    QTest::newRow("stray characters skipped")
        << QStringLiteral("1k1a0b1x") << QStringLiteral("K1A0B1") << QStringLiteral("1k1a0");
    QTest::newRow("stops after six") << QStringLiteral("K1A 0B1 2C3") << QStringLiteral("K1A0B1")
                                     << QStringLiteral("K1A 0");
    QTest::newRow("repeated letters skipped")
        << QStringLiteral("KK11") << QStringLiteral("K1") << QStringLiteral("KK11");
    QTest::newRow("accented letter skipped")
        << QString::fromUtf8("\u00C9K1") << QStringLiteral("K1") << QString::fromUtf8("\u00C9K1");
    QTest::newRow("ZIP+4 trimmed") << QStringLiteral("  12345-6789 ") << QString() << QStringLiteral("12345");
    QTest::newRow("empty") << QString() << QString() << QString();
}

void tst_AddressChecks::rawPostalCodes()
{
    QFETCH(QString, text);
    QFETCH(QString, canadian);
    QFETCH(QString, us);
    QCOMPARE(QString(GetCARawPostcode(text)), canadian);
    QCOMPARE(QString(GetRawPostcode(text)), canadian);
    QCOMPARE(QString(GetUSRawPostcode(text)), us);
}

void tst_AddressChecks::rawPhoneDigits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("padToTen");
    QTest::addColumn<QString>("digits");
    QTest::newRow("formatted number") << QStringLiteral("(416) 555-1234") << false << QStringLiteral("4165551234");
    QTest::newRow("short number padded") << QStringLiteral("555-1234") << true << QStringLiteral("5551234000");
    QTest::newRow("long number not cut") << QStringLiteral("+1 416 555 1234") << true << QStringLiteral("14165551234");
    QTest::newRow("empty padded") << QString() << true << QStringLiteral("0000000000");
    QTest::newRow("Arabic-Indic digits dropped") << QString::fromUtf8("\u0664\u0661\u0666") << false << QString();
}

void tst_AddressChecks::rawPhoneDigits()
{
    QFETCH(QString, text);
    QFETCH(bool, padToTen);
    QFETCH(QString, digits);
    QCOMPARE(QString(GetRawPhoneStr(text, padToTen)), digits);
    if (!padToTen)
        QCOMPARE(QString(GetNumStr(text, true, 0)), digits);
}

void tst_AddressChecks::phoneNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("allowAllZero");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("formatted") << QStringLiteral("(416) 555-1234") << false << true;
    QTest::newRow("with label text") << QStringLiteral("tel. 416 555 1234") << false << true;
    QTest::newRow("seven digits") << QStringLiteral("555-1234") << false << false;
    QTest::newRow("all zeros") << QStringLiteral("000-000-0000") << false << false;
    QTest::newRow("all zeros allowed") << QStringLiteral("000-000-0000") << true << true;
    QTest::newRow("eleven zeros are not the zero number") << QStringLiteral("0-000-000-0000") << false << true;
    QTest::newRow("empty") << QString() << true << false;
}

void tst_AddressChecks::phoneNumbers()
{
    QFETCH(QString, text);
    QFETCH(bool, allowAllZero);
    QFETCH(bool, accepted);
    QCOMPARE(CheckPhoneNumber(text, allowAllZero), accepted);
    QCOMPARE(CheckPhoneFlatEditNumber(text, allowAllZero), accepted);
    if (!allowAllZero)
        QCOMPARE(CheckPhoneNumber(text), accepted);
}

void tst_AddressChecks::phoneEntered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("entered");
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("zeros with separators") << QStringLiteral("(000) 000-0000") << false;
    QTest::newRow("last digit set") << QStringLiteral("0000000001") << true;
    QTest::newRow("eleventh digit not looked at") << QStringLiteral("00000000001") << false;
}

void tst_AddressChecks::phoneEntered()
{
    QFETCH(QString, text);
    QFETCH(bool, entered);
    QCOMPARE(ChkPhoneStrHasSomething(text), entered);
}

void tst_AddressChecks::phoneFormatting_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::addColumn<QString>("formatted");
    QTest::newRow("ten digits") << QByteArray("4165551234") << QStringLiteral("(416)-5551234");
    QTest::newRow("already formatted") << QByteArray("(416)5551234") << QStringLiteral("(416)5551234");
    QTest::newRow("shorter than an area code") << QByteArray("41") << QStringLiteral("(41)-");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("null") << QByteArray() << QString();
}

void tst_AddressChecks::phoneFormatting()
{
    QFETCH(QByteArray, digits);
    QFETCH(QString, formatted);
    CString out = "previous";
    myStringToPhone(cText(digits), out);
    QCOMPARE(QString(out), formatted);
}

void tst_AddressChecks::emailAddresses_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("shortest") << QByteArray("a@b.c") << true;
    QTest::newRow("usual") << QByteArray("john_doe-1@mail.example.ca") << true;
    QTest::newRow("no dot after the at sign") << QByteArray("a@bc") << false;
    QTest::newRow("no letter after the at sign") << QByteArray("a@1.2") << false;
    QTest::newRow("leading dot") << QByteArray(".a@b.c") << false;
    QTest::newRow("trailing dot") << QByteArray("a@b.c.") << false;
    QTest::newRow("dot before the at sign") << QByteArray("a.@b.c") << false;
    QTest::newRow("two dots") << QByteArray("a..b@c.d") << false;
    QTest::newRow("two at signs") << QByteArray("a@b@c.d") << false;
    QTest::newRow("only an underscore before the at sign") << QByteArray("_@b.c") << false;
    QTest::newRow("UTF-8 accented letter") << QByteArray("j\xC3\xA9@b.c") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("null") << QByteArray() << false;
}

void tst_AddressChecks::emailAddresses()
{
    QFETCH(QByteArray, address);
    QFETCH(bool, accepted);
    QCOMPARE(checkEmail(cText(address)), accepted);
}

QTEST_GUILESS_MAIN(tst_AddressChecks)

#include "tst_addresschecks.moc"
