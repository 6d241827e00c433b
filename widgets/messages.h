#ifndef LIBCONTROL_WIDGETS_MESSAGES_H
#define LIBCONTROL_WIDGETS_MESSAGES_H

#include <LibControl/libcontrol_export.h>

#include <QMessageBox>

// Message boxes whose window title names the filing channel: 1 is NetFile,
// every other value EFile.

/** "Vorbex 2025 for NetFile" for channel 1, "Vorbex 2025 for EFile" for any other. */
LIBCONTROL_EXPORT void gMsgGetTitle(unsigned char channel, QString &title);

/** An information box with OK under the channel's title; returns the button pressed. */
LIBCONTROL_EXPORT QMessageBox::StandardButton gMsgInformation(
    unsigned char channel, const QString &text, QWidget *parent = nullptr);

/**
 * A question box with Yes and No and no default button, under the channel's
 * title; returns the button pressed (Escape gives No).
 */
LIBCONTROL_EXPORT QMessageBox::StandardButton gMsgQuestion(
    unsigned char channel, const QString &text, QWidget *parent = nullptr);

#endif
