// The sample return's window: lines carried from another form open it,
// edits recalculate every page, and what is saved opens again as it was.

#include "../widgets/modalhelper.h"
#include "samplepage.h"
#include "samplereturn.h"
#include "samplewindow.h"

#include <LibControl/forms/taxformtype.h>
#include <LibControl/widgets/doublelineedit.h>

#include <QCheckBox>
#include <QDialog>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <set>

namespace {

std::unique_ptr<SampleReturn> exampleReturn()
{
    auto ret = std::make_unique<SampleReturn>();
    ret->fillExample();
    ret->t1.Calculate();
    return ret;
}

DoubleLineEdit *amount(SampleWindow &window, int form, QString const &name)
{
    BaseTaxPage *page = window.page(form);
    return page ? page->findChild<DoubleLineEdit *>(name) : nullptr;
}

// Delivers the worksheet request to the page, then whatever the page posts.
void deliverPostedEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void typeAmount(DoubleLineEdit *edit, QString const &text)
{
    edit->clear();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

int distinctColours(QImage const &image)
{
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4) {
        for (int x = 0; x < image.width(); x += 4)
            colours.insert(image.pixel(x, y));
    }
    return int(colours.size());
}

} // namespace

class tst_SampleWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void forwardLineOpensItsForm_data();
    void forwardLineOpensItsForm();
    void worksheetLineOpensItsWorksheet_data();
    void worksheetLineOpensItsWorksheet();
    void editRecalculatesEveryPage_data();
    void editRecalculatesEveryPage();
    void openShowsSavedReturn_data();
    void openShowsSavedReturn();
    void grabWritesPicture_data();
    void grabWritesPicture();
    void scriptedOpenAndSaveKeepTheReturn();
};

void tst_SampleWindow::initTestCase()
{
    CStringField::setLargeSizeSerializeOption(SampleReturn::ArchiveVersion, 256);
}

void tst_SampleWindow::forwardLineOpensItsForm_data()
{
    QTest::addColumn<int>("startForm");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<int>("shownForm");
    QTest::newRow("click on dividends opens schedule 4")
        << int(FORM_T1GENERAL) << "fld_12000" << false << int(FORM_WS_SCHEDULE4);
    QTest::newRow("key on interest opens schedule 4")
        << int(FORM_T1GENERAL) << "fld_12100" << true << int(FORM_WS_SCHEDULE4);
    QTest::newRow("total income on schedule 4 returns to the T1")
        << int(FORM_WS_SCHEDULE4) << "fld_15000" << false << int(FORM_T1GENERAL);
    QTest::newRow("click on an input line stays") << int(FORM_T1GENERAL) << "fld_10100" << false << int(FORM_T1GENERAL);
    QTest::newRow("click on a computed line stays")
        << int(FORM_T1GENERAL) << "fld_15000" << false << int(FORM_T1GENERAL);
}

void tst_SampleWindow::forwardLineOpensItsForm()
{
    QFETCH(int, startForm);
    QFETCH(QString, line);
    QFETCH(bool, byKey);
    QFETCH(int, shownForm);

    SampleWindow window(exampleReturn());
    QVERIFY(window.showForm(startForm));
    DoubleLineEdit *edit = amount(window, startForm, line);
    QVERIFY(edit);
    if (byKey)
        QTest::keyClick(edit, Qt::Key_5);
    else
        QTest::mouseClick(edit, Qt::LeftButton);
    deliverPostedEvents();
    QCOMPARE(window.currentForm(), shownForm);
}

void tst_SampleWindow::worksheetLineOpensItsWorksheet_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("tick");
    QTest::addColumn<QString>("expected");
    // The example's taxpayer is 41, so no age amount and no disability supplement.
    QTest::newRow("age amount") << "fld_30100"
                                << "Federal Age Amount Worksheet" << QString() << "0.00";
    QTest::newRow("caregiver for the infirm child") << "fld_30450"
                                                    << "Caregiver Amount" << QString() << "8601.00";
    QTest::newRow("disability left unclaimed") << "fld_31600"
                                               << "Disability Amount for Self" << QString() << "0.00";
    QTest::newRow("disability claimed on the worksheet") << "fld_31600"
                                                         << "Disability Amount for Self"
                                                         << "fld_ws5844_claim"
                                                         << "10138.00";
}

void tst_SampleWindow::worksheetLineOpensItsWorksheet()
{
    QFETCH(QString, line);
    QFETCH(QString, title);
    QFETCH(QString, tick);
    QFETCH(QString, expected);

    SampleWindow window(exampleReturn());
    DoubleLineEdit *edit = amount(window, FORM_T1GENERAL, line);
    QVERIFY(edit);
    QString shownTitle;
    whenModal([&](QWidget *modal) {
        shownTitle = modal->windowTitle();
        if (auto *box = tick.isEmpty() ? nullptr : modal->findChild<QCheckBox *>(tick))
            box->setChecked(true);
        static_cast<QDialog *>(modal)->accept();
    });
    QTest::mouseClick(edit, Qt::LeftButton);
    deliverPostedEvents();
    QCOMPARE(shownTitle, title);
    QCOMPARE(edit->text(), expected);
    QCOMPARE(window.currentForm(), int(FORM_T1GENERAL));
}

void tst_SampleWindow::editRecalculatesEveryPage_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("shownForm");
    QTest::addColumn<QString>("shownLine");
    QTest::addColumn<QString>("expected");
    // The example: employment 78450.00, dividends 1150.00, interest 312.48, RRSP 6500.00.
    QTest::newRow("employment income raises total income") << int(FORM_T1GENERAL) << "fld_10100"
                                                           << "80000" << int(FORM_T1GENERAL) << "fld_15000"
                                                           << "81462.48";
    QTest::newRow("RRSP deduction lowers net income") << int(FORM_T1GENERAL) << "fld_20800"
                                                      << "10000" << int(FORM_T1GENERAL) << "fld_23600"
                                                      << "69912.48";
    QTest::newRow("schedule dividends reach the T1 line") << int(FORM_WS_SCHEDULE4) << "fld_12000"
                                                          << "2000" << int(FORM_T1GENERAL) << "fld_12000"
                                                          << "2000.00";
    QTest::newRow("schedule interest reaches the T1 total") << int(FORM_WS_SCHEDULE4) << "fld_12100"
                                                            << "0" << int(FORM_T1GENERAL) << "fld_15000"
                                                            << "79600.00";
    QTest::newRow("T1 total shows on the schedule") << int(FORM_T1GENERAL) << "fld_10100"
                                                    << "0" << int(FORM_WS_SCHEDULE4) << "fld_15000"
                                                    << "1462.48";
}

void tst_SampleWindow::editRecalculatesEveryPage()
{
    QFETCH(int, form);
    QFETCH(QString, line);
    QFETCH(QString, typed);
    QFETCH(int, shownForm);
    QFETCH(QString, shownLine);
    QFETCH(QString, expected);

    SampleWindow window(exampleReturn());
    window.showForm(form);
    DoubleLineEdit *edit = amount(window, form, line);
    QVERIFY(edit);
    typeAmount(edit, typed);
    DoubleLineEdit *shown = amount(window, shownForm, shownLine);
    QVERIFY(shown);
    QCOMPARE(shown->text(), expected);
}

void tst_SampleWindow::openShowsSavedReturn_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<QString>("employment");
    QTest::newRow("saved file") << QByteArray() << true << "81234.56";
    QTest::newRow("truncated file keeps the shown return") << QByteArray("\x04\x03") << false << "78450.00";
}

void tst_SampleWindow::openShowsSavedReturn()
{
    QFETCH(QByteArray, damage);
    QFETCH(bool, opened);
    QFETCH(QString, employment);

    QTemporaryDir dir;
    QString const path = dir.filePath(QStringLiteral("edited.r25"));
    {
        SampleWindow editor(exampleReturn());
        typeAmount(amount(editor, FORM_T1GENERAL, QStringLiteral("fld_10100")), QStringLiteral("81234.56"));
        QVERIFY(editor.saveFile(path));
    }
    if (!damage.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(damage);
    }

    SampleWindow window(exampleReturn());
    QString error;
    QCOMPARE(window.openFile(path, &error), opened);
    QCOMPARE(error.isEmpty(), opened);
    QCOMPARE(amount(window, FORM_T1GENERAL, QStringLiteral("fld_10100"))->text(), employment);
    QCOMPARE(window.windowTitle().contains(QLatin1String("edited.r25")), opened);
}

void tst_SampleWindow::grabWritesPicture_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("example return") << QStringList() << 0;
    QTest::newRow("schedule page") << QStringList { QStringLiteral("--form"), QStringLiteral("s4") } << 0;
    QTest::newRow("unknown form") << QStringList { QStringLiteral("--form"), QStringLiteral("s9") } << 2;
}

void tst_SampleWindow::grabWritesPicture()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);

    QTemporaryDir dir;
    QString const picture = dir.filePath(QStringLiteral("window.png"));
    QProcess sample;
    sample.start(QStringLiteral(SAMPLE_RETURN_EXE),
        QStringList { QStringLiteral("--gui"), QStringLiteral("--grab"), picture } + arguments);
    QVERIFY(sample.waitForFinished(60000));
    QCOMPARE(sample.exitCode(), exitCode);
    QImage const image(picture);
    QCOMPARE(image.isNull(), exitCode != 0);
    if (exitCode != 0)
        return;
    QCOMPARE(image.size(), QSize(1200, 800));
    // A blank or single-colour picture means nothing was drawn.
    QVERIFY2(distinctColours(image) > 16, qPrintable(QString::number(distinctColours(image))));
}

void tst_SampleWindow::scriptedOpenAndSaveKeepTheReturn()
{
    QTemporaryDir dir;
    auto path = [&dir](char const *name) { return dir.filePath(QLatin1String(name)); };
    auto run = [](QStringList const &arguments) {
        QProcess sample;
        sample.start(QStringLiteral(SAMPLE_RETURN_EXE), QStringList { QStringLiteral("--gui") } + arguments);
        return sample.waitForFinished(60000) && sample.exitStatus() == QProcess::NormalExit ? sample.exitCode() : -1;
    };
    std::unique_ptr<SampleReturn> edited = exampleReturn();
    edited->t1.fld_10100_Employment = 81234.56;
    edited->t1.Calculate();
    QVERIFY(edited->save(path("edited.r25")));

    QCOMPARE(run({ "--open", path("edited.r25"), "--save", path("copy.r25"), "--grab", path("edited.png") }), 0);
    QCOMPARE(run({ "--grab", path("example.png") }), 0);
    QCOMPARE(run({ "--open", path("missing.r25"), "--grab", path("missing.png") }), 1);

    QFile original(path("edited.r25"));
    QFile copy(path("copy.r25"));
    QVERIFY(original.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), original.readAll());
    QImage const shown(path("edited.png"));
    QVERIFY(!shown.isNull());
    QVERIFY(shown != QImage(path("example.png")));
    QVERIFY(!QFile::exists(path("missing.png")));
}

QTEST_MAIN(tst_SampleWindow)
#include "tst_samplewindow.moc"
