#ifndef LIBCONTROL_WORKSHEETS_WORKSHEETPAGE_P_H
#define LIBCONTROL_WORKSHEETS_WORKSHEETPAGE_P_H

#include <initializer_list>

class DependantInfoStruct;
class DoubleLineEdit;
class PpgWizardPage;
class QCheckBox;
class QLabel;
class QWizardPage;
class StyledComboBox;

namespace LibControl::detail {

/** Sends each amount box's finished edits to the page's float slot. */
void connectAmounts(PpgWizardPage *page, std::initializer_list<DoubleLineEdit *> edits);
/** Sends the check box's changes to the page's flag slot. */
void connectCheckBox(PpgWizardPage *page, QCheckBox *box);
/**
 * Lists the dependants of `dependants` in `box` (left empty when null),
 * gives it the strong focus policy and only then sends its selection
 * changes to the page, so that filling it writes nothing back.
 */
void setUpDependantCombo(PpgWizardPage *page, StyledComboBox *box, const DependantInfoStruct *dependants);

/**
 * Keeps `heading` (the page's own title line) hidden while the page is shown
 * inside a wizard, which prints the page title itself; elsewhere it shows.
 */
void showHeadingOutsideWizard(QWizardPage *page, QLabel *heading);

} // namespace LibControl::detail

#endif
