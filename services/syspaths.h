#ifndef LIBCONTROL_SERVICES_SYSPATHS_H
#define LIBCONTROL_SERVICES_SYSPATHS_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <QString>

#include <string>

/**
 * The shared-library file name of module `name`: every "_nonresi" is
 * removed and the rest is put in "lib%1.so" (so "t1_nonresi" gives
 * "libt1.so"). The result replaces `out`.
 */
LIBCONTROL_EXPORT void getOSLibFilename(QString const &name, QString &out);

/**
 * Creates the folder `path` and every missing parent; true when it exists
 * afterwards. The path is taken from the root folder, so a relative path
 * lands under "/", not under the working folder.
 */
LIBCONTROL_EXPORT bool makeFolderExists(CString const &path);

/**
 * Opens the desktop's file manager on `path` when it is a folder, else on
 * the folder that contains it (which need not exist). Returns what
 * QDesktopServices::openUrl returns; needs a QGuiApplication.
 */
LIBCONTROL_EXPORT bool showInFolder(QString const &path);

/**
 * A description of the system for support and licensing:
 * "<product type><product version>+<build ABI>+<processor architecture>",
 * for example "debian12+x86_64-little_endian-lp64+x86_64". The result
 * replaces `out`; `reserved` is not used.
 */
LIBCONTROL_EXPORT void getSysUID(QString &out, int reserved = 0);

/** The name of the folder of builds made with the Qt version in use: "Q59". */
LIBCONTROL_EXPORT QString getQTBuildFolderNameVerStr();

/**
 * Reads the whole file at `path` and decodes it as UTF-8 into `out` (a
 * leading byte-order mark is dropped; malformed bytes become U+FFFD).
 * Returns false, leaving `out` unchanged, when the file cannot be opened.
 * `reserved` is not used.
 */
LIBCONTROL_EXPORT bool loadFileToQString(char const *path, QString &out, int reserved = 0);

/**
 * Appends every line of the text file at `path` to `out` as UTF-8, each
 * followed by "\n" (the last one too; "\r\n" endings become "\n"). The file
 * is read as UTF-8 unless a Unicode byte-order mark says otherwise; the mark
 * itself is not copied. Returns 0, or 107 when the file cannot be opened
 * (then `out` is unchanged). `reserved1` and `reserved2` are not used.
 */
LIBCONTROL_EXPORT int loadFileToString(CString const &path, std::string &out, int reserved1 = 0,
                                       int reserved2 = 0);

/**
 * Appends the user's documents folder, the home folder followed by
 * "/Documents", to `out`. The Windows path and the other arguments are
 * accepted and deliberately ignored: documents live in one place here.
 */
LIBCONTROL_EXPORT void formatWinDocPathToMacPath(CString &out, CString const &winPath, char const *reserved1 = nullptr,
                                                 int reserved2 = 0);

#endif
