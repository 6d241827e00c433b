#ifndef LIBCONTROL_WIDGETS_PPGWIZARDPAGE_H
#define LIBCONTROL_WIDGETS_PPGWIZARDPAGE_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/actiononevent.h>
#include <LibControl/widgets/fieldbindings.h>

#include <QPointer>
#include <QWizard>
#include <QWizardPage>

class BaseTaxPage;
class CField;
class CTaxData_Form;
class CWSBaseData;

/**
 * The dialog in which worksheets are edited: a QWizard titled at
 * construction.
 */
class LIBCONTROL_EXPORT WizardBase : public QWizard
{
    Q_OBJECT
public:
    WizardBase(QWidget *parent, const QString &title);
    ~WizardBase() override;

    /**
     * Resizes the dialog to `width` x `height`, then binds and loads every
     * PpgWizardPage among its pages in page order; other pages are left alone.
     */
    void initUI(int width, int height);
};

/**
 * The base of every worksheet page: binds widgets to the fields of a
 * worksheet (and its form) as BaseTaxPage does for form pages. Every edit
 * is stored, the worksheet recalculated (CWSBaseData::Calculate) and the
 * whole page reloaded, so computed lines follow at once; Next and Finish
 * write every widget back. Neither the worksheet nor the form is
 * owned, and either may be null.
 */
class LIBCONTROL_EXPORT PpgWizardPage : public QWizardPage
{
    Q_OBJECT
public:
    PpgWizardPage(CWSBaseData *ws, CTaxData_Form *form, QWidget *parent);
    ~PpgWizardPage() override;

    /** Width the page needs beyond the standard worksheet dialog. */
    int extraWidth() const { return m_extraWidth; }
    /** Height the page needs beyond the standard worksheet dialog. */
    int extraHeight() const { return m_extraHeight; }
    /** The worksheet shown; null when none. */
    CWSBaseData *worksheet() const { return m_pWSData; }
    /** The worksheet's form; null when none. */
    CTaxData_Form *formData() const { return m_pData; }
    /** True while field values are being copied into the widgets. */
    bool isLoading() const { return m_loading; }

    /** Fills the maps; the default binds nothing. */
    virtual void AssociateFormData();
    /** Loads every bound widget from its field under the loading flag. */
    virtual void GetDataFromDoc();
    /** Stores every bound widget into its field. */
    virtual void PutDataToDoc();

    /** Writes every widget back and accepts; values are not validated here. */
    bool validatePage() override;

public Q_SLOTS:
    void onStringEditFinished();
    void onMultiLineEditFinished();
    void onFloatEditFinished();
    void onBoolChanged(int state);
    void onRadioIdClicked(int id);
    void onDateChanged(const QDate &date);
    void onCmbCurIndexChanged(int index);

protected:
    /**
     * Binds `widget` (by its object name) to `field` in the maps of the
     * widget's kind, as BaseTaxPage::bindField does. False when either is
     * null or the widget has no object name.
     */
    template<typename W, typename F>
    bool bindField(W *widget, F *field)
    {
        return m_bindings.bind(widget, field);
    }
    /** Asks for more room than the standard worksheet dialog gives. */
    void setExtraSize(int width, int height);
    /** The page's widget and field maps. */
    FieldBindings &bindings() { return m_bindings; }
    /** Copies every field into its widget; the caller holds the loading flag. */
    void loadWidgets();

    int m_extraWidth = 0;
    int m_extraHeight = 0;
    CWSBaseData *m_pWSData;
    CTaxData_Form *m_pData;
    bool m_loading = false;
    ActionOnEvent m_amountAction;
    FieldBindings m_bindings;

private:
    void storeAndReload(CField *field);
};

/**
 * A worksheet page opened from a tax page: before every reload it has the
 * owning page recalculate, so the form and its worksheets are current.
 */
class LIBCONTROL_EXPORT BaseWorksheetPage : public PpgWizardPage
{
    Q_OBJECT
public:
    /** `owner` is also the Qt parent; it may be null. */
    BaseWorksheetPage(CWSBaseData *ws, CTaxData_Form *form, BaseTaxPage *owner);
    ~BaseWorksheetPage() override;

    /** The owning tax page; null when none (or when it is gone). */
    BaseTaxPage *ownerPage() const;

    /** Recalculates through the owner (if any), then loads every widget. */
    void GetDataFromDoc() override;

protected:
    QPointer<BaseTaxPage> m_owner;
    ActionOnEvent m_amountAction2;
};

/** A data object that a wizard page can validate and calculate. */
class LIBCONTROL_EXPORT PpgBaseData
{
public:
    virtual ~PpgBaseData();
    /** True when the data is acceptable; the default says false. */
    virtual bool validate();
    /** Recalculates; true on success. The default does nothing and says false. */
    virtual bool calc();
};

#endif
