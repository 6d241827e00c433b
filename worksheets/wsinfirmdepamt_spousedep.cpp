#include <LibControl/worksheets/wsinfirmdepamt_spousedep.h>

#include "ui_wsinfirmdepamt_spousedep.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/DepWorkSheetData.h>

using namespace LibControl::detail;

WSInfirmDepAmt_SpouseDep::WSInfirmDepAmt_SpouseDep(CWSInfirmDepAmtData *ws, CTaxData_Form *form, QWidget *parent)
    : PpgWizardPage(ws, form, parent)
    , m_ui(new Ui::WSInfirmDepAmt_SpouseDep)
{
    m_ui->setupUi(this);
    showHeadingOutsideWizard(this, m_ui->lblHeading);
    if (!ws)
        return;
    bindField(m_ui->fld_BaseAmount, &ws->BaseAmount);
    bindField(m_ui->fld_DepNetInc, &ws->DepNetInc);
    bindField(m_ui->fld_3, &ws->fld_3);
    bindField(m_ui->fld_4, &ws->fld_4);
    bindField(m_ui->fld_AmountClaim, &ws->AmountClaim);
}

WSInfirmDepAmt_SpouseDep::~WSInfirmDepAmt_SpouseDep() = default;
