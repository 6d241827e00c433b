// libcontrol: the library's command-line companion for application
// developers and support staff.

#include "commands.h"

#include <QApplication>

#include <memory>

#include <cstring>

namespace {

using Tool::Command;

// The one command table: new commands get a row here and a function in a
// cmd_*.cpp file.
Command const Commands[] = {
    {"round", "VALUE DECISION", "round an amount by decision code (0, 2, 4, 5, 6)", Tool::roundCommand},
    {"amount", "VALUE [DECIMALS]", "an amount as the forms print it", Tool::amountCommand},
    {"percent", "netfile|at1 VALUE DECIMALS", "a percentage as the Netfile or AT1 record writes it",
     Tool::percentCommand},
    {"address", "COUNTRY PROVINCE CITY LINE1 LINE2 POSTAL", "the 104-character corporate address block",
     Tool::addressCommand},

    // Checks and catalogues
    {"check", "sin|bn|gst|trust|partnership|taxshelter|nisapin|postal|zip|phone|email VALUE...",
     "check identifiers, postal codes, phone numbers or e-mail addresses; exit 1 when any is refused",
     Tool::checkCommand},
    {"forms", "[--province CODE] [--mandatory KINDS]",
     "the form catalogue with its marks; --province CODE (AB ... YT) applies that province's rules and hides the "
     "other provinces' forms; --mandatory KINDS lists only the forms mandatory for KINDS, the bit mask of return "
     "kinds (1, 2 or 3; the M mark uses 3 without it)",
     Tool::formsCommand},


    // Worksheets and calculators
    {"postcode", "CODE...", "the province of each postal code (from its first three characters)",
     Tool::postcodeCommand},
    {"tax", "--bracket THRESHOLD:RATE:BASE ... INCOME", "tax on an income over a bracket schedule",
     Tool::taxCommand},

    // Form files and outputs
    {"inspect", "FILE --key KEY [--xml]", "list the form blocks of a return file with their fields", Tool::inspectCommand},
    {"diff", "OLD NEW --key KEY", "the fields that differ between the form blocks of two files", Tool::diffCommand},


    // Services
    {"sha1", "FILE...", "SHA-1 digests in the sha1sum format (- for standard input)", Tool::sha1Command},
    {"sha256", "FILE...", "SHA-256 digests in the sha256sum format (- for standard input)", Tool::sha256Command},
    {"config", "FILE", "read a configuration file into a sample application's settings", Tool::configCommand},
    {"serve", "PORT", "listen on 127.0.0.1:PORT and show each connection's bytes as they accumulate",
     Tool::serveCommand},
    {"http", "get|post URL [NAME=VALUE...]", "send a GET or a form POST and print the reply body (60 s limit)",
     Tool::httpCommand},

    // Gallery
    {"gallery", "DIR",
     "render every field widget in its states, a tax page, the worksheet pages and the dialogs to DIR/*.png, "
     "with DIR/index.html showing them all (off screen unless QT_QPA_PLATFORM is set)",
     Tool::galleryCommand},


};

void printHelp(QTextStream &out)
{
    out << "Usage: libcontrol COMMAND [ARGUMENTS...]\n\nCommands:\n";
    for (Command const &command : Commands) {
        out << "  " << command.name << ' ' << command.synopsis << '\n'
            << "      " << command.summary << '\n';
    }
    out << "\nlibcontrol --help shows this list.\n";
}

// Only the gallery draws; every other command runs without a display.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char *argv[])
{
    if (argc > 1 && std::strcmp(argv[1], "gallery") == 0) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char *argv[])
{
    std::unique_ptr<QCoreApplication> const application = makeApplication(argc, argv);
    QCoreApplication &app = *application;
    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args = app.arguments().mid(1);
    if (args.isEmpty() || args.first() == QLatin1String("--help") || args.first() == QLatin1String("-h")) {
        printHelp(out);
        return args.isEmpty() ? Tool::Usage : Tool::Ok;
    }
    QString const name = args.takeFirst();
    for (Command const &command : Commands) {
        if (name == QLatin1String(command.name)) {
            Tool::Context ctx{args, out, err};
            return command.run(ctx);
        }
    }
    err << "libcontrol: unknown command \"" << name << "\" (see libcontrol --help)\n";
    return Tool::Usage;
}
