#ifndef LIBCONTROL_WORKSHEETS_WSINFIRMDEPAMT_DEP_H
#define LIBCONTROL_WORKSHEETS_WSINFIRMDEPAMT_DEP_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class CWSInfirmDepAmtData;

namespace Ui {
class WSInfirmDepAmt_Dep;
}

/**
 * The amount for an infirm dependant aged 18 or older: the dependant is
 * chosen in the DepIdx selector, every line is display only and follows the
 * owning form's recalculation.
 *
 * The selector lists the dependants of the worksheet's list (GetDepInfo())
 * as it stands when the page is built; without a list it stays empty. It is
 * enabled until setCanSelDep(false). A null worksheet leaves the page unbound.
 */
class LIBCONTROL_EXPORT WSInfirmDepAmt_Dep : public BaseWorksheetPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; `owner` recalculates before every reload and may be null. */
    WSInfirmDepAmt_Dep(CWSInfirmDepAmtData *ws, CTaxData_Form *form, BaseTaxPage *owner);
    ~WSInfirmDepAmt_Dep() override;

    /** Whether the dependant may be chosen; enables or disables the selector. */
    void setCanSelDep(bool canSelect);
    /** True unless setCanSelDep(false) was the last call. */
    bool canSelDep() const { return m_bCanSelDep; }

private:
    std::unique_ptr<Ui::WSInfirmDepAmt_Dep> const m_ui;
    bool m_bCanSelDep = true;
};

#endif
