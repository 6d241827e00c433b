#include <LibControl/widgets/cforwardedit.h>
#include <LibControl/widgets/doublelineedit.h>
#include <LibControl/widgets/myevent.h>
#include <LibControl/widgets/stringlineedit.h>

#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <cmath>
#include <limits>
#include <memory>

namespace {

const QString lineEditSheet = QStringLiteral(
    "QLineEdit{ border-width: 1px; border-style: solid; border-color: white white black white; } QLineEdit:hover { "
    "border: 1px solid #808080; background-color:%1; border-radius: 2px; } QLineEdit:disabled "
    "{background:#C0C0C0;color:black;} QLineEdit:read-only {color:#324aa8;}");
const QString forwardEditSheet = QStringLiteral(
    "QLineEdit{ border-width: 1px; border-style: solid; border-color: white white black white; color:#32aaa8; } "
    "QLineEdit:hover { border: 1px solid #808080; background-color:%1; border-radius: 2px; }");

// The page an edit sits on: records the worksheet requests posted to it.
class Page : public QWidget
{
public:
    QList<int> requests;

    bool event(QEvent *e) override
    {
        if (e->type() == EventNeedWorksheet::Type) {
            requests << static_cast<MyEvent *>(e)->data();
            return true;
        }
        return QWidget::event(e);
    }
};

// A shown, active page holding the edit under test and a second edit that
// focus can move to.
struct Fixture
{
    Page page;
    StringLineEdit *edit = new StringLineEdit(&page);
    QLineEdit *next = new QLineEdit(&page);
    bool active = false;

    Fixture()
    {
        auto layout = new QVBoxLayout(&page);
        layout->addWidget(edit);
        layout->addWidget(next);
        page.show();
        QApplication::setActiveWindow(&page);
        active = QTest::qWaitForWindowActive(&page);
        edit->setFocus();
    }

    QList<int> deliveredRequests()
    {
        QCoreApplication::sendPostedEvents(&page);
        return page.requests;
    }
};

} // namespace

class tst_LineEdits : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void styleSheets_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("expected");
        QTest::newRow("text edit, amber hover") << "string" << lineEditSheet.arg(QStringLiteral("#DEAC37"));
        QTest::newRow("amount edit, amber hover") << "double" << lineEditSheet.arg(QStringLiteral("#DEAC37"));
        QTest::newRow("forward edit, teal text") << "forward" << forwardEditSheet.arg(QStringLiteral("#DEAC37"));
        QTest::newRow("forward form type, green hover") << "form" << lineEditSheet.arg(QStringLiteral("#3EAC37"));
        QTest::newRow("worksheet type, green hover") << "worksheet" << lineEditSheet.arg(QStringLiteral("#3EAC37"));
    }

    void styleSheets()
    {
        QFETCH(QString, kind);
        QFETCH(QString, expected);
        std::unique_ptr<StringLineEdit> edit;
        if (kind == QLatin1String("double"))
            edit.reset(new DoubleLineEdit);
        else if (kind == QLatin1String("forward"))
            edit.reset(new CForwardEdit);
        else
            edit.reset(new StringLineEdit);
        if (kind == QLatin1String("form"))
            edit->setForwardFormType(4);
        if (kind == QLatin1String("worksheet"))
            edit->setWorksheetType(4);
        QCOMPARE(edit->styleSheet(), expected);
    }

    void alignmentAndSize()
    {
        StringLineEdit text;
        DoubleLineEdit amount;
        CForwardEdit forward;
        QCOMPARE(int(text.alignment()), 0x83);
        QCOMPARE(int(amount.alignment()), 0x82);
        QCOMPARE(int(forward.alignment()), 0x82);
        QCOMPARE(amount.minimumWidth(), 90);
    }

    void forwardState()
    {
        DoubleLineEdit edit;
        QCOMPARE(edit.getForwardMode(), int(StringLineEdit::NoForward));
        edit.setForwardFormType(24);
        QCOMPARE(edit.getForwardMode(), 1);
        QCOMPARE(edit.getForwardType(), 24);
        edit.setWorksheetType(7);
        QCOMPARE(edit.getForwardMode(), 2);
        QCOMPARE(edit.getForwardType(), 7);
        QVERIFY(!edit.isReadOnly());

        edit.setAttID(5);
        QCOMPARE(edit.getAttID(), 5);
        QVERIFY(edit.isReadOnly());
        QCOMPARE(edit.toolTip(), QStringLiteral("press key or click to launch worksheet"));
    }

    void keyWithWorksheet_data()
    {
        QTest::addColumn<int>("attID");
        QTest::addColumn<int>("key");
        QTest::addColumn<QList<int>>("requests");
        QTest::addColumn<bool>("focusLeaves");
        QTest::addColumn<QString>("text");
        QTest::newRow("letter asks for the worksheet") << 5 << int(Qt::Key_A) << QList<int> { 5 } << false << "12";
        QTest::newRow("Enter asks for the worksheet") << 5 << int(Qt::Key_Return) << QList<int> { 5 } << false << "12";
        QTest::newRow("Backspace asks for the worksheet")
            << 9 << int(Qt::Key_Backspace) << QList<int> { 9 } << false << "12";
        QTest::newRow("Tab moves on") << 5 << int(Qt::Key_Tab) << QList<int> {} << true << "12";
        QTest::newRow("no worksheet: typing edits") << 0 << int(Qt::Key_A) << QList<int> {} << false << "12a";
        QTest::newRow("negative attachment: read-only") << -3 << int(Qt::Key_A) << QList<int> {} << false << "12";
    }

    void keyWithWorksheet()
    {
        QFETCH(int, attID);
        QFETCH(int, key);
        QFETCH(QList<int>, requests);
        QFETCH(bool, focusLeaves);
        QFETCH(QString, text);
        Fixture f;
        QVERIFY(f.active);
        f.edit->setText(QStringLiteral("12"));
        if (attID != 0)
            f.edit->setAttID(attID);
        QVERIFY(f.edit->hasFocus());
        QTest::keyClick(f.edit, Qt::Key(key));
        QCOMPARE(f.deliveredRequests(), requests);
        QCOMPARE(f.next->hasFocus(), focusLeaves);
        QCOMPARE(f.edit->text(), text);
    }

    void clickWithWorksheet()
    {
        Fixture f;
        QVERIFY(f.active);
        f.edit->setText(QStringLiteral("1234"));
        f.edit->setAttID(5);
        f.edit->setCursorPosition(2);
        QTest::mouseClick(f.edit, Qt::LeftButton, Qt::NoModifier, QPoint(2, f.edit->height() / 2));
        QCOMPARE(f.deliveredRequests(), QList<int> { 5 });
        QCOMPARE(f.edit->cursorPosition(), 2);
    }

    void clickWithoutWorksheet()
    {
        Fixture f;
        QVERIFY(f.active);
        f.edit->setText(QStringLiteral("1234"));
        f.edit->setCursorPosition(2);
        f.edit->postLaunchWS();
        QTest::mouseClick(f.edit, Qt::LeftButton, Qt::NoModifier, QPoint(f.edit->width() - 2, f.edit->height() / 2));
        QCOMPARE(f.deliveredRequests(), QList<int> {});
        QCOMPARE(f.edit->cursorPosition(), 4);
    }

    void rightClickSelection_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("selected");
        QTest::newRow("amount is selected") << "12.50"
                                            << "12.50";
        QTest::newRow("zero is not") << "0"
                                     << "";
        QTest::newRow("zero amount is not") << "0.00"
                                            << "";
        QTest::newRow("other zero spelling is") << "0.0"
                                                << "0.0";
        QTest::newRow("empty") << ""
                               << "";
    }

    void rightClickSelection()
    {
        QFETCH(QString, text);
        QFETCH(QString, selected);
        Fixture f;
        QVERIFY(f.active);
        f.edit->setText(text);
        f.edit->deselect();
        QTest::mouseClick(f.edit, Qt::RightButton, Qt::NoModifier, QPoint(2, f.edit->height() / 2));
        QCOMPARE(f.edit->selectedText(), selected);
    }

    void focussedSignal()
    {
        Fixture f;
        QVERIFY(f.active);
        f.next->setFocus();
        QSignalSpy spy(f.edit, &StringLineEdit::focussed);
        f.edit->setFocus();
        f.next->setFocus();
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).toBool(), true);
        QCOMPARE(spy.at(0).at(1).value<StringLineEdit *>(), f.edit);
        QCOMPARE(spy.at(1).at(0).toBool(), false);
    }

    // A plain line edit claims its typing keys before window shortcuts see
    // them; these edits skip that handler, so the window's shortcut wins.
    void bypassesLineEditEventHandler()
    {
        Fixture f;
        QVERIFY(f.active);
        auto shortcut = new QShortcut(QKeySequence(Qt::Key_B), &f.page);
        QSignalSpy spy(shortcut, &QShortcut::activated);
        QTest::keyClick(f.next, Qt::Key_B);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(f.next->text(), QStringLiteral("b"));
        f.edit->setFocus();
        QTest::keyClick(f.edit, Qt::Key_B);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(f.edit->text(), QString());
    }

    void setDouble_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("cents") << 2 << 1234.5 << "1234.50";
        QTest::newRow("no grouping") << 2 << 1234567.891 << "1234567.89";
        QTest::newRow("negative cents") << 2 << -0.5 << "-0.50";
        QTest::newRow("four decimals") << 4 << 0.5 << "0.5000";
        QTest::newRow("whole, truncated not rounded") << 0 << 2.9 << "2";
        QTest::newRow("whole, negative toward zero") << 0 << -7.9 << "-7";
        QTest::newRow("negative decimals count as whole") << -1 << 2.9 << "2";
        QTest::newRow("whole beyond 64 bits") << 0 << 1e300 << "9223372036854775807";
        QTest::newRow("whole NaN") << 0 << std::numeric_limits<double>::quiet_NaN() << "0";
    }

    void setDouble()
    {
        QFETCH(int, decimals);
        QFETCH(double, value);
        QFETCH(QString, text);
        DoubleLineEdit edit;
        edit.setDecimals(decimals);
        edit.setDouble(value);
        QCOMPARE(edit.text(), text);
    }

    void getDouble_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("grouped amount") << 2 << "1,234.50" << 1234.5;
        QTest::newRow("commas anywhere") << 2 << "1,2,3" << 123.0;
        QTest::newRow("whole truncates") << 0 << "3.7" << 3.0;
        QTest::newRow("whole truncates toward zero") << 0 << "-3.7" << -3.0;
        QTest::newRow("negative decimals do not truncate") << -1 << "3.7" << 3.7;
        QTest::newRow("unparsable") << 2 << "abc" << 0.0;
        QTest::newRow("empty") << 2 << "" << 0.0;
    }

    void getDouble()
    {
        QFETCH(int, decimals);
        QFETCH(QString, text);
        QFETCH(double, value);
        DoubleLineEdit edit;
        edit.setDecimals(decimals);
        edit.setText(text);
        QCOMPARE(edit.getDouble(), value);
    }

    void defaultDecimals()
    {
        QCOMPARE(DoubleLineEdit::s_defDecimals, 2);
        QCOMPARE(DoubleLineEdit().getDecimals(), 2);
        DoubleLineEdit::s_defDecimals = 4;
        CForwardEdit later;
        DoubleLineEdit::s_defDecimals = 2;
        QCOMPARE(later.getDecimals(), 4);
    }
};

QTEST_MAIN(tst_LineEdits)
#include "tst_lineedits.moc"
