// The dialogs of the gallery. Each is shown and grabbed, never run: a
// modal run would wait for a user the offscreen platform does not have.

#include "gallery.h"

#include <LibControl/widgets/coneqonechkboxdialog.h>
#include <LibControl/widgets/cyesnocontinuedlg.h>
#include <LibControl/widgets/dlggeneralinput.h>
#include <LibControl/widgets/dlgmsgwithlink.h>
#include <LibControl/widgets/messages.h>

namespace Tool {

namespace {

QString const HelpLink = QStringLiteral("https://www.canada.ca/en/revenue-agency.html");

void shootInput(Gallery &gallery)
{
    dlgGeneralInput dialog(QStringLiteral("NetFile access code"));
    dialog.setMsg(0, QStringLiteral("Enter the eight-character access code"));
    dialog.setMsg(1, QStringLiteral("printed on your notice of assessment."));
    dialog.setMsg(2, QStringLiteral("The code is needed to file this return online."));
    dialog.setMsg(3, QStringLiteral("Where to find it:"));
    dialog.setMsgLink(HelpLink);
    gallery.shoot(&dialog, QStringLiteral("dialog-generalinput"),
        QStringLiteral("dlgGeneralInput: four message lines, a link and one line of input"));
}

void shootMessageWithLink(Gallery &gallery)
{
    DlgMsgWithLink dialog(QStringLiteral("Update available"));
    dialog.setMsg1(QStringLiteral("A newer release of the 2025 tax year forms is available."));
    dialog.setMsg2(QStringLiteral("Download it from:"));
    dialog.setLink(HelpLink);
    gallery.shoot(
        &dialog, QStringLiteral("dialog-msgwithlink"), QStringLiteral("DlgMsgWithLink: two message lines and a link"));
}

void shootYesNoContinue(Gallery &gallery)
{
    CYesNoContinueDlg dialog(QStringLiteral("Delete"));
    dialog.setMsg(1, QStringLiteral("Delete:"));
    dialog.setMsg(2, QStringLiteral("The T4 slip from Acme Widgets Ltd. will be removed from this return."));
    dialog.setLinkMsg(3, QStringLiteral("What happens to the amounts it carried?"), HelpLink);
    gallery.shoot(&dialog, QStringLiteral("dialog-yesnocontinue"),
        QStringLiteral("CYesNoContinueDlg, as warnYesNoMsg builds it, with a link line"));
}

void shootQuestionWithCheckBox(Gallery &gallery)
{
    COneQOneChkboxDialog dialog(QStringLiteral("Carry forward"),
        QStringLiteral("Carry the unused tuition amount forward to next year?"),
        QStringLiteral("Do not ask again for this return"), QMessageBox::Question);
    gallery.shoot(&dialog, QStringLiteral("dialog-oneqonechkbox"),
        QStringLiteral("COneQOneChkboxDialog: a question, a check box, OK and Cancel"));
}

// The boxes gMsgInformation and gMsgQuestion run, built the same way.
void shootMessageBoxes(Gallery &gallery)
{
    for (unsigned char const channel : { 1, 2 }) {
        QString title;
        gMsgGetTitle(channel, title);
        QMessageBox information(QMessageBox::Information, title,
            QStringLiteral("Your return was transmitted. Confirmation number: 4KX9-2QW7."), QMessageBox::Ok);
        gallery.shoot(&information, QStringLiteral("message-information-%1").arg(channel),
            QStringLiteral("gMsgInformation, channel %1: %2").arg(channel).arg(title));
    }
    QString title;
    gMsgGetTitle(1, title);
    QMessageBox question(
        QMessageBox::Question, title, QStringLiteral("Transmit this return now?"), QMessageBox::Yes | QMessageBox::No);
    question.setDefaultButton(QMessageBox::NoButton);
    gallery.shoot(
        &question, QStringLiteral("message-question"), QStringLiteral("gMsgQuestion: Yes and No, no default button"));
}

} // namespace

void shootDialogs(Gallery &gallery)
{
    gallery.section(QStringLiteral("Dialogs and messages"));
    shootInput(gallery);
    shootMessageWithLink(gallery);
    shootYesNoContinue(gallery);
    shootQuestionWithCheckBox(gallery);
    shootMessageBoxes(gallery);
}

} // namespace Tool
