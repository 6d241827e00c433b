// Date and date-time fields: the Julian-day payload, the compact text, and
// the empty-date rules shared with the date edit widgets.

#include "fieldarchive.h"

#include <LibControl/fields/DateField.h>

#include <QDateEdit>
#include <QtTest>

class tst_DateField : public QObject
{
    Q_OBJECT

private slots:
    void archivePayload_data();
    void archivePayload();
    void loadOutOfRange_data();
    void loadOutOfRange();
    void textRoundTrip_data();
    void textRoundTrip();
    void emptyDates_data();
    void emptyDates();
    void comparisons_data();
    void comparisons();
    void oneYearLater_data();
    void oneYearLater();
    void emptyDateMatchesDateEdit();
    void dateTimeNeverArchived();
    void dateTimeText();
};

void tst_DateField::archivePayload_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QDate>("loaded");

    QTest::newRow("March 5, 2024") << QDate(2024, 3, 5) << QByteArray("d78a250000000000") << QDate(2024, 3, 5);
    QTest::newRow("January 1, 2000") << QDate(2000, 1, 1) << QByteArray("5968250000000000") << QDate(2000, 1, 1);
    QTest::newRow("null date") << QDate() << QByteArray("0000000000000080") << QDate();
    QTest::newRow("invalid date") << QDate(2023, 2, 30) << QByteArray("0000000000000080") << QDate();
}

void tst_DateField::archivePayload()
{
    QFETCH(QDate, date);
    QFETCH(QByteArray, hex);
    QFETCH(QDate, loaded);

    CDateField field(date, false, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST);
    QCOMPARE(storeField(field, FIELD_VERSION_FIRST).toHex(), hex);

    CDateField back(QDate(1999, 9, 9), false, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST);
    QCOMPARE(loadField(back, FIELD_VERSION_FIRST, QByteArray::fromHex(hex)), QDataStream::Ok);
    QCOMPARE(back.m_date, loaded);
}

void tst_DateField::loadOutOfRange_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<bool>("valid");

    QTest::newRow("last valid day") << QByteArray("5480249fb6000000") << true; // 784354017364
    QTest::newRow("one past the last") << QByteArray("5580249fb6000000") << false;
    QTest::newRow("first valid day") << QByteArray("e106106149ffffff") << true; // -784350574879
    QTest::newRow("one before the first") << QByteArray("e006106149ffffff") << false;
    QTest::newRow("largest number") << QByteArray("ffffffffffffff7f") << false;
    QTest::newRow("truncated") << QByteArray("d78a25") << false;
}

void tst_DateField::loadOutOfRange()
{
    QFETCH(QByteArray, hex);
    QFETCH(bool, valid);

    CDateField field(QDate(2001, 1, 1), false, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST);
    loadField(field, FIELD_VERSION_FIRST, QByteArray::fromHex(hex));
    QCOMPARE(field.m_date.isValid(), valid);
    if (!valid)
        QVERIFY(field.m_date.isNull());
}

// The text rules themselves (short texts, impossible days) belong to the
// date utilities; the field only has to use them.
void tst_DateField::textRoundTrip_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("readBack");

    QTest::newRow("ordinary") << QDate(2024, 3, 5) << "20240305" << QDate(2024, 3, 5);
    QTest::newRow("null date") << QDate() << "00000000" << QDate();
    QTest::newRow("zero date") << CDateField::s_zeroDate << "00000000" << QDate();
}

void tst_DateField::textRoundTrip()
{
    QFETCH(QDate, date);
    QFETCH(QString, text);
    QFETCH(QDate, readBack);

    CDateField field(FIELD_ATTR_NONE);
    field = date;
    CString out;
    QCOMPARE(field.toString(out), 0);
    QCOMPARE(QString(out), text);

    CDateField back(QDate(1999, 9, 9), false, FIELD_ATTR_NONE, 0, FIELD_VERSION_FIRST);
    QCOMPARE(back.readFromString(out), 0);
    QCOMPARE(back.m_date, readBack);
}

void tst_DateField::emptyDates_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("zero");

    QTest::newRow("null date") << QDate() << true;
    QTest::newRow("date edit minimum") << QDate(1752, 9, 14) << true;
    QTest::newRow("day after the minimum") << QDate(1752, 9, 15) << false;
    QTest::newRow("ordinary") << QDate(2020, 1, 1) << false;
}

void tst_DateField::emptyDates()
{
    QFETCH(QDate, date);
    QFETCH(bool, zero);

    CDateField field(7, FIELD_ATTR_NONE);
    field = date;
    QCOMPARE(field.IsZero(), zero);
    QCOMPARE(field.IsValid(), !zero);
}

void tst_DateField::comparisons_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("after");
    QTest::addColumn<bool>("notAfter");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("notBefore");

    // Compared with January 1, 2020.
    QTest::newRow("earlier") << QDate(2019, 12, 31) << false << true << true << false;
    QTest::newRow("same day") << QDate(2020, 1, 1) << false << true << false << true;
    QTest::newRow("later") << QDate(2020, 1, 2) << true << false << false << true;
    QTest::newRow("null date") << QDate() << false << false << false << false;
    QTest::newRow("date edit minimum") << QDate(1752, 9, 14) << false << false << false << false;
}

void tst_DateField::comparisons()
{
    QFETCH(QDate, date);
    QFETCH(bool, after);
    QFETCH(bool, notAfter);
    QFETCH(bool, before);
    QFETCH(bool, notBefore);

    CDateField field(FIELD_ATTR_NONE);
    field = date;
    QCOMPARE(field.IsAfter(2020, 1, 1), after);
    QCOMPARE(field.IsNotAfter(2020, 1, 1), notAfter);
    QCOMPARE(field.IsBefore(2020, 1, 1), before);
    QCOMPARE(field.IsNotBefore(2020, 1, 1), notBefore);
}

void tst_DateField::oneYearLater_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QDate>("later");
    QTest::addColumn<QString>("text");

    QTest::newRow("ordinary") << QDate(2023, 6, 15) << QDate(2024, 6, 15) << "20240615";
    QTest::newRow("leap day") << QDate(2020, 2, 29) << QDate() << "00000000";
    QTest::newRow("null date") << QDate() << QDate() << "00000000";
}

void tst_DateField::oneYearLater()
{
    QFETCH(QDate, date);
    QFETCH(QDate, later);
    QFETCH(QString, text);

    CDateField field(FIELD_ATTR_DATE_NEXTYEAR);
    field = date;
    field.set1YLater();
    QCOMPARE(field.m_date.isValid(), later.isValid());
    if (later.isValid())
        QCOMPARE(field.m_date, later);
    CString out;
    field.toString(out);
    QCOMPARE(QString(out), text);
}

void tst_DateField::emptyDateMatchesDateEdit()
{
    QDateEdit edit;
    QCOMPARE(CDateField::emptyEditDate(), edit.minimumDate());
}

void tst_DateField::dateTimeNeverArchived()
{
    CDateTimeField field(FIELD_ATTR_NONE);
    QDateTime const stamp(QDate(2025, 4, 30), QTime(13, 5, 9));
    field.m_dateTime = stamp;
    QCOMPARE(field.GetType(), 5);
    QCOMPARE(storeField(field, FIELD_VERSION_FIRST).size(), 0);
    loadField(field, FIELD_VERSION_FIRST, QByteArray::fromHex("0102030405060708"));
    QCOMPARE(field.m_dateTime, stamp);
}

void tst_DateField::dateTimeText()
{
    CDateTimeField field(FIELD_ATTR_NONE);
    field.m_dateTime = QDateTime(QDate(2025, 4, 30), QTime(13, 5, 9));
    CString out;
    QCOMPARE(field.toString(out), 0);
    QCOMPARE(QString(out), QStringLiteral("2025-04-30 13:05:09PM"));

    CDateTimeField back(FIELD_ATTR_NONE);
    QCOMPARE(back.readFromString(out), 0);
    QCOMPARE(back.m_dateTime, field.m_dateTime);
}

QTEST_MAIN(tst_DateField)
#include "tst_datefield.moc"
