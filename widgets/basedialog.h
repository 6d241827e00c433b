#ifndef LIBCONTROL_WIDGETS_BASEDIALOG_H
#define LIBCONTROL_WIDGETS_BASEDIALOG_H

#include <LibControl/libcontrol_export.h>

#include <QDialog>

/**
 * Base of the library's dialogs: a subclass builds its widgets and then
 * calls afterCreateUI(), which gives every dialog the same title handling
 * and platform adjustment.
 */
class LIBCONTROL_EXPORT BaseDialog : public QDialog
{
    Q_OBJECT
public:
    /** Keeps `title` for afterCreateUI(); the window title is not set yet. */
    explicit BaseDialog(const QString &title, QWidget *parent = nullptr);
    ~BaseDialog() override;

    /** The title given at construction. */
    QString getTitle() const { return m_title; }

    /**
     * Makes a non-empty title the window title, then, in every case, runs
     * genAdjustWidgetAppearanceToOS over the dialog.
     */
    virtual void afterCreateUI();

protected:
    QString m_title;
};

#endif
