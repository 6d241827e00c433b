#include <LibControl/widgets/ppgwizardpage.h>

#include <LibControl/fields/DateField.h>
#include <LibControl/fields/IntField.h>
#include <LibControl/fields/boolfield.h>
#include <LibControl/fields/floatfield.h>
#include <LibControl/fields/stringfield.h>
#include <LibControl/widgets/basetaxpage.h>
#include <LibControl/worksheets/WorkSheetData.h>
#include <LibControl/widgets/doublelineedit.h>

WizardBase::WizardBase(QWidget *parent, const QString &title)
    : QWizard(parent)
{
    setWindowTitle(title);
}

WizardBase::~WizardBase() = default;

void WizardBase::initUI(int width, int height)
{
    resize(width, height);
    for (int id : pageIds()) {
        if (auto *ppg = qobject_cast<PpgWizardPage *>(page(id))) {
            ppg->AssociateFormData();
            ppg->GetDataFromDoc();
        }
    }
}

PpgWizardPage::PpgWizardPage(CWSBaseData *ws, CTaxData_Form *form, QWidget *parent)
    : QWizardPage(parent)
    , m_pWSData(ws)
    , m_pData(form)
    , m_amountAction(5, this)
    , m_bindings(FieldBindings::StyledComboRule)
{
}

PpgWizardPage::~PpgWizardPage() = default;

void PpgWizardPage::setExtraSize(int width, int height)
{
    m_extraWidth = width;
    m_extraHeight = height;
}

void PpgWizardPage::AssociateFormData()
{
}

void PpgWizardPage::loadWidgets()
{
    m_bindings.load();
    m_bindings.loadTextEdits();
    // Pages may bind more widgets later; installing again only moves the filter.
    for (const auto &[edit, field] : m_bindings.floatFields)
        m_amountAction.installOn(edit);
}

void PpgWizardPage::GetDataFromDoc()
{
    m_loading = true;
    loadWidgets();
    m_loading = false;
}

void PpgWizardPage::PutDataToDoc()
{
    m_bindings.store();
}

bool PpgWizardPage::validatePage()
{
    PutDataToDoc();
    return true;
}

void PpgWizardPage::storeAndReload(CField *field)
{
    if (!field)
        return;
    if (m_pWSData)
        m_pWSData->Calculate();
    GetDataFromDoc();
}

void PpgWizardPage::onStringEditFinished()
{
    if (!m_loading && sender())
        storeAndReload(m_bindings.storeString(sender()->objectName()));
}

void PpgWizardPage::onMultiLineEditFinished()
{
    if (!m_loading && sender())
        storeAndReload(m_bindings.storeMultiLine(sender()->objectName()));
}

void PpgWizardPage::onFloatEditFinished()
{
    if (!m_loading && sender())
        storeAndReload(m_bindings.storeFloat(sender()->objectName()));
}

void PpgWizardPage::onBoolChanged(int state)
{
    if (!m_loading && sender())
        storeAndReload(m_bindings.storeBool(sender()->objectName(), state));
}

void PpgWizardPage::onRadioIdClicked(int id)
{
    if (!m_loading && sender())
        storeAndReload(m_bindings.storeRadio(sender()->objectName(), id));
}

void PpgWizardPage::onDateChanged(const QDate &date)
{
    if (!m_loading && sender())
        storeAndReload(m_bindings.storeDate(sender()->objectName(), date));
}

void PpgWizardPage::onCmbCurIndexChanged(int index)
{
    Q_UNUSED(index)
    if (!m_loading && sender())
        storeAndReload(m_bindings.storeCombo(sender()->objectName()));
}

BaseWorksheetPage::BaseWorksheetPage(CWSBaseData *ws, CTaxData_Form *form, BaseTaxPage *owner)
    : PpgWizardPage(ws, form, owner)
    , m_owner(owner)
    , m_amountAction2(5, this)
{
}

BaseWorksheetPage::~BaseWorksheetPage() = default;

BaseTaxPage *BaseWorksheetPage::ownerPage() const
{
    return m_owner.data();
}

void BaseWorksheetPage::GetDataFromDoc()
{
    m_loading = true;
    // The owner's recalculation refreshes the worksheet before it is shown.
    if (m_owner)
        m_owner->CalcFormData(nullptr);
    loadWidgets();
    m_loading = false;
}

PpgBaseData::~PpgBaseData() = default;

bool PpgBaseData::validate()
{
    return false;
}

bool PpgBaseData::calc()
{
    return false;
}
