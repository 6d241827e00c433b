#include <LibControl/worksheets/PostCodeInfo.h>

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

namespace {

// Province numbers by section header, written out independently of the
// catalogue.
QMap<QString, int> const ProvinceOfHeader = {
    {QStringLiteral("AB"), 1}, {QStringLiteral("BC"), 2}, {QStringLiteral("MB"), 3}, {QStringLiteral("NB"), 4},
    {QStringLiteral("NL"), 5}, {QStringLiteral("NS"), 6}, {QStringLiteral("NT"), 7}, {QStringLiteral("NU"), 8},
    {QStringLiteral("ON"), 9}, {QStringLiteral("PE"), 10}, {QStringLiteral("QC"), 11}, {QStringLiteral("SK"), 12},
    {QStringLiteral("YT"), 13},
};

// The table's sections in file order with their codes.
QList<QPair<QString, QStringList>> readSections()
{
    QFile file(QString::fromLatin1(CPostCodeInfo::ResourcePath));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QPair<QString, QStringList>> sections;
    QRegularExpression const header(QStringLiteral("^\\[([A-Z]{2})\\]$"));
    for (QByteArray const &line : file.readAll().split('\n')) {
        QString const text = QString::fromLatin1(line).remove(QLatin1Char('\r'));
        QRegularExpressionMatch const m = header.match(text);
        if (m.hasMatch())
            sections.append({m.captured(1), {}});
        else if (!sections.isEmpty())
            sections.last().second += text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    return sections;
}

} // namespace

class tst_PostCodeInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resourceShape();
    void sections_data();
    void sections();
    void everyListedCodeMapsToItsSection();
    void lookup_data();
    void lookup();
    void isPostCodeFromProv();
};

void tst_PostCodeInfo::resourceShape()
{
    QFile file(QString::fromLatin1(CPostCodeInfo::ResourcePath));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray const bytes = file.readAll();
    QCOMPARE(bytes.size(), 7600);
    QCOMPARE(bytes.count("\r\n"), 764);
    QCOMPARE(bytes.count('\n'), 764);
}

void tst_PostCodeInfo::sections_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("header");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("firstLetters");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");

    QTest::newRow("Alberta") << 0 << "AB" << 156 << "T" << "T0A" << "T9X";
    QTest::newRow("British Columbia") << 1 << "BC" << 195 << "V" << "V0A" << "V9Z";
    QTest::newRow("Manitoba") << 2 << "MB" << 76 << "R" << "R0A" << "R9A";
    QTest::newRow("New Brunswick") << 3 << "NB" << 126 << "E" << "E0A" << "E9H";
    QTest::newRow("Newfoundland and Labrador") << 4 << "NL" << 37 << "A" << "A0A" << "A8A";
    QTest::newRow("Northwest Territories before Nova Scotia") << 5 << "NT" << 5 << "X" << "X0E" << "X1A";
    QTest::newRow("Nova Scotia") << 6 << "NS" << 78 << "B" << "B0A" << "B9A";
    QTest::newRow("Nunavut") << 7 << "NU" << 3 << "X" << "X0A" << "X0C";
    QTest::newRow("Ontario") << 8 << "ON" << 537 << "KLMNP" << "K0A" << "P9N";
    QTest::newRow("Prince Edward Island") << 9 << "PE" << 7 << "C" << "C0A" << "C1N";
    QTest::newRow("Quebec") << 10 << "QC" << 413 << "GHJ" << "G0A" << "J9Z";
    QTest::newRow("Saskatchewan") << 11 << "SK" << 49 << "S" << "S0A" << "S9X";
    QTest::newRow("Yukon") << 12 << "YT" << 3 << "Y" << "Y0A" << "Y1A";
}

void tst_PostCodeInfo::sections()
{
    QFETCH(int, index);
    QFETCH(QString, header);
    QFETCH(int, count);
    QFETCH(QString, firstLetters);
    QFETCH(QString, first);
    QFETCH(QString, last);

    auto const all = readSections();
    QCOMPARE(all.size(), 13);
    auto const &section = all.at(index);
    QCOMPARE(section.first, header);
    QStringList codes = section.second;
    QCOMPARE(codes.size(), count);
    codes.sort();
    QCOMPARE(codes.first(), first);
    QCOMPARE(codes.last(), last);
    QCOMPARE(codes.removeDuplicates(), 0);
    for (QString const &code : codes) {
        QVERIFY2(QRegularExpression(QStringLiteral("^[A-Z][0-9][A-Z]$")).match(code).hasMatch(), qPrintable(code));
        QVERIFY2(firstLetters.contains(code.at(0)), qPrintable(code));
    }
}

void tst_PostCodeInfo::everyListedCodeMapsToItsSection()
{
    CPostCodeInfo *info = CPostCodeInfo::GetInstance();
    int checked = 0;
    for (auto const &section : readSections()) {
        for (QString const &code : section.second) {
            QCOMPARE(info->ProvFromPostCode(code.toLatin1().constData()), ProvinceOfHeader.value(section.first));
            ++checked;
        }
    }
    QCOMPARE(checked, 1685);
}

void tst_PostCodeInfo::lookup_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<int>("province");

    QTest::newRow("Ottawa with the local part") << QByteArray("K1A 0B1") << 9;
    QTest::newRow("Nunavut") << QByteArray("X0A") << 8;
    QTest::newRow("Yellowknife") << QByteArray("X1A") << 7;
    QTest::newRow("Calgary") << QByteArray("T2P 1J9") << 1;
    QTest::newRow("Halifax") << QByteArray("B3H") << 6;
    QTest::newRow("Montreal") << QByteArray("H3Z2Y7") << 11;
    QTest::newRow("Whitehorse") << QByteArray("Y1A") << 13;
    QTest::newRow("lower case is not folded") << QByteArray("k1a") << 0;
    QTest::newRow("too short") << QByteArray("K1") << 0;
    QTest::newRow("unused letter") << QByteArray("ZZZ") << 0;
    QTest::newRow("non-ASCII bytes") << QByteArray("\xC3\xA9\xC3\xA9") << 0;
    QTest::newRow("embedded NUL") << QByteArray("K\0" "1A", 4) << 0;
}

void tst_PostCodeInfo::lookup()
{
    QFETCH(QByteArray, code);
    QFETCH(int, province);
    QCOMPARE(CPostCodeInfo::GetInstance()->ProvFromPostCode(code.constData()), province);
}

void tst_PostCodeInfo::isPostCodeFromProv()
{
    CPostCodeInfo *info = CPostCodeInfo::GetInstance();
    QVERIFY(info->IsPostCodeFromProv("M5V", ENUMTYPE_PROVINCE(9)));
    QVERIFY(!info->IsPostCodeFromProv("M5V", ENUMTYPE_PROVINCE(11)));
    QVERIFY(info->IsPostCodeFromProv("ZZZ", ENUMTYPE_PROVINCE(0)));
    QVERIFY(!info->IsPostCodeFromProv(nullptr, ENUMTYPE_PROVINCE(1)));
    QCOMPARE(info->ProvFromPostCode(nullptr), 0);
}

QTEST_GUILESS_MAIN(tst_PostCodeInfo)
#include "tst_postcodeinfo.moc"
