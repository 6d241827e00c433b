#include <LibControl/widgets/messages.h>

#include <QCoreApplication>

void gMsgGetTitle(unsigned char channel, QString &title)
{
    title = channel == 1 ? QCoreApplication::translate("gMsg", "Vorbex 2025 for NetFile")
                         : QCoreApplication::translate("gMsg", "Vorbex 2025 for EFile");
}

QMessageBox::StandardButton gMsgInformation(unsigned char channel, const QString &text, QWidget *parent)
{
    QString title;
    gMsgGetTitle(channel, title);
    return QMessageBox::information(parent, title, text, QMessageBox::Ok);
}

QMessageBox::StandardButton gMsgQuestion(unsigned char channel, const QString &text, QWidget *parent)
{
    QString title;
    gMsgGetTitle(channel, title);
    return QMessageBox::question(parent, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
}
