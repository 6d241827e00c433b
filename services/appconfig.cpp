#include <LibControl/services/appconfig.h>

#include <QFile>
#include <QTextStream>

namespace {

// The file is read through a 512-byte line buffer in the format's
// tradition: 511 characters, the rest of a longer line comes next.
int const MaxLineLength = 511;

bool matchesKey(QString const &key, std::string const &registered)
{
    return key.compare(QString::fromUtf8(registered.c_str()), Qt::CaseInsensitive) == 0;
}

bool matchesAny(QString const &value, std::initializer_list<char const *> spellings)
{
    for (char const *spelling : spellings) {
        if (value.compare(QLatin1String(spelling), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

CAppConfig::CAppConfig()
    : m_osType(1)
{
    privAutoCheckOSType();
    registerString("Platform", &m_platform);
}

CAppConfig::~CAppConfig() = default;

bool CAppConfig::readConfigFile(char const *path)
{
    if (!path || !*path)
        return false;
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QTextStream in(&file);
    in.setCodec("UTF-8");
    while (!in.atEnd()) {
        QString const line = in.readLine(MaxLineLength);
        int const equals = line.indexOf(QLatin1Char('='));
        if (equals >= 0)
            applySetting(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    applyPlatform();
    afterReadConfigFile();
    return true;
}

void CAppConfig::applySetting(QString const &key, QString const &value)
{
    for (auto const &setting : m_stringSettings) {
        if (matchesKey(key, setting.first)) {
            *setting.second = value;
            return;
        }
    }
    for (auto const &setting : m_boolSettings) {
        if (!matchesKey(key, setting.first))
            continue;
        if (matchesAny(value, {"true", "yes", "1"}))
            *setting.second = true;
        else if (matchesAny(value, {"false", "no", "0"}))
            *setting.second = false;
        return;
    }
}

void CAppConfig::applyPlatform()
{
    if (m_platform.compare(QLatin1String("mac"), Qt::CaseInsensitive) == 0)
        m_osType = 2;
    else if (m_platform.compare(QLatin1String("win"), Qt::CaseInsensitive) == 0)
        m_osType = 0;
    else if (m_platform.compare(QLatin1String("linux"), Qt::CaseInsensitive) == 0)
        m_osType = 1;
    else
        privAutoCheckOSType();
}

bool CAppConfig::isPlatformWindows() const
{
    return m_osType == 0;
}

void CAppConfig::afterReadConfigFile()
{
}

void CAppConfig::registerString(char const *key, CString *member)
{
    m_stringSettings[key] = member;
}

void CAppConfig::registerBool(char const *key, bool *member)
{
    m_boolSettings[key] = member;
}

void CAppConfig::privAutoCheckOSType()
{
#if defined(Q_OS_WIN)
    m_osType = 0;
#elif defined(Q_OS_MACOS)
    m_osType = 2;
#else
    m_osType = 1;
#endif
}

void CAppConfig::setStringValIfNotSet(CString &s, char const *value)
{
    if (s.IsEmpty())
        s = value;
}
