// The gallery command: the pictures it writes, the index that names them,
// and how it refuses bad arguments.

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <set>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run runGallery(QStringList const &arguments)
{
    QProcess tool;
    tool.start(QStringLiteral(LIBCONTROL_TOOL), QStringList { QStringLiteral("gallery") } + arguments);
    Run run;
    if (!tool.waitForFinished(90000) || tool.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = tool.exitCode();
    run.out = QString::fromUtf8(tool.readAllStandardOutput());
    run.err = QString::fromUtf8(tool.readAllStandardError());
    return run;
}

int distinctColours(QImage const &image)
{
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return int(colours.size());
}

} // namespace

class tst_GalleryCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pictures_data();
    void pictures();
    void everyPictureIsListed();
    void refusal_data();
    void refusal();

private:
    QTemporaryDir m_dir;
    Run m_run;
};

void tst_GalleryCommand::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_run = runGallery({ m_dir.path() });
    QCOMPARE(m_run.exitCode, 0);
}

void tst_GalleryCommand::pictures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("minColours");
    QTest::newRow("amount edit") << "widget-doublelineedit-normal.png" << QSize(240, 44) << 3;
    QTest::newRow("amount edit under the mouse") << "widget-doublelineedit-hover.png" << QSize(240, 44) << 3;
    QTest::newRow("line carried from a form") << "widget-stringlineedit-forward.png" << QSize(240, 44) << 3;
    QTest::newRow("date edit without a date") << "widget-styleddateedit-empty.png" << QSize(240, 44) << 3;
    QTest::newRow("province combo box") << "widget-ct1combobox-provinces-normal.png" << QSize(240, 44) << 3;
    QTest::newRow("tax page") << "page-sample.png" << QSize(640, 420) << 8;
    // Worksheet pages in the wizard a tax page opens, with the drawn title bar above.
    QTest::newRow("age amount worksheet") << "worksheet-ageamount.png" << QSize(770, 668) << 8;
    QTest::newRow("spouse's infirm amount worksheet") << "worksheet-infirmdepamt-spousedep.png" << QSize(770, 668) << 8;
    QTest::newRow("dependants as tabs") << "dialog-wsmultidep.png" << QSize(770, 668) << 8;
    QTest::newRow("yes, no, continue dialog") << "dialog-yesnocontinue.png" << QSize() << 8;
    QTest::newRow("question box") << "message-question.png" << QSize() << 8;
}

void tst_GalleryCommand::pictures()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    QFETCH(int, minColours);

    QImage const image(m_dir.filePath(file));
    QVERIFY2(!image.isNull(), qPrintable(file));
    if (size.isValid())
        QCOMPARE(image.size(), size);
    QVERIFY2(distinctColours(image) >= minColours, qPrintable(file));
}

void tst_GalleryCommand::everyPictureIsListed()
{
    QFile index(m_dir.filePath(QStringLiteral("index.html")));
    QVERIFY(index.open(QIODevice::ReadOnly));
    QString const html = QString::fromUtf8(index.readAll());
    QStringList const pictures = QDir(m_dir.path()).entryList({ QStringLiteral("*.png") }, QDir::Files);
    QVERIFY(pictures.size() > 30);
    for (QString const &picture : pictures) {
        QVERIFY2(html.contains(QStringLiteral("src=\"%1\"").arg(picture)), qPrintable(picture));
        QVERIFY2(m_run.out.contains(m_dir.filePath(picture)), qPrintable(picture));
    }
    QVERIFY(m_run.out.endsWith(QStringLiteral("index: %1\n").arg(index.fileName())));
}

void tst_GalleryCommand::refusal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("no folder") << QStringList() << 2;
    QTest::newRow("two folders") << QStringList { QStringLiteral("a"), QStringLiteral("b") } << 2;
    QTest::newRow("folder under a file") << QStringList { QStringLiteral(LIBCONTROL_TOOL "/gallery") } << 3;
}

void tst_GalleryCommand::refusal()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);

    Run const run = runGallery(arguments);
    QCOMPARE(run.exitCode, exitCode);
    // Qt and the sanitizers may add notes of their own around the tool's one-line error.
    QStringList const errors
        = run.err.split(QLatin1Char('\n')).filter(QRegularExpression(QStringLiteral("^libcontrol gallery: ")));
    QCOMPARE(errors.size(), 1);
    QVERIFY(run.out.isEmpty());
}

QTEST_GUILESS_MAIN(tst_GalleryCommand)
#include "tst_gallerycommand.moc"
