#include <LibControl/worksheets/wscaregiveramt_dep.h>

#include "ui_wscaregiveramt_dep.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/DepWorkSheetData.h>

using namespace LibControl::detail;

WSCaregiverAmt_Dep::WSCaregiverAmt_Dep(CWSCaregiverAmtData *ws, CTaxData_Form *form, QWidget *parent)
    : PpgWizardPage(ws, form, parent)
    , m_ui(new Ui::WSCaregiverAmt_Dep)
{
    m_ui->setupUi(this);
    if (ws) {
        bindField(m_ui->DepIdx, &ws->DepIdx);
        bindField(m_ui->fld_BaseAmount, &ws->BaseAmount);
        bindField(m_ui->fld_DepNetInc, &ws->DepNetInc);
        bindField(m_ui->fld_3, &ws->fld_3);
        bindField(m_ui->fld_4, &ws->fld_4);
        bindField(m_ui->fld_bOverwrite, &ws->bOverwrite);
        bindField(m_ui->fld_AmountClaim, &ws->AmountClaim);
    }
    setUpDependantCombo(this, m_ui->DepIdx, ws ? ws->GetDepInfo() : nullptr);
    connectCheckBox(this, m_ui->fld_bOverwrite);
    connectAmounts(this, { m_ui->fld_AmountClaim });
}

WSCaregiverAmt_Dep::~WSCaregiverAmt_Dep() = default;
