#include <LibControl/fields/IntField.h>
#include <LibControl/fields/addressvalidation.h>

#include <QtTest>

class tst_AddressValidation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportedParts_data();
    void reportedParts();
    void messagesAppendAndCount();
};

void tst_AddressValidation::reportedParts_data()
{
    QTest::addColumn<bool>("oneLine");
    // Street number, street name, city and postal code.
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("province");
    QTest::addColumn<int>("country");
    QTest::addColumn<QStringList>("labels");
    QStringList const street { "Street number/name" };
    QTest::newRow("complete Canadian address")
        << false << QStringList { "123", "Main St", "Ottawa", "K1A 0B1" } << 9 << 1 << QStringList();
    QTest::newRow("street number of eight characters")
        << false << QStringList { "12345678", "Main St", "Ottawa", "K1A 0B1" } << 9 << 1 << QStringList();
    QTest::newRow("street number of nine characters")
        << false << QStringList { "123456789", "Main St", "Ottawa", "K1A 0B1" } << 9 << 1 << street;
    QTest::newRow("blank street number") << false << QStringList { "  ", "Main St", "Ottawa", "K1A 0B1" } << 9 << 1
                                         << street;
    QTest::newRow("blank street name") << false << QStringList { "123", " ", "Ottawa", "K1A 0B1" } << 9 << 1 << street;
    QTest::newRow("blank city") << false << QStringList { "123", "Main St", "\t", "K1A 0B1" } << 9 << 1
                                << QStringList { "City" };
    QTest::newRow("Canada without province, bad postal code")
        << false << QStringList { "123", "Main St", "Ottawa", "K1A_0B1" } << 0 << 1
        << QStringList { "Province", "Postal code" };
    QTest::newRow("Canada with blank postal code")
        << false << QStringList { "123", "Main St", "Ottawa", "  " } << 9 << 1 << QStringList { "Postal code" };
    QTest::newRow("Canadian postal code with blanks around")
        << false << QStringList { "123", "Main St", "Ottawa", " K1A 0B1 " } << 9 << 1 << QStringList();
    QTest::newRow("complete US address") << false << QStringList { "1", "Elm St", "Buffalo", "14201-1234" } << 50 << 2
                                         << QStringList();
    QTest::newRow("US without state, Canadian postal code")
        << false << QStringList { "1", "Elm St", "Buffalo", "K1A 0B1" } << 0 << 2
        << QStringList { "State", "Postal code" };
    QTest::newRow("no country, postal code not checked")
        << false << QStringList { "1", "Elm St", "Paris", "" } << 0 << 0 << QStringList { "Country" };
    QTest::newRow("other country, nothing more checked")
        << false << QStringList { "1", "Rue Haute", "Paris", "" } << 0 << 3 << QStringList();
    QTest::newRow("everything missing") << false << QStringList { "", "", "", "" } << 0 << 0
                                        << QStringList { "Street number/name", "City", "Country" };
    QTest::newRow("one line, long and without street name")
        << true << QStringList { "123456789 Main Street", "", "Ottawa", "K1A 0B1" } << 9 << 1 << QStringList();
    QTest::newRow("one line, blank") << true << QStringList { " ", "Main St", "Ottawa", "K1A 0B1" } << 9 << 1
                                     << QStringList { "Street address" };
    QTest::newRow("one line, US without state") << true << QStringList { "1 Elm St", "", "Buffalo", "1420" } << 0 << 2
                                                << QStringList { "State", "Postal code" };
}

void tst_AddressValidation::reportedParts()
{
    QFETCH(bool, oneLine);
    QFETCH(QStringList, texts);
    QFETCH(int, province);
    QFETCH(int, country);
    QFETCH(QStringList, labels);
    CStringField number(nullptr, 30), name(nullptr, 30), cityField(nullptr, 30), postal(nullptr, 10);
    number.m_strValue = texts.at(0);
    name.m_strValue = texts.at(1);
    cityField.m_strValue = texts.at(2);
    postal.m_strValue = texts.at(3);
    CIntField const provinceField(province, FIELD_ATTR_NONE);
    CIntField const countryField(country, FIELD_ATTR_NONE);
    long errors = 0;
    std::list<CString> messages;
    auto const validate = oneLine ? validateAddr2 : validateAddr;
    long const added
        = validate(errors, messages, number, name, cityField, provinceField, countryField, postal, "%s|%s", "home");
    QStringList expected;
    for (QString const &label : labels)
        expected << label + QStringLiteral("|home");
    QCOMPARE(QStringList(messages.begin(), messages.end()), expected);
    QCOMPARE(added, long(labels.size()));
    QCOMPARE(errors, added);
}

void tst_AddressValidation::messagesAppendAndCount()
{
    CStringField number(nullptr, 10), name(nullptr, 30), city(nullptr, 30), postal(nullptr, 10);
    CIntField const province(0, FIELD_ATTR_NONE);
    CIntField const country(1, FIELD_ATTR_NONE);
    long errors = 5;
    std::list<CString> messages { CString("earlier message") };
    long const added = validateAddr(errors, messages, number, name, city, province, country, postal,
        "%s is missing or invalid in the %s.", "mailing address");
    QCOMPARE(added, 4L);
    QCOMPARE(errors, 9L);
    QStringList const expected {
        "earlier message",
        QString::fromUtf8("Street number/name is missing or invalid in the mailing address."),
        QString::fromUtf8("City is missing or invalid in the mailing address."),
        QString::fromUtf8("Province is missing or invalid in the mailing address."),
        QString::fromUtf8("Postal code is missing or invalid in the mailing address."),
    };
    QCOMPARE(QStringList(messages.begin(), messages.end()), expected);
}

QTEST_GUILESS_MAIN(tst_AddressValidation)

#include "tst_addressvalidation.moc"
