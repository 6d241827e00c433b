#include <LibControl/common/dates.h>
#include <LibControl/fields/datastream.h>

#include <QBuffer>
#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <ctime>
#include <limits>

namespace {

QDate const Zero(0, 0, 0);

} // namespace

class tst_Dates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isZeroDate_data();
    void isZeroDate();
    void formatQDate_data();
    void formatQDate();
    void readQDate2_data();
    void readQDate2();
    void validQDate_data();
    void validQDate();
    void dateTimeText_data();
    void dateTimeText();
    void currentTimeTexts();
    void getDateStr_data();
    void getDateStr();
    void getRawDate_data();
    void getRawDate();
    void daysInYear_data();
    void daysInYear();
    void daysFromYearStart_data();
    void daysFromYearStart();
    void daysBetween_data();
    void daysBetween();
    void monthsBetween_data();
    void monthsBetween();
    void daysBeforeAndAfter_data();
    void daysBeforeAndAfter();
    void daysInCanada_data();
    void daysInCanada();
    void daysWithinYear_data();
    void daysWithinYear();
    void dateToDouble_data();
    void dateToDouble();
    void dateToDoubleFollowsLocalZone();
    void doubleToDate_data();
    void doubleToDate();
    void dateAsDoubleArchive();
};

void tst_Dates::isZeroDate_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("zero");
    QTest::newRow("zero date") << Zero << true;
    QTest::newRow("default date") << QDate() << true;
    QTest::newRow("impossible date") << QDate(2024, 2, 30) << true;
    QTest::newRow("real date") << QDate(2024, 3, 5) << false;
}

void tst_Dates::isZeroDate()
{
    QFETCH(QDate, date);
    QTEST(isZero(date), "zero");
}

void tst_Dates::formatQDate_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("expected");
    QDate const march5(2024, 3, 5);
    QTest::newRow("hour pattern kept as text") << march5 << 5 << "hh:mm";
    QTest::newRow("year and month") << march5 << 6 << "202403";
    QTest::newRow("month and day") << march5 << 7 << "0305";
    QTest::newRow("short day first") << march5 << 8 << "05/03/24";
    QTest::newRow("day first") << march5 << 10 << "05/03/2024";
    QTest::newRow("compact") << march5 << 18 << "20240305";
    QTest::newRow("iso") << march5 << 19 << "2024-03-05";
    QTest::newRow("zero hour pattern") << Zero << 5 << "00:00";
    QTest::newRow("zero year and month") << Zero << 6 << "000000";
    QTest::newRow("zero month and day") << Zero << 7 << "0000";
    QTest::newRow("zero short day first") << Zero << 8 << "00/00/00";
    QTest::newRow("zero day first") << Zero << 10 << "00/00/0000";
    QTest::newRow("zero compact") << Zero << 18 << "00000000";
    QTest::newRow("zero iso") << Zero << 19 << "0000-00-00";
    QTest::newRow("impossible date as zeros") << QDate(2023, 2, 29) << 18 << "00000000";
    QTest::newRow("unknown code leaves zero date text") << Zero << 4 << "untouched";
    QTest::newRow("unknown code leaves real date text") << march5 << 11 << "untouched";
}

void tst_Dates::formatQDate()
{
    QFETCH(QDate, date);
    QFETCH(int, code);
    CString out("untouched");
    FormatQDate(out, date, code);
    QTEST(QString(out), "expected");
}

void tst_Dates::readQDate2_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    QTest::addColumn<QDate>("expected");
    QTest::newRow("code 10 reads month first") << "05/03/2024" << 10 << QDate(2024, 5, 3);
    QTest::newRow("code 10 december") << "12/31/2024" << 10 << QDate(2024, 12, 31);
    QTest::newRow("code 10 nine characters") << "05/03/202" << 10 << Zero;
    QTest::newRow("code 10 day in month place") << "31/12/2024" << 10 << QDate();
    QTest::newRow("year only") << "2024" << 18 << QDate(2024, 1, 1);
    QTest::newRow("year and month") << "202406" << 18 << QDate(2024, 6, 1);
    QTest::newRow("year, month and half a day") << "2024061" << 18 << QDate(2024, 6, 1);
    QTest::newRow("full compact") << "20240615" << 18 << QDate(2024, 6, 15);
    QTest::newRow("trailing text ignored") << "20240615xyz" << 18 << QDate(2024, 6, 15);
    QTest::newRow("other codes read compact") << "20240615" << 19 << QDate(2024, 6, 15);
    QTest::newRow("three characters") << "202" << 18 << Zero;
    QTest::newRow("empty text") << "" << 6 << Zero;
    QTest::newRow("separators do not read") << "2024-06-15" << 19 << QDate();
    QTest::newRow("impossible day") << "20230229" << 18 << QDate();
    QTest::newRow("letters for year") << "abcd0101" << 18 << QDate();
    QTest::newRow("zero text") << "00000000" << 18 << Zero;
}

void tst_Dates::readQDate2()
{
    QFETCH(QString, text);
    QFETCH(int, code);
    QFETCH(QDate, expected);
    QDate date(1999, 9, 9);
    ReadQDate2(CString(text), code, date);
    QCOMPARE(date, expected);
}

void tst_Dates::validQDate_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("maxYear");
    QTest::addColumn<bool>("valid");
    QTest::newRow("first year") << QDate(1850, 1, 1) << 2025 << true;
    QTest::newRow("before first year") << QDate(1849, 12, 31) << 2025 << false;
    QTest::newRow("last year") << QDate(2025, 12, 31) << 2025 << true;
    QTest::newRow("after last year") << QDate(2026, 1, 1) << 2025 << false;
    QTest::newRow("zero date") << Zero << 2025 << false;
}

void tst_Dates::validQDate()
{
    QFETCH(QDate, date);
    QFETCH(int, maxYear);
    QFETCH(bool, valid);
    QCOMPARE(ValidQDate(date, maxYear), valid);
    QCOMPARE(ValidQDateTime(QDateTime(date, QTime(23, 59)), maxYear), valid);
}

void tst_Dates::dateTimeText_data()
{
    QTest::addColumn<QDateTime>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("afternoon keeps 24-hour hour") << QDateTime(QDate(2024, 3, 5), QTime(14, 30, 5)) << "2024-03-05 14:30:05PM";
    QTest::newRow("morning") << QDateTime(QDate(2024, 3, 5), QTime(9, 0, 59)) << "2024-03-05 09:00:59AM";
    QTest::newRow("midnight") << QDateTime(QDate(2025, 1, 1), QTime(0, 0)) << "2025-01-01 00:00:00AM";
}

void tst_Dates::dateTimeText()
{
    QFETCH(QDateTime, value);
    QFETCH(QString, text);
    CString out;
    FormatQDateTime(out, value, 28);
    QCOMPARE(QString(out), text);
    QDateTime read;
    ReadQDateTime(CString(text), 28, read);
    QCOMPARE(read, value);
}

void tst_Dates::currentTimeTexts()
{
    // Only the shapes: the values come from the clock.
    QRegularExpression const local(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d$"));
    QRegularExpression const utc(QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ$"));
    CString out;
    GetCurTime(out, 0);
    QVERIFY2(local.match(out).hasMatch(), qPrintable(out));
    getCurTimeStr(out, nullptr);
    QVERIFY2(local.match(out).hasMatch(), qPrintable(out));
    getCurTimeStr(out, "");
    QVERIFY2(local.match(out).hasMatch(), qPrintable(out));
    getCurTimeStr(out, "yyyy");
    QCOMPARE(out.length(), 4);
    QCOMPARE(getXMLDateTimeString(true, out), 20);
    QVERIFY2(utc.match(out).hasMatch(), qPrintable(out));
    QCOMPARE(getXMLDateTimeString(false, out), 19);
    QVERIFY2(local.match(out).hasMatch(), qPrintable(out));
}

void tst_Dates::getDateStr_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("expected");
    QTest::newRow("kind 1 compact") << QDate(2024, 3, 5) << 1 << "20240305";
    QTest::newRow("kind 2 iso") << QDate(2024, 3, 5) << 2 << "2024-03-05";
    QTest::newRow("kind 2 zero date") << Zero << 2 << "0000-00-00";
    QTest::newRow("other kind empty") << QDate(2024, 3, 5) << 3 << "";
}

void tst_Dates::getDateStr()
{
    QFETCH(QDate, date);
    QFETCH(int, kind);
    QTEST(QString(GetDateStr(date, kind)), "expected");
}

void tst_Dates::getRawDate_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("day first to compact") << "05/03/2024" << "20240305";
    QTest::newRow("no check of content") << "ab-cd-efgh" << "efghcdab";
    QTest::newRow("short text") << "abcd" << "dab";
    QTest::newRow("empty") << "" << "";
}

void tst_Dates::getRawDate()
{
    QFETCH(QString, text);
    QTEST(QString(GetRawDate(CString(text))), "expected");
}

void tst_Dates::daysInYear_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    QTest::newRow("century not leap") << 1900 << 365;
    QTest::newRow("fourth century leap") << 2000 << 366;
    QTest::newRow("ordinary leap") << 2024 << 366;
    QTest::newRow("ordinary year") << 2025 << 365;
    QTest::newRow("year zero") << 0 << 365;
    QTest::newRow("negative year divisible by four") << -4 << 365;
}

void tst_Dates::daysInYear()
{
    QFETCH(int, year);
    QTEST(GetDaysInYear(year), "days");
}

void tst_Dates::daysFromYearStart_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("expected");
    QTest::newRow("january first") << 2024 << 1 << 1 << 1;
    QTest::newRow("day zero counts as one") << 2024 << 1 << 0 << 1;
    QTest::newRow("leap february 29") << 2024 << 2 << 29 << 60;
    QTest::newRow("march first leap") << 2024 << 3 << 1 << 61;
    QTest::newRow("march first common") << 2023 << 3 << 1 << 60;
    QTest::newRow("april first common") << 2023 << 4 << 1 << 91;
    QTest::newRow("november thirtieth") << 2023 << 11 << 30 << 334;
    QTest::newRow("december thirty-first leap") << 2024 << 12 << 31 << 366;
    QTest::newRow("month 13 counts as december") << 2023 << 13 << 0 << 335;
    QTest::newRow("month 0 counts as december") << 2023 << 0 << 1 << 335;
    QTest::newRow("day not checked") << 2023 << 4 << 31 << 121;
}

void tst_Dates::daysFromYearStart()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, day);
    QTEST(GetDaysFromYearStart(year, month, day), "expected");
}

void tst_Dates::daysBetween_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");
    QTest::addColumn<int>("days");
    QDate const d(2024, 6, 15);
    QTest::newRow("same day") << d << d << 1;
    QTest::newRow("across new year") << QDate(2023, 12, 31) << QDate(2024, 1, 1) << 2;
    QTest::newRow("within a year") << QDate(2024, 1, 1) << QDate(2024, 12, 31) << 366;
    QTest::newRow("four years") << QDate(2020, 1, 1) << QDate(2023, 12, 31) << 1461;
    QTest::newRow("over 1900 and 2000")
        << QDate(1899, 3, 1) << QDate(2101, 2, 28) << int(QDate(1899, 3, 1).daysTo(QDate(2101, 2, 28)) + 1);
    QTest::newRow("whole calendar")
        << QDate(1, 1, 1) << QDate(9999, 12, 31) << int(QDate(1, 1, 1).daysTo(QDate(9999, 12, 31)) + 1);
    QTest::newRow("from later") << d.addDays(1) << d << 0;
    QTest::newRow("from invalid") << Zero << d << 0;
    QTest::newRow("to invalid") << d << Zero << 0;
}

void tst_Dates::daysBetween()
{
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    QTEST(GetDaysBetween(from, to), "days");
}

void tst_Dates::monthsBetween_data()
{
    QTest::addColumn<QDate>("a");
    QTest::addColumn<QDate>("b");
    QTest::addColumn<int>("months");
    QTest::newRow("same month") << QDate(2024, 5, 1) << QDate(2024, 5, 31) << 0;
    QTest::newRow("january to march") << QDate(2024, 1, 31) << QDate(2024, 3, 1) << 2;
    QTest::newRow("march to january") << QDate(2024, 3, 1) << QDate(2024, 1, 31) << 2;
    QTest::newRow("december to january counts one more") << QDate(2019, 12, 1) << QDate(2020, 1, 1) << 2;
    QTest::newRow("later year first") << QDate(2020, 1, 1) << QDate(2019, 12, 1) << 2;
    QTest::newRow("two years apart") << QDate(2019, 3, 1) << QDate(2021, 1, 1) << 23;
    QTest::newRow("invalid date") << Zero << QDate(2021, 1, 1) << 0;
}

void tst_Dates::monthsBetween()
{
    QFETCH(QDate, a);
    QFETCH(QDate, b);
    QTEST(GetMonthsBetween(a, b), "months");
}

void tst_Dates::daysBeforeAndAfter_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");
    QTest::addColumn<QDate>("limit");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QDate const jan1(2024, 1, 1);
    QDate const jul1(2024, 7, 1);
    QDate const dec31(2024, 12, 31);
    QTest::newRow("limit inside period") << jan1 << dec31 << jul1 << 182 << 183;
    QTest::newRow("period before limit") << jan1 << QDate(2024, 3, 31) << jul1 << 91 << 0;
    QTest::newRow("period after limit") << QDate(2024, 8, 1) << dec31 << jul1 << 0 << 153;
    QTest::newRow("period ends on limit") << jan1 << jul1 << jul1 << 182 << 0;
    QTest::newRow("period starts on limit") << jul1 << dec31 << jul1 << 0 << 183;
}

void tst_Dates::daysBeforeAndAfter()
{
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    QFETCH(QDate, limit);
    QTEST(GetDaysBeforeDate(from, to, limit), "before");
    QTEST(GetDaysAfterDate(from, to, limit), "after");
}

void tst_Dates::daysInCanada_data()
{
    QTest::addColumn<int>("taxYear");
    QTest::addColumn<QDate>("entry");
    QTest::addColumn<QDate>("departure");
    QTest::addColumn<int>("days");
    QTest::newRow("entry july first, departure next year") << 2024 << QDate(2024, 7, 1) << QDate(2025, 3, 1) << 184;
    QTest::newRow("both outside the year") << 2024 << QDate(2020, 1, 1) << QDate(2026, 1, 1) << 366;
    QTest::newRow("no dates") << 2025 << Zero << Zero << 365;
    QTest::newRow("departure only") << 2024 << QDate(2023, 5, 1) << QDate(2024, 1, 31) << 31;
    QTest::newRow("entry and departure same month") << 2024 << QDate(2024, 3, 1) << QDate(2024, 3, 31) << 31;
    QTest::newRow("same day counts once") << 2024 << QDate(2024, 3, 1) << QDate(2024, 3, 1) << 1;
    QTest::newRow("departure before entry") << 2024 << QDate(2024, 6, 1) << QDate(2024, 5, 1) << 0;
}

void tst_Dates::daysInCanada()
{
    QFETCH(int, taxYear);
    QFETCH(QDate, entry);
    QFETCH(QDate, departure);
    QTEST(DaysInCanadaInTaxYear(taxYear, entry, departure), "days");
}

void tst_Dates::daysWithinYear_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    QTest::newRow("start in year runs to december") << QDate(2024, 3, 1) << QDate(2024, 4, 1) << 2024 << 306;
    QTest::newRow("year strictly inside") << QDate(2023, 6, 1) << QDate(2025, 1, 1) << 2024 << 366;
    QTest::newRow("end in year") << QDate(2023, 12, 1) << QDate(2024, 2, 10) << 2024 << 41;
    QTest::newRow("period before year") << QDate(2022, 1, 1) << QDate(2023, 12, 31) << 2024 << 0;
    QTest::newRow("period after year") << QDate(2025, 1, 1) << QDate(2025, 2, 1) << 2024 << 0;
    QTest::newRow("invalid start") << Zero << QDate(2025, 2, 1) << 2024 << 0;
}

void tst_Dates::daysWithinYear()
{
    QFETCH(QDate, from);
    QFETCH(QDate, to);
    QFETCH(int, year);
    QTEST(GetDaysWithinYear(from, to, year), "days");
}

void tst_Dates::dateToDouble_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<double>("value");
    double const noonPlusFive = 43500.0 / 86400.0;
    QTest::newRow("day zero") << QDate(1899, 12, 30) << noonPlusFive;
    QTest::newRow("unix epoch") << QDate(1970, 1, 1) << 25569.0 + noonPlusFive;
    QTest::newRow("march 2024") << QDate(2024, 3, 5) << 45356.0 + noonPlusFive;
    QTest::newRow("invalid date") << Zero << 0.0;
}

void tst_Dates::dateToDouble()
{
    QFETCH(QDate, date);
    QFETCH(double, value);
    QCOMPARE(DateAsDouble::convertDateToDouble(date), value);
    QCOMPARE(DateAsDouble(date).value(), value);
}

void tst_Dates::dateToDoubleFollowsLocalZone()
{
    // Five hours west of UTC, no daylight time: local noon is 17:00 UTC.
    QByteArray const saved = qgetenv("TZ");
    qputenv("TZ", "EST5");
    tzset();
    double const value = DateAsDouble::convertDateToDouble(QDate(2024, 3, 5));
    qputenv("TZ", saved);
    tzset();
    QCOMPARE(value, 45356.0 + (61200.0 + 300.0) / 86400.0);
}

void tst_Dates::doubleToDate_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QDate>("date");
    QTest::newRow("day zero is before 1900") << 0.0 << Zero;
    QTest::newRow("day one") << 1.0 << QDate(1900, 1, 1);
    QTest::newRow("march 2024 one day later") << 45356.0 << QDate(2024, 3, 6);
    QTest::newRow("fraction truncated") << 45356.99 << QDate(2024, 3, 6);
    QTest::newRow("negative") << -5.0 << Zero;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << Zero;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << Zero;
    QTest::newRow("huge") << 1.0e300 << Zero;
}

void tst_Dates::doubleToDate()
{
    QFETCH(double, value);
    QTEST(DateAsDouble::convertDoubleToDate(value), "date");
}

void tst_Dates::dateAsDoubleArchive()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    MyDataStream out(&buffer);
    DateAsDouble(1.0).serialize(out);
    buffer.close();
    QCOMPARE(bytes.toHex(), QByteArray("000000000000f03f"));

    buffer.open(QIODevice::ReadOnly);
    MyDataStream in(&buffer);
    DateAsDouble read(7.0);
    read.serialize(in);
    QCOMPARE(read.value(), 1.0);
}

QTEST_GUILESS_MAIN(tst_Dates)
#include "tst_dates.moc"
