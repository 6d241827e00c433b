#include "modalwatch.h"
#include "taxpagefixture.h"

#include <LibControl/widgets/ppgwizardpage.h>
#include <LibControl/widgets/wsmultidepdlg.h>
#include <LibControl/worksheets/WorkSheetData.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <memory>

namespace {

// Line 3 = line 1 + line 2.
class SumSheet : public CWSBaseData
{
public:
    SumSheet()
        : line1(0.0, 1)
        , line2(0.0, 2)
        , line3(0.0, 3)
    {
    }
    int Calculate() override
    {
        line3 = line1.m_dValue + line2.m_dValue;
        return 0;
    }
    CFloatField line1;
    CFloatField line2;
    CFloatField line3;
};

// Two editable lines and their display-only sum, bound as worksheet pages do.
template<typename Base, typename Parent>
class SumPage : public Base
{
public:
    SumPage(SumSheet *ws, Parent *parent, const QString &title = QString(), int extra = 0)
        : Base(ws, nullptr, parent)
        , m_ws(ws)
    {
        this->setTitle(title);
        this->setExtraSize(extra, extra / 2);
        for (auto [edit, name] : { std::pair { &line1, "line1" }, { &line2, "line2" }, { &line3, "line3" } }) {
            *edit = new DoubleLineEdit(this);
            (*edit)->setObjectName(QLatin1String(name));
        }
        line3->setReadOnly(true);
        QObject::connect(line1, &QLineEdit::editingFinished, this, &PpgWizardPage::onFloatEditFinished);
        QObject::connect(line2, &QLineEdit::editingFinished, this, &PpgWizardPage::onFloatEditFinished);
    }

    void AssociateFormData() override
    {
        ++associations;
        if (!m_ws)
            return;
        this->bindField(line1, &m_ws->line1);
        this->bindField(line2, &m_ws->line2);
        this->bindField(line3, &m_ws->line3);
    }

    QStringList texts() const { return { line1->text(), line2->text(), line3->text() }; }

    DoubleLineEdit *line1 = nullptr;
    DoubleLineEdit *line2 = nullptr;
    DoubleLineEdit *line3 = nullptr;
    int associations = 0;

private:
    SumSheet *m_ws;
};

using WizardSumPage = SumPage<PpgWizardPage, QWidget>;
using OwnedSumPage = SumPage<BaseWorksheetPage, BaseTaxPage>;

// A tax page whose worksheet lines open SumPages, one or one per dependant.
class WorksheetTaxPage : public BaseTaxPage
{
public:
    WorksheetTaxPage()
        : BaseTaxPage(1, nullptr, nullptr)
    {
        connect(this, &BaseTaxPage::signalCalc, [this](CTaxData_Form *, CField *field) { calcs.push_back(field); });
    }

    PpgWizardPage *getWorksheetEditDlg(int id, long, QString &) override
    {
        return id == 58400 ? new OwnedSumPage(&single, this, QString(), 40) : nullptr;
    }

    int getWorksheetEditDlg(int id, long, QString &, std::list<PpgWizardPage *> &pages) override
    {
        if (id != 58200)
            return 0;
        pages.push_back(new OwnedSumPage(&dependants[0], this, QStringLiteral("Ann")));
        pages.push_back(nullptr);
        pages.push_back(new OwnedSumPage(&dependants[2], this));
        return 3;
    }

    SumSheet single;
    SumSheet dependants[3];
    std::vector<CField *> calcs;
};

QStringList tabTitles(QTabWidget *tabs)
{
    QStringList titles;
    for (int i = 0; i < tabs->count(); ++i)
        titles << tabs->tabText(i);
    return titles;
}

} // namespace

class tst_WizardPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void editRecalculatesAndRefreshesEveryWidget()
    {
        SumSheet ws;
        ws.line2.m_dValue = 5;
        WizardBase wizard(nullptr, QStringLiteral("Sum"));
        auto *page = new WizardSumPage(&ws, nullptr);
        wizard.addPage(page);
        wizard.initUI(500, 400);
        QCOMPARE(page->texts(), (QStringList { "0.00", "5.00", "0.00" }));

        page->line1->clear();
        QTest::keyClicks(page->line1, QStringLiteral("10.25"));
        QTest::keyClick(page->line1, Qt::Key_Return);
        QCOMPARE(ws.line1.m_dValue, 10.25);
        QCOMPARE(page->texts(), (QStringList { "10.25", "5.00", "15.25" }));
        QVERIFY(!page->isLoading());
    }

    void initUIBindsOnlyWorksheetPages()
    {
        SumSheet ws;
        ws.line1.m_dValue = 2;
        WizardBase wizard(nullptr, QStringLiteral("Two pages"));
        auto *page = new WizardSumPage(&ws, nullptr);
        auto *plain = new QWizardPage;
        wizard.addPage(plain);
        wizard.addPage(page);
        wizard.initUI(640, 480);
        QCOMPARE(wizard.size(), QSize(640, 480));
        QCOMPARE(wizard.windowTitle(), QStringLiteral("Two pages"));
        QCOMPARE(page->associations, 1);
        QCOMPARE(page->line1->text(), QStringLiteral("2.00"));
    }

    void validatePageWritesBack()
    {
        SumSheet ws;
        WizardSumPage page(&ws, nullptr);
        page.AssociateFormData();
        page.line2->setText(QStringLiteral("1,000.50"));
        QVERIFY(page.validatePage());
        QCOMPARE(ws.line2.m_dValue, 1000.5);
        QCOMPARE(ws.line3.m_dValue, 0.0); // writing back does not recalculate
    }

    void missingWorksheetOrOwnerIsHarmless()
    {
        WizardSumPage orphan(nullptr, nullptr);
        orphan.AssociateFormData();
        orphan.GetDataFromDoc();
        Q_EMIT orphan.line1->editingFinished();
        QVERIFY(orphan.validatePage());

        SumSheet ws;
        ws.line1.m_dValue = 3;
        OwnedSumPage ownerless(&ws, nullptr);
        ownerless.AssociateFormData();
        ownerless.GetDataFromDoc();
        QCOMPARE(ownerless.line1->text(), QStringLiteral("3.00"));
        QVERIFY(!ownerless.ownerPage());
    }

    void worksheetPageRecalculatesItsOwnerOnReload()
    {
        SumSheet ws;
        auto owner = std::make_unique<WorksheetTaxPage>();
        auto *page = new OwnedSumPage(&ws, owner.get());
        QCOMPARE(page->parent(), owner.get());
        page->AssociateFormData();
        page->GetDataFromDoc();
        QCOMPARE(owner->calcs, std::vector<CField *> { nullptr });

        // The page outlives its owner only as a detached widget; it must not call into it.
        page->setParent(nullptr);
        std::unique_ptr<OwnedSumPage> detached(page);
        owner.reset();
        detached->GetDataFromDoc();
        QVERIFY(!detached->ownerPage());
    }

    void singleWorksheetOpensInWizard()
    {
        WorksheetTaxPage page;
        page.single.line1.m_dValue = 4;
        QString shownText;
        size_t calcsWhileOpen = 0;
        ModalWatch watch([&](QWidget *modal) {
            calcsWhileOpen = page.calcs.size();
            auto *wizard = qobject_cast<WizardBase *>(modal);
            QVERIFY(wizard);
            QCOMPARE(wizard->size(), QSize(770 + 40, 640 + 20));
            QCOMPARE(wizard->wizardStyle(), QWizard::ClassicStyle);
            QCOMPARE(wizard->options() & (QWizard::NoBackButtonOnStartPage | QWizard::NoCancelButton),
                     QWizard::NoBackButtonOnStartPage | QWizard::NoCancelButton);
            shownText = static_cast<OwnedSumPage *>(wizard->currentPage())->line1->text();
        });
        page.ShowWorksheetEditDlg(58400, 0);
        QCOMPARE(watch.seen, 1);
        QCOMPARE(watch.title, QStringLiteral("Caregiver Amount"));
        QCOMPARE(shownText, QStringLiteral("4.00"));
        // The page recalculated its owner on loading, and the owner recalculates once closed.
        QVERIFY(calcsWhileOpen >= 1);
        QVERIFY(page.calcs.size() > calcsWhileOpen);
        QCOMPARE(page.calcs.back(), nullptr);
    }

    void dependantWorksheetsOpenInTabs()
    {
        WorksheetTaxPage page;
        QStringList titles;
        ModalWatch watch([&](QWidget *modal) {
            auto *dialog = qobject_cast<WSMultiDepDlg *>(modal);
            QVERIFY(dialog);
            QCOMPARE(dialog->size(), QSize(770, 640));
            titles = tabTitles(dialog->tabWidget());
            auto *second = static_cast<OwnedSumPage *>(dialog->tabWidget()->widget(1));
            second->line2->setText(QStringLiteral("77"));
            auto *buttons = dialog->findChild<QDialogButtonBox *>();
            QCOMPARE(buttons->buttons().size(), 1);
            buttons->button(QDialogButtonBox::Ok)->click();
        });
        page.ShowWorksheetEditDlg(58200, 0);
        QCOMPARE(watch.seen, 1);
        QCOMPARE(watch.title, QStringLiteral("Provincial Amount for Infirm Dependant Aged 18+"));
        QCOMPARE(titles, (QStringList { "Ann", "Dependant 3" }));
        QCOMPARE(page.dependants[2].line2.m_dValue, 77.0); // OK wrote the pages back
        QCOMPARE(page.calcs.back(), nullptr);
    }

    void lineWithoutWorksheetOpensNothing()
    {
        WorksheetTaxPage page;
        ModalWatch watch;
        page.ShowWorksheetEditDlg(30000, 0);
        QCoreApplication::processEvents();
        QCOMPARE(watch.seen, 0);
        QVERIFY(page.calcs.empty());
    }

    void multiDependantDialogReinitialises()
    {
        SumSheet a;
        SumSheet b;
        std::list<PpgWizardPage *> pages { new WizardSumPage(&a, nullptr), new WizardSumPage(&b, nullptr, "Bob") };
        WSMultiDepDlg dialog(QStringLiteral("Dependants"), pages, nullptr);
        dialog.initUI(600, 500);
        dialog.initUI(700, 500);
        QCOMPARE(tabTitles(dialog.tabWidget()), (QStringList { "Dependant 1", "Bob" }));
        QCOMPARE(dialog.size(), QSize(700, 500));
        QCOMPARE(dialog.font().pointSize(), 14);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Dependants"));
    }
};

QTEST_MAIN(tst_WizardPage)
#include "tst_wizardpage.moc"
