// Reads arbitrary bytes as a configuration file.

#include <LibControl/services/appconfig.h>

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace {

class FuzzConfig : public CAppConfig
{
public:
    FuzzConfig()
    {
        registerString("Server", &server);
        registerString("Folder", &folder);
        registerBool("AutoUpdate", &autoUpdate);
        registerBool("Proxy", &proxy);
    }

    CString server;
    CString folder;
    bool autoUpdate = false;
    bool proxy = true;
    int afterRead = 0;

protected:
    void afterReadConfigFile() override { ++afterRead; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    static QTemporaryDir dir;
    static QByteArray const path = QFile::encodeName(dir.filePath(QStringLiteral("fuzz.ini")));
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<char const *>(data), qint64(size));
    file.close();

    FuzzConfig config;
    if (!config.readConfigFile(path.constData()) || config.afterRead != 1)
        std::abort();
    int const type = config.getOSType();
    if (type < 0 || type > 2 || config.isPlatformWindows() != (type == 0))
        std::abort();
    // No line can hand over more than 511 characters.
    if (config.server.size() > 511 || config.folder.size() > 511 || config.getPlatform().size() > 511)
        std::abort();
    return 0;
}
