#ifndef LIBCONTROL_WORKSHEETS_WSAGEAMOUNT_TAB1_H
#define LIBCONTROL_WORKSHEETS_WSAGEAMOUNT_TAB1_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class CWSAgeAmtData;

namespace Ui {
class WSAgeAmount_tab1;
}

/**
 * The page of the age amount: the worksheet's seven lines, display only. It
 * shows the lines as the worksheet holds them and never recalculates (the
 * figures come from the owner's parameters). The rate on line 5 shows four
 * decimals. A null worksheet leaves the page unbound.
 */
class LIBCONTROL_EXPORT WSAgeAmount_tab1 : public PpgWizardPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; neither `ws` nor `form` is owned. */
    WSAgeAmount_tab1(CWSAgeAmtData *ws, CTaxData_Form *form, QWidget *parent);
    ~WSAgeAmount_tab1() override;

private:
    std::unique_ptr<Ui::WSAgeAmount_tab1> const m_ui;
};

#endif
