#ifndef LIBCONTROL_COMMON_TEXTTEMPLATE_H
#define LIBCONTROL_COMMON_TEXTTEMPLATE_H

#include <LibControl/libcontrol_export.h>

#include <QMap>
#include <QString>
#include <QStringList>

/**
 * Fills the placeholders of a text template: every "$$(" key ")" in
 * `text` is replaced by the value of that key in `values`. The key is the
 * exact text up to the next ")" (case and blanks count), so "$$( a)" looks
 * up " a". Values are inserted as they are, never expanded again.
 *
 * A key missing from `values` is replaced by "<key> not defined in xmt" and,
 * when `missing` is given, appended to it (once per occurrence). A "$$("
 * without a closing ")" is copied unchanged with the rest of the text.
 * Runs in time linear in the size of the text and the result.
 */
LIBCONTROL_EXPORT QString fillTextTemplate(QString const &text, QMap<QString, QString> const &values,
                                           QStringList *missing = nullptr);

#endif
