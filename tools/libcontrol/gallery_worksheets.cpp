// The worksheet pages of the gallery, each filled with figures worked out
// by hand and shown in the wizard a tax page opens, and the dialog that
// shows several dependants' pages as tabs.

#include "gallery.h"

#include <LibControl/widgets/wsmultidepdlg.h>
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

#include <QtGlobal>

#include <list>

namespace Tool {

namespace {

// The size a tax page gives its worksheet wizard.
constexpr int WizardWidth = 770;
constexpr int WizardHeight = 640;

// Figures of the 2025 year used throughout.
constexpr double CaregiverThreshold = 28798.0;
constexpr double CaregiverMax = 8601.0;
constexpr double DisabilityBase = 10138.0;
constexpr double DisabilitySupplementMax = 5914.0;
constexpr double CareExpenseBase = 3464.0;

/** Three dependants: a child of 13, and two infirm adults with some income. */
class Dependants
{
public:
    Dependants()
    {
        list.AllocData(3);
        set(0, "Emma", "Tremblay", QDate(2012, 5, 14), 1, 0.0);
        set(1, "Robert", "Tremblay", QDate(1950, 2, 11), 2, 22400.0);
        set(2, "Louise", "Gagnon", QDate(1953, 8, 30), 3, 25600.0);
        for (int infirm : { 1, 2 })
            list.getDependant(infirm)->fld_Infirm.m_nValue = 1;
    }

    DependantInfoStruct list;

private:
    void set(int index, char const *first, char const *last, QDate birth, int relationship, double netIncome)
    {
        _OneDependantInfoStru &dependant = *list.getDependant(index);
        qstrncpy(dependant.m_szFirstName, first, sizeof dependant.m_szFirstName);
        qstrncpy(dependant.m_szLastName, last, sizeof dependant.m_szLastName);
        dependant.m_dateBirth = birth;
        dependant.m_nRelationship = relationship;
        dependant.m_dNetIncome = netIncome;
    }
};

void shootInWizard(
    Gallery &gallery, PpgWizardPage *page, QString const &title, QString const &file, QString const &caption)
{
    WizardBase wizard(nullptr, title);
    wizard.setWizardStyle(QWizard::ClassicStyle);
    wizard.addPage(page);
    wizard.setOptions(QWizard::NoBackButtonOnStartPage | QWizard::NoCancelButton);
    wizard.initUI(WizardWidth + page->extraWidth(), WizardHeight + page->extraHeight());
    gallery.shoot(&wizard, file, caption);
}

void shootOwnCredits(Gallery &gallery)
{
    // 65 or older with a net income of 52,000: 9,028 - 15 % x (52,000 - 45,522) = 8,056.30.
    CWSAgeAmtData age;
    age.SetAgeParameter(9028.0, 45522.0, 0.15, 365.0, 365.0, true, 52000.0);
    age.Calculate();
    shootInWizard(gallery, new WSAgeAmount_tab1(&age, nullptr, nullptr), QStringLiteral("Federal Age Amount Worksheet"),
        QStringLiteral("worksheet-ageamount"),
        QStringLiteral("WSAgeAmount_tab1: net income 52,000.00 gives an age amount of 8,056.30"));

    // Care expenses of 4,200 against 3,464: 5,914 - 736 = 5,178.
    CWSDisabilityAmtData disability;
    disability.SetF5844Parameter(DisabilitySupplementMax, CareExpenseBase, true);
    disability.fld_ws5844_claim.m_nValue = 1;
    disability.fld_ws5844_2.m_dValue = 4200.0;
    disability.Calculate();
    shootInWizard(gallery, new WS58440_DisabilitySelf_tab1(&disability, nullptr, nullptr),
        QStringLiteral("Disability Amount for Self"), QStringLiteral("worksheet-58440-disabilityself"),
        QStringLiteral("WS58440_DisabilitySelf_tab1: care expenses of 4,200.00 leave a supplement of "
                       "5,178.00"));

    // Three quarters of 5,000 transferred: 3,750.
    DataWS58600 tuition;
    tuition.fld_5860.m_dValue = 5000.0;
    tuition.Calculate(0.75);
    shootInWizard(gallery, new WS58600_tab1(&tuition, nullptr, nullptr),
        QStringLiteral("Provincial Tuition Transfer Amounts"), QStringLiteral("worksheet-58600"),
        QStringLiteral("WS58600_tab1: 5,000.00 transferred, prorated at 75 % to 3,750.00"));

    DataWSAdoptionExpense adoption;
    adoption.fld_Adopt_ExpAmt_1.m_dValue = 12500.0;
    adoption.fld_Adopt_ExpAmt_2.m_dValue = 3400.0;
    adoption.Calculate();
    shootInWizard(gallery, new WSAdoptionExpense_tab1(&adoption, nullptr, nullptr),
        QStringLiteral("Prvocincial Adoption Amount Worksheet"), QStringLiteral("worksheet-adoptionexpense"),
        QStringLiteral("WSAdoptionExpense_tab1: two children, 12,500.00 and 3,400.00"));
}

void shootDependantCredits(Gallery &gallery, Dependants &dependants)
{
    // Emma, 13: care expenses of 4,000 are 536 over the base, so the supplement
    // is 5,914 - 536 = 5,378 and line 8 is 10,138 + 5,378 = 15,516; line 12 is
    // 15,516 + 16,129 - 2,000 = 29,645, and the claim is the lesser, 15,516.
    CWSDisabilityTransferAmtData transfer;
    transfer.SetDepInfo(&dependants.list);
    transfer.SetF5848Parameter(DisabilityBase, DisabilitySupplementMax, CareExpenseBase);
    transfer.DepIdx.m_nValue = 1;
    transfer.fld_Line3ChldCareExp.m_dValue = 4000.0;
    transfer.fld_4.m_dValue = 16129.0;
    transfer.DepTaxInc.m_dValue = 2000.0;
    transfer.Calculate();
    shootInWizard(gallery, new WS58480_DisabilityDepTransfer_tab1(&transfer, nullptr, nullptr),
        QStringLiteral("Provincial Dependant Disability Transfer Amount"),
        QStringLiteral("worksheet-58480-disabilitydeptransfer"),
        QStringLiteral("WS58480_DisabilityDepTransfer_tab1: a child of 13 transfers 15,516.00"));

    // Robert's net income of 22,400: 28,798 - 22,400 = 6,398, less 1,200 claimed elsewhere = 5,198.
    CWSCaregiverAmtData caregiver;
    caregiver.SetDepInfo(&dependants.list);
    caregiver.SetParameter(CaregiverThreshold, CaregiverMax, 2, 1200.0);
    caregiver.DepIdx.m_nValue = 2;
    caregiver.Calculate();
    shootInWizard(gallery, new WSCaregiverAmt_Dep(&caregiver, nullptr, nullptr), QStringLiteral("Caregiver Amount"),
        QStringLiteral("worksheet-caregiveramt-dep"),
        QStringLiteral("WSCaregiverAmt_Dep: 6,398.00 less 1,200.00 claimed at 58160 leaves 5,198.00"));

    // Louise's net income of 25,600: 28,798 - 25,600 = 3,198.
    CWSInfirmDepAmtData infirm;
    infirm.SetDepInfo(&dependants.list);
    infirm.SetParameterAndF5816Info(CaregiverThreshold, CaregiverMax, 0, 0.0);
    infirm.DepIdx.m_nValue = 3;
    infirm.Calculate();
    shootInWizard(gallery, new WSInfirmDepAmt_Dep(&infirm, nullptr, nullptr),
        QStringLiteral("Provincial Amount for Infirm Dependant Aged 18+"), QStringLiteral("worksheet-infirmdepamt-dep"),
        QStringLiteral("WSInfirmDepAmt_Dep: a net income of 25,600.00 leaves 3,198.00"));

    // The spouse's net income of 24,000: 28,798 - 24,000 = 4,798, none claimed elsewhere.
    CWSInfirmDepAmtData spouse;
    spouse.SetParameterAndF5816Info(CaregiverThreshold, CaregiverMax, 0, 0.0);
    spouse.DepIdx.m_nValue = 303;
    spouse.DepNetInc.m_dValue = 24000.0;
    spouse.Calculate();
    shootInWizard(gallery, new WSInfirmDepAmt_SpouseDep(&spouse, nullptr, nullptr),
        QStringLiteral("Provincial Amount for Infirm Dependant Aged 18+"),
        QStringLiteral("worksheet-infirmdepamt-spousedep"),
        QStringLiteral("WSInfirmDepAmt_SpouseDep: the spouse's net income of 24,000.00 leaves 4,798.00"));
}

void shootMultiDependantDialog(Gallery &gallery, Dependants &dependants)
{
    // One caregiver worksheet per infirm adult, as a tax page lists them.
    CWSCaregiverAmtData robert;
    CWSCaregiverAmtData louise;
    int index = 2;
    for (CWSCaregiverAmtData *worksheet : { &robert, &louise }) {
        worksheet->SetDepInfo(&dependants.list);
        worksheet->SetParameter(CaregiverThreshold, CaregiverMax, 0, 0.0);
        worksheet->DepIdx.m_nValue = index++;
        worksheet->Calculate();
    }
    std::list<PpgWizardPage *> pages { new WSCaregiverAmt_Dep(&robert, nullptr, nullptr),
        new WSCaregiverAmt_Dep(&louise, nullptr, nullptr) };
    WSMultiDepDlg dialog(QStringLiteral("Caregiver Amount"), pages, nullptr);
    dialog.initUI(WizardWidth, WizardHeight);
    gallery.shoot(&dialog, QStringLiteral("dialog-wsmultidep"),
        QStringLiteral("WSMultiDepDlg: the caregiver pages of two dependants as tabs"));
}

} // namespace

void shootWorksheetPages(Gallery &gallery)
{
    gallery.section(QStringLiteral("Worksheet pages"));
    Dependants dependants;
    shootOwnCredits(gallery);
    shootDependantCredits(gallery, dependants);
    shootMultiDependantDialog(gallery, dependants);
}

} // namespace Tool
