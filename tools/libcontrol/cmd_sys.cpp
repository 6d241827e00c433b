// Services commands: file digests in the coreutils checksum format and a
// demonstration of the configuration reader.

#include "commands.h"

#include <LibControl/services/appconfig.h>
#include <LibControl/services/sha1.h>
#include <LibControl/services/sha256.h>

#include <QFile>

#include <cstdio>
#include <vector>

namespace {

// Large files are hashed as they are read, never held whole.
qint64 const ChunkSize = qint64(1) << 20;

// The checksum tools' convention: a name holding a backslash or a line
// break is written escaped, and its line starts with a backslash.
QString checksumLine(std::string const &hex, QString const &name)
{
    if (!name.contains(QLatin1Char('\\')) && !name.contains(QLatin1Char('\n')) && !name.contains(QLatin1Char('\r')))
        return QStringLiteral("%1  %2").arg(QString::fromStdString(hex), name);
    QString escaped = name;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\n'), QLatin1String("\\n"))
        .replace(QLatin1Char('\r'), QLatin1String("\\r"));
    return QStringLiteral("\\%1  %2").arg(QString::fromStdString(hex), escaped);
}

template<class Hash>
bool hashDevice(QFile &file, std::string &hex)
{
    Hash hash;
    std::vector<char> chunk(static_cast<size_t>(ChunkSize));
    for (;;) {
        qint64 const got = file.read(chunk.data(), ChunkSize);
        if (got < 0)
            return false;
        if (got == 0)
            break;
        hash.add(chunk.data(), size_t(got));
    }
    hex = hash.getHash();
    return true;
}

template<class Hash>
int digestCommand(Tool::Context &ctx, char const *command)
{
    if (ctx.args.isEmpty())
        return Tool::usageError(ctx, command, QStringLiteral("expects FILE... (- for standard input)"));
    int status = Tool::Ok;
    for (QString const &name : ctx.args) {
        QFile file(name);
        bool const opened = name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                        : file.open(QIODevice::ReadOnly);
        std::string hex;
        if (!opened || !hashDevice<Hash>(file, hex)) {
            ctx.err << "libcontrol " << command << ": " << name << ": " << file.errorString() << '\n';
            status = Tool::Failed;
            continue;
        }
        ctx.out << checksumLine(hex, name) << '\n';
    }
    return status;
}

// What an application's configuration could hold; shows which settings a
// file set and what the reader made of the platform.
class DemoConfig : public CAppConfig
{
public:
    DemoConfig()
    {
        registerString("UpdateServer", &updateServer);
        registerString("DataFolder", &dataFolder);
        registerString("Language", &language);
        registerBool("AutoUpdate", &autoUpdate);
        registerBool("UseProxy", &useProxy);
    }

    CString updateServer;
    CString dataFolder;
    CString language;
    bool autoUpdate = false;
    bool useProxy = false;

protected:
    void afterReadConfigFile() override { setStringValIfNotSet(language, "en"); }
};

char const *osName(int type)
{
    switch (type) {
    case 0:
        return "Windows";
    case 2:
        return "macOS";
    default:
        return "Linux";
    }
}

} // namespace

namespace Tool {

int sha1Command(Context &ctx)
{
    return digestCommand<SHA1>(ctx, "sha1");
}

int sha256Command(Context &ctx)
{
    return digestCommand<SHA256>(ctx, "sha256");
}

int configCommand(Context &ctx)
{
    if (ctx.args.size() != 1)
        return usageError(ctx, "config", QStringLiteral("expects FILE"));
    DemoConfig config;
    if (!config.readConfigFile(QFile::encodeName(ctx.args.first()).constData())) {
        ctx.err << "libcontrol config: cannot read " << ctx.args.first() << '\n';
        return Failed;
    }
    auto yesNo = [](bool value) { return value ? "yes" : "no"; };
    ctx.out << "Platform: \"" << config.getPlatform() << "\"\n"
            << "operating-system type: " << config.getOSType() << " (" << osName(config.getOSType()) << ")\n"
            << "UpdateServer: \"" << config.updateServer << "\"\n"
            << "DataFolder: \"" << config.dataFolder << "\"\n"
            << "Language: \"" << config.language << "\"\n"
            << "AutoUpdate: " << yesNo(config.autoUpdate) << '\n'
            << "UseProxy: " << yesNo(config.useProxy) << '\n';
    return Ok;
}

} // namespace Tool
