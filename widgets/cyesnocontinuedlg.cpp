#include <LibControl/widgets/cyesnocontinuedlg.h>

#include "messagelabel_p.h"
#include "ui_cyesnocontinuedlg.h"

namespace {

QLabel *messageLabel(const Ui::CYesNoContinueDlg &ui, int line)
{
    QLabel *const labels[] = { ui.lblMsg1, ui.lblMsg2, ui.lblMsg3, ui.lblMsg4 };
    return line >= 1 && line <= 4 ? labels[line - 1] : nullptr;
}

bool confirm(QWidget *parent, const QString &title, const QStringList &lines)
{
    CYesNoContinueDlg dlg(title, parent);
    for (int i = 0; i < lines.size(); ++i)
        dlg.setMsg(i + 1, lines.at(i));
    return dlg.exec() == QDialog::Accepted;
}

} // namespace

CYesNoContinueDlg::CYesNoContinueDlg(const QString &title, QWidget *parent)
    : BaseDialog(title, parent)
    , ui(new Ui::CYesNoContinueDlg)
{
    ui->setupUi(this);
    LibControl::detail::hideEmpty({ ui->lblMsg1, ui->lblMsg2, ui->lblMsg3, ui->lblMsg4 });
    afterCreateUI();
}

CYesNoContinueDlg::~CYesNoContinueDlg() = default;

bool CYesNoContinueDlg::setMsg(int line, const QString &text, bool asLink)
{
    QLabel *target = messageLabel(*ui, line);
    if (!target)
        return false;
    if (asLink)
        LibControl::detail::showLink(target, text, text);
    else
        LibControl::detail::showPlain(target, text);
    return true;
}

void CYesNoContinueDlg::setLinkMsg(int line, const QString &text, const QString &link)
{
    if (QLabel *target = messageLabel(*ui, line))
        LibControl::detail::showLink(target, link, text);
}

bool CYesNoContinueDlg::warnYesNoMsg(QWidget *parent, const QString &title, const QString &msg)
{
    return confirm(parent, title, { QStringLiteral("%1:").arg(title), msg });
}

bool CYesNoContinueDlg::warnYesNoMsg(QWidget *parent, const QString &title, const QString &msg1, const QString &msg2)
{
    return confirm(parent, title, { msg1, msg2 });
}

bool CYesNoContinueDlg::warnYesNoMsg(
    QWidget *parent, const QString &title, const QString &msg1, const QString &msg2, const QString &msg3)
{
    return confirm(parent, title, { msg1, msg2, msg3 });
}
