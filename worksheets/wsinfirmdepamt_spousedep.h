#ifndef LIBCONTROL_WORKSHEETS_WSINFIRMDEPAMT_SPOUSEDEP_H
#define LIBCONTROL_WORKSHEETS_WSINFIRMDEPAMT_SPOUSEDEP_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class CWSInfirmDepAmtData;

namespace Ui {
class WSInfirmDepAmt_SpouseDep;
}

/**
 * The infirm-dependant amount claimed for the spouse or eligible dependant
 * (the worksheet's DepIdx 303, set by the owner): every line display only,
 * shown as the worksheet holds it, with no selector. A null worksheet leaves
 * the page unbound.
 */
class LIBCONTROL_EXPORT WSInfirmDepAmt_SpouseDep : public PpgWizardPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; neither `ws` nor `form` is owned. */
    WSInfirmDepAmt_SpouseDep(CWSInfirmDepAmtData *ws, CTaxData_Form *form, QWidget *parent);
    ~WSInfirmDepAmt_SpouseDep() override;

private:
    std::unique_ptr<Ui::WSInfirmDepAmt_SpouseDep> const m_ui;
};

#endif
