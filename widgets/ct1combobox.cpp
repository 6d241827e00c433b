#include <LibControl/common/utilities.h>
#include <LibControl/forms/taxformtype.h>
#include <LibControl/widgets/ct1combobox.h>
#include <LibControl/worksheets/dependantinfo.h>

#include <iterator>

namespace {

// The runs of blanks are part of the text.
const QString s_ct1ComboBox_stylesheet
    = QStringLiteral("QComboBox {color:black;border: 1px solid #32414B;                                     "
                     "border-radius:4px;padding: 1px 0px 1px 3px;}                          "
                     "QComboBox::focus { background-color:#DEAC37;}");

constexpr int lastCanadianProvince = 13;
constexpr int firstNonResidentKind = 14;

} // namespace

CT1ComboBox::CT1ComboBox(QWidget *parent)
    : StyledComboBox(parent)
{
    setStyleSheet(s_ct1ComboBox_stylesheet);
}

CT1ComboBox::~CT1ComboBox() = default;

int CT1ComboBox::GetCurSelData() const
{
    return GetItemData(GetCurSel());
}

void CT1ComboBox::SetCurSelData(int data)
{
    StyledComboBox::SetCurSelData(data);
}

void CT1ComboBox::LoadRelationships()
{
    clear();
    for (int row = 0; row < int(std::size(Global_Relationship_Info)); ++row)
        addItem(QString::fromLatin1(Global_Relationship_Info[row].text), row);
    setCurrentIndex(0);
}

void CT1ComboBox::LoadInfirmTypes()
{
    clear();
    for (const auto &status : Global_InfirmStatus_Info)
        addItem(QString::fromLatin1(status.text), status.code);
    setCurrentIndex(0);
}

void CT1ComboBox::loadRelationCode(const STRUCT_GENERAL_RELATION_CODE_INFO *table, int n)
{
    clear();
    for (int row = 0; table && row < n; ++row)
        addItem(QString::fromLatin1(table[row].name), table[row].code);
    setCurrentIndex(0);
}

void CT1ComboBox::LoadCurrency()
{
    clear();
    for (const auto &currency : Global_Currency_Info)
        addItem(QString::fromLatin1(currency.name), currency.code);
    setCurrentIndex(0);
}

void CT1ComboBox::LoadT106TPM()
{
    loadRelationCode(Global_T106_TPM_CODE_Info, int(std::size(Global_T106_TPM_CODE_Info)));
}

void CT1ComboBox::LoadProvs()
{
    clear();
    for (int row = 0; row <= lastCanadianProvince; ++row)
        addItem(QString::fromLatin1(Global_Provs_Info[row].name), row);
    setCurrentIndex(0);
}

void CT1ComboBox::LoadProvsPlus1()
{
    LoadProvs();
    addItem(tr("Outside Canada"), firstNonResidentKind);
    setCurrentIndex(0);
}

void CT1ComboBox::LoadProvForNonResi()
{
    clear();
    for (int row = firstNonResidentKind; row < int(std::size(Global_Provs_Info)); ++row)
        addItem(QString::fromLatin1(Global_Provs_Info[row].name), row);
    setCurrentIndex(0);
}

void CT1ComboBox::LoadCAUSProvs()
{
    loadRelationCode(Global_CAUSProvs_Info, int(std::size(Global_CAUSProvs_Info)));
}

void CT1ComboBox::LoadCountries()
{
    clear();
    for (const auto &country : Global_Countries_Info)
        addItem(QString::fromLatin1(country.name), country.id);
    setCurrentIndex(0);
}

void CT1ComboBox::LoadTaxForms(unsigned char, std::list<unsigned int> &forms, const CString &filter)
{
    clear();
    addItem(tr("Choose a Form Type"), 0);
    for (unsigned int form : forms) {
        if (form >= std::size(Global_Forms_Info))
            continue;
        const QString title = QString::fromLatin1(Global_Forms_Info[form].title);
        if (filter.isEmpty() || title.contains(filter, Qt::CaseInsensitive))
            addItem(title, int(form));
    }
    setCurrentIndex(0);
}

void CT1ComboBox::LoadSKGraduateRententionProgramType()
{
    clear();
    const QString programs[] = { tr("Select a program"), tr("a certificate program"), tr("a diploma program"),
        tr("3-year undergraduate"), tr("4-year undergraduate") };
    for (int row = 0; row < int(std::size(programs)); ++row)
        addItem(programs[row], row);
    setCurrentIndex(0);
}
