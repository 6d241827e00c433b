#ifndef LIBCONTROL_WORKSHEETS_WSADOPTIONEXPENSE_TAB1_H
#define LIBCONTROL_WORKSHEETS_WSADOPTIONEXPENSE_TAB1_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class DataWSAdoptionExpense;

namespace Ui {
class WSAdoptionExpense_tab1;
}

/**
 * The page of the adoption expenses: one typed amount for each of up to six
 * children. The owning form applies the limit when it recalculates. A null
 * worksheet leaves the page unbound.
 */
class LIBCONTROL_EXPORT WSAdoptionExpense_tab1 : public BaseWorksheetPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; `owner` recalculates before every reload and may be null. */
    WSAdoptionExpense_tab1(DataWSAdoptionExpense *ws, CTaxData_Form *form, BaseTaxPage *owner);
    ~WSAdoptionExpense_tab1() override;

private:
    std::unique_ptr<Ui::WSAdoptionExpense_tab1> const m_ui;
};

#endif
