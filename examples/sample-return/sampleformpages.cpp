#include "samplepage.h"

#include "samplet1form.h"

#include <LibControl/forms/taxformtype.h>
#include <LibControl/widgets/ct1combobox.h>
#include <LibControl/widgets/styledcheckbox.h>
#include <LibControl/widgets/styleddateedit.h>
#include <LibControl/worksheets/ws58440_disabilityself_tab1.h>
#include <LibControl/worksheets/wsageamount_tab1.h>
#include <LibControl/worksheets/wscaregiveramt_dep.h>

#include <iterator>

namespace {

using Kind = SampleFormPage::LineKind;
using AmountRow = SampleFormPage::AmountRow;
using TextRow = SampleFormPage::TextRow;

// Worksheets behind the credit lines, by the identifier their edits carry.
constexpr int AgeWorksheet = 30100;
constexpr int DisabilityWorksheet = 58440;
constexpr int CaregiverWorksheet = 58400;

TextRow const IdentificationRows[] = {
    { "fld_FirstName", "First name", &SampleT1Form::fld_FirstName, 30 },
    { "fld_LastName", "Last name", &SampleT1Form::fld_LastName, 30 },
    { "fld_SIN", "Social insurance number", &SampleT1Form::fld_SIN, 9 },
    { "fld_Address", "Mailing address", &SampleT1Form::fld_Address, 30 },
    { "fld_City", "City", &SampleT1Form::fld_City, 30 },
};

TextRow const ContactRows[] = {
    { "fld_PostalCode", "Postal code", &SampleT1Form::fld_PostalCode, 7 },
    { "fld_Email", "E-mail address", &SampleT1Form::fld_Email, 60 },
};

AmountRow const IncomeRows[] = {
    { "fld_10100", "10100", "Employment income", &SampleT1Form::fld_10100_Employment, Kind::Input, 0 },
    { "fld_11500", "11500", "Other pensions and superannuation", &SampleT1Form::fld_11500_Pension, Kind::Input, 0 },
    { "fld_12000", "12000", "Taxable amount of dividends", &SampleT1Form::fld_12000_Dividends, Kind::Forward,
        FORM_WS_SCHEDULE4 },
    { "fld_12100", "12100", "Interest and other investment income", &SampleT1Form::fld_12100_Interest, Kind::Forward,
        FORM_WS_SCHEDULE4 },
    { "fld_15000", "15000", "Total income", &SampleT1Form::fld_15000_TotalIncome, Kind::Computed, 0 },
    { "fld_20800", "20800", "RRSP deduction", &SampleT1Form::fld_20800_RRSP, Kind::Input, 0 },
    { "fld_23600", "23600", "Net income", &SampleT1Form::fld_23600_NetIncome, Kind::Computed, 0 },
    { "fld_26000", "26000", "Taxable income", &SampleT1Form::fld_26000_TaxableIncome, Kind::Computed, 0 },
};

AmountRow const CreditRows[] = {
    { "fld_30000", "30000", "Basic personal amount", &SampleT1Form::fld_30000_BasicPersonal, Kind::Computed, 0 },
    { "fld_30100", "30100", "Age amount", &SampleT1Form::fld_30100_Age, Kind::Worksheet, AgeWorksheet },
    { "fld_30400", "30400", "Amount for an eligible dependant", &SampleT1Form::fld_30400_EligibleDependant,
        Kind::Computed, 0 },
    { "fld_30450", "30450", "Canada caregiver amount", &SampleT1Form::fld_30450_Caregiver, Kind::Worksheet,
        CaregiverWorksheet },
    { "fld_30800", "30800", "CPP contributions", &SampleT1Form::fld_30800_CPP, Kind::Input, 0 },
    { "fld_31200", "31200", "EI premiums", &SampleT1Form::fld_31200_EI, Kind::Input, 0 },
    { "fld_31600", "31600", "Disability amount for self", &SampleT1Form::fld_31600_Disability, Kind::Worksheet,
        DisabilityWorksheet },
    { "fld_33099", "33099", "Medical expenses", &SampleT1Form::fld_33099_Medical, Kind::Input, 0 },
    { "fld_33500", "33500", "Total credit amounts", &SampleT1Form::fld_33500_TotalCredits, Kind::Computed, 0 },
    { "fld_33800", "33800", "Non-refundable tax credits", &SampleT1Form::fld_33800_CreditAmount, Kind::Computed, 0 },
};

AmountRow const TaxRows[] = {
    { "fld_40400", "40400", "Federal tax on taxable income", &SampleT1Form::fld_40400_FederalTax, Kind::Computed, 0 },
    { "fld_42000", "42000", "Net federal tax", &SampleT1Form::fld_42000_NetFederalTax, Kind::Computed, 0 },
    { "fld_43700", "43700", "Total income tax deducted", &SampleT1Form::fld_43700_TaxDeducted, Kind::Input, 0 },
    { "fld_48400", "48400", "Refund", &SampleT1Form::fld_48400_Refund, Kind::Computed, 0 },
    { "fld_48500", "48500", "Balance owing", &SampleT1Form::fld_48500_Balance, Kind::Computed, 0 },
};

AmountRow const InvestmentRows[] = {
    { "fld_12000", "12000", "Taxable amount of dividends from taxable Canadian corporations",
        &SampleT1Form::fld_12000_Dividends, Kind::Input, 0 },
    { "fld_12100", "12100", "Interest and other investment income", &SampleT1Form::fld_12100_Interest, Kind::Input, 0 },
    { "fld_15000", "15000", "Total income, as carried on the return", &SampleT1Form::fld_15000_TotalIncome,
        Kind::Forward, FORM_T1GENERAL },
};

struct MaritalStatus
{
    char const *text;
    int code;
};

MaritalStatus const MaritalStatuses[] = {
    { "Married", 1 },
    { "Living common-law", 2 },
    { "Widowed", 3 },
    { "Divorced", 4 },
    { "Separated", 5 },
    { "Single", 6 },
};

template<typename Row, std::size_t N> constexpr std::size_t count(Row const (&)[N])
{
    return N;
}

} // namespace

SampleT1Page::SampleT1Page(SampleT1Form *form, QWidget *parent)
    : SampleFormPage("T1 General 2025", form, parent)
{
    addIdentification();
    addHeading(0, tr("Total income"));
    addAmountRows(0, IncomeRows, count(IncomeRows));
    addHeading(1, tr("Federal non-refundable tax credits"));
    addAmountRows(1, CreditRows, count(CreditRows));
    addHeading(1, tr("Refund or balance owing"));
    addAmountRows(1, TaxRows, count(TaxRows));

    auto *signedOn = new StyledDateEdit(this);
    signedOn->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
    signedOn->setFixedWidth(130);
    connect(signedOn, &QDateEdit::dateChanged, this, &BaseTaxPage::onDateChanged);
    addRow(1, "fld_SignedOn", tr("Date signed"), QString(), signedOn);
    finishLayout();
}

SampleT1Page::~SampleT1Page() = default;

void SampleT1Page::addIdentification()
{
    addHeading(0, tr("Identification"));
    addTextRows(0, IdentificationRows, count(IdentificationRows));

    auto *province = new CT1ComboBox(this);
    province->LoadProvs();
    province->setFixedWidth(TextWidth);
    connect(province, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &BaseTaxPage::onCmbCurIndexChanged);
    addRow(0, "fld_Province", tr("Province"), QString(), province);
    addTextRows(0, ContactRows, count(ContactRows));

    auto *birth = new StyledDateEdit(this);
    birth->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
    birth->setFixedWidth(TextWidth);
    connect(birth, &QDateEdit::dateChanged, this, &BaseTaxPage::onDateChanged);
    addRow(0, "fld_BirthDate", tr("Date of birth"), QString(), birth);

    auto *marital = new CT1ComboBox(this);
    marital->setFixedWidth(TextWidth);
    marital->SetItemData(marital->AddString("Choose a status"), 0);
    for (MaritalStatus const &status : MaritalStatuses)
        marital->SetItemData(marital->AddString(status.text), status.code);
    connect(marital, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &BaseTaxPage::onCmbCurIndexChanged);
    addRow(0, "fld_MaritalStatus", tr("Marital status on December 31"), QString(), marital);

    for (auto const &check : { std::make_pair("fld_ResidentAllYear", "Resident of Canada all year"),
             std::make_pair("fld_ElectionsCanada", "Elections Canada may have my details") }) {
        auto *box = new StyledCheckBox(this);
        box->setText(tr("Yes"));
        connect(box, &QCheckBox::stateChanged, this, &BaseTaxPage::onBoolChanged);
        addRow(0, check.first, tr(check.second), QString(), box);
    }
}

void SampleT1Page::AssociateFormData()
{
    SampleT1Form *form = sampleForm();
    bindTextRows(IdentificationRows, count(IdentificationRows));
    bindTextRows(ContactRows, count(ContactRows));
    bindAmountRows(IncomeRows, count(IncomeRows));
    bindAmountRows(CreditRows, count(CreditRows));
    bindAmountRows(TaxRows, count(TaxRows));
    bindField(findChild<StyledComboBox *>(QStringLiteral("fld_Province")), &form->fld_Province);
    bindField(findChild<StyledComboBox *>(QStringLiteral("fld_MaritalStatus")), &form->fld_MaritalStatus);
    bindField(findChild<StyledDateEdit *>(QStringLiteral("fld_BirthDate")), &form->fld_BirthDate);
    bindField(findChild<StyledDateEdit *>(QStringLiteral("fld_SignedOn")), &form->fld_SignedOn);
    bindField(findChild<QCheckBox *>(QStringLiteral("fld_ResidentAllYear")), &form->fld_ResidentAllYear);
    bindField(findChild<QCheckBox *>(QStringLiteral("fld_ElectionsCanada")), &form->fld_ElectionsCanada);
}

PpgWizardPage *SampleT1Page::getWorksheetEditDlg(int id, long ctx, QString &title)
{
    Q_UNUSED(ctx)
    Q_UNUSED(title)
    SampleT1Form *form = sampleForm();
    // The wizard that shows the page takes it over.
    switch (id) {
    case AgeWorksheet:
        return new WSAgeAmount_tab1(&form->ws30100, form, this);
    case DisabilityWorksheet:
        return new WS58440_DisabilitySelf_tab1(&form->ws58440, form, this);
    case CaregiverWorksheet:
        return new WSCaregiverAmt_Dep(&form->ws30450, form, this);
    default:
        return nullptr;
    }
}

SampleSchedulePage::SampleSchedulePage(SampleT1Form *form, QWidget *parent)
    : SampleFormPage("Worksheet Schedule 4 - Statement of Investment Income", form, parent)
{
    addHeading(0, getTitle());
    addAmountRows(0, InvestmentRows, count(InvestmentRows));
    finishLayout();
}

SampleSchedulePage::~SampleSchedulePage() = default;

void SampleSchedulePage::AssociateFormData()
{
    bindAmountRows(InvestmentRows, count(InvestmentRows));
}
