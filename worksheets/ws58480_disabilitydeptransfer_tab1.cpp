#include <LibControl/worksheets/ws58480_disabilitydeptransfer_tab1.h>

#include "ui_ws58480_disabilitydeptransfer_tab1.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/DepWorkSheetData.h>

using namespace LibControl::detail;

WS58480_DisabilityDepTransfer_tab1::WS58480_DisabilityDepTransfer_tab1(
    CWSDisabilityTransferAmtData *ws, CTaxData_Form *form, QWidget *parent)
    : PpgWizardPage(ws, form, parent)
    , m_ui(new Ui::WS58480_DisabilityDepTransfer_tab1)
{
    m_ui->setupUi(this);
    setExtraSize(40, 60);
    if (ws) {
        bindField(m_ui->DepIdx, &ws->DepIdx);
        bindField(m_ui->fld_BaseAmount, &ws->fld_BaseAmount);
        bindField(m_ui->fld_Line2Max, &ws->fld_Line2Max);
        bindField(m_ui->fld_Line3ChldCareExp, &ws->fld_Line3ChldCareExp);
        bindField(m_ui->fld_Line4ExpBase, &ws->fld_Line4ExpBase);
        bindField(m_ui->fld_Line5CareExpAfter, &ws->fld_Line5CareExpAfter);
        bindField(m_ui->fld_Line5CareExpAfter_1, &ws->fld_Line5CareExpAfter);
        bindField(m_ui->fld_Line6AmtUnder18, &ws->fld_Line6AmtUnder18);
        bindField(m_ui->fld_2, &ws->fld_2);
        bindField(m_ui->fld_Line8, &ws->fld_Line8);
        bindField(m_ui->fld_4, &ws->fld_4);
        bindField(m_ui->fld_5, &ws->fld_5);
        bindField(m_ui->DepTaxInc, &ws->DepTaxInc);
        bindField(m_ui->fld_7, &ws->fld_7);
        bindField(m_ui->fld_overwrite, &ws->fld_overwrite);
        bindField(m_ui->fld_claim, &ws->fld_claim);
    }
    setUpDependantCombo(this, m_ui->DepIdx, ws ? ws->GetDepInfo() : nullptr);
    connectAmounts(this,
        { m_ui->fld_BaseAmount, m_ui->fld_Line2Max, m_ui->fld_Line3ChldCareExp, m_ui->fld_Line4ExpBase,
            m_ui->fld_Line6AmtUnder18, m_ui->fld_2, m_ui->fld_Line8, m_ui->fld_4, m_ui->fld_5, m_ui->DepTaxInc,
            m_ui->fld_7, m_ui->fld_claim });
    connectCheckBox(this, m_ui->fld_overwrite);
}

WS58480_DisabilityDepTransfer_tab1::~WS58480_DisabilityDepTransfer_tab1() = default;
