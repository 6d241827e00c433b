#include "../fields/fieldarchive.h"

#include <LibControl/worksheets/medexpinfo.h>

#include <QtTest>

#include <cstring>

namespace {

constexpr int CurrentVersion = 0x10185;

QByteArray store(_MedExpInfoStruct &info, int version)
{
    return archived([&](MyDataStream &ar) { info.serilize(version, ar); });
}

void load(_MedExpInfoStruct &info, QByteArray const &bytes, int version)
{
    readArchive(bytes, [&](MyDataStream &ar) { info.serilize(version, ar); });
}

QByteArray le32(qint32 v)
{
    QByteArray b(4, 0);
    for (int i = 0; i < 4; ++i)
        b[i] = char((quint32(v) >> (8 * i)) & 0xFF);
    return b;
}

QByteArray leDouble(double d)
{
    quint64 bits;
    std::memcpy(&bits, &d, sizeof bits);
    QByteArray b(8, 0);
    for (int i = 0; i < 8; ++i)
        b[i] = char((bits >> (8 * i)) & 0xFF);
    return b;
}

// One record at the current version: five amounts and the flag.
QByteArray recordBytes(double medexp, bool noClaim)
{
    return leDouble(medexp) + le32(noClaim ? 1 : 0) + leDouble(0) + leDouble(0) + leDouble(0) + leDouble(0);
}

// The thirteen own fields with the given count and taxpayer amount.
QByteArray ownBytes(qint32 count, double medexp)
{
    QByteArray b = le32(count) + leDouble(medexp) + le32(0);
    for (int i = 0; i < 4; ++i)
        b += leDouble(0);
    b += leDouble(0) + le32(0);
    for (int i = 0; i < 4; ++i)
        b += leDouble(0);
    return b;
}

} // namespace

class tst_MedExpInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storingFreshObjectWritesOwnFieldsOnly();
    void loadedCount_data();
    void loadedCount();
    void versionGatesTheChoiceFlags();
    void roundTrip();
    void comparisonUsesLeftCount();
    void assignmentCopiesRecordsAndCount();
    void clearKeepsRecords();
};

void tst_MedExpInfo::storingFreshObjectWritesOwnFieldsOnly()
{
    _MedExpInfoStruct info;
    QCOMPARE(info.fld_nDepNum.m_nValue, 0);
    QByteArray const bytes = store(info, CurrentVersion);
    QCOMPARE(bytes, ownBytes(0, 0));
    QCOMPARE(bytes.size(), 92);
    QCOMPARE(info.fld_nDepNum.m_nValue, 12);
    QVERIFY(info.record(11));
    QVERIFY(!info.record(12));
}

void tst_MedExpInfo::loadedCount_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("firstAmount");

    QTest::newRow("count 0 gives twelve empty records") << ownBytes(0, 5) << 12 << 0.0;
    QTest::newRow("negative count gives twelve") << ownBytes(-4, 5) << 12 << 0.0;
    QTest::newRow("two stored records")
        << ownBytes(2, 5) + recordBytes(120.5, true) + recordBytes(7, false) << 2 << 120.5;
    QTest::newRow("a huge count is cut to the records present")
        << ownBytes(50000000, 5) + recordBytes(99, false) + recordBytes(1, false) << 2 << 99.0;
    QTest::newRow("a count with no records behind it")
        << ownBytes(1000, 5) << 12 << 0.0;
}

void tst_MedExpInfo::loadedCount()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, count);
    QFETCH(double, firstAmount);
    _MedExpInfoStruct info;
    load(info, bytes, CurrentVersion);
    QCOMPARE(info.fld_nDepNum.m_nValue, count);
    QCOMPARE(info.fld_medexp.m_dValue, 5.0);
    QVERIFY(info.record(count - 1));
    QCOMPARE(info.record(0)->fld_medexp.m_dValue, firstAmount);
}

void tst_MedExpInfo::versionGatesTheChoiceFlags()
{
    _MedExpInfoStruct info;
    info.AllocData(1);
    info.fld_disabled_nodisablityclaim.m_nValue = 1;
    info.record(0)->fld_disabled_nodisablityclaim.m_nValue = 1;
    // Before 0x10185 neither flag is archived: 4 + 10 amounts x 8, and 5 x 8 per record.
    QCOMPARE(store(info, 0x100d2).size(), 4 + 80 + 40);
    QCOMPARE(store(info, CurrentVersion).size(), 92 + 44);
    QCOMPARE(store(info, 0x100d1).size(), 0);
}

void tst_MedExpInfo::roundTrip()
{
    _MedExpInfoStruct original;
    original.AllocData(3);
    original.fld_medexp_spouse = 250.75;
    original.fld_disabled_nodisablityclaim_spouse.m_nValue = 1;
    original.record(2)->fld_medexp_van = 1800.0;
    QByteArray const bytes = store(original, CurrentVersion);

    _MedExpInfoStruct loaded;
    load(loaded, bytes, CurrentVersion);
    QCOMPARE(loaded.fld_nDepNum.m_nValue, 3);
    QCOMPARE(loaded.fld_medexp_spouse.m_dValue, 250.75);
    QCOMPARE(loaded.fld_disabled_nodisablityclaim_spouse.m_nValue, 1);
    QCOMPARE(loaded.record(2)->fld_medexp_van.m_dValue, 1800.0);
    QVERIFY(loaded == original);
}

void tst_MedExpInfo::comparisonUsesLeftCount()
{
    _MedExpInfoStruct shorter;
    _MedExpInfoStruct longer;
    shorter.AllocData(2);
    longer.AllocData(4);
    longer.record(3)->fld_medexp = 10.0;
    // The counts are own fields too, so align them to compare records only.
    longer.fld_nDepNum.m_nValue = 2;
    QVERIFY(shorter == longer);
    longer.fld_nDepNum.m_nValue = 4;
    QVERIFY(!(shorter == longer));
}

void tst_MedExpInfo::assignmentCopiesRecordsAndCount()
{
    _MedExpInfoStruct source;
    source.AllocData(5);
    source.record(4)->fld_medexp_move = 321.0;
    source.fld_medexp_attcare = 44.0;
    _MedExpInfoStruct target;
    target.AllocData(1);
    target = source;
    QCOMPARE(target.fld_nDepNum.m_nValue, 5);
    QCOMPARE(target.record(4)->fld_medexp_move.m_dValue, 321.0);
    QCOMPARE(target.fld_medexp_attcare.m_dValue, 44.0);
    QVERIFY(target == source);
}

void tst_MedExpInfo::clearKeepsRecords()
{
    _MedExpInfoStruct info;
    info.AllocData(2);
    info.fld_medexp = 9.0;
    info.record(1)->fld_medexp_other = 3.0;
    info.record(1)->fld_disabled_nodisablityclaim.m_nValue = 1;
    info.ClearData();
    QCOMPARE(info.fld_nDepNum.m_nValue, 2);
    QCOMPARE(info.fld_medexp.m_dValue, 0.0);
    QCOMPARE(info.record(1)->fld_medexp_other.m_dValue, 0.0);
    QCOMPARE(info.record(1)->fld_disabled_nodisablityclaim.m_nValue, 0);
    info.FreeData();
    QCOMPARE(info.fld_nDepNum.m_nValue, 0);
    QVERIFY(!info.record(0));
}

QTEST_GUILESS_MAIN(tst_MedExpInfo)
#include "tst_medexpinfo.moc"
