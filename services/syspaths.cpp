#include <LibControl/services/syspaths.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QTextStream>
#include <QUrl>

void getOSLibFilename(QString const &name, QString &out)
{
    QString module = name;
    module.remove(QStringLiteral("_nonresi"));
    out = QStringLiteral("lib%1.so").arg(module);
}

bool makeFolderExists(CString const &path)
{
    return QDir(QDir::rootPath()).mkpath(path);
}

bool showInFolder(QString const &path)
{
    QFileInfo const info(path);
    QString const folder = info.isDir() ? info.absoluteFilePath() : info.absolutePath();
    return QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

void getSysUID(QString &out, int)
{
    out = QStringLiteral("%1%2+%3+%4")
              .arg(QSysInfo::productType(), QSysInfo::productVersion(), QSysInfo::buildAbi(),
                   QSysInfo::currentCpuArchitecture());
}

QString getQTBuildFolderNameVerStr()
{
    return QStringLiteral("Q59");
}

bool loadFileToQString(char const *path, QString &out, int)
{
    if (!path || !*path)
        return false;
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    out = QString::fromUtf8(file.readAll());
    return true;
}

int loadFileToString(CString const &path, std::string &out, int, int)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return 107;
    QTextStream in(&file);
    in.setCodec("UTF-8");
    QString line;
    while (in.readLineInto(&line)) {
        out += line.toStdString();
        out += '\n';
    }
    return 0;
}

void formatWinDocPathToMacPath(CString &out, CString const &, char const *, int)
{
    out += QDir::homePath() + QStringLiteral("/Documents");
}
