#ifndef LIBCONTROL_WIDGETS_DLGMSGWITHLINK_H
#define LIBCONTROL_WIDGETS_DLGMSGWITHLINK_H

#include <LibControl/libcontrol_export.h>

#include <QDialog>

#include <memory>

namespace Ui {
class DlgMsgWithLink;
}

/** A two-line message with a link under it, closed with OK. */
class LIBCONTROL_EXPORT DlgMsgWithLink : public QDialog
{
    Q_OBJECT
public:
    /** An empty dialog whose window title is `title`. */
    explicit DlgMsgWithLink(const QString &title, QWidget *parent = nullptr);
    ~DlgMsgWithLink() override;

    /** The first message line. */
    void setMsg1(const QString &text);
    /** The second message line. */
    void setMsg2(const QString &text);
    /** Shows `link` as a link to itself, opened in the system browser when clicked. */
    void setLink(const QString &link);

private:
    std::unique_ptr<Ui::DlgMsgWithLink> const ui;
};

#endif
