#ifndef LIBCONTROL_WIDGETS_CT1COMBOBOX_H
#define LIBCONTROL_WIDGETS_CT1COMBOBOX_H

#include <LibControl/common/cstring.h>
#include <LibControl/widgets/styledcombobox.h>

#include <list>

struct STRUCT_GENERAL_RELATION_CODE_INFO;

/**
 * The combo box of the tax pages, with loaders for the code tables it
 * offers: relationships, infirmity statuses, provinces, states, countries,
 * currencies, forms and a few per-form lists.
 *
 * Every loader replaces the items and leaves index 0 selected; each item
 * carries its code in Qt::UserRole. The background turns amber while the
 * box has focus.
 */
class LIBCONTROL_EXPORT CT1ComboBox : public StyledComboBox
{
    Q_OBJECT
public:
    explicit CT1ComboBox(QWidget *parent = nullptr);
    ~CT1ComboBox() override;

    /** The item data of the selected item; 0 when nothing is selected. */
    int GetCurSelData() const;
    /** Selects the first item whose data is `data`, else index 0. */
    void SetCurSelData(int data);

    /** "Son" to "Other", data 0 to 14. */
    void LoadRelationships();
    /** "Normal" 0, "Infirm" 1, "Disabled" 2. */
    void LoadInfirmTypes();
    /** The `n` rows of `table` in order, the row's code as data; nothing from a null table. */
    void loadRelationCode(const STRUCT_GENERAL_RELATION_CODE_INFO *table, int n);
    /** The six currencies, the currency code as data. */
    void LoadCurrency();
    /** The eight T106 transfer-pricing methods, the method's code as data. */
    void LoadT106TPM();
    /** "Choose A Province" and the 13 provinces and territories, data 0 to 13. */
    void LoadProvs();
    /** As LoadProvs, then "Outside Canada" with data 14. */
    void LoadProvsPlus1();
    /** The four non-resident and deemed-resident kinds, data 14 to 17. */
    void LoadProvForNonResi();
    /** "Choose A Province", the provinces and kinds, then the US states as 18 ("Alaska") to 76 ("Wyoming"). */
    void LoadCAUSProvs();
    /** The 118 countries from "Select" to "Other Country", the country's id as data (999 for the last). */
    void LoadCountries();
    /**
     * "Choose a Form Type" with data 0, then the full title of each form of
     * `forms`, in list order, with the form's identifier as data. With a
     * non-empty `filter` only titles containing it, ignoring case, are kept.
     * Identifiers outside the forms table are skipped. The first argument is
     * not used.
     */
    void LoadTaxForms(unsigned char unused, std::list<unsigned int> &forms, const CString &filter);
    /** The five program kinds of the Saskatchewan graduate retention program, data 0 to 4. */
    void LoadSKGraduateRententionProgramType();
};

#endif
