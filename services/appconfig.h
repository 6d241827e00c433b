#ifndef LIBCONTROL_SERVICES_APPCONFIG_H
#define LIBCONTROL_SERVICES_APPCONFIG_H

#include <LibControl/common/cstring.h>
#include <LibControl/libcontrol_export.h>

#include <map>
#include <string>

/**
 * Reader of an application's configuration file of "key=value" lines.
 *
 * An application derives from it and, in its constructor, registers the
 * members that receive the values with registerString() and registerBool().
 * The class itself knows one setting, "Platform", which decides the
 * operating-system type (0 Windows, 1 Linux, 2 macOS). Registered members
 * are pointed at, not owned; the object cannot be copied, since a copy
 * would still write into the original's members.
 */
class LIBCONTROL_EXPORT CAppConfig
{
public:
    /** Registers "Platform"; the platform text starts empty and the type at 1 (this build). */
    CAppConfig();
    virtual ~CAppConfig();

    CAppConfig(CAppConfig const &) = delete;
    CAppConfig &operator=(CAppConfig const &) = delete;

    /**
     * Reads the configuration file at `path` (UTF-8; a byte-order mark is
     * recognised) and returns true when it could be opened.
     *
     * Each line is read up to 511 characters; the rest of a longer line is
     * read as a line of its own. A line without "=" is skipped; otherwise
     * the key is the text before the first "=" and the value the text after
     * it, both trimmed. Keys match registered keys ignoring case, string
     * settings first. A boolean becomes true for "true", "yes" or "1" and
     * false for "false", "no" or "0" (any case); any other value leaves it
     * as it was. Unknown keys are ignored. Then the platform text sets the
     * operating-system type ("win" 0, "linux" 1, "mac" 2, any case; empty or
     * other text: the build's own type) and afterReadConfigFile() runs.
     *
     * A file that cannot be opened changes nothing and does not call
     * afterReadConfigFile().
     */
    bool readConfigFile(char const *path);

    /** The operating-system type: 0 Windows, 1 Linux, 2 macOS. */
    int getOSType() const { return m_osType; }
    /** True when the operating-system type is 0 (Windows). */
    bool isPlatformWindows() const;
    /** The value of the "Platform" setting as read (empty when not set). */
    CString const &getPlatform() const { return m_platform; }

protected:
    /**
     * Called at the end of every successful readConfigFile(), after the
     * operating-system type is set; subclasses fill their defaults here.
     * The default does nothing.
     */
    virtual void afterReadConfigFile();

    /**
     * Makes `member` receive the value of string setting `key`. Registering
     * a key again replaces its member; `member` must outlive this object.
     */
    void registerString(char const *key, CString *member);
    /** Makes `member` receive the value of boolean setting `key` (see registerString()). */
    void registerBool(char const *key, bool *member);

    /** Sets the operating-system type of this build (1 on Linux). */
    void privAutoCheckOSType();

    /** Assigns `value` (Latin-1) to `s` only when `s` is empty: a default after reading. */
    static void setStringValIfNotSet(CString &s, char const *value);

private:
    void applySetting(QString const &key, QString const &value);
    void applyPlatform();

    std::map<std::string, CString *> m_stringSettings;
    std::map<std::string, bool *> m_boolSettings;
    int m_osType;
    CString m_platform;
};

#endif
