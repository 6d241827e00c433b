#include <LibControl/worksheets/ws58440_disabilityself_tab1.h>

#include "ui_ws58440_disabilityself_tab1.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/NonDepWorkSheetData.h>

using namespace LibControl::detail;

WS58440_DisabilitySelf_tab1::WS58440_DisabilitySelf_tab1(CWSDisabilityAmtData *ws, CTaxData_Form *form, QWidget *parent)
    : PpgWizardPage(ws, form, parent)
    , m_ui(new Ui::WS58440_DisabilitySelf_tab1)
{
    m_ui->setupUi(this);
    showHeadingOutsideWizard(this, m_ui->lblHeading);
    if (ws) {
        bindField(m_ui->fld_ws5844_claim, &ws->fld_ws5844_claim);
        bindField(m_ui->fld_ws5844_1, &ws->fld_ws5844_1);
        bindField(m_ui->fld_ws5844_2, &ws->fld_ws5844_2);
        bindField(m_ui->fld_ws5844_3, &ws->fld_ws5844_3);
        bindField(m_ui->fld_ws5844_4, &ws->fld_ws5844_4);
        bindField(m_ui->fld_ws5844_4_1, &ws->fld_ws5844_4);
        bindField(m_ui->fld_ws5844_5, &ws->fld_ws5844_5);
    }
    connectCheckBox(this, m_ui->fld_ws5844_claim);
    connectAmounts(this, { m_ui->fld_ws5844_2, m_ui->fld_ws5844_3 });
}

WS58440_DisabilitySelf_tab1::~WS58440_DisabilitySelf_tab1() = default;
