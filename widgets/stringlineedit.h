#ifndef LIBCONTROL_WIDGETS_STRINGLINEEDIT_H
#define LIBCONTROL_WIDGETS_STRINGLINEEDIT_H

#include <LibControl/libcontrol_export.h>

#include <QLineEdit>

/**
 * The line edit of every text value on a page.
 *
 * Besides the look (a white box with a black bottom rule, amber on hover),
 * it carries the "forward" state of a value that is computed elsewhere:
 * an attached worksheet (`setAttID`) makes it read-only and turns every
 * left click and key press other than Tab into an EventNeedWorksheet posted
 * to the parent; a forward form or worksheet type (`setForwardFormType`,
 * `setWorksheetType`) only turns the hover colour green and is read by the
 * page when the edit takes focus.
 */
class LIBCONTROL_EXPORT StringLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    /** The forward modes returned by getForwardMode(). */
    enum ForwardMode { NoForward = 0, ForwardFormType = 1, ForwardWorksheetType = 2 };

    /** Styled edit, text aligned by the flags 0x83 (left and right both set, on purpose). */
    explicit StringLineEdit(QWidget *parent = nullptr);
    ~StringLineEdit() override;

    /** Stores the field's maximum length; typing is not limited by it. */
    void setMaxLen(int maxLen);
    /** The value given to setMaxLen, 0 until then. */
    int getMaxLen() const { return m_maxLen; }

    /**
     * Attaches the worksheet `id`: the edit becomes read-only and says so in
     * its tool tip. An `id` below 1 is stored too, and disables the launch.
     */
    virtual void setAttID(int id);
    /** The attached worksheet's identifier, 0 when none. */
    int getAttID() const { return attID; }

    /** Forward mode 1 with the form type `type`; the hover colour turns green. */
    void setForwardFormType(int type);
    /** Forward mode 2 with the worksheet type `type`; the hover colour turns green. */
    void setWorksheetType(int type);
    /** NoForward, ForwardFormType or ForwardWorksheetType. */
    int getForwardMode() const { return m_forwardMode; }
    /** The type given with the forward mode, 0 when none. */
    int getForwardType() const { return m_forwardType; }

    /**
     * Posts an EventNeedWorksheet carrying the attached worksheet's identifier
     * to the parent object. Nothing when no worksheet is attached (below 1)
     * or the edit has no parent.
     */
    void postLaunchWS();

    /** Deliberately bypasses QLineEdit::event and goes to QWidget::event. */
    bool event(QEvent *e) override;

Q_SIGNALS:
    /** Emitted after the edit gained (`hasFocus` true) or lost focus. */
    void focussed(bool hasFocus, StringLineEdit *pEdt);

protected:
    void mousePressEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;
    void focusOutEvent(QFocusEvent *e) override;

    int m_maxLen = 0;
    int m_forwardMode = NoForward;
    int m_forwardType = 0;
    /** Identifier of the worksheet attached to the field; 0 when none. */
    int attID = 0;

private:
    void setForward(int mode, int type);
};

#endif
