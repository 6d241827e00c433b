#ifndef LIBCONTROL_WORKSHEETS_WS58600_TAB1_H
#define LIBCONTROL_WORKSHEETS_WS58600_TAB1_H

#include <LibControl/libcontrol_export.h>
#include <LibControl/widgets/ppgwizardpage.h>

#include <memory>

class DataWS58600;

namespace Ui {
class WS58600_tab1;
}

/**
 * The page of the tuition amount transferred (line 58600): the total is
 * typed, the prorated claim is shown. The claim is worked out by the owning
 * form, which the page has recalculate before every reload; without an owner
 * it shows what the worksheet holds. A null worksheet leaves the page unbound.
 */
class LIBCONTROL_EXPORT WS58600_tab1 : public BaseWorksheetPage
{
    Q_OBJECT
public:
    /** Builds the layout and binds it to `ws`; `owner` recalculates before every reload and may be null. */
    WS58600_tab1(DataWS58600 *ws, CTaxData_Form *form, BaseTaxPage *owner);
    ~WS58600_tab1() override;

private:
    std::unique_ptr<Ui::WS58600_tab1> const m_ui;
};

#endif
