// Postal-code and tax-bracket commands.

#include "commands.h"

#include <LibControl/forms/taxformtype.h>
#include <LibControl/worksheets/PostCodeInfo.h>
#include <LibControl/worksheets/taxstairs.h>

namespace Tool {

int postcodeCommand(Context &ctx)
{
    if (ctx.args.isEmpty())
        return usageError(ctx, "postcode", QStringLiteral("expects CODE..."));
    int unknown = 0;
    for (QString const &code : ctx.args) {
        int const province = CPostCodeInfo::GetInstance()->ProvFromPostCode(code.toLatin1().constData());
        if (province == 0) {
            ++unknown;
            ctx.out << code << ": unknown\n";
        } else {
            ctx.out << code << ": " << province << ' ' << Global_Provs_Info[province].code << " ("
                    << Global_Provs_Info[province].name << ")\n";
        }
    }
    return unknown ? Refused : Ok;
}

int taxCommand(Context &ctx)
{
    STRUCT_TAX_STAIRS_JURISDICTION stairs;
    QStringList args = ctx.args;
    double income = 0;
    if (args.size() < 3 || !parseDouble(ctx, "tax", args.takeLast(), income))
        return args.size() < 3 ? usageError(ctx, "tax", QStringLiteral("expects --bracket THRESHOLD:RATE:BASE ... INCOME"))
                               : Usage;
    while (!args.isEmpty()) {
        if (args.takeFirst() != QLatin1String("--bracket") || args.isEmpty())
            return usageError(ctx, "tax", QStringLiteral("expects --bracket THRESHOLD:RATE:BASE ... INCOME"));
        QStringList const parts = args.takeFirst().split(QLatin1Char(':'));
        double values[3] = {0, 0, 0};
        if (parts.size() != 3)
            return usageError(ctx, "tax", QStringLiteral("a bracket is THRESHOLD:RATE:BASE"));
        for (int i = 0; i < 3; ++i) {
            if (!parseDouble(ctx, "tax", parts[i], values[i]))
                return Usage;
        }
        if (stairs.m_nLevelCount == STRUCT_TAX_STAIRS_JURISDICTION::MaxLevels)
            return usageError(ctx, "tax", QStringLiteral("at most 10 brackets"));
        stairs.addLevel(values[0], values[1], values[2]);
    }
    double threshold = 0, rate = 0, base = 0;
    stairs.CalcAlgoForSetFieldsToCalcTax(income, threshold, rate, base);
    ctx.out << "income " << QString::number(income, 'f', 2) << " falls in the bracket from "
            << QString::number(threshold, 'f', 2) << " at " << QString::number(rate * 100, 'g', 6) << " %\n"
            << "tax " << QString::number(stairs.CalcAlgoForTax(income), 'f', 2) << '\n';
    return Ok;
}

} // namespace Tool
