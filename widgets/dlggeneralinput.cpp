#include <LibControl/widgets/dlggeneralinput.h>

#include "messagelabel_p.h"
#include "ui_dlggeneralinput.h"

dlgGeneralInput::dlgGeneralInput(const QString &title, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::dlgGeneralInput)
{
    ui->setupUi(this);
    setWindowTitle(title);
    LibControl::detail::hideEmpty({ ui->lblMsg1, ui->lblMsg2, ui->lblMsg3, ui->lblMsg4, ui->lblLink });
}

dlgGeneralInput::~dlgGeneralInput() = default;

void dlgGeneralInput::setMsg(int line, const QString &text)
{
    QLabel *const labels[] = { ui->lblMsg1, ui->lblMsg2, ui->lblMsg3, ui->lblMsg4 };
    if (line >= 0 && line < 4)
        LibControl::detail::showText(labels[line], text);
}

void dlgGeneralInput::setMsgLink(const QString &link)
{
    LibControl::detail::showLink(ui->lblLink, link, link);
}

void dlgGeneralInput::getInput(QString &out) const
{
    out = m_input;
}

bool dlgGeneralInput::runAndGetInput(QString &out)
{
    if (exec() != QDialog::Accepted)
        return false;
    out = m_input;
    return true;
}

void dlgGeneralInput::on_buttonBox_accepted()
{
    m_input = ui->lineEdit->text();
}
