#ifndef LIBCONTROL_WORKSHEETS_WSCAREGIVERAMT_DEP_H
#define LIBCONTROL_WORKSHEETS_WSCAREGIVERAMT_DEP_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class CWSCaregiverAmtData;

namespace Ui {
class WSCaregiverAmt_Dep;
}

/**
 * The caregiver amount for one dependant: the dependant is chosen in the
 * DepIdx selector; with fld_bOverwrite set the claim may be typed (the
 * worksheet keeps it when it is not above the computed amount).
 *
 * The selector lists the dependants of the worksheet's list (GetDepInfo())
 * as it stands when the page is built; without a list it stays empty. A null
 * worksheet leaves the page unbound.
 */
class LIBCONTROL_EXPORT WSCaregiverAmt_Dep : public PpgWizardPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; neither `ws` nor `form` is owned. */
    WSCaregiverAmt_Dep(CWSCaregiverAmtData *ws, CTaxData_Form *form, QWidget *parent);
    ~WSCaregiverAmt_Dep() override;

private:
    std::unique_ptr<Ui::WSCaregiverAmt_Dep> const m_ui;
};

#endif
