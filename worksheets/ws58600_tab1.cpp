#include <LibControl/worksheets/ws58600_tab1.h>

#include "ui_ws58600_tab1.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/NonDepWorkSheetData.h>

using namespace LibControl::detail;

WS58600_tab1::WS58600_tab1(DataWS58600 *ws, CTaxData_Form *form, BaseTaxPage *owner)
    : BaseWorksheetPage(ws, form, owner)
    , m_ui(new Ui::WS58600_tab1)
{
    m_ui->setupUi(this);
    showHeadingOutsideWizard(this, m_ui->lblHeading);
    if (ws) {
        bindField(m_ui->fld_5860, &ws->fld_5860);
        bindField(m_ui->fld_claim, &ws->fld_claim);
    }
    connectAmounts(this, { m_ui->fld_5860 });
}

WS58600_tab1::~WS58600_tab1() = default;
