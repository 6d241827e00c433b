#include <LibControl/worksheets/wsinfirmdepamt_dep.h>

#include "ui_wsinfirmdepamt_dep.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/DepWorkSheetData.h>

using namespace LibControl::detail;

WSInfirmDepAmt_Dep::WSInfirmDepAmt_Dep(CWSInfirmDepAmtData *ws, CTaxData_Form *form, BaseTaxPage *owner)
    : BaseWorksheetPage(ws, form, owner)
    , m_ui(new Ui::WSInfirmDepAmt_Dep)
{
    m_ui->setupUi(this);
    if (ws) {
        bindField(m_ui->DepIdx, &ws->DepIdx);
        bindField(m_ui->fld_BaseAmount, &ws->BaseAmount);
        bindField(m_ui->fld_DepNetInc, &ws->DepNetInc);
        bindField(m_ui->fld_3, &ws->fld_3);
        bindField(m_ui->fld_4, &ws->fld_4);
        bindField(m_ui->fld_AmountClaim, &ws->AmountClaim);
    }
    setUpDependantCombo(this, m_ui->DepIdx, ws ? ws->GetDepInfo() : nullptr);
}

WSInfirmDepAmt_Dep::~WSInfirmDepAmt_Dep() = default;

void WSInfirmDepAmt_Dep::setCanSelDep(bool canSelect)
{
    m_bCanSelDep = canSelect;
    m_ui->DepIdx->setEnabled(canSelect);
}
