#include <LibControl/fields/boolfield.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/widgets/basetaxpage.h>
#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/styledcheckbox.h>
#include <LibControl/widgets/styledcombobox.h>
#include <LibControl/worksheets/DepWorkSheetData.h>
#include <LibControl/worksheets/NonDepWorkSheetData.h>
#include <LibControl/worksheets/dependantinfo.h>
#include <LibControl/worksheets/ws58440_disabilityself_tab1.h>
#include <LibControl/worksheets/ws58480_disabilitydeptransfer_tab1.h>
#include <LibControl/worksheets/ws58600_tab1.h>
#include <LibControl/worksheets/wsadoptionexpense_tab1.h>
#include <LibControl/worksheets/wsageamount_tab1.h>
#include <LibControl/worksheets/wscaregiveramt_dep.h>
#include <LibControl/worksheets/wsinfirmdepamt_dep.h>
#include <LibControl/worksheets/wsinfirmdepamt_spousedep.h>

#include "../widgets/modalhelper.h"

#include <QDialog>
#include <QLabel>
#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

void addDependant(DependantInfoStruct &list, int i, const char *first, const char *last, QDate birth, double netIncome)
{
    qstrcpy(list.m_pData[size_t(i)].m_szFirstName, first);
    qstrcpy(list.m_pData[size_t(i)].m_szLastName, last);
    list.m_pData[size_t(i)].m_dateBirth = birth;
    list.m_pData[size_t(i)].m_dNetIncome = netIncome;
}

// Every worksheet of the eight pages, filled as an application would, with
// an owning tax page that recalculates the worksheets a form owns.
struct Fixture
{
    DependantInfoStruct dependants;
    CWSDisabilityAmtData disability;
    CWSDisabilityTransferAmtData transfer;
    DataWS58600 tuition;
    DataWSAdoptionExpense adoption;
    CWSAgeAmtData age;
    CWSCaregiverAmtData caregiver;
    CWSInfirmDepAmtData infirm;
    CWSInfirmDepAmtData spouse;
    BaseTaxPage owner { 1, nullptr, nullptr };

    Fixture()
    {
        dependants.AllocData(2);
        addDependant(dependants, 0, "Pat", "Lee", QDate(2012, 3, 4), 1000.0); // 13 in the tax year
        addDependant(dependants, 1, "Sam", "Roe", QDate(1950, 1, 1), 4000.0);

        disability.SetF5844Parameter(5000.0, 3000.0, true);
        disability.fld_ws5844_claim.m_nValue = 1;
        disability.fld_ws5844_2.m_dValue = 4000.0;

        transfer.SetDepInfo(&dependants);
        transfer.DepIdx.m_nValue = 1;
        transfer.SetF5848Parameter(9000.0, 5000.0, 3000.0);
        transfer.fld_Line3ChldCareExp.m_dValue = 3500.0;
        transfer.fld_4.m_dValue = 1000.0;
        transfer.DepTaxInc.m_dValue = 2000.0;

        tuition.fld_5860.m_dValue = 2000.0;
        tuition.fld_claim.m_dValue = 999.0; // stale until the owner recalculates

        adoption.fld_Adopt_ExpAmt_1.m_dValue = 1000.0;
        adoption.fld_Adopt_ExpAmt_2.m_dValue = 2000.0;

        // Set by hand: the age page shows the lines and never recomputes them.
        const double ageLines[] = { 8790.0, 50000.0, 45522.0, 4478.0, 0.15, 671.7, 8118.3 };
        CFloatField *lines[] = { &age.fld_ws5808_1, &age.fld_ws5808_2, &age.fld_ws5808_3, &age.fld_ws5808_4,
            &age.fld_ws5808_5, &age.fld_ws5808_6, &age.fld_ws5808_7 };
        for (int i = 0; i < 7; ++i)
            lines[i]->m_dValue = ageLines[i];

        caregiver.SetDepInfo(&dependants);
        caregiver.SetParameter(8000.0, 7000.0, 1, 1500.0);
        caregiver.DepIdx.m_nValue = 2;

        infirm.SetDepInfo(&dependants);
        infirm.SetParameterAndF5816Info(8000.0, 7000.0, 1, 1500.0);
        infirm.DepIdx.m_nValue = 2;

        spouse.DepIdx.m_nValue = 303;
        spouse.BaseAmount.m_dValue = 8000.0;
        spouse.DepNetInc.m_dValue = 2500.0;
        spouse.fld_3.m_dValue = 5500.0;
        spouse.fld_4.m_dValue = 1000.0;
        spouse.AmountClaim.m_dValue = 4500.0;

        // The application's form calculation has run once before a page opens.
        disability.Calculate();
        transfer.Calculate();
        caregiver.Calculate();
        QObject::connect(&owner, &BaseTaxPage::signalCalc, [this]() {
            tuition.Calculate(0.75);
            adoption.Calculate();
            infirm.Calculate();
        });
    }

    // The page `name` over its worksheet; the worksheet pages opened from a
    // tax page get `taxPage` as their owner.
    PpgWizardPage *makePage(const QString &name, BaseTaxPage *taxPage)
    {
        if (name == QLatin1String("WS58440_DisabilitySelf_tab1"))
            return new WS58440_DisabilitySelf_tab1(&disability, nullptr, nullptr);
        if (name == QLatin1String("WS58480_DisabilityDepTransfer_tab1"))
            return new WS58480_DisabilityDepTransfer_tab1(&transfer, nullptr, nullptr);
        if (name == QLatin1String("WS58600_tab1"))
            return new WS58600_tab1(&tuition, nullptr, taxPage);
        if (name == QLatin1String("WSAdoptionExpense_tab1"))
            return new WSAdoptionExpense_tab1(&adoption, nullptr, taxPage);
        if (name == QLatin1String("WSAgeAmount_tab1"))
            return new WSAgeAmount_tab1(&age, nullptr, nullptr);
        if (name == QLatin1String("WSCaregiverAmt_Dep"))
            return new WSCaregiverAmt_Dep(&caregiver, nullptr, nullptr);
        if (name == QLatin1String("WSInfirmDepAmt_Dep"))
            return new WSInfirmDepAmt_Dep(&infirm, nullptr, taxPage);
        if (name == QLatin1String("WSInfirmDepAmt_SpouseDep"))
            return new WSInfirmDepAmt_SpouseDep(&spouse, nullptr, nullptr);
        return nullptr;
    }
};

PpgWizardPage *makeUnboundPage(const QString &name)
{
    if (name == QLatin1String("WS58440_DisabilitySelf_tab1"))
        return new WS58440_DisabilitySelf_tab1(nullptr, nullptr, nullptr);
    if (name == QLatin1String("WS58480_DisabilityDepTransfer_tab1"))
        return new WS58480_DisabilityDepTransfer_tab1(nullptr, nullptr, nullptr);
    if (name == QLatin1String("WS58600_tab1"))
        return new WS58600_tab1(nullptr, nullptr, nullptr);
    if (name == QLatin1String("WSAdoptionExpense_tab1"))
        return new WSAdoptionExpense_tab1(nullptr, nullptr, nullptr);
    if (name == QLatin1String("WSAgeAmount_tab1"))
        return new WSAgeAmount_tab1(nullptr, nullptr, nullptr);
    if (name == QLatin1String("WSCaregiverAmt_Dep"))
        return new WSCaregiverAmt_Dep(nullptr, nullptr, nullptr);
    if (name == QLatin1String("WSInfirmDepAmt_Dep"))
        return new WSInfirmDepAmt_Dep(nullptr, nullptr, nullptr);
    return new WSInfirmDepAmt_SpouseDep(nullptr, nullptr, nullptr);
}

// A page loaded the way a worksheet dialog loads it.
struct LoadedPage
{
    std::unique_ptr<Fixture> fixture = std::make_unique<Fixture>();
    WizardBase wizard { nullptr, QStringLiteral("Worksheet") };
    PpgWizardPage *page = nullptr;

    explicit LoadedPage(const QString &name, bool owned = true)
    {
        page = fixture->makePage(name, owned ? &fixture->owner : nullptr);
        if (!page)
            return;
        wizard.addPage(page);
        wizard.initUI(770, 640);
    }
};

// What a bound widget shows: an amount's text, a flag's state or the
// selected dependant index.
QString shown(QWidget *page, const QString &name)
{
    QWidget *w = page->findChild<QWidget *>(name);
    if (auto *amount = qobject_cast<DoubleLineEdit *>(w))
        return amount->text();
    if (auto *box = qobject_cast<QCheckBox *>(w))
        return box->isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked");
    if (auto *combo = qobject_cast<StyledComboBox *>(w))
        return QStringLiteral("#%1").arg(combo->GetCurSelData());
    return QStringLiteral("<missing>");
}

QString fieldValue(CWSBaseData *ws, const QString &name)
{
    for (CField *field : ws->m_fields) {
        if (QString::fromStdString(field->m_strName) != name)
            continue;
        if (auto *amount = dynamic_cast<CFloatField *>(field))
            return QString::number(amount->m_dValue, 'f', 2);
        if (auto *flag = dynamic_cast<CBoolField *>(field))
            return QString::number(flag->m_nValue);
    }
    if (auto *dep = dynamic_cast<CWSDepBaseData *>(ws); dep && name == QLatin1String("DepIdx"))
        return QString::number(dep->DepIdx.m_nValue);
    return QStringLiteral("<no field>");
}

// "name=value" for every expected entry, read back from the page ("field:"
// entries from the worksheet's field of that name).
QStringList actualFor(PpgWizardPage *page, const QStringList &expected)
{
    QStringList actual;
    for (const QString &entry : expected) {
        const QString key = entry.section(QLatin1Char('='), 0, 0);
        const QString value
            = key.startsWith(QLatin1String("field:")) ? fieldValue(page->worksheet(), key.mid(6)) : shown(page, key);
        actual << key + QLatin1Char('=') + value;
    }
    return actual;
}

bool isInput(QWidget *w)
{
    if (auto *amount = qobject_cast<DoubleLineEdit *>(w))
        return !amount->isReadOnly();
    return w->isEnabled();
}

void perform(PpgWizardPage *page, const QString &action)
{
    const QStringList parts = action.split(QLatin1Char(':'));
    const QString kind = parts.value(0);
    if (kind == QLatin1String("type")) {
        auto *edit = page->findChild<DoubleLineEdit *>(parts.value(1));
        QVERIFY2(edit, qPrintable(action));
        edit->selectAll();
        QTest::keyClicks(edit, parts.value(2));
        QTest::keyClick(edit, Qt::Key_Enter);
    } else if (kind == QLatin1String("click")) {
        auto *box = page->findChild<QCheckBox *>(parts.value(1));
        QVERIFY2(box, qPrintable(action));
        box->click();
    } else if (kind == QLatin1String("select")) {
        auto *combo = page->findChild<StyledComboBox *>(parts.value(1));
        QVERIFY2(combo, qPrintable(action));
        combo->setCurrentIndex(combo->findData(parts.value(2).toInt()));
    } else {
        QFAIL(qPrintable(QStringLiteral("unknown action ") + action));
    }
}

// A tax page that opens worksheet pages the way an application's pages do:
// one page for line 58440, a page per dependant for line 58400.
class WorksheetLinesPage : public BaseTaxPage
{
public:
    explicit WorksheetLinesPage(Fixture &fixture)
        : BaseTaxPage(1, nullptr, nullptr)
        , m_fixture(fixture)
    { }

    PpgWizardPage *getWorksheetEditDlg(int id, long, QString &) override
    {
        return id == 58440 ? new WS58440_DisabilitySelf_tab1(&m_fixture.disability, nullptr, this) : nullptr;
    }

    int getWorksheetEditDlg(int id, long, QString &, std::list<PpgWizardPage *> &pages) override
    {
        if (id != 58400)
            return 0;
        pages.push_back(new WSCaregiverAmt_Dep(&m_fixture.caregiver, nullptr, this));
        pages.push_back(nullptr);
        pages.push_back(new WSInfirmDepAmt_Dep(&m_fixture.infirm, nullptr, this));
        pages.push_back(new WSInfirmDepAmt_SpouseDep(&m_fixture.spouse, nullptr, this));
        return 4;
    }

private:
    Fixture &m_fixture;
};

void acceptIfOpen(QWidget *modal)
{
    if (auto *dialog = qobject_cast<QDialog *>(modal); dialog && dialog->isVisible())
        dialog->accept();
}

const QString disabilitySelf = QStringLiteral("WS58440_DisabilitySelf_tab1");
const QString disabilityTransfer = QStringLiteral("WS58480_DisabilityDepTransfer_tab1");
const QString tuitionPage = QStringLiteral("WS58600_tab1");
const QString adoptionPage = QStringLiteral("WSAdoptionExpense_tab1");
const QString agePage = QStringLiteral("WSAgeAmount_tab1");
const QString caregiverPage = QStringLiteral("WSCaregiverAmt_Dep");
const QString infirmPage = QStringLiteral("WSInfirmDepAmt_Dep");
const QString spousePage = QStringLiteral("WSInfirmDepAmt_SpouseDep");

} // namespace

class tst_WorksheetPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsEveryWidget_data();
    void loadsEveryWidget();
    void editRecalculatesPage_data();
    void editRecalculatesPage();
    void dependantSelector_data();
    void dependantSelector();
    void canSelDepEnablesSelector();
    void ownerRecalculatesBeforeLoad_data();
    void ownerRecalculatesBeforeLoad();
    void captions_data();
    void captions();
    void headingShownOnceInWizard();
    void nullWorksheetLeavesPageInert_data();
    void nullWorksheetLeavesPageInert();
    void worksheetDialogFromTaxPage();
    void dependantTabsFromTaxPage();
};

void tst_WorksheetPages::loadsEveryWidget_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QStringList>("inputs");

    QTest::newRow("disability for self") << disabilitySelf
                                         << QStringList { "fld_ws5844_claim=checked", "fld_ws5844_1=5000.00",
                                                "fld_ws5844_2=4000.00", "fld_ws5844_3=3000.00", "fld_ws5844_4=1000.00",
                                                "fld_ws5844_4_1=1000.00", "fld_ws5844_5=4000.00" }
                                         << QStringList { "fld_ws5844_2", "fld_ws5844_3", "fld_ws5844_claim" };
    QTest::newRow("disability transferred from a minor")
        << disabilityTransfer
        << QStringList { "DepIdx=#1", "fld_BaseAmount=9000.00", "fld_Line2Max=5000.00", "fld_Line3ChldCareExp=3500.00",
               "fld_Line4ExpBase=3000.00", "fld_Line5CareExpAfter=500.00", "fld_Line5CareExpAfter_1=500.00",
               "fld_Line6AmtUnder18=4500.00", "fld_2=4500.00", "fld_Line8=13500.00", "fld_4=1000.00", "fld_5=14500.00",
               "DepTaxInc=2000.00", "fld_7=12500.00", "fld_overwrite=unchecked", "fld_claim=12500.00" }
        << QStringList { "DepIdx", "DepTaxInc", "fld_2", "fld_4", "fld_5", "fld_7", "fld_BaseAmount", "fld_Line2Max",
               "fld_Line3ChldCareExp", "fld_Line4ExpBase", "fld_Line6AmtUnder18", "fld_Line8", "fld_claim",
               "fld_overwrite" };
    QTest::newRow("tuition transfer, recalculated by the owner")
        << tuitionPage << QStringList { "fld_5860=2000.00", "fld_claim=1500.00" } << QStringList { "fld_5860" };
    QTest::newRow("adoption expenses") << adoptionPage
                                       << QStringList { "fld_Adopt_ExpAmt_1=1000.00", "fld_Adopt_ExpAmt_2=2000.00",
                                              "fld_Adopt_ExpAmt_3=0.00", "fld_Adopt_ExpAmt_4=0.00",
                                              "fld_Adopt_ExpAmt_5=0.00", "fld_Adopt_ExpAmt_6=0.00" }
                                       << QStringList { "fld_Adopt_ExpAmt_1", "fld_Adopt_ExpAmt_2",
                                              "fld_Adopt_ExpAmt_3", "fld_Adopt_ExpAmt_4", "fld_Adopt_ExpAmt_5",
                                              "fld_Adopt_ExpAmt_6" };
    QTest::newRow("age amount, set by hand and shown as set")
        << agePage
        << QStringList { "fld_ws5808_1=8790.00", "fld_ws5808_2=50000.00", "fld_ws5808_3=45522.00",
               "fld_ws5808_4=4478.00", "fld_ws5808_5=0.1500", "fld_ws5808_6=671.70", "fld_ws5808_7=8118.30" }
        << QStringList {};
    QTest::newRow("caregiver") << caregiverPage
                               << QStringList { "DepIdx=#2", "fld_BaseAmount=8000.00", "fld_DepNetInc=4000.00",
                                      "fld_3=4000.00", "fld_4=0.00", "fld_bOverwrite=unchecked",
                                      "fld_AmountClaim=4000.00" }
                               << QStringList { "DepIdx", "fld_AmountClaim", "fld_bOverwrite" };
    QTest::newRow("infirm dependant") << infirmPage
                                      << QStringList { "DepIdx=#2", "fld_BaseAmount=8000.00", "fld_DepNetInc=4000.00",
                                             "fld_3=4000.00", "fld_4=0.00", "fld_AmountClaim=4000.00" }
                                      << QStringList { "DepIdx" };
    QTest::newRow("infirm spouse, set by hand and shown as set")
        << spousePage
        << QStringList { "fld_BaseAmount=8000.00", "fld_DepNetInc=2500.00", "fld_3=5500.00", "fld_4=1000.00",
               "fld_AmountClaim=4500.00" }
        << QStringList {};
}

void tst_WorksheetPages::loadsEveryWidget()
{
    QFETCH(QString, page);
    QFETCH(QStringList, values);
    QFETCH(QStringList, inputs);

    LoadedPage loaded(page);
    QVERIFY(loaded.page);
    QCOMPARE(actualFor(loaded.page, values), values);

    // No bound widget beyond the listed ones, and exactly the inputs editable.
    QStringList all;
    QStringList editable;
    const auto widgets = loaded.page->findChildren<QWidget *>();
    for (QWidget *w : widgets) {
        if (!qobject_cast<DoubleLineEdit *>(w) && !qobject_cast<QCheckBox *>(w) && !qobject_cast<StyledComboBox *>(w))
            continue;
        all << w->objectName() + QLatin1Char('=') + shown(loaded.page, w->objectName());
        if (isInput(w))
            editable << w->objectName();
    }
    all.sort();
    values.sort();
    editable.sort();
    QCOMPARE(all, values);
    QCOMPARE(editable, inputs);
}

void tst_WorksheetPages::editRecalculatesPage_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("self: expenses above the threshold reduce the supplement")
        << disabilitySelf << QStringList { "type:fld_ws5844_2:4500" }
        << QStringList { "field:fld_ws5844_2=4500.00", "fld_ws5844_4=1500.00", "fld_ws5844_4_1=1500.00",
               "fld_ws5844_5=3500.00" };
    QTest::newRow("self: a threshold above the expenses leaves the full supplement")
        << disabilitySelf << QStringList { "type:fld_ws5844_3:4200" }
        << QStringList { "field:fld_ws5844_3=4200.00", "fld_ws5844_4=0.00", "fld_ws5844_5=5000.00" };
    QTest::newRow("self: withdrawing the claim clears line 5 and keeps line 4")
        << disabilitySelf << QStringList { "click:fld_ws5844_claim" }
        << QStringList { "field:fld_ws5844_claim=0", "fld_ws5844_claim=unchecked", "fld_ws5844_4=1000.00",
               "fld_ws5844_5=0.00" };
    QTest::newRow("transfer: care expenses raise line 5")
        << disabilityTransfer << QStringList { "type:fld_Line3ChldCareExp:6000" }
        << QStringList { "field:fld_Line3ChldCareExp=6000.00", "fld_Line5CareExpAfter=3000.00",
               "fld_Line5CareExpAfter_1=3000.00", "fld_Line6AmtUnder18=2000.00", "fld_2=2000.00", "fld_Line8=11000.00",
               "fld_5=12000.00", "fld_7=10000.00", "fld_claim=10000.00" };
    QTest::newRow("transfer: the dependant's income limits the claim")
        << disabilityTransfer << QStringList { "type:DepTaxInc:14000" }
        << QStringList { "field:DepTaxInc=14000.00", "fld_7=500.00", "fld_claim=500.00" };
    QTest::newRow("transfer: an adult dependant gets no supplement")
        << disabilityTransfer << QStringList { "select:DepIdx:2" }
        << QStringList { "field:DepIdx=2", "DepIdx=#2", "fld_Line5CareExpAfter=0.00", "fld_2=0.00", "fld_Line8=9000.00",
               "fld_5=10000.00", "fld_7=8000.00", "fld_claim=8000.00" };
    QTest::newRow("transfer: an own claim below the limits is kept")
        << disabilityTransfer << QStringList { "click:fld_overwrite", "type:fld_claim:7000" }
        << QStringList { "field:fld_overwrite=1", "field:fld_claim=7000.00", "fld_claim=7000.00" };
    QTest::newRow("tuition: the owner prorates the new total")
        << tuitionPage << QStringList { "type:fld_5860:3000" }
        << QStringList { "field:fld_5860=3000.00", "fld_claim=2250.00" };
    QTest::newRow("adoption: the owner's recalculation drops a negative amount")
        << adoptionPage << QStringList { "type:fld_Adopt_ExpAmt_3:-50" }
        << QStringList { "field:fld_Adopt_ExpAmt_3=0.00", "fld_Adopt_ExpAmt_3=0.00" };
    QTest::newRow("adoption: an amount is rounded to the cent")
        << adoptionPage << QStringList { "type:fld_Adopt_ExpAmt_6:1234.567" }
        << QStringList { "field:fld_Adopt_ExpAmt_6=1234.57", "fld_Adopt_ExpAmt_6=1234.57" };
    QTest::newRow("caregiver: a typed claim is recomputed without overwrite")
        << caregiverPage << QStringList { "type:fld_AmountClaim:2500" }
        << QStringList { "field:AmountClaim=4000.00", "fld_AmountClaim=4000.00" };
    QTest::newRow("caregiver: a typed claim is kept with overwrite")
        << caregiverPage << QStringList { "click:fld_bOverwrite", "type:fld_AmountClaim:2500" }
        << QStringList { "field:bOverwrite=1", "field:AmountClaim=2500.00", "fld_bOverwrite=checked",
               "fld_AmountClaim=2500.00" };
    QTest::newRow("caregiver: the other worksheet's dependant")
        << caregiverPage << QStringList { "select:DepIdx:1" }
        << QStringList { "field:DepIdx=1", "fld_DepNetInc=1000.00", "fld_3=7000.00", "fld_4=1500.00",
               "fld_AmountClaim=5500.00" };
    QTest::newRow("infirm: choosing a dependant recalculates through the owner")
        << infirmPage << QStringList { "select:DepIdx:1" }
        << QStringList { "field:DepIdx=1", "fld_DepNetInc=1000.00", "fld_3=7000.00", "fld_4=1500.00",
               "fld_AmountClaim=5500.00" };
}

void tst_WorksheetPages::editRecalculatesPage()
{
    QFETCH(QString, page);
    QFETCH(QStringList, actions);
    QFETCH(QStringList, expected);

    LoadedPage loaded(page);
    QVERIFY(loaded.page);
    for (const QString &action : actions) {
        perform(loaded.page, action);
        if (QTest::currentTestFailed())
            return;
    }
    QCOMPARE(actualFor(loaded.page, expected), expected);
}

void tst_WorksheetPages::dependantSelector_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("dependantCount"); // -1: no list linked
    QTest::addColumn<QStringList>("items");

    for (const QString &page : { disabilityTransfer, caregiverPage, infirmPage }) {
        QTest::addRow("%s, two dependants", qPrintable(page))
            << page << 2 << QStringList { "Please select a dependant", "Pat Lee", "Sam Roe" };
        QTest::addRow("%s, empty list", qPrintable(page))
            << page << 0 << QStringList { "No dependant information was entered." };
        QTest::addRow("%s, no list", qPrintable(page)) << page << -1 << QStringList {};
    }
}

void tst_WorksheetPages::dependantSelector()
{
    QFETCH(QString, page);
    QFETCH(int, dependantCount);
    QFETCH(QStringList, items);

    Fixture fixture;
    DependantInfoStruct *list = dependantCount < 0 ? nullptr : &fixture.dependants;
    if (dependantCount == 0)
        fixture.dependants.FreeData();
    for (CWSDepBaseData *ws :
        std::initializer_list<CWSDepBaseData *> { &fixture.transfer, &fixture.caregiver, &fixture.infirm })
        ws->SetDepInfo(list);
    std::unique_ptr<PpgWizardPage> built(fixture.makePage(page, nullptr));
    auto *combo = built->findChild<StyledComboBox *>(QStringLiteral("DepIdx"));
    QVERIFY(combo);
    QCOMPARE(combo->focusPolicy(), Qt::StrongFocus);
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i).section(QStringLiteral(" - "), 0, 0);
    QCOMPARE(texts, items);
    if (dependantCount > 0)
        QCOMPARE(combo->GetItemData(2), 2);
}

void tst_WorksheetPages::canSelDepEnablesSelector()
{
    Fixture fixture;
    WSInfirmDepAmt_Dep page(&fixture.infirm, nullptr, nullptr);
    auto *combo = page.findChild<StyledComboBox *>(QStringLiteral("DepIdx"));
    QVERIFY(combo);
    QVERIFY(page.canSelDep());
    QVERIFY(combo->isEnabled());
    page.setCanSelDep(false);
    QVERIFY(!page.canSelDep());
    QVERIFY(!combo->isEnabled());
    page.setCanSelDep(true);
    QVERIFY(combo->isEnabled());
}

void tst_WorksheetPages::ownerRecalculatesBeforeLoad_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("withOwner");
    QTest::addColumn<QString>("withoutOwner");

    QTest::newRow("tuition claim") << tuitionPage << "fld_claim"
                                   << "1500.00"
                                   << "999.00";
    QTest::newRow("infirm net income") << infirmPage << "fld_DepNetInc"
                                       << "4000.00"
                                       << "0.00";
    QTest::newRow("adoption amount") << adoptionPage << "fld_Adopt_ExpAmt_1"
                                     << "1000.00"
                                     << "1000.00";
}

void tst_WorksheetPages::ownerRecalculatesBeforeLoad()
{
    QFETCH(QString, page);
    QFETCH(QString, widget);
    QFETCH(QString, withOwner);
    QFETCH(QString, withoutOwner);

    {
        auto fixture = std::make_unique<Fixture>();
        int calcs = 0;
        CField *changed = &fixture->tuition.fld_5860;
        connect(&fixture->owner, &BaseTaxPage::signalCalc, [&](CTaxData_Form *, CField *field) {
            ++calcs;
            changed = field;
        });
        WizardBase wizard(nullptr, QStringLiteral("Worksheet"));
        auto *built = qobject_cast<BaseWorksheetPage *>(fixture->makePage(page, &fixture->owner));
        QVERIFY(built);
        QCOMPARE(built->ownerPage(), &fixture->owner);
        wizard.addPage(built);
        wizard.initUI(770, 640);
        QCOMPARE(calcs, 1);
        QCOMPARE(changed, nullptr);
        QCOMPARE(shown(built, widget), withOwner);
    }
    {
        LoadedPage loaded(page, false);
        int calcs = 0;
        connect(&loaded.fixture->owner, &BaseTaxPage::signalCalc, [&calcs]() { ++calcs; });
        loaded.page->GetDataFromDoc();
        QCOMPARE(calcs, 0);
        QCOMPARE(shown(loaded.page, widget), withoutOwner);
    }
}

void tst_WorksheetPages::captions_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("captions");

    QTest::newRow("disability for self") << disabilitySelf << "Field 58440 - Provincial Disability for Self Worksheet"
                                         << QStringList { "Check to claim disability amount (for self)",
                                                "expense claimed for you by anyone",
                                                "Line 1 minus line 4 (if negative, enter '0')",
                                                "Enter field 58440 of the sum of line 5 and provincial base amount" };
    QTest::newRow("disability transfer")
        << disabilityTransfer << ""
        << QStringList { "Select==>", "dependant, claimed by your or others", "Threshhold for child care expense",
               "otherwise, enter 0 to line 7 and complete lines 7 to 13.",
               "Amount from the line BEFORE 31600(fed. tax)/58440(prov. tax) of the dependant's return.",
               "Line 10 minus line 11(if negative, enter 0)" };
    QTest::newRow("tuition transfer") << tuitionPage << "Provincial Tuition Transfer Amounts"
                                      << QStringList { "Total amounts transferred",
                                             "In case this amount should be pro-rated, the calculated",
                                             "claim amount." };
    QTest::newRow("adoption") << adoptionPage << "Details of adoption expenses"
                              << QStringList { "Adoption expense for 1st child", "Adoption expense for 3rd child",
                                     "Adoption expense for 6th child",
                                     "A maximum amount will be applied when counting the total adoption expense" };
    QTest::newRow("age amount") << agePage << "Age Amount Calculation"
                                << QStringList { "(If negative, enter '0')", "Multiply rate", "Line 4 multiply line 5",
                                       "Age amount calculated at last" };
    QTest::newRow("caregiver") << caregiverPage << ""
                               << QStringList { "Select==>",
                                      "Dependant's net income (from field 23600 of his or her return)",
                                      "(Maximum amount applies, from provincial worksheet tax guide)",
                                      "If claimed this dependant at field 58160,", "Line 3 minus line 4" };
    QTest::newRow("infirm dependant") << infirmPage << ""
                                      << QStringList { "enter the amount claimed.",
                                             "Allowable amount for this dependant (if negative, enter '0')" };
    QTest::newRow("infirm spouse") << spousePage << "Spouse or Eligible Dependant claimed in schedule 5"
                                   << QStringList {
                                          "Spouse/Dependant's net income (from field 23600 of his or her return)",
                                          "If claimed spouse/dependant at field 58120/58160,"
                                      };
}

void tst_WorksheetPages::captions()
{
    QFETCH(QString, page);
    QFETCH(QString, title);
    QFETCH(QStringList, captions);

    Fixture fixture;
    std::unique_ptr<PpgWizardPage> built(fixture.makePage(page, nullptr));
    QCOMPARE(built->title(), title);
    QStringList texts;
    for (QLabel *label : built->findChildren<QLabel *>())
        texts << label->text();
    for (QCheckBox *box : built->findChildren<QCheckBox *>())
        texts << box->text();
    if (!title.isEmpty())
        QVERIFY2(texts.contains(title), qPrintable(title));
    for (const QString &caption : captions)
        QVERIFY2(texts.contains(caption), qPrintable(caption));
}

void tst_WorksheetPages::headingShownOnceInWizard()
{
    Fixture fixture;
    auto *alone = fixture.makePage(tuitionPage, nullptr);
    auto *inWizard = fixture.makePage(agePage, nullptr);
    std::unique_ptr<PpgWizardPage> owned(alone);
    alone->show();
    WizardBase wizard(nullptr, QStringLiteral("Worksheet"));
    wizard.addPage(inWizard);
    wizard.initUI(770, 640);
    wizard.show();
    QVERIFY(alone->findChild<QLabel *>(QStringLiteral("lblHeading"))->isVisible());
    QVERIFY(!inWizard->findChild<QLabel *>(QStringLiteral("lblHeading"))->isVisible());
}

void tst_WorksheetPages::nullWorksheetLeavesPageInert_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &page : { disabilitySelf, disabilityTransfer, tuitionPage, adoptionPage, agePage, caregiverPage,
             infirmPage, spousePage })
        QTest::newRow(qPrintable(page)) << page;
}

void tst_WorksheetPages::nullWorksheetLeavesPageInert()
{
    QFETCH(QString, page);

    WizardBase wizard(nullptr, QStringLiteral("Worksheet"));
    PpgWizardPage *built = makeUnboundPage(page);
    wizard.addPage(built);
    wizard.initUI(770, 640);
    const auto amounts = built->findChildren<DoubleLineEdit *>();
    QVERIFY(!amounts.isEmpty());
    for (DoubleLineEdit *amount : amounts) {
        if (!amount->isReadOnly()) {
            QTest::keyClicks(amount, QStringLiteral("12"));
            QTest::keyClick(amount, Qt::Key_Enter);
        }
        // Nothing was loaded, so a typed text stays and a display box stays empty.
        QCOMPARE(amount->text(), amount->isReadOnly() ? QString() : QStringLiteral("12"));
    }
    if (auto *combo = built->findChild<StyledComboBox *>())
        QCOMPARE(combo->count(), 0);
}

void tst_WorksheetPages::worksheetDialogFromTaxPage()
{
    Fixture fixture;
    WorksheetLinesPage taxPage(fixture);
    int calcs = 0;
    connect(&taxPage, &BaseTaxPage::signalCalc, [&calcs]() { ++calcs; });
    QString title;
    QString line5;
    whenModal([&](QWidget *modal) {
        title = modal->windowTitle();
        auto *expenses = modal->findChild<DoubleLineEdit *>(QStringLiteral("fld_ws5844_2"));
        if (expenses) {
            expenses->selectAll();
            QTest::keyClicks(expenses, QStringLiteral("4500"));
            QTest::keyClick(expenses, Qt::Key_Enter);
            line5 = modal->findChild<DoubleLineEdit *>(QStringLiteral("fld_ws5844_5"))->text();
        }
        acceptIfOpen(modal);
    });
    taxPage.ShowWorksheetEditDlg(58440, 0);
    QCOMPARE(title, QStringLiteral("Disability Amount for Self"));
    QCOMPARE(line5, QStringLiteral("3500.00"));
    QCOMPARE(fixture.disability.fld_ws5844_2.m_dValue, 4500.0);
    QCOMPARE(calcs, 1);
}

void tst_WorksheetPages::dependantTabsFromTaxPage()
{
    Fixture fixture;
    WorksheetLinesPage taxPage(fixture);
    QStringList tabs;
    QString shownClaim;
    whenModal([&](QWidget *modal) {
        if (auto *tabWidget = modal->findChild<QTabWidget *>()) {
            for (int i = 0; i < tabWidget->count(); ++i)
                tabs << tabWidget->tabText(i);
            shownClaim = shown(tabWidget->widget(0), QStringLiteral("fld_AmountClaim"));
        }
        acceptIfOpen(modal);
    });
    taxPage.ShowWorksheetEditDlg(58400, 0);
    // The null entry keeps its place in the numbering; a titled page shows its title.
    QCOMPARE(
        tabs, (QStringList { "Dependant 1", "Dependant 3", "Spouse or Eligible Dependant claimed in schedule 5" }));
    QCOMPARE(shownClaim, QStringLiteral("4000.00"));
}

QTEST_MAIN(tst_WorksheetPages)
#include "tst_worksheetpages.moc"
