#ifndef LIBCONTROL_WIDGETS_CONEQONECHKBOXDIALOG_H
#define LIBCONTROL_WIDGETS_CONEQONECHKBOXDIALOG_H

#include <LibControl/libcontrol_export.h>

#include <QDialog>
#include <QMessageBox>

class QCheckBox;

/**
 * One question with one check box under it ("Do not ask again" and the
 * like), an icon beside it, OK (the default) and Cancel.
 */
class LIBCONTROL_EXPORT COneQOneChkboxDialog : public QDialog
{
    Q_OBJECT
public:
    /** `icon` is drawn with the standard message box pixmap of that kind. */
    COneQOneChkboxDialog(const QString &title, const QString &question, const QString &checkText,
        QMessageBox::Icon icon = QMessageBox::Question, QWidget *parent = nullptr);
    ~COneQOneChkboxDialog() override;

    /** Whether the check box is checked. */
    bool isCheckboxChecked() const;

    /**
     * Runs the dialog modally and returns its result code (QDialog::Accepted
     * or QDialog::Rejected). The check state is stored through `checked`
     * unless it is null, whichever button closed the dialog.
     */
    static int showDialog(const QString &title, const QString &question, const QString &checkText, bool *checked,
        QMessageBox::Icon icon = QMessageBox::Question, QWidget *parent = nullptr);

private:
    void buildUi(const QString &title);

    QMessageBox::Icon m_icon;
    QString m_question;
    QString m_checkText;
    QCheckBox *m_checkBox = nullptr;
};

#endif
