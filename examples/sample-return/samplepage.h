#ifndef SAMPLE_RETURN_SAMPLEPAGE_H
#define SAMPLE_RETURN_SAMPLEPAGE_H

#include <LibControl/widgets/basetaxpage.h>

#include <cstddef>

class CFloatField;
class CStringField;
class QGridLayout;
class SampleT1Form;

/**
 * A page of the sample return: two columns of sections, each a run of
 * caption, line number and widget, built from row tables and bound to the
 * sample form by object name. Every finished edit recalculates the form
 * before the page asks its window for a refresh.
 */
class SampleFormPage : public BaseTaxPage
{
    Q_OBJECT
public:
    /** How an amount line behaves. */
    enum class LineKind {
        Input, ///< typed by the user
        Computed, ///< calculated by the form, read-only
        Worksheet, ///< comes from the worksheet named by the row's target
        Forward, ///< comes from the form named by the row's target
    };

    /** One amount line: its edit's object name, line number, caption and field. */
    struct AmountRow
    {
        char const *name;
        char const *line;
        char const *caption;
        CFloatField SampleT1Form::*field;
        LineKind kind;
        int target; ///< worksheet identifier or form identifier; 0 for the other kinds
    };

    /** One text line. */
    struct TextRow
    {
        char const *name;
        char const *caption;
        CStringField SampleT1Form::*field;
        int maxLength;
    };

    SampleFormPage(char const *title, SampleT1Form *form, QWidget *parent);
    ~SampleFormPage() override;

    /** The form this page shows. */
    SampleT1Form *sampleForm() const;
    /** Loads every widget, then shows each text from its start. */
    void GetDataFromDoc() override;
    /** Runs the form's calculation, then signals the change. */
    bool CalcFormData(CField *pField) override;

protected:
    /** Width of text, date and list boxes. */
    static constexpr int TextWidth = 240;

    /** A bold section heading at the foot of `column` (0 or 1). */
    void addHeading(int column, QString const &text);
    /** A caption and line number with `widget` beside them; the widget takes `name` as object name. */
    void addRow(int column, char const *name, QString const &caption, QString const &line, QWidget *widget);
    void addAmountRows(int column, AmountRow const *rows, std::size_t count);
    void addTextRows(int column, TextRow const *rows, std::size_t count);
    void bindAmountRows(AmountRow const *rows, std::size_t count);
    void bindTextRows(TextRow const *rows, std::size_t count);
    /** Pushes the remaining space below the last rows of both columns. */
    void finishLayout();

private:
    QGridLayout *m_grid;
    int m_nextRow[2] = { 0, 0 };
};

/** The sample's T1 page: identification, income, credits and tax. */
class SampleT1Page : public SampleFormPage
{
    Q_OBJECT
public:
    SampleT1Page(SampleT1Form *form, QWidget *parent);
    ~SampleT1Page() override;

    void AssociateFormData() override;
    /**
     * The worksheet page of a credit line: age amount (30100), caregiver
     * (58400) and disability (58440); none for the others.
     */
    PpgWizardPage *getWorksheetEditDlg(int id, long ctx, QString &title) override;
    using BaseTaxPage::getWorksheetEditDlg;

private:
    void addIdentification();
};

/**
 * The investment-income worksheet: dividends and interest, which the T1
 * page shows as lines carried from here.
 */
class SampleSchedulePage : public SampleFormPage
{
    Q_OBJECT
public:
    SampleSchedulePage(SampleT1Form *form, QWidget *parent);
    ~SampleSchedulePage() override;

    void AssociateFormData() override;
};

#endif
