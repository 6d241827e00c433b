#ifndef LIBCONTROL_FORMS_FORMOUTPUTS_H
#define LIBCONTROL_FORMS_FORMOUTPUTS_H

// Helpers of the developer-side generators that describe a form from its
// field list (Java class, layout XML, test print data); the generators
// themselves are virtual operations of CTaxData_Form.

#include <LibControl/libcontrol_export.h>

#include <string>

/**
 * Sets `out` to `name` with its first "." replaced by "_": "fld_a.b.c"
 * gives "fld_a_b.c". Only the first dot is replaced, on purpose (existing
 * generated classes depend on it); a name without a dot is copied unchanged.
 */
LIBCONTROL_EXPORT void DotChangeToUnderscore(std::string const &name, std::string &out);

#endif
