#ifndef LIBCONTROL_WIDGETS_DLGGENERALINPUT_H
#define LIBCONTROL_WIDGETS_DLGGENERALINPUT_H

#include <LibControl/libcontrol_export.h>

#include <QDialog>

#include <memory>

namespace Ui {
class dlgGeneralInput;
}

/**
 * Asks for one line of text under up to four message lines and an
 * optional link, with OK and Cancel.
 */
class LIBCONTROL_EXPORT dlgGeneralInput : public QDialog
{
    Q_OBJECT
public:
    /** An empty dialog whose window title is `title`. */
    explicit dlgGeneralInput(const QString &title, QWidget *parent = nullptr);
    ~dlgGeneralInput() override;

    /** Shows `text` on message line 0, 1, 2 or 3; other lines are ignored. */
    void setMsg(int line, const QString &text);
    /** Shows `link` as a link to itself, opened in the system browser when clicked. */
    void setMsgLink(const QString &link);
    /** The text accepted with OK; empty until then. */
    void getInput(QString &out) const;
    /**
     * Runs the dialog modally. When it is accepted, `out` receives the text
     * and the result is true; otherwise the result is false and `out` is
     * left as it was.
     */
    bool runAndGetInput(QString &out);

public Q_SLOTS:
    /** Takes the typed text as the accepted input. */
    void on_buttonBox_accepted();

private:
    std::unique_ptr<Ui::dlgGeneralInput> const ui;
    QString m_input;
};

#endif
