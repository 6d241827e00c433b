#ifndef LIBCONTROL_TOOLS_COMMANDLINE_H
#define LIBCONTROL_TOOLS_COMMANDLINE_H

#include <QStringList>
#include <QTextStream>

namespace Tool {

/** Exit codes of the tool. */
enum Exit { Ok = 0, Refused = 1, Usage = 2, Failed = 3 };

/** What a command gets: its own arguments and the two output streams. */
struct Context
{
    QStringList args;
    QTextStream &out;
    QTextStream &err;
};

using Handler = int (*)(Context &);

/** One row of the command table. */
struct Command
{
    char const *name;
    char const *synopsis;
    char const *summary;
    Handler run;
};

/** Prints "libcontrol <command>: <message>" on the error stream and returns Usage. */
int usageError(Context &ctx, char const *command, QString const &message);
/** Parses a number or reports it; the whole text must be a C-locale number. */
bool parseDouble(Context &ctx, char const *command, QString const &text, double &value);
bool parseInt(Context &ctx, char const *command, QString const &text, int &value);

} // namespace Tool

#endif
