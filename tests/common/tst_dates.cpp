#include <LibControl/common/dates.h>
#include <LibControl/fields/datastream.h>

#include <QBuffer>
#include <QRegularExpression>
#include <QTest>

#include <ctime>
#include <limits>

namespace {

QDate const Zero(0, 0, 0);
QDate const March5(2024, 3, 5);

} // namespace

class tst_Dates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatQDate_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("zeroText");
        QTest::newRow("hour pattern kept as text") << 5 << "hh:mm" << "00:00";
        QTest::newRow("year and month") << 6 << "202403" << "000000";
        QTest::newRow("month and day") << 7 << "0305" << "0000";
        QTest::newRow("short day first") << 8 << "05/03/24" << "00/00/00";
        QTest::newRow("day first") << 10 << "05/03/2024" << "00/00/0000";
        QTest::newRow("compact") << 18 << "20240305" << "00000000";
        QTest::newRow("iso") << 19 << "2024-03-05" << "0000-00-00";
        QTest::newRow("unknown code leaves the text") << 4 << "untouched" << "untouched";
    }
    void formatQDate()
    {
        QFETCH(int, code);
        CString out("untouched");
        FormatQDate(out, March5, code);
        QTEST(QString(out), "text");
        for (QDate const &zero : { Zero, QDate(2023, 2, 29) }) {
            out = "untouched";
            FormatQDate(out, zero, code);
            QTEST(QString(out), "zeroText");
        }
        QCOMPARE(isZero(Zero), true);
        QCOMPARE(isZero(March5), false);
    }

    void readQDate2_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code");
        QTest::addColumn<QDate>("expected");
        QTest::newRow("code 10 reads month first") << "05/03/2024" << 10 << QDate(2024, 5, 3);
        QTest::newRow("code 10 nine characters") << "05/03/202" << 10 << Zero;
        QTest::newRow("code 10 day in month place") << "31/12/2024" << 10 << QDate();
        QTest::newRow("year only") << "2024" << 18 << QDate(2024, 1, 1);
        QTest::newRow("year and month") << "202406" << 18 << QDate(2024, 6, 1);
        QTest::newRow("seven characters, day 1") << "2024061" << 18 << QDate(2024, 6, 1);
        QTest::newRow("full compact, rest ignored") << "20240615xyz" << 19 << QDate(2024, 6, 15);
        QTest::newRow("three characters") << "202" << 18 << Zero;
        QTest::newRow("separators do not read") << "2024-06-15" << 19 << QDate();
        QTest::newRow("impossible day") << "20230229" << 18 << QDate();
        QTest::newRow("letters count as 0") << "abcd0101" << 18 << QDate();
    }
    void readQDate2()
    {
        QFETCH(QString, text);
        QFETCH(int, code);
        QDate date(1999, 9, 9);
        ReadQDate2(CString(text), code, date);
        QTEST(date, "expected");
    }

    void validQDate_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<bool>("valid");
        QTest::newRow("first year") << QDate(1850, 1, 1) << true;
        QTest::newRow("before first year") << QDate(1849, 12, 31) << false;
        QTest::newRow("last year") << QDate(2025, 12, 31) << true;
        QTest::newRow("after last year") << QDate(2026, 1, 1) << false;
        QTest::newRow("zero date") << Zero << false;
    }
    void validQDate()
    {
        QFETCH(QDate, date);
        QFETCH(bool, valid);
        QCOMPARE(ValidQDate(date, 2025), valid);
        QCOMPARE(ValidQDateTime(QDateTime(date, QTime(23, 59)), 2025), valid);
    }

    void dateTimeText_data()
    {
        QTest::addColumn<QDateTime>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("afternoon keeps 24-hour hour") << QDateTime(March5, QTime(14, 30, 5)) << "2024-03-05 14:30:05PM";
        QTest::newRow("midnight") << QDateTime(QDate(2025, 1, 1), QTime(0, 0)) << "2025-01-01 00:00:00AM";
    }
    void dateTimeText()
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

    void currentTimeTexts()
    {
        // Only the shapes: the values come from the clock.
        QRegularExpression const local(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d$"));
        CString out;
        GetCurTime(out, 0);
        QVERIFY2(local.match(out).hasMatch(), qPrintable(out));
        getCurTimeStr(out, "");
        QVERIFY2(local.match(out).hasMatch(), qPrintable(out));
        getCurTimeStr(out, "yyyy");
        QCOMPARE(out.length(), 4);
        QCOMPARE(getXMLDateTimeString(false, out), 19);
        QVERIFY2(local.match(out).hasMatch(), qPrintable(out));
        QCOMPARE(getXMLDateTimeString(true, out), 20);
        QVERIFY2(QRegularExpression(QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ$")).match(out).hasMatch(),
                 qPrintable(out));
    }

    void smallHelpers()
    {
        QCOMPARE(GetAge(2025, QDate(1960, 12, 31)), 65);
        QCOMPARE(QString(GetDateStr(March5, 1)), QStringLiteral("20240305"));
        QCOMPARE(QString(GetDateStr(Zero, 2)), QStringLiteral("0000-00-00"));
        QCOMPARE(QString(GetDateStr(March5, 3)), QString());
        QCOMPARE(QString(GetRawDate(CString("05/03/2024"))), QStringLiteral("20240305"));
        QCOMPARE(QString(GetRawDate(CString("abcd"))), QStringLiteral("dab"));
    }

    void daysInYear_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("days");
        QTest::newRow("century not leap") << 1900 << 365;
        QTest::newRow("fourth century leap") << 2000 << 366;
        QTest::newRow("ordinary leap") << 2024 << 366;
        QTest::newRow("year zero") << 0 << 365;
        QTest::newRow("negative year divisible by four") << -4 << 365;
    }
    void daysInYear()
    {
        QFETCH(int, year);
        QTEST(GetDaysInYear(year), "days");
    }

    void daysFromYearStart_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("day");
        QTest::addColumn<int>("expected");
        QTest::newRow("day zero counts as one") << 2024 << 1 << 0 << 1;
        QTest::newRow("leap february 29") << 2024 << 2 << 29 << 60;
        QTest::newRow("march first leap") << 2024 << 3 << 1 << 61;
        QTest::newRow("march first common") << 2023 << 3 << 1 << 60;
        QTest::newRow("november thirtieth") << 2023 << 11 << 30 << 334;
        QTest::newRow("december thirty-first leap") << 2024 << 12 << 31 << 366;
        QTest::newRow("month 13 counts as december") << 2023 << 13 << 0 << 335;
        QTest::newRow("day not checked") << 2023 << 4 << 31 << 121;
    }
    void daysFromYearStart()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, day);
        QTEST(GetDaysFromYearStart(year, month, day), "expected");
    }

    void daysBetween_data()
    {
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::addColumn<int>("days");
        QTest::newRow("same day") << March5 << March5 << 1;
        QTest::newRow("across new year") << QDate(2023, 12, 31) << QDate(2024, 1, 1) << 2;
        QTest::newRow("four years") << QDate(2020, 1, 1) << QDate(2023, 12, 31) << 1461;
        // Far-apart dates are counted without a loop over the years.
        QTest::newRow("whole calendar")
            << QDate(1, 1, 1) << QDate(9999, 12, 31) << int(QDate(1, 1, 1).daysTo(QDate(9999, 12, 31)) + 1);
        QTest::newRow("from later") << March5.addDays(1) << March5 << 0;
        QTest::newRow("invalid date") << Zero << March5 << 0;
    }
    void daysBetween()
    {
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        QTEST(GetDaysBetween(from, to), "days");
    }

    void monthsBetween_data()
    {
        QTest::addColumn<QDate>("a");
        QTest::addColumn<QDate>("b");
        QTest::addColumn<int>("months");
        QTest::newRow("same month") << QDate(2024, 5, 1) << QDate(2024, 5, 31) << 0;
        QTest::newRow("march back to january") << QDate(2024, 3, 1) << QDate(2024, 1, 31) << 2;
        QTest::newRow("december to january counts one more") << QDate(2019, 12, 1) << QDate(2020, 1, 1) << 2;
        QTest::newRow("later year first") << QDate(2021, 1, 1) << QDate(2019, 3, 1) << 23;
        QTest::newRow("invalid date") << Zero << QDate(2021, 1, 1) << 0;
    }
    void monthsBetween()
    {
        QFETCH(QDate, a);
        QFETCH(QDate, b);
        QTEST(GetMonthsBetween(a, b), "months");
    }

    void daysBeforeAndAfter_data()
    {
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        // The limit is July 1, 2024; it belongs to neither side.
        QTest::newRow("limit inside period") << QDate(2024, 1, 1) << QDate(2024, 12, 31) << 182 << 183;
        QTest::newRow("period before limit") << QDate(2024, 1, 1) << QDate(2024, 3, 31) << 91 << 0;
        QTest::newRow("period after limit") << QDate(2024, 8, 1) << QDate(2024, 12, 31) << 0 << 153;
        QTest::newRow("period ends on limit") << QDate(2024, 1, 1) << QDate(2024, 7, 1) << 182 << 0;
    }
    void daysBeforeAndAfter()
    {
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        QDate const limit(2024, 7, 1);
        QTEST(GetDaysBeforeDate(from, to, limit), "before");
        QTEST(GetDaysAfterDate(from, to, limit), "after");
    }

    void residencyDays_data()
    {
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::addColumn<int>("inCanada");
        QTest::addColumn<int>("withinYear");
        // Tax year 2024 (366 days).
        QTest::newRow("entry july first, departure next year") << QDate(2024, 7, 1) << QDate(2025, 3, 1) << 184 << 184;
        QTest::newRow("both outside the year") << QDate(2020, 1, 1) << QDate(2026, 1, 1) << 366 << 366;
        QTest::newRow("departure only") << QDate(2023, 5, 1) << QDate(2024, 1, 31) << 31 << 31;
        // Within a year the start counts to December 31 regardless of the end.
        QTest::newRow("both in march") << QDate(2024, 3, 1) << QDate(2024, 4, 1) << 32 << 306;
        QTest::newRow("departure before entry") << QDate(2024, 6, 1) << QDate(2024, 5, 1) << 0 << 214;
        QTest::newRow("period before the year") << QDate(2022, 1, 1) << QDate(2023, 12, 31) << 366 << 0;
        QTest::newRow("no dates") << Zero << Zero << 366 << 0;
    }
    void residencyDays()
    {
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        QTEST(DaysInCanadaInTaxYear(2024, from, to), "inCanada");
        QTEST(GetDaysWithinYear(from, to, 2024), "withinYear");
    }

    void dateToDouble_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<double>("value");
        double const noonPlusFive = 43500.0 / 86400.0;
        QTest::newRow("day zero") << QDate(1899, 12, 30) << noonPlusFive;
        QTest::newRow("march 2024") << March5 << 45356.0 + noonPlusFive;
        QTest::newRow("invalid date") << Zero << 0.0;
    }
    void dateToDouble()
    {
        QFETCH(QDate, date);
        QFETCH(double, value);
        QCOMPARE(DateAsDouble::convertDateToDouble(date), value);
        QCOMPARE(DateAsDouble(date).value(), value);
    }

    void dateToDoubleFollowsLocalZone()
    {
        // Five hours west of UTC, no daylight time: local noon is 17:00 UTC.
        QByteArray const saved = qgetenv("TZ");
        qputenv("TZ", "EST5");
        tzset();
        double const value = DateAsDouble::convertDateToDouble(March5);
        qputenv("TZ", saved);
        tzset();
        QCOMPARE(value, 45356.0 + (61200.0 + 300.0) / 86400.0);
    }

    void doubleToDate_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QDate>("date");
        QTest::newRow("day zero is before 1900") << 0.0 << Zero;
        QTest::newRow("day one") << 1.0 << QDate(1900, 1, 1);
        // Not the inverse of convertDateToDouble: one day later.
        QTest::newRow("march 2024 one day later") << 45356.99 << QDate(2024, 3, 6);
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << Zero;
        QTest::newRow("huge") << 1.0e300 << Zero;
    }
    void doubleToDate()
    {
        QFETCH(double, value);
        QTEST(DateAsDouble::convertDoubleToDate(value), "date");
    }

    void dateAsDoubleArchive()
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
};

QTEST_GUILESS_MAIN(tst_Dates)
#include "tst_dates.moc"
