// The --gui entry of the sample: the desktop application, or a picture of
// it for scripts.

#include "samplegui.h"

#include "samplereturn.h"
#include "samplewindow.h"

#include <LibControl/forms/taxformtype.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QPixmap>
#include <QTextStream>

#include <cstring>

namespace {

constexpr int GrabWidth = 1200;
constexpr int GrabHeight = 800;

struct GuiOptions
{
    QString open;
    QString save;
    QString grab;
    int form = FORM_T1GENERAL;
};

bool parseOptions(QStringList const &arguments, GuiOptions &options, QString &error)
{
    QCommandLineParser parser;
    QCommandLineOption const gui(QStringLiteral("gui"));
    QCommandLineOption const open(QStringLiteral("open"), QString(), QStringLiteral("FILE"));
    QCommandLineOption const save(QStringLiteral("save"), QString(), QStringLiteral("FILE"));
    QCommandLineOption const grab(QStringLiteral("grab"), QString(), QStringLiteral("FILE"));
    QCommandLineOption const form(QStringLiteral("form"), QString(), QStringLiteral("t1|s4"));
    parser.addOptions({ gui, open, save, grab, form });
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return false;
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = QStringLiteral("unexpected argument %1").arg(parser.positionalArguments().first());
        return false;
    }
    QString const formName = parser.value(form);
    if (formName == QLatin1String("s4"))
        options.form = FORM_WS_SCHEDULE4;
    else if (!formName.isEmpty() && formName != QLatin1String("t1")) {
        error = QStringLiteral("unknown form %1 (t1 or s4)").arg(formName);
        return false;
    }
    options.open = parser.value(open);
    options.save = parser.value(save);
    options.grab = parser.value(grab);
    return true;
}

std::unique_ptr<SampleReturn> exampleReturn()
{
    auto ret = std::make_unique<SampleReturn>();
    ret->fillExample();
    ret->t1.Calculate();
    return ret;
}

bool grabWindow(SampleWindow &window, QString const &path)
{
    window.resize(GrabWidth, GrabHeight);
    window.show();
    QApplication::processEvents();
    // No caret in the picture.
    if (QWidget *focused = QApplication::focusWidget())
        focused->clearFocus();
    return window.grab().save(path, "PNG");
}

// Looked up before any application object exists, so before Qt parses the line.
bool hasOption(int argc, char *argv[], char const *option)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], option) == 0)
            return true;
    }
    return false;
}

} // namespace

bool sampleGuiWanted(int argc, char *argv[])
{
    return hasOption(argc, argv, "--gui");
}

int runSampleGui(int argc, char *argv[])
{
    // A picture needs no display.
    if (hasOption(argc, argv, "--grab") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Process-wide switch, as in the command-line run.
    CStringField::setLargeSizeSerializeOption(SampleReturn::ArchiveVersion, 256);

    QApplication app(argc, argv);
    QTextStream err(stderr);
    GuiOptions options;
    QString error;
    if (!parseOptions(app.arguments(), options, error)) {
        err << "sample-return: " << error << '\n';
        return 2;
    }
    SampleWindow window(exampleReturn());
    if (!options.open.isEmpty() && !window.openFile(options.open, &error)) {
        err << "sample-return: cannot open " << options.open << ": " << error << '\n';
        return 1;
    }
    window.showForm(options.form);
    if (!options.save.isEmpty() && !window.saveFile(options.save, &error)) {
        err << "sample-return: cannot save " << options.save << ": " << error << '\n';
        return 1;
    }
    if (!options.grab.isEmpty()) {
        if (!grabWindow(window, options.grab)) {
            err << "sample-return: cannot write " << options.grab << '\n';
            return 1;
        }
        return 0;
    }
    window.show();
    return app.exec();
}
