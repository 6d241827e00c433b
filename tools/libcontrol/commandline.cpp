#include "commandline.h"

#include <QLocale>

namespace Tool {

int usageError(Context &ctx, char const *command, QString const &message)
{
    ctx.err << "libcontrol " << command << ": " << message << '\n';
    return Usage;
}

bool parseDouble(Context &ctx, char const *command, QString const &text, double &value)
{
    bool ok = false;
    value = QLocale::c().toDouble(text, &ok);
    if (!ok)
        usageError(ctx, command, QStringLiteral("not a number: \"%1\"").arg(text));
    return ok;
}

bool parseInt(Context &ctx, char const *command, QString const &text, int &value)
{
    bool ok = false;
    value = QLocale::c().toInt(text, &ok);
    if (!ok)
        usageError(ctx, command, QStringLiteral("not an integer: \"%1\"").arg(text));
    return ok;
}

} // namespace Tool
