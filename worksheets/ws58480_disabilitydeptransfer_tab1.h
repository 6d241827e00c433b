#ifndef LIBCONTROL_WORKSHEETS_WS58480_DISABILITYDEPTRANSFER_TAB1_H
#define LIBCONTROL_WORKSHEETS_WS58480_DISABILITYDEPTRANSFER_TAB1_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class CWSDisabilityTransferAmtData;

namespace Ui {
class WS58480_DisabilityDepTransfer_tab1;
}

/**
 * The page of the disability amount transferred from a dependant: the
 * dependant is chosen in the DepIdx selector and every line but line 5 can be
 * typed over; the claim follows the worksheet unless fld_overwrite is set.
 *
 * The selector lists the dependants of the worksheet's list (GetDepInfo())
 * as it stands when the page is built; without a list it stays empty. A null
 * worksheet leaves the page unbound.
 */
class LIBCONTROL_EXPORT WS58480_DisabilityDepTransfer_tab1 : public PpgWizardPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; neither `ws` nor `form` is owned. */
    WS58480_DisabilityDepTransfer_tab1(CWSDisabilityTransferAmtData *ws, CTaxData_Form *form, QWidget *parent);
    ~WS58480_DisabilityDepTransfer_tab1() override;

private:
    std::unique_ptr<Ui::WS58480_DisabilityDepTransfer_tab1> const m_ui;
};

#endif
