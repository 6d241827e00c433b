#ifndef LIBCONTROL_WIDGETS_CYESNOCONTINUEDLG_H
#define LIBCONTROL_WIDGETS_CYESNOCONTINUEDLG_H

#include <LibControl/widgets/basedialog.h>

#include <memory>

namespace Ui {
class CYesNoContinueDlg;
}

/**
 * Asks to confirm an operation with OK or Cancel above up to four message
 * lines. Line 1 starts with a generic request to confirm.
 */
class LIBCONTROL_EXPORT CYesNoContinueDlg : public BaseDialog
{
    Q_OBJECT
public:
    /** The finished dialog, titled `title` unless it is empty. */
    explicit CYesNoContinueDlg(const QString &title, QWidget *parent = nullptr);
    ~CYesNoContinueDlg() override;

    /**
     * Shows `text` on line 1 to 4, as plain text or, with `asLink`, as a
     * link to itself opened in the system browser. False for any other line,
     * which changes nothing.
     */
    bool setMsg(int line, const QString &text, bool asLink = false);
    /** Shows `text` on line 1 to 4 as a link to `link`; other lines are ignored. */
    void setLinkMsg(int line, const QString &text, const QString &link);

    /**
     * Asks to confirm `msg`: line 1 is the title followed by a colon, line 2
     * the message. True when OK is pressed.
     */
    static bool warnYesNoMsg(QWidget *parent, const QString &title, const QString &msg);
    /** Asks to confirm the two messages, on lines 1 and 2. True when OK is pressed. */
    static bool warnYesNoMsg(QWidget *parent, const QString &title, const QString &msg1, const QString &msg2);
    /** Asks to confirm the three messages, on lines 1 to 3. True when OK is pressed. */
    static bool warnYesNoMsg(
        QWidget *parent, const QString &title, const QString &msg1, const QString &msg2, const QString &msg3);

private:
    std::unique_ptr<Ui::CYesNoContinueDlg> const ui;
};

#endif
