#include <LibControl/widgets/dlgmsgwithlink.h>

#include "messagelabel_p.h"
#include "ui_dlgmsgwithlink.h"

DlgMsgWithLink::DlgMsgWithLink(const QString &title, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::DlgMsgWithLink)
{
    ui->setupUi(this);
    setWindowTitle(title);
    LibControl::detail::hideEmpty({ ui->lblMsg1, ui->lblMsg2, ui->lblLink });
}

DlgMsgWithLink::~DlgMsgWithLink() = default;

void DlgMsgWithLink::setMsg1(const QString &text)
{
    LibControl::detail::showText(ui->lblMsg1, text);
}

void DlgMsgWithLink::setMsg2(const QString &text)
{
    LibControl::detail::showText(ui->lblMsg2, text);
}

void DlgMsgWithLink::setLink(const QString &link)
{
    LibControl::detail::showLink(ui->lblLink, link, link);
}
