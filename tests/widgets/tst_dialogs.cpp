#include "modalhelper.h"

#include <LibControl/widgets/coneqonechkboxdialog.h>
#include <LibControl/widgets/cyesnocontinuedlg.h>
#include <LibControl/widgets/dlggeneralinput.h>
#include <LibControl/widgets/dlgmsgwithlink.h>
#include <LibControl/widgets/messages.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace {

const QString confirmText = QStringLiteral("Please confirm the message by clicking the 'OK' button to proceed; or "
                                           "click the 'Cancel' button to abort the operation.");

QString labelText(QWidget *dialog, const char *name)
{
    auto label = dialog->findChild<QLabel *>(QLatin1String(name));
    return label ? label->text() : QStringLiteral("(no label)");
}

QStringList messageLines(QWidget *dialog)
{
    QStringList lines;
    for (const char *name : { "lblMsg1", "lblMsg2", "lblMsg3", "lblMsg4" })
        lines << labelText(dialog, name);
    return lines;
}

// The link labels all open the address in the browser, selectable and
// reachable by mouse and keyboard.
bool isLinkLabel(QLabel *label)
{
    return label && label->textFormat() == Qt::RichText && int(label->textInteractionFlags()) == 13
        && label->openExternalLinks();
}

void clickButton(QWidget *dialog, const QString &text)
{
    for (auto button : dialog->findChildren<QAbstractButton *>()) {
        if (button->text().remove(QLatin1Char('&')) == text) {
            button->click();
            return;
        }
    }
    qWarning("no button %s; closing", qPrintable(text));
    dialog->close();
}

} // namespace

class tst_Dialogs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void generalInputLines_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("first line is 0") << 0 << QStringList { "m", "", "", "" };
        QTest::newRow("last line is 3") << 3 << QStringList { "", "", "", "m" };
        QTest::newRow("4 is ignored") << 4 << QStringList { "", "", "", "" };
        QTest::newRow("negative is ignored") << -1 << QStringList { "", "", "", "" };
    }

    void generalInputLines()
    {
        QFETCH(int, line);
        QFETCH(QStringList, lines);
        dlgGeneralInput dlg(QStringLiteral("Input"));
        dlg.setMsg(line, QStringLiteral("m"));
        QCOMPARE(messageLines(&dlg), lines);
        // Lines without text leave no gap.
        QStringList visible;
        for (auto label : dlg.findChildren<QLabel *>())
            if (label->isVisibleTo(&dlg))
                visible << label->text();
        QCOMPARE(visible, lines.filter(QStringLiteral("m")));
        QCOMPARE(dlg.windowTitle(), QStringLiteral("Input"));
    }

    void linkMarkup_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("markup");
        const QString url = QStringLiteral("https://example.org/a?b=1");
        const QString self = QStringLiteral("<a href=\"%1\">%1</a>").arg(url);
        QTest::newRow("input dialog link") << "setMsgLink"
                                           << "lblLink" << self;
        QTest::newRow("message dialog link") << "setLink"
                                             << "lblLink" << self;
        QTest::newRow("confirmation line as link") << "setMsg"
                                                   << "lblMsg3" << self;
        QTest::newRow("confirmation line with own text")
            << "setLinkMsg"
            << "lblMsg4" << QStringLiteral("<a href=\"%1\">the guide</a>").arg(url);
    }

    void linkMarkup()
    {
        QFETCH(QString, operation);
        QFETCH(QString, label);
        QFETCH(QString, markup);
        const QString url = QStringLiteral("https://example.org/a?b=1");
        std::unique_ptr<QDialog> dlg;
        if (operation == QLatin1String("setMsgLink")) {
            auto input = new dlgGeneralInput(QStringLiteral("Input"));
            input->setMsgLink(url);
            dlg.reset(input);
        } else if (operation == QLatin1String("setLink")) {
            auto message = new DlgMsgWithLink(QStringLiteral("Update"));
            message->setLink(url);
            dlg.reset(message);
        } else {
            auto confirm = new CYesNoContinueDlg(QStringLiteral("Confirm"));
            if (operation == QLatin1String("setMsg"))
                QVERIFY(confirm->setMsg(3, url, true));
            else
                confirm->setLinkMsg(4, QStringLiteral("the guide"), url);
            dlg.reset(confirm);
        }
        auto link = dlg->findChild<QLabel *>(label);
        QVERIFY(isLinkLabel(link));
        QCOMPARE(link->text(), markup);
        QVERIFY(link->isVisibleTo(dlg.get()));
    }

    void runAndGetInput_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("kept");
        QTest::newRow("accepted") << int(QDialogButtonBox::Ok) << true << "A1B 2C3"
                                  << "A1B 2C3";
        QTest::newRow("cancelled leaves the caller's text") << int(QDialogButtonBox::Cancel) << false << "unchanged"
                                                            << "";
    }

    void runAndGetInput()
    {
        QFETCH(int, button);
        QFETCH(bool, accepted);
        QFETCH(QString, out);
        QFETCH(QString, kept);
        dlgGeneralInput dlg(QStringLiteral("Input"));
        whenModal([button](QWidget *modal) {
            QTest::keyClicks(modal->findChild<QLineEdit *>(), QStringLiteral("A1B 2C3"));
            modal->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::StandardButton(button))->click();
        });
        QString text = QStringLiteral("unchanged");
        QCOMPARE(dlg.runAndGetInput(text), accepted);
        QCOMPARE(text, out);
        dlg.getInput(text);
        QCOMPARE(text, kept);
    }

    void yesNoContinueLines()
    {
        CYesNoContinueDlg dlg(QStringLiteral("Confirm"));
        QCOMPARE(dlg.windowTitle(), QStringLiteral("Confirm"));
        QCOMPARE(messageLines(&dlg), (QStringList { confirmText, "", "", "" }));
        // The platform adjustment has run over the finished form.
        QCOMPARE(dlg.findChild<QPushButton *>(QStringLiteral("btnOk"))->maximumHeight(), 32);
        QCOMPARE(dlg.findChild<QLabel *>(QStringLiteral("lblMsg2"))->font().pointSize(), 14);

        // A line shown as a link and then plainly shows the markup as text.
        QVERIFY(dlg.setMsg(2, QStringLiteral("https://example.org"), true));
        QVERIFY(dlg.setMsg(2, QStringLiteral("<b>plain</b>"), false));
        auto second = dlg.findChild<QLabel *>(QStringLiteral("lblMsg2"));
        QCOMPARE(second->textFormat(), Qt::PlainText);
        QCOMPARE(second->text(), QStringLiteral("<b>plain</b>"));

        QVERIFY(!dlg.setMsg(0, QStringLiteral("x"), false));
        QVERIFY(!dlg.setMsg(5, QStringLiteral("x"), false));
        dlg.setLinkMsg(5, QStringLiteral("x"), QStringLiteral("y"));
        QCOMPARE(messageLines(&dlg), (QStringList { confirmText, "<b>plain</b>", "", "" }));
    }

    void warnYesNoMsg_data()
    {
        QTest::addColumn<int>("messages");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("one message, OK") << 1 << "OK" << true << QStringList { "Delete:", "Remove this slip?", "", "" };
        QTest::newRow("one message, Cancel")
            << 1 << "Cancel" << false << QStringList { "Delete:", "Remove this slip?", "", "" };
        QTest::newRow("two messages") << 2 << "OK" << true << QStringList { "first", "second", "", "" };
        QTest::newRow("three messages") << 3 << "Cancel" << false << QStringList { "first", "second", "third", "" };
    }

    void warnYesNoMsg()
    {
        QFETCH(int, messages);
        QFETCH(QString, button);
        QFETCH(bool, result);
        QFETCH(QStringList, lines);
        QStringList shown;
        QString title;
        whenModal([&](QWidget *modal) {
            shown = messageLines(modal);
            title = modal->windowTitle();
            clickButton(modal, button);
        });
        const QString delTitle = QStringLiteral("Delete");
        bool answer = false;
        if (messages == 1)
            answer = CYesNoContinueDlg::warnYesNoMsg(nullptr, delTitle, QStringLiteral("Remove this slip?"));
        else if (messages == 2)
            answer
                = CYesNoContinueDlg::warnYesNoMsg(nullptr, delTitle, QStringLiteral("first"), QStringLiteral("second"));
        else
            answer = CYesNoContinueDlg::warnYesNoMsg(
                nullptr, delTitle, QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third"));
        QCOMPARE(answer, result);
        QCOMPARE(shown, lines);
        QCOMPARE(title, delTitle);
    }

    void oneQuestionOneCheckBox_data()
    {
        QTest::addColumn<bool>("check");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("result");
        QTest::newRow("checked and accepted") << true << "OK" << int(QDialog::Accepted);
        QTest::newRow("unchecked and accepted") << false << "OK" << int(QDialog::Accepted);
        QTest::newRow("checked and cancelled") << true << "Cancel" << int(QDialog::Rejected);
    }

    void oneQuestionOneCheckBox()
    {
        QFETCH(bool, check);
        QFETCH(QString, button);
        QFETCH(int, result);
        QString question;
        bool wraps = false;
        bool hasIcon = false;
        whenModal([&](QWidget *modal) {
            auto questionLabel = modal->findChild<QLabel *>(QStringLiteral("questionLabel"));
            question = questionLabel->text();
            wraps = questionLabel->wordWrap();
            auto iconLabel = modal->findChild<QLabel *>(QStringLiteral("iconLabel"));
            hasIcon = !iconLabel->property("pixmap").value<QPixmap>().isNull();
            modal->findChild<QCheckBox *>()->setChecked(check);
            clickButton(modal, button);
        });
        bool checked = !check;
        const int code = COneQOneChkboxDialog::showDialog(QStringLiteral("Import"), QStringLiteral("Import the slips?"),
            QStringLiteral("Do not ask again"), &checked, QMessageBox::Warning);
        QCOMPARE(code, result);
        QCOMPARE(checked, check);
        QCOMPARE(question, QStringLiteral("Import the slips?"));
        QVERIFY(wraps);
        QVERIFY(hasIcon);

        whenModal([](QWidget *modal) { clickButton(modal, QStringLiteral("OK")); });
        QCOMPARE(
            COneQOneChkboxDialog::showDialog(QStringLiteral("t"), QStringLiteral("q"), QStringLiteral("c"), nullptr),
            int(QDialog::Accepted));
    }

    void messageTitle_data()
    {
        QTest::addColumn<int>("channel");
        QTest::addColumn<QString>("title");
        QTest::newRow("NetFile") << 1 << "Vorbex 2025 for NetFile";
        QTest::newRow("zero") << 0 << "Vorbex 2025 for EFile";
        QTest::newRow("two") << 2 << "Vorbex 2025 for EFile";
        QTest::newRow("largest") << 255 << "Vorbex 2025 for EFile";
    }

    void messageTitle()
    {
        QFETCH(int, channel);
        QFETCH(QString, title);
        QString out = QStringLiteral("old");
        gMsgGetTitle(static_cast<unsigned char>(channel), out);
        QCOMPARE(out, title);
    }

    void messageInformation()
    {
        QString title, text;
        int buttons = 0;
        whenModal([&](QWidget *modal) {
            auto box = qobject_cast<QMessageBox *>(modal);
            title = box->windowTitle();
            text = box->text();
            buttons = int(box->standardButtons());
            box->button(QMessageBox::Ok)->click();
        });
        QCOMPARE(gMsgInformation(1, QStringLiteral("Filed.")), QMessageBox::Ok);
        QCOMPARE(title, QStringLiteral("Vorbex 2025 for NetFile"));
        QCOMPARE(text, QStringLiteral("Filed."));
        QCOMPARE(buttons, int(QMessageBox::Ok));
    }

    void messageQuestion()
    {
        QString title;
        int buttons = 0;
        bool noDefault = false;
        whenModal([&](QWidget *modal) {
            auto box = qobject_cast<QMessageBox *>(modal);
            title = box->windowTitle();
            buttons = int(box->standardButtons());
            noDefault = box->defaultButton() == nullptr;
            box->button(QMessageBox::No)->click();
        });
        QCOMPARE(gMsgQuestion(3, QStringLiteral("Send now?")), QMessageBox::No);
        QCOMPARE(title, QStringLiteral("Vorbex 2025 for EFile"));
        QCOMPARE(buttons, int(QMessageBox::Yes | QMessageBox::No));
        QVERIFY(noDefault);

        whenModal([](QWidget *modal) { qobject_cast<QMessageBox *>(modal)->button(QMessageBox::Yes)->click(); });
        QCOMPARE(gMsgQuestion(1, QStringLiteral("Send now?")), QMessageBox::Yes);
    }
};

QTEST_MAIN(tst_Dialogs)
#include "tst_dialogs.moc"
