#include <LibControl/worksheets/wsageamount_tab1.h>

#include "ui_wsageamount_tab1.h"
#include "worksheetpage_p.h"

#include <LibControl/worksheets/NonDepWorkSheetData.h>

using namespace LibControl::detail;

WSAgeAmount_tab1::WSAgeAmount_tab1(CWSAgeAmtData *ws, CTaxData_Form *form, QWidget *parent)
    : PpgWizardPage(ws, form, parent)
    , m_ui(new Ui::WSAgeAmount_tab1)
{
    m_ui->setupUi(this);
    showHeadingOutsideWizard(this, m_ui->lblHeading);
    m_ui->fld_ws5808_5->setDecimals(4);
    if (!ws)
        return;
    bindField(m_ui->fld_ws5808_1, &ws->fld_ws5808_1);
    bindField(m_ui->fld_ws5808_2, &ws->fld_ws5808_2);
    bindField(m_ui->fld_ws5808_3, &ws->fld_ws5808_3);
    bindField(m_ui->fld_ws5808_4, &ws->fld_ws5808_4);
    bindField(m_ui->fld_ws5808_5, &ws->fld_ws5808_5);
    bindField(m_ui->fld_ws5808_6, &ws->fld_ws5808_6);
    bindField(m_ui->fld_ws5808_7, &ws->fld_ws5808_7);
}

WSAgeAmount_tab1::~WSAgeAmount_tab1() = default;
