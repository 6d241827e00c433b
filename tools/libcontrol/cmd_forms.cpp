// The form catalogue as a table, with the mandatory rule applied.

#include "commands.h"

#include <LibControl/forms/taxformtype.h>

#include <iterator>

namespace Tool {

namespace {

char const *const Command = "forms";

struct FormsOptions
{
    ENUMTYPE_PROVINCE province = PROV_NONE;
    unsigned char kinds = 3;
    bool onlyMandatory = false;
};

bool parseFormsOptions(Context &ctx, FormsOptions &options)
{
    QStringList const &args = ctx.args;
    for (int i = 0; i < args.size(); ++i) {
        QString const &option = args[i];
        if (option != QLatin1String("--province") && option != QLatin1String("--mandatory")) {
            usageError(ctx, Command, QStringLiteral("unknown argument \"%1\"").arg(option));
            return false;
        }
        if (i + 1 == args.size()) {
            usageError(ctx, Command, QStringLiteral("%1 needs a value").arg(option));
            return false;
        }
        QString const value = args[++i];
        if (option == QLatin1String("--province")) {
            options.province = getProvince(value.toLatin1().constData());
            if (options.province == PROV_NONE) {
                usageError(ctx, Command, QStringLiteral("unknown province \"%1\" (AB, BC, ... YT)").arg(value));
                return false;
            }
        } else {
            int kinds = 0;
            if (!parseInt(ctx, Command, value, kinds))
                return false;
            if (kinds < 0 || kinds > 255) {
                usageError(ctx, Command, QStringLiteral("KINDS is a byte, 0 to 255: \"%1\"").arg(value));
                return false;
            }
            options.kinds = static_cast<unsigned char>(kinds);
            options.onlyMandatory = true;
        }
    }
    return true;
}

QString marksOf(ENUMTYPE_FORM form, FormsOptions const &options)
{
    STRUCT_TAXFORM_INFO const &row = Global_Forms_Info[form];
    QString marks;
    marks += IsFormMandatory(options.kinds, options.province, form) ? QLatin1Char('M') : QLatin1Char('.');
    marks += row.flagA ? QLatin1Char('A') : QLatin1Char('.');
    marks += row.flagB ? QLatin1Char('B') : QLatin1Char('.');
    marks += IsFormExpired(form, options.province) ? QLatin1Char('X') : QLatin1Char('.');
    marks += IsMultipleForm(form) ? QLatin1Char('+') : QLatin1Char('.');
    return marks;
}

QString jurisdictionOf(ENUMTYPE_FORM form)
{
    ENUMTYPE_PROVINCE const province = getFormProv(form);
    return province == PROV_NONE ? QStringLiteral("--") : QString::fromLatin1(Global_Provs_Info[province].code);
}

} // namespace

int formsCommand(Context &ctx)
{
    FormsOptions options;
    if (!parseFormsOptions(ctx, options))
        return Usage;
    ctx.out << " id  prov  marks  " << QStringLiteral("short name").leftJustified(42) << "title\n";
    int listed = 0;
    for (int id = 1; id < int(std::size(Global_Forms_Info)); ++id) {
        ENUMTYPE_FORM const form = static_cast<ENUMTYPE_FORM>(id);
        ENUMTYPE_PROVINCE const home = getFormProv(form);
        if (options.province != PROV_NONE && home != PROV_NONE && home != options.province)
            continue;
        QString const marks = marksOf(form, options);
        if (options.onlyMandatory && marks.at(0) != QLatin1Char('M'))
            continue;
        STRUCT_TAXFORM_INFO const &row = Global_Forms_Info[id];
        ctx.out << QString::number(id).rightJustified(3) << "  " << jurisdictionOf(form).leftJustified(4) << "  "
                << marks << "  " << QString::fromLatin1(row.shortName).leftJustified(42)
                << QString::fromLatin1(row.title) << '\n';
        ++listed;
    }
    QString const where = options.province == PROV_NONE ? QStringLiteral("no province")
                                                        : QString::fromLatin1(Global_Provs_Info[options.province].code);
    ctx.out << '\n'
            << listed << " forms. Marks: M mandatory for return kinds " << options.kinds << " and " << where
            << ", A flag A, B flag B (import), X expired, + several per return.\n";
    return Ok;
}

} // namespace Tool
