#include "modalwatch.h"
#include "taxpagefixture.h"

#include <LibControl/widgets/actiononevent.h>
#include <LibControl/widgets/entityentry.h>
#include <LibControl/widgets/scrolltaxform.h>

#include <QScrollBar>
#include <QTest>

namespace {

// Records which worksheets the page was asked to open instead of opening them.
class RecordingPage : public TestPage
{
public:
    using TestPage::TestPage;
    std::vector<int> worksheets;
    std::vector<int> customEvents;
    void ShowWorksheetEditDlg(int id, long) override { worksheets.push_back(id); }

protected:
    void customEvent(QEvent *e) override { customEvents.push_back(int(e->type())); }
};

// A titled page that also has a number, as a subclass may give it.
class TitledPage : public BaseTaxPage
{
public:
    TitledPage(const char *title, int pageNo)
        : BaseTaxPage(title, nullptr, nullptr)
    {
        m_pageNo = pageNo;
    }
};

struct CalcLog
{
    std::vector<CField *> fields;
    void watch(BaseTaxPage &page)
    {
        QObject::connect(&page, &BaseTaxPage::signalCalc,
                         [this](CTaxData_Form *, CField *field) { fields.push_back(field); });
    }
};

} // namespace

Q_DECLARE_METATYPE(PostedEvents)

class tst_TaxPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void syncLoadsEveryWidgetKind()
    {
        TestForm form;
        form.amount.m_dValue = 1234.5;
        form.name.m_strValue = "Ada";
        form.note.m_strValue = "two\nlines";
        form.flag.m_nValue = 1;
        form.province.m_nValue = 9;
        form.birth.m_date = QDate(1950, 5, 17);
        form.choice.m_nValue = 2;
        QWidget parent;
        TestPage page(&form, &parent);
        page.syncData();

        QCOMPARE(page.amountEdit->getDouble(), 1234.5);
        QCOMPARE(page.nameEdit->text(), QStringLiteral("Ada"));
        QCOMPARE(page.noteEdit->toPlainText(), QStringLiteral("two\nlines"));
        QVERIFY(!page.noteEdit->document()->isUndoAvailable());
        QCOMPARE(page.flagBox->checkState(), Qt::Checked);
        QCOMPARE(page.provinceBox->GetCurSelData(), 9);
        QCOMPARE(page.birthEdit->nullDate(), QDate(1950, 5, 17));
        QCOMPARE(page.group->checkedId(), 2);

        // A later sync only reloads.
        form.amount.m_dValue = 7;
        form.choice.m_nValue = 5; // no such button: the checked one is cleared
        page.syncData();
        QCOMPARE(page.amountEdit->getDouble(), 7.0);
        QCOMPARE(page.group->checkedId(), -1);
    }

    void editWritesBackAndAsksForCalculation_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("amount typed") << "amount";
        QTest::newRow("name typed") << "name";
        QTest::newRow("check box clicked") << "flag";
        QTest::newRow("combo selection") << "province";
        QTest::newRow("date changed") << "birth";
        QTest::newRow("radio clicked") << "choice";
    }

    void editWritesBackAndAsksForCalculation()
    {
        QFETCH(QString, kind);
        TestForm form;
        QWidget parent;
        TestPage page(&form, &parent);
        page.syncData();
        CalcLog log;
        log.watch(page);

        CField *expected = nullptr;
        if (kind == "amount") {
            page.amountEdit->clear();
            QTest::keyClicks(page.amountEdit, QStringLiteral("1,234.50"));
            QTest::keyClick(page.amountEdit, Qt::Key_Return);
            QCOMPARE(form.amount.m_dValue, 1234.5);
            expected = &form.amount;
        } else if (kind == "name") {
            QTest::keyClicks(page.nameEdit, QStringLiteral("Smith"));
            QTest::keyClick(page.nameEdit, Qt::Key_Return);
            QCOMPARE(QString(form.name.m_strValue), QStringLiteral("Smith"));
            expected = &form.name;
        } else if (kind == "flag") {
            page.flagBox->click();
            QCOMPARE(form.flag.m_nValue, 1);
            expected = &form.flag;
        } else if (kind == "province") {
            page.provinceBox->setCurrentIndex(3);
            QCOMPARE(form.province.m_nValue, page.provinceBox->GetItemData(3));
            expected = &form.province;
        } else if (kind == "birth") {
            page.birthEdit->setDate(QDate(1961, 2, 28));
            QCOMPARE(form.birth.m_date, QDate(1961, 2, 28));
            expected = &form.birth;
        } else {
            page.group->button(2)->click();
            QCOMPARE(form.choice.m_nValue, 2);
            expected = &form.choice;
        }
        QCOMPARE(log.fields, std::vector<CField *> { expected });
    }

    void loadingWritesNothingBack()
    {
        TestForm form;
        form.amount.m_dValue = 12.345; // a write-back would round it to cents
        form.flag.m_nValue = 1;
        QWidget parent;
        TestPage page(&form, &parent);
        // A page that writes back on every keystroke still sees nothing while loading.
        connect(page.amountEdit, &QLineEdit::textChanged, &page, &BaseTaxPage::onFloatEditFinished);
        CalcLog log;
        log.watch(page);
        bool loadingSeen = false;
        connect(page.amountEdit, &QLineEdit::textChanged, [&]() { loadingSeen = page.isLoading(); });

        page.syncData();
        QVERIFY(loadingSeen);
        QVERIFY(!page.isLoading());
        QCOMPARE(form.amount.m_dValue, 12.345);
        QVERIFY(log.fields.empty());
    }

    void destroyedOrUnboundWidgetsAreIgnored()
    {
        TestForm form;
        QWidget parent;
        TestPage page(&form, &parent);
        page.syncData();
        CalcLog log;
        log.watch(page);

        delete page.amountEdit;
        page.syncData();
        page.PutDataToDoc();
        // A stranger with a bound widget's old name finds nothing.
        auto *stranger = new DoubleLineEdit(&page);
        stranger->setObjectName(QStringLiteral("amount"));
        connect(stranger, &QLineEdit::editingFinished, &page, &BaseTaxPage::onFloatEditFinished);
        stranger->setText(QStringLiteral("5"));
        Q_EMIT stranger->editingFinished();
        QCOMPARE(form.amount.m_dValue, 0.0);
        QVERIFY(log.fields.empty());

        TestPage inert(nullptr, &parent);
        inert.syncData();
        inert.flagBox->click();
        inert.PutDataToDoc();
    }

    void needWorksheetEvent_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<PostedEvents>("posted");
        QTest::addColumn<std::vector<int>>("opened");
        QTest::newRow("forwarded line opens its form")
            << 501 << PostedEvents { { EventForwardEdit::Type, 6 } } << std::vector<int> {};
        QTest::newRow("other line opens its worksheet")
            << 58440 << PostedEvents {} << std::vector<int> { 58440 };
    }

    void needWorksheetEvent()
    {
        QFETCH(int, id);
        QFETCH(PostedEvents, posted);
        QFETCH(std::vector<int>, opened);
        TestForm form;
        EventCatcher parent;
        RecordingPage page(&form, &parent);
        page.addForwardForm(501, STRUCT_FORWARD_FORM_INFO_TYPE { 6, 30400 });

        EventNeedWorksheet e(id);
        QVERIFY(QCoreApplication::sendEvent(&page, &e));
        QCoreApplication::processEvents();
        QCOMPARE(parent.events, posted);
        QCOMPARE(page.worksheets, opened);
    }

    void clickOnWorksheetLineReachesThePage()
    {
        TestForm form;
        EventCatcher parent;
        RecordingPage page(&form, &parent);
        page.nameEdit->setAttID(30100);
        QTest::mouseClick(page.nameEdit, Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(page.worksheets, std::vector<int> { 30100 });
    }

    void enterMovesToNextField()
    {
        TestForm form;
        TestPage page(&form, nullptr);
        page.show();
        QApplication::setActiveWindow(&page);
        QVERIFY(QTest::qWaitForWindowActive(&page));
        page.amountEdit->setFocus();
        QTest::keyRelease(page.amountEdit, Qt::Key_Enter);
        QCOMPARE(QApplication::focusWidget(), page.nameEdit);
        QTest::keyRelease(page.nameEdit, Qt::Key_Return);
        QVERIFY(QApplication::focusWidget() != page.nameEdit);

    }

    void otherEventsArePassedOn()
    {
        RecordingPage page(nullptr, nullptr);
        EventByEventID unknown(QEvent::User + 77);
        QCoreApplication::sendEvent(&page, &unknown);
        EventForwardEdit forward(6);
        QCoreApplication::sendEvent(&page, &forward);
        QCOMPARE(page.customEvents, (std::vector<int> { QEvent::User + 77, EventForwardEdit::Type }));
        QVERIFY(page.worksheets.empty());
    }

    void title_data()
    {
        QTest::addColumn<int>("pageNo");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("expected");
        QTest::newRow("numbered page") << 3 << QString() << "Page 3";
        QTest::newRow("blank title") << 3 << "  " << "Page 3";
        QTest::newRow("title trimmed") << 0 << " Schedule 5 " << "Schedule 5";
    }

    void title()
    {
        QFETCH(int, pageNo);
        QFETCH(QString, title);
        QFETCH(QString, expected);
        if (title.isNull()) {
            BaseTaxPage page(pageNo, nullptr, nullptr);
            QCOMPARE(page.getTitle(), expected);
        } else {
            const QByteArray utf8 = title.toUtf8();
            TitledPage page(utf8.constData(), pageNo);
            QCOMPARE(page.getTitle(), expected);
        }
    }

    void tooltip_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("expected");
        QTest::newRow("forwarded line") << 501 << "Calculated from tax form [TaxData_S1]";
        QTest::newRow("form outside the catalogue") << 502 << "Calculated from tax form []";
        QTest::newRow("worksheet line") << 58440 << "Press key or mouse to open worksheet";
    }

    void tooltip()
    {
        QFETCH(int, id);
        QFETCH(QString, expected);
        TestPage page(nullptr, nullptr);
        page.addForwardForm(501, STRUCT_FORWARD_FORM_INFO_TYPE { 2, 0 });
        page.addForwardForm(502, STRUCT_FORWARD_FORM_INFO_TYPE { 9999, 0 });
        QCOMPARE(page.getTooltip(id), expected);
    }

    void worksheetTitles_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("expected");
        QTest::newRow("30100") << 30100 << "Federal Age Amount Worksheet";
        QTest::newRow("31400") << 31400 << "Federal Pension Amount Worksheet";
        QTest::newRow("31800") << 31800 << "Federal Dependant Disability Transfer Amount";
        QTest::newRow("58080") << 58080 << "Provincial Age Amount Worksheet";
        QTest::newRow("58200") << 58200 << "Provincial Amount for Infirm Dependant Aged 18+";
        QTest::newRow("58330 keeps its spelling") << 58330 << "Prvocincial Adoption Amount Worksheet";
        QTest::newRow("58400") << 58400 << "Caregiver Amount";
        QTest::newRow("58440") << 58440 << "Disability Amount for Self";
        QTest::newRow("58480") << 58480 << "Provincial Dependant Disability Transfer Amount";
        QTest::newRow("no worksheet title") << 30000 << "untouched";
    }

    void worksheetTitles()
    {
        QFETCH(int, line);
        QFETCH(QString, expected);
        BaseTaxPage page(1, nullptr, nullptr);
        QString title = QStringLiteral("untouched");
        QCOMPARE(page.getWSDefaultTitle(line, title), expected != "untouched");
        QCOMPARE(title, expected);
    }

    void focusMessage_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("boxes");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::newRow("forward form, type 0") << 1 << 0 << 1 << "Forward form" << "to type";
        QTest::newRow("forward form, type 2 drops two characters") << 1 << 2 << 1 << "Forward form" << " type";
        QTest::newRow("worksheet, type 3") << 2 << 3 << 1 << "worksheet" << "field";
        QTest::newRow("worksheet, type past the text") << 2 << 8 << 1 << "worksheet" << "";
        QTest::newRow("no forward") << 0 << 0 << 0 << "" << "";
    }

    void focusMessage()
    {
        QFETCH(int, mode);
        QFETCH(int, type);
        QFETCH(int, boxes);
        QFETCH(QString, title);
        QFETCH(QString, text);
        TestPage page(nullptr, nullptr);
        if (mode == 1)
            page.nameEdit->setForwardFormType(type);
        else if (mode == 2)
            page.nameEdit->setWorksheetType(type);
        ModalWatch watch;
        page.onFocussed(true, page.nameEdit);
        QCOMPARE(watch.seen, boxes);
        QCOMPARE(watch.title, title);
        QCOMPARE(watch.text, text);

        // Focus coming back from the box shows nothing; the next real focus does.
        page.onFocussed(true, page.nameEdit);
        QCOMPARE(watch.seen, boxes);
        page.onFocussed(false, page.nameEdit);
        page.onFocussed(true, nullptr);
        QCOMPARE(watch.seen, boxes);
        page.onFocussed(true, page.nameEdit);
        QCOMPARE(watch.seen, 2 * boxes);
    }

    void amountFilterSelectsZero_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("selected");
        QTest::newRow("0") << "0" << true;
        QTest::newRow("0.00") << "0.00" << true;
        QTest::newRow("0.0000") << "0.0000" << true;
        QTest::newRow("0.0 is not a shown zero") << "0.0" << false;
        QTest::newRow("an amount") << "12.00" << false;
    }

    void amountFilterSelectsZero()
    {
        QFETCH(QString, text);
        QFETCH(bool, selected);
        DoubleLineEdit edit;
        ActionOnEvent action(5, &edit);
        action.installOn(&edit);
        edit.setText(text);
        edit.deselect();
        QFocusEvent focusIn(QEvent::FocusIn);
        QCoreApplication::sendEvent(&edit, &focusIn);
        QCOMPARE(edit.hasSelectedText(), selected);
    }

    void scrollTaxForm()
    {
        auto *content = new QWidget;
        ScrollTaxForm area(QStringLiteral("#ffffee"), nullptr, content);
        QCOMPARE(area.getCtntWgt(), content);
        QCOMPARE(area.widget(), content);
        QVERIFY(area.widgetResizable());
        QCOMPARE(area.styleSheet(), QStringLiteral("background:#ffffee"));
        QCOMPARE(area.verticalScrollBar()->styleSheet(), QStringLiteral("background: #e0e0e0;"));
        area.setBKColor(QStringLiteral("white"));
        QCOMPARE(area.styleSheet(), QStringLiteral("background:white"));
    }

    void entityEntry_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("govID");
        QTest::addColumn<QString>("expectedID");
        QTest::addColumn<QString>("typeName");
        QTest::addColumn<QString>("name");
        QTest::newRow("person") << 1 << "Ann" << "" << "000000000" << "(person)" << "Ann Smith";
        QTest::newRow("person without first name") << 1 << "" << "" << "000000000" << "(person)" << "Smith";
        QTest::newRow("kind 0 is named like a person") << 0 << "Ann" << "" << "987654321" << "(person)"
                                                       << "Ann Smith";
        QTest::newRow("corporation") << 2 << "Acme Ltd" << "" << "123456789" << "(corporation)" << "Acme Ltd";
        QTest::newRow("partnership") << 4 << "A&B" << "" << "987654321" << "(partnership)" << "A&B";
        QTest::newRow("trust") << 8 << "Family Trust" << "" << "T12345678" << "(trust)" << "Family Trust";
        QTest::newRow("given identifier kept") << 8 << "T" << "T99999999" << "T99999999" << "(trust)" << "T";
    }

    void entityEntry()
    {
        QFETCH(int, type);
        QFETCH(QString, first);
        QFETCH(QString, govID);
        QFETCH(QString, expectedID);
        QFETCH(QString, typeName);
        QFETCH(QString, name);
        EntityEntry entry(1);
        entry.update(first, QStringLiteral("Smith"), type, govID, QStringLiteral("1 Main St"), QString(), QString(),
                     QStringLiteral("K1A 0B1"), QStringLiteral("a@b.ca"), QStringLiteral("613-555-0100"));
        QCOMPARE(entry.getGovID(), expectedID);
        QCOMPARE(entry.getEntityTypeName(), typeName);
        QCOMPARE(entry.getName(), name);
        QCOMPARE(entry.isTrust(), type == 8);
        QCOMPARE(entry.isPerson(), type == 1);
    }
};

QTEST_MAIN(tst_TaxPage)
#include "tst_taxpage.moc"
