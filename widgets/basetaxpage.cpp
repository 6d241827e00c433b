#include <LibControl/widgets/basetaxpage.h>

#include <LibControl/fields/DateField.h>
#include <LibControl/forms/taxformdata.h>
#include <LibControl/forms/taxformtype.h>
#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/myevent.h>
#include <LibControl/widgets/styledcheckbox.h>
#include <LibControl/widgets/styleddateedit.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMessageBox>

#include <iterator>

BaseTaxPage::BaseTaxPage(int pageNo, CTaxData_Form *pData, QWidget *parent)
    : QWidget(parent)
    , m_parent(parent)
    , m_pData(pData)
    , m_pageNo(pageNo)
    , m_lineEditAction(1, this)
    , m_dateEditAction(4, this)
    , m_amountAction(5, this)
    , m_bindings(FieldBindings::T1ComboRule)
{
}

BaseTaxPage::BaseTaxPage(const char *title, CTaxData_Form *pData, QWidget *parent)
    : BaseTaxPage(0, pData, parent)
{
    m_title = QString::fromUtf8(title);
}

BaseTaxPage::~BaseTaxPage() = default;

QString BaseTaxPage::getTitle() const
{
    const QString title = m_title.trimmed();
    if (!title.isEmpty())
        return title;
    return tr("Page %1").arg(m_pageNo);
}

void BaseTaxPage::addForwardForm(int attID, const STRUCT_FORWARD_FORM_INFO_TYPE &info)
{
    m_forwardMap[attID] = info;
}

void BaseTaxPage::syncData()
{
    if (m_associated) {
        GetDataFromDoc();
        return;
    }
    AssociateFormData();
    m_associated = true;
    installFilters();
    for (const auto &[box, field] : m_bindings.boolFields) {
        Q_UNUSED(field)
        auto *styled = qobject_cast<StyledCheckBox *>(box);
        if (styled && (styled->text().isEmpty() || styled->text().size() > 10))
            styled->makeBold();
    }
    m_bindings.loadTextEdits();
    GetDataFromDoc();
}

void BaseTaxPage::installFilters()
{
    for (const auto &[edit, field] : m_bindings.stringFields)
        m_lineEditAction.installOn(edit);
    for (const auto &[edit, field] : m_bindings.dateFields)
        m_dateEditAction.installOn(edit);
    for (const auto &[edit, field] : m_bindings.floatFields)
        m_amountAction.installOn(edit);
}

void BaseTaxPage::GetDataFromDoc()
{
    m_loading = true;
    m_bindings.load();
    m_loading = false;
}

void BaseTaxPage::PutDataToDoc()
{
    m_bindings.store();
}

void BaseTaxPage::AutoDataCorrection()
{
}

QString BaseTaxPage::getTooltip(int id)
{
    auto it = m_forwardMap.find(id);
    if (it == m_forwardMap.end())
        return tr("Press key or mouse to open worksheet");
    const int form = it->second.formId;
    const bool known = form >= 0 && form < int(std::size(Global_Forms_Info));
    return tr("Calculated from tax form [%1]")
        .arg(known ? QString::fromLatin1(Global_Forms_Info[form].dataClass) : QString());
}

bool BaseTaxPage::CheckData(CField *pField, StringLineEdit *pEdt, std::string value)
{
    Q_UNUSED(pField)
    Q_UNUSED(pEdt)
    Q_UNUSED(value)
    return true;
}

bool BaseTaxPage::CalcFormData(CField *pField)
{
    Q_EMIT signalCalc(m_pData, pField);
    return true;
}

void BaseTaxPage::AssociateFormData()
{
}

bool BaseTaxPage::event(QEvent *e)
{
    if (e->type() == QEvent::Type(EventNeedWorksheet::Type)) {
        const int id = static_cast<MyEvent *>(e)->data();
        auto it = m_forwardMap.find(id);
        if (it == m_forwardMap.end())
            ShowWorksheetEditDlg(id, 0);
        else if (m_parent)
            QCoreApplication::postEvent(m_parent, new EventForwardEdit(it->second.formId));
        return true;
    }
    if (e->type() == QEvent::KeyRelease) {
        const int key = static_cast<QKeyEvent *>(e)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            focusNextPrevChild(true);
            return true;
        }
    }
    return QWidget::event(e);
}

void BaseTaxPage::storeAndCalc(CField *field)
{
    if (field)
        CalcFormData(field);
}

void BaseTaxPage::onStringEditFinished()
{
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeString(sender()->objectName()));
}

void BaseTaxPage::onMultiLineEditFinished()
{
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeMultiLine(sender()->objectName()));
}

void BaseTaxPage::onFloatEditFinished()
{
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeFloat(sender()->objectName()));
}

void BaseTaxPage::onBoolChanged(int state)
{
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeBool(sender()->objectName(), state));
}

void BaseTaxPage::onRadioIdClicked(int id)
{
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeRadio(sender()->objectName(), id));
}

void BaseTaxPage::onDateChanged(const QDate &date)
{
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeDate(sender()->objectName(), date));
}

void BaseTaxPage::onDateTimeChanged(const QDateTime &dateTime)
{
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeDateTime(sender()->objectName(), dateTime));
}

void BaseTaxPage::onCmbCurIndexChanged(int index)
{
    Q_UNUSED(index)
    if (!m_loading && sender())
        storeAndCalc(m_bindings.storeCombo(sender()->objectName()));
}

void BaseTaxPage::onFocussed(bool hasFocus, StringLineEdit *pEdt)
{
    if (!hasFocus || !pEdt)
        return;
    // The message box takes the focus and hands it back; that second
    // focus-in must not show the box again.
    if (pEdt == m_lastFocusMsgEdit) {
        m_lastFocusMsgEdit = nullptr;
        return;
    }
    m_lastFocusMsgEdit = pEdt;
    QString title;
    QString text;
    if (pEdt->getForwardMode() == StringLineEdit::ForwardFormType) {
        title = tr("Forward form");
        text = tr("to type");
    } else if (pEdt->getForwardMode() == StringLineEdit::ForwardWorksheetType) {
        title = tr("worksheet");
        text = tr("to field");
    } else {
        return;
    }
    // The text starts at the edit's forward type; that offset is intended.
    const int offset = pEdt->getForwardType();
    text = offset >= text.size() ? QString() : text.mid(qMax(0, offset));
    QMessageBox::information(this, title, text, QMessageBox::Ok);
}
