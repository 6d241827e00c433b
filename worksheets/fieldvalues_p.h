#ifndef LIBCONTROL_WORKSHEETS_FIELDVALUES_P_H
#define LIBCONTROL_WORKSHEETS_FIELDVALUES_P_H

class CField;

// Value operations over single fields shared by forms and worksheets.
namespace LibControl {
namespace detail {

/**
 * Copies the value of `source` into `target` when both are of the same type
 * code (0 to 5, date-times included); returns false and changes nothing
 * otherwise.
 */
bool copyFieldValue(CField &target, CField &source);

/** True when the values of two fields of the same type code (0 to 5) differ; false for other pairs. */
bool fieldValuesDiffer(CField &a, CField &b);

/**
 * The yearly roll-over of one field by its attribute: texts with attribute 5
 * are emptied always; unless `keep`, integers with attribute 2 grow by one,
 * amounts not marked 1 become 0, dates with attribute 3 move a year on and
 * with attribute 4 become null. Flags and date-times are never changed.
 */
void rollFieldIntoNewYear(CField &field, bool keep);

} // namespace detail
} // namespace LibControl

#endif
