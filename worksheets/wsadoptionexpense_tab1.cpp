#include <LibControl/worksheets/wsadoptionexpense_tab1.h>

#include "ui_wsadoptionexpense_tab1.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/NonDepWorkSheetData.h>

using namespace LibControl::detail;

WSAdoptionExpense_tab1::WSAdoptionExpense_tab1(DataWSAdoptionExpense *ws, CTaxData_Form *form, BaseTaxPage *owner)
    : BaseWorksheetPage(ws, form, owner)
    , m_ui(new Ui::WSAdoptionExpense_tab1)
{
    m_ui->setupUi(this);
    showHeadingOutsideWizard(this, m_ui->lblHeading);
    if (ws) {
        bindField(m_ui->fld_Adopt_ExpAmt_1, &ws->fld_Adopt_ExpAmt_1);
        bindField(m_ui->fld_Adopt_ExpAmt_2, &ws->fld_Adopt_ExpAmt_2);
        bindField(m_ui->fld_Adopt_ExpAmt_3, &ws->fld_Adopt_ExpAmt_3);
        bindField(m_ui->fld_Adopt_ExpAmt_4, &ws->fld_Adopt_ExpAmt_4);
        bindField(m_ui->fld_Adopt_ExpAmt_5, &ws->fld_Adopt_ExpAmt_5);
        bindField(m_ui->fld_Adopt_ExpAmt_6, &ws->fld_Adopt_ExpAmt_6);
    }
    connectAmounts(this,
        { m_ui->fld_Adopt_ExpAmt_1, m_ui->fld_Adopt_ExpAmt_2, m_ui->fld_Adopt_ExpAmt_3, m_ui->fld_Adopt_ExpAmt_4,
            m_ui->fld_Adopt_ExpAmt_5, m_ui->fld_Adopt_ExpAmt_6 });
}

WSAdoptionExpense_tab1::~WSAdoptionExpense_tab1() = default;
