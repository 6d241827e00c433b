#include <LibControl/forms/taxformtype.h>
#include <LibControl/widgets/ct1combobox.h>

#include <QTest>
#include <QWheelEvent>

namespace {

const QString comboSheet
    = QStringLiteral("QComboBox {color:black;border: 1px solid #32414B;                                     "
                     "border-radius:4px;padding: 1px 0px 1px 3px;}                          QComboBox::focus { "
                     "background-color:#DEAC37;}");

void load(CT1ComboBox &box, const QString &loader)
{
    if (loader == QLatin1String("relationships"))
        box.LoadRelationships();
    else if (loader == QLatin1String("infirm"))
        box.LoadInfirmTypes();
    else if (loader == QLatin1String("currency"))
        box.LoadCurrency();
    else if (loader == QLatin1String("t106"))
        box.LoadT106TPM();
    else if (loader == QLatin1String("provs"))
        box.LoadProvs();
    else if (loader == QLatin1String("provsPlus1"))
        box.LoadProvsPlus1();
    else if (loader == QLatin1String("nonResident"))
        box.LoadProvForNonResi();
    else if (loader == QLatin1String("caus"))
        box.LoadCAUSProvs();
    else if (loader == QLatin1String("countries"))
        box.LoadCountries();
    else if (loader == QLatin1String("skGraduate"))
        box.LoadSKGraduateRententionProgramType();
}

QList<int> itemData(const StyledComboBox &box)
{
    QList<int> data;
    for (int i = 0; i < box.count(); ++i)
        data << box.GetItemData(i);
    return data;
}

// A box whose items carry the data 10, 20, 30, 20, 40 (item 3 repeats item 1).
void fillWithRepeat(StyledComboBox &box)
{
    for (int data : { 10, 20, 30, 20, 40 })
        box.SetItemData(box.AddString("item"), data);
}

} // namespace

class tst_ComboBox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void look()
    {
        CT1ComboBox box;
        QCOMPARE(box.styleSheet(), comboSheet);
        QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    }

    void loaders_data()
    {
        QTest::addColumn<QString>("loader");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("firstText");
        QTest::addColumn<int>("firstData");
        QTest::addColumn<QString>("lastText");
        QTest::addColumn<int>("lastData");
        QTest::newRow("relationships") << "relationships" << 15 << "Son" << 0 << "Other" << 14;
        QTest::newRow("infirmity") << "infirm" << 3 << "Normal" << 0 << "Disabled" << 2;
        QTest::newRow("currencies") << "currency" << 6 << "Canadian Dollar" << 0 << "Japan Yen" << 5;
        QTest::newRow("T106 methods") << "t106" << 8 << "Comparable uncontrolled price (CUP)" << 1 << "No method used"
                                      << 8;
        QTest::newRow("provinces") << "provs" << 14 << "Choose A Province" << 0 << "Yukon Territory" << 13;
        QTest::newRow("provinces and outside")
            << "provsPlus1" << 15 << "Choose A Province" << 0 << "Outside Canada" << 14;
        QTest::newRow("non-resident kinds") << "nonResident" << 4 << "Non-Resident" << 14 << "Deemed Resident" << 17;
        QTest::newRow("provinces and states") << "caus" << 77 << "Choose A Province" << 0 << "Wyoming" << 76;
        QTest::newRow("countries") << "countries" << 118 << "Select" << 0 << "Other Country" << 999;
        QTest::newRow("graduate programs")
            << "skGraduate" << 5 << "Select a program" << 0 << "4-year undergraduate" << 4;
    }

    void loaders()
    {
        QFETCH(QString, loader);
        QFETCH(int, count);
        QFETCH(QString, firstText);
        QFETCH(int, firstData);
        QFETCH(QString, lastText);
        QFETCH(int, lastData);
        CT1ComboBox box;
        box.AddString("left over");
        load(box, loader);
        box.SetCurSel(count - 1);
        load(box, loader); // loading again replaces the items
        QCOMPARE(box.GetCount(), count);
        QCOMPARE(box.GetCurSel(), 0);
        QCOMPARE(box.itemText(0), firstText);
        QCOMPARE(box.GetCurSelData(), firstData);
        QCOMPARE(box.itemText(count - 1), lastText);
        QCOMPARE(box.GetItemData(count - 1), lastData);
    }

    void nullCodeTable()
    {
        CT1ComboBox box;
        box.loadRelationCode(nullptr, 5);
        QCOMPARE(box.GetCount(), 0);
        QCOMPARE(box.GetCurSelData(), 0);
    }

    void taxForms_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QList<int>>("data");
        QTest::newRow("no filter keeps all, in list order")
            << "" << QList<int> { 0, FORM_T4164, FORM_T1GENERAL, FORM_TL2 };
        QTest::newRow("filter ignores case") << "t4" << QList<int> { 0, FORM_T4164 };
        QTest::newRow("filter inside the title") << "MEALS" << QList<int> { 0, FORM_TL2 };
        QTest::newRow("nothing matches") << "zzz" << QList<int> { 0 };
    }

    void taxForms()
    {
        QFETCH(QString, filter);
        QFETCH(QList<int>, data);
        std::list<unsigned int> forms { FORM_T4164, FORM_T1GENERAL, 5000u, FORM_TL2 };
        CT1ComboBox box;
        box.LoadTaxForms(7, forms, CString(filter));
        QCOMPARE(itemData(box), data);
        QCOMPARE(box.itemText(0), QStringLiteral("Choose a Form Type"));
        QCOMPARE(box.GetCurSel(), 0);
        if (data.size() > 1)
            QCOMPARE(box.itemText(1), QString::fromLatin1(Global_Forms_Info[data.at(1)].title));
    }

    void selectByData_data()
    {
        QTest::addColumn<int>("data");
        QTest::addColumn<int>("selected");
        QTest::addColumn<bool>("found");
        QTest::newRow("repeated value selects the first") << 20 << 1 << true;
        QTest::newRow("last item") << 40 << 4 << true;
        QTest::newRow("absent value selects item 0") << 99 << 0 << false;
    }

    void selectByData()
    {
        QFETCH(int, data);
        QFETCH(int, selected);
        QFETCH(bool, found);
        StyledComboBox plain;
        fillWithRepeat(plain);
        plain.SetCurSel(2);
        QCOMPARE(plain.SetCurSelData(data), found);
        QCOMPARE(plain.GetCurSel(), selected);

        CT1ComboBox box;
        fillWithRepeat(box);
        box.SetCurSel(2);
        box.SetCurSelData(data);
        QCOMPARE(box.GetCurSel(), selected);
        QCOMPARE(box.GetCurSelData(), found ? data : 10);
    }

    void selectByDataFallback_data()
    {
        QTest::addColumn<bool>("empty");
        QTest::addColumn<int>("data");
        QTest::addColumn<int>("fallback");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("selected");
        QTest::newRow("found ignores the fallback") << false << 30 << 4 << 2 << 2;
        QTest::newRow("absent, fallback selected") << false << 99 << 3 << 3 << 3;
        QTest::newRow("absent, negative fallback leaves selection") << false << 99 << -1 << -1 << 1;
        QTest::newRow("empty box, negative fallback") << true << 10 << -1 << -1 << -1;
    }

    void selectByDataFallback()
    {
        QFETCH(bool, empty);
        QFETCH(int, data);
        QFETCH(int, fallback);
        QFETCH(int, result);
        QFETCH(int, selected);
        CT1ComboBox box;
        if (!empty) {
            fillWithRepeat(box);
            box.SetCurSel(1);
        }
        QCOMPARE(ComboBoxSelectByData(&box, data, fallback), result);
        QCOMPARE(box.GetCurSel(), selected);
    }

    void wheelLeavesValue()
    {
        CT1ComboBox box;
        box.LoadProvs();
        box.SetCurSel(5);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const QPoint centre = box.rect().center();
        QWheelEvent wheel(centre, box.mapToGlobal(centre), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&box, &wheel);
        QVERIFY(!wheel.isAccepted());
        QCOMPARE(box.GetCurSel(), 5);
    }
};

QTEST_MAIN(tst_ComboBox)
#include "tst_combobox.moc"
