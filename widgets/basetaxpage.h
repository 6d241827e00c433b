#ifndef LIBCONTROL_WIDGETS_BASETAXPAGE_H
#define LIBCONTROL_WIDGETS_BASETAXPAGE_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/actiononevent.h>
#include <LibControl/widgets/fieldbindings.h>

#include <QWidget>

#include <list>
#include <map>
#include <string>

class CField;
class CTaxData_Form;
class PpgWizardPage;
class StringLineEdit;

/** Where a forwarded line's value comes from. */
struct LIBCONTROL_EXPORT STRUCT_FORWARD_FORM_INFO_TYPE
{
    int formId = 0; ///< the supplying form, an ENUMTYPE_FORM value
    int lineNo = 0; ///< the line of that form that holds the value, 0 when not told
};

/**
 * The base widget of every page of a tax form.
 *
 * A concrete page builds its widgets, binds each one to a field of its form
 * in AssociateFormData() (bindField(), addForwardForm()) and connects the
 * widgets' change signals to the slots below. syncData() then loads the
 * fields into the widgets; every finished edit is written back at once and
 * CalcFormData() asks for a recalculation. Neither widgets nor fields are
 * owned by the page's maps, and a null form makes the page inert.
 */
class LIBCONTROL_EXPORT BaseTaxPage : public QWidget
{
    Q_OBJECT
public:
    /** A page known by its number; the title stays empty. */
    BaseTaxPage(int pageNo, CTaxData_Form *pData, QWidget *parent);
    /** A page known by its title (read as UTF-8; null gives an empty title). */
    BaseTaxPage(const char *title, CTaxData_Form *pData, QWidget *parent);
    ~BaseTaxPage() override;

    /** The title trimmed when not empty, else "Page <number>". */
    QString getTitle() const;
    /** The form the page shows; null when none. */
    CTaxData_Form *formData() const { return m_pData; }
    /** The page number given at construction (0 for a titled page). */
    int pageNo() const { return m_pageNo; }
    /** True while field values are being copied into the widgets. */
    bool isLoading() const { return m_loading; }

    /**
     * Binds the widgets on first use (AssociateFormData(), then the caret
     * filters, bold captions and multi-line texts) and loads every widget
     * from its field; later calls only reload.
     */
    void syncData();

    virtual void GetDataFromDoc();
    virtual void PutDataToDoc();
    /** Corrects values the user left inconsistent; the default does nothing. */
    virtual void AutoDataCorrection();
    /** The tool tip of a line whose value comes from elsewhere (`id` is its attachment identifier). */
    virtual QString getTooltip(int id);
    /** Checks an entered value; the default accepts everything. */
    virtual bool CheckData(CField *pField, StringLineEdit *pEdt, std::string value);
    /** Asks for a recalculation: the default emits signalCalc(form, field) and returns true. */
    virtual bool CalcFormData(CField *pField);
    /** Fills the maps; concrete pages override it, the default binds nothing. */
    virtual void AssociateFormData();
    /**
     * Opens the worksheet of line `id`: the single page of getWorksheetEditDlg()
     * in a wizard, else its list of pages in a multi-dependant dialog, and
     * recalculates after either. Nothing opens when neither gives a page.
     */
    virtual void ShowWorksheetEditDlg(int id, long ctx);
    /** The default worksheet title of a line; false (title untouched) for a line without one. */
    virtual bool getWSDefaultTitle(int line, QString &title);
    /** The worksheet page of line `id`, made for this page; the default has none. */
    virtual PpgWizardPage *getWorksheetEditDlg(int id, long ctx, QString &title);
    /** The worksheet pages of line `id` (one per dependant) appended to `pages`; returns how many. */
    virtual int getWorksheetEditDlg(int id, long ctx, QString &title, std::list<PpgWizardPage *> &pages);

    /**
     * EventNeedWorksheet: forwards to the supplying form (an EventForwardEdit
     * posted to the parent) or opens the worksheet; Return and Enter move to
     * the next field. Everything else goes to QWidget.
     */
    bool event(QEvent *e) override;

Q_SIGNALS:
    /** The page changed `pField` of `pData` (null: many fields) and wants a recalculation. */
    void signalCalc(CTaxData_Form *pData, CField *pField);
    /** For the applications: open form `formType` of `category`. Not emitted by the library. */
    void signalFwrdForm(int category, int formType);

public Q_SLOTS:
    void onStringEditFinished();
    void onMultiLineEditFinished();
    void onFloatEditFinished();
    void onBoolChanged(int state);
    void onRadioIdClicked(int id);
    void onDateChanged(const QDate &date);
    void onDateTimeChanged(const QDateTime &dateTime);
    void onCmbCurIndexChanged(int index);
    /**
     * Explains a forwarded line once when it takes focus: "to type" for a
     * forward form, "to field" for a worksheet, each shown from the
     * character at the edit's forward type on. The focus coming back from
     * the message box shows nothing.
     */
    virtual void onFocussed(bool hasFocus, StringLineEdit *pEdt);

protected:
    /**
     * Binds `widget` (by its object name) to `field` in the maps of the
     * widget's kind: DoubleLineEdit, QCheckBox, QButtonGroup, StyledComboBox,
     * StyledDateEdit, StyledDateTimeEdit, StringLineEdit or QPlainTextEdit.
     * False when either is null or the widget has no object name.
     */
    template<typename W, typename F>
    bool bindField(W *widget, F *field)
    {
        return m_bindings.bind(widget, field);
    }
    /** Marks line `attID` as supplied by the form of `info`. */
    void addForwardForm(int attID, const STRUCT_FORWARD_FORM_INFO_TYPE &info);
    /** The page's widget and field maps. */
    FieldBindings &bindings() { return m_bindings; }

    QWidget *m_parent;
    QString m_title;
    CTaxData_Form *m_pData;
    int m_pageNo;
    std::map<int, STRUCT_FORWARD_FORM_INFO_TYPE> m_forwardMap;
    ActionOnEvent m_lineEditAction;
    ActionOnEvent m_dateEditAction;
    ActionOnEvent m_amountAction;
    StringLineEdit *m_lastFocusMsgEdit = nullptr;
    bool m_loading = false;
    FieldBindings m_bindings;
    bool m_associated = false;

private:
    void storeAndCalc(CField *field);
    void installFilters();
};

#endif
