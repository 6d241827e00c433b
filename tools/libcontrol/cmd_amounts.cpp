// Amount, percentage and address-block commands.

#include "commands.h"

#include <LibControl/common/utilities.h>

namespace Tool {

int roundCommand(Context &ctx)
{
    if (ctx.args.size() != 2)
        return usageError(ctx, "round", QStringLiteral("expects VALUE DECISION"));
    double value = 0;
    int decision = 0;
    if (!parseDouble(ctx, "round", ctx.args[0], value) || !parseInt(ctx, "round", ctx.args[1], decision))
        return Usage;
    ctx.out << QString::number(RoundFloatAtDecision(value, decision), 'g', 17) << '\n';
    return Ok;
}

int amountCommand(Context &ctx)
{
    if (ctx.args.isEmpty() || ctx.args.size() > 2)
        return usageError(ctx, "amount", QStringLiteral("expects VALUE [DECIMALS]"));
    double value = 0;
    int decimals = 0;
    if (!parseDouble(ctx, "amount", ctx.args[0], value))
        return Usage;
    if (ctx.args.size() == 2 && !parseInt(ctx, "amount", ctx.args[1], decimals))
        return Usage;
    CString text;
    myDoubleToString(value, decimals, text);
    ctx.out << '"' << text << "\"\n";
    return Ok;
}

int percentCommand(Context &ctx)
{
    if (ctx.args.size() != 3)
        return usageError(ctx, "percent", QStringLiteral("expects netfile|at1 VALUE DECIMALS"));
    QString const format = ctx.args[0];
    if (format != QLatin1String("netfile") && format != QLatin1String("at1"))
        return usageError(ctx, "percent", QStringLiteral("unknown format \"%1\"").arg(format));
    double value = 0;
    int decimals = 0;
    if (!parseDouble(ctx, "percent", ctx.args[1], value) || !parseInt(ctx, "percent", ctx.args[2], decimals))
        return Usage;
    CString text;
    if (format == QLatin1String("netfile"))
        GetPercentStringForNetfile(value, decimals, text);
    else
        GetPercentStringForAT1(value, decimals, text);
    ctx.out << text << '\n';
    return Ok;
}

int addressCommand(Context &ctx)
{
    if (ctx.args.size() != 6)
        return usageError(ctx, "address", QStringLiteral("expects COUNTRY PROVINCE CITY LINE1 LINE2 POSTAL"));
    std::string parts[6];
    for (int i = 0; i < 6; ++i)
        parts[i] = ctx.args[i].toLatin1().toStdString();
    CString block;
    formatStringToT2AddrIn104Letters(block, parts[0].c_str(), parts[1].c_str(), parts[2].c_str(), parts[3].c_str(),
                                     parts[4].c_str(), parts[5].c_str());
    CString print;
    formatStringToT2AddrForPrint(print, parts[0].c_str(), parts[1].c_str(), parts[2].c_str(), parts[3].c_str(),
                                 parts[4].c_str(), parts[5].c_str());
    ctx.out << "block (" << block.GetLength() << " characters):\n|" << block << "|\n"
            << "columns: line 1 [1-30], line 2 [31-60], city [61-90], province [91-92], country [93-94], "
               "postal code [95-104]\n"
            << "print form: " << print << '\n';
    return Ok;
}

} // namespace Tool
