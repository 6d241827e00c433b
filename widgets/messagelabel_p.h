#ifndef LIBCONTROL_WIDGETS_MESSAGELABEL_P_H
#define LIBCONTROL_WIDGETS_MESSAGELABEL_P_H

#include <QString>

#include <initializer_list>

class QLabel;

// The message lines of the dialogs: a line without text is hidden so that
// it leaves no gap.
namespace LibControl {
namespace detail {

/**
 * Shows "<a href=\"href\">text</a>" in `label` as rich text, selectable by
 * mouse, its links reachable by mouse and keyboard and opened in the
 * system browser.
 */
void showLink(QLabel *label, const QString &href, const QString &text);

/** Shows `text` in `label` in its current text format; hidden when empty. */
void showText(QLabel *label, const QString &text);

/** Shows `text` in `label` as plain text, undoing a former showLink; hidden when empty. */
void showPlain(QLabel *label, const QString &text);

/** Hides those of `labels` that have no text. */
void hideEmpty(std::initializer_list<QLabel *> labels);

} // namespace detail
} // namespace LibControl

#endif
