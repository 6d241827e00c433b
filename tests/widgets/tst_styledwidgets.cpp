#include <LibControl/widgets/styledcheckbox.h>
#include <LibControl/widgets/styleddateedit.h>
#include <LibControl/widgets/underlinelabel.h>

#include <QMetaProperty>
#include <QTest>
#include <QWheelEvent>

namespace {

const QString dateEditSheet = QStringLiteral(
    "QDateEdit {     background-color: white;     border-style: solid;     border-width: 1px;     border-color: "
    "rgb(100,100,100);     spacing: 5px;  } QCalendarWidget QWidget#qt_calendar_navigationbar {    "
    "background-color: rgb(200,200,200); } QCalendarWidget QWidget#qt_calendar_navigationbar QToolButton{    "
    "background-color: rgb(51,234,255);     color: black;    border-width: 1;     border-style: solid;     "
    "border-color: black; }");

// Turns the wheel one notch up over `widget`; true when the widget took the event.
bool turnWheel(QWidget *widget)
{
    const QPoint centre = widget->rect().center();
    QWheelEvent wheel(centre, widget->mapToGlobal(centre), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &wheel);
    return wheel.isAccepted();
}

} // namespace

class tst_StyledWidgets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void labelAndCheckBoxLook()
    {
        UnderlineLabel label;
        QCOMPARE(label.styleSheet(),
            QStringLiteral(
                "QLabel { border-width: 1px; border-style: dotted; border-color: white white black white; }"));
        StyledCheckBox box;
        QCOMPARE(box.styleSheet(),
            QStringLiteral("QCheckBox::indicator:!checked{border:2px solid black}  QCheckBox:checked{color:blue}"));
        box.makeBold();
        QCOMPARE(box.styleSheet(), QStringLiteral("QCheckBox:checked{color:blue}"));
    }

    void dateEditLook()
    {
        StyledDateEdit edit;
        QCOMPARE(edit.styleSheet(), dateEditSheet);
        QCOMPARE(int(edit.alignment()), 0x82);
        QCOMPARE(edit.locale().language(), QLocale::English);
        QCOMPARE(edit.specialValueText(), QStringLiteral("0000/01/01"));
    }

    void dateEditNoDate_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QDate>("read");
        QTest::addColumn<bool>("showsNoDate");
        QTest::newRow("null date") << QDate() << QDate() << true;
        QTest::newRow("invalid date") << QDate(2025, 2, 30) << QDate() << true;
        QTest::newRow("ordinary date") << QDate(2025, 4, 30) << QDate(2025, 4, 30) << false;
        QTest::newRow("minimum date") << QDate(1752, 9, 14) << QDate() << true;
    }

    void dateEditNoDate()
    {
        QFETCH(QDate, date);
        QFETCH(QDate, read);
        QFETCH(bool, showsNoDate);
        StyledDateEdit edit;
        edit.setDate(QDate(2020, 1, 2));
        edit.setDate(date);
        QCOMPARE(edit.nullDate(), read);
        QCOMPARE(edit.text() == QLatin1String("0000/01/01"), showsNoDate);

        edit.setDate(QDate(2020, 1, 2));
        edit.clear();
        QCOMPARE(edit.nullDate(), QDate());
        QCOMPARE(edit.text(), QStringLiteral("0000/01/01"));
    }

    void dateEditUserProperty()
    {
        StyledDateEdit edit;
        const QMetaProperty user = edit.metaObject()->userProperty();
        QCOMPARE(QByteArray(user.name()), QByteArray("date"));
        QVERIFY(user.write(&edit, QDate(2025, 12, 31)));
        QCOMPARE(edit.date(), QDate(2025, 12, 31));
        QVERIFY(user.write(&edit, QDate()));
        QCOMPARE(user.read(&edit).toDate(), QDate());
        QCOMPARE(edit.text(), QStringLiteral("0000/01/01"));
    }

    void dateEditIgnoresWheel()
    {
        StyledDateEdit edit;
        edit.setDate(QDate(2025, 6, 15));
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        edit.setFocus();
        QVERIFY(!turnWheel(&edit));
        QCOMPARE(edit.date(), QDate(2025, 6, 15));
    }

    void dateTimeEdit()
    {
        StyledDateTimeEdit edit;
        QCOMPARE(int(edit.alignment()), 0x82);
        QCOMPARE(edit.styleSheet(), QString());
        const QDateTime when(QDate(2025, 3, 4), QTime(10, 30));
        edit.setDatetime(when);
        QCOMPARE(edit.dateTime(), when);
        QCOMPARE(edit.nullDate(), QDate());
        QCOMPARE(edit.property("date").toDate(), QDate());
    }
};

QTEST_MAIN(tst_StyledWidgets)
#include "tst_styledwidgets.moc"
