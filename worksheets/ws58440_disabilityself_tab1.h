#ifndef LIBCONTROL_WORKSHEETS_WS58440_DISABILITYSELF_TAB1_H
#define LIBCONTROL_WORKSHEETS_WS58440_DISABILITYSELF_TAB1_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class CWSDisabilityAmtData;

namespace Ui {
class WS58440_DisabilitySelf_tab1;
}

/**
 * The page of the disability amount for the taxpayer: the claim flag, the
 * care expenses and their threshold are edited, the supplement lines follow.
 *
 * Line 4 is shown twice, in the expense column and carried into the amount
 * column. A null worksheet leaves the page unbound.
 */
class LIBCONTROL_EXPORT WS58440_DisabilitySelf_tab1 : public PpgWizardPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; neither `ws` nor `form` is owned. */
    WS58440_DisabilitySelf_tab1(CWSDisabilityAmtData *ws, CTaxData_Form *form, QWidget *parent);
    ~WS58440_DisabilitySelf_tab1() override;

private:
    std::unique_ptr<Ui::WS58440_DisabilitySelf_tab1> const m_ui;
};

#endif
