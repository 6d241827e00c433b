#ifndef LIBCONTROL_WIDGETS_ADJUSTAPPEARANCE_H
#define LIBCONTROL_WIDGETS_ADJUSTAPPEARANCE_H

#include <LibControl/libcontrol_export.h>

class QWidget;

/**
 * Adjusts a finished dialog or page for the running platform, walking the
 * widgets under `root` breadth first (`root` itself is left alone).
 *
 * Only leaves, widgets without child objects of their own, are changed:
 * push buttons become 32 pixels high with a size policy whose horizontal
 * part is Fixed and whose vertical part is the button's former horizontal
 * policy (transposed on purpose, stretch 0); labels and list widgets get
 * 14-point text. A widget with any child object, a layout or a link label's
 * text control included, is only walked into. The about box's labels, named
 * "about" + subject + "Label" ("aboutTitleLabel", "aboutVersionLabel" ...),
 * are skipped with everything under them. Nothing happens for a null root.
 */
LIBCONTROL_EXPORT void genAdjustWidgetAppearanceToOS(QWidget *root);

#endif
