#include "fieldarchive.h"

#include <LibControl/fields/reservedarea.h>

#include <QTest>

namespace {

QByteArray zeros(int n)
{
    return QByteArray(n, '\0');
}

QByteArray written(CReservedArea &area)
{
    return archived([&](MyDataStream &ar) { area.writeToArchive(ar); });
}

// Reads `input` into `area`; returns the int32 that follows the record (0 past the end).
qint32 read(CReservedArea &area, QByteArray const &input)
{
    qint32 next = -1;
    readArchive(input, [&](MyDataStream &ar) {
        area.readFromArchive(ar);
        ar >> next;
    });
    return next;
}

QString text(CReservedArea &area, int which)
{
    CString out("stale");
    area.getString(which, out);
    return out;
}

// Image with area 1 = "AB" and area 2 = "xyz", scrambled with "Qv4#tB8!wz":
// 'A'^'Q' = 10, 'B'^'v' = 34, 'x'^'Q' = 29, 'y'^'v' = 0f, 'z'^'4' = 4e.
QByteArray const GoldenRecord = QByteArray::fromHex("2c000000" "02000000") + QByteArray::fromHex("1034") + zeros(18)
    + QByteArray::fromHex("290f4e") + zeros(17);

} // namespace

class tst_ReservedArea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goldenImage()
    {
        CReservedArea area;
        area.setString(1, CString("AB"));
        area.setString(2, CString("xyz"));
        QCOMPARE(written(area).toHex(), GoldenRecord.toHex());
        QCOMPARE(area.version(), 2);

        CReservedArea loaded;
        QCOMPARE(read(loaded, GoldenRecord + QByteArray::fromHex("07000000")), 7);
        QCOMPARE(text(loaded, 1), QStringLiteral("AB"));
        QCOMPARE(text(loaded, 2), QStringLiteral("xyz"));
    }

    void textsRoundTrip_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QString>("input");
        QTest::addColumn<int>("readWhich");
        QTest::addColumn<QString>("expected");
        QTest::newRow("area 1") << 1 << "hello" << 1 << "hello";
        QTest::newRow("area 2") << 2 << "world" << 2 << "world";
        QTest::newRow("other selector writes area 1") << 7 << "seven" << 1 << "seven";
        QTest::newRow("other selector reads area 1") << 1 << "one" << 0 << "one";
        QTest::newRow("cut to 19 characters") << 1 << "ABCDEFGHIJKLMNOPQRSTUVWXYZ" << 1 << "ABCDEFGHIJKLMNOPQRS";
        QTest::newRow("empty") << 2 << "" << 2 << "";
    }

    void textsRoundTrip()
    {
        QFETCH(int, which);
        QFETCH(QString, input);
        QFETCH(int, readWhich);
        CReservedArea written;
        written.setString(which, CString(input));
        CReservedArea loaded;
        read(loaded, ::written(written));
        QTEST(text(loaded, readWhich), "expected");
    }

    void nonAsciiScramblesOneBytePerCharacter()
    {
        // U+00E9 is C3 A9 in UTF-8: one character, so only C3 is scrambled ('Q' = 51).
        CReservedArea area;
        area.setString(1, CString(QStringLiteral("\u00e9")));
        QCOMPARE(written(area).mid(8, 3).toHex(), QByteArray("92a900"));

        // Eleven of them need 22 bytes: nine characters fit, their first nine bytes are scrambled.
        area.setString(2, CString(QString(11, QChar(0xe9))));
        QCOMPARE(written(area).mid(28, 20).toHex(), QByteArray("92dff78ab7ebfb88b4" "a9c3a9c3a9c3a9c3a9" "0000"));
    }

    void getStringUnscramblesOnce()
    {
        CReservedArea area;
        read(area, GoldenRecord);
        QCOMPARE(text(area, 1), QStringLiteral("AB"));
        // The area is now plain, so a second read scrambles it again.
        QCOMPARE(text(area, 1), QString::fromLatin1("\x10\x34"));
    }

    void readOtherVersions_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<qint32>("next");
        QByteArray const image = GoldenRecord.mid(8);
        QTest::newRow("version 1 clears the texts") << QByteArray::fromHex("2c000000" "01000000") + image << qint32(0);
        QTest::newRow("empty block") << QByteArray::fromHex("00000000" "05000000") << qint32(5);
        QTest::newRow("short block is zero-padded") << QByteArray::fromHex("04000000" "02000000" "05000000") << qint32(5);
        QTest::newRow("nothing to read") << QByteArray() << qint32(0);
        QTest::newRow("count beyond the data") << QByteArray::fromHex("ffffff7f" "0200") << qint32(0);
    }

    void readOtherVersions()
    {
        QFETCH(QByteArray, input);
        CReservedArea area;
        area.setString(1, CString("stale"));
        QTEST(read(area, input), "next");
        QCOMPARE(area.version(), 2);
        QCOMPARE(text(area, 1), QString());
        QCOMPARE(text(area, 2), QString());
    }
};


QTEST_GUILESS_MAIN(tst_ReservedArea)
#include "tst_reservedarea.moc"
