// The check command: runs one of the library's identifier, postal-code,
// phone or e-mail checks over each value given.

#include "commands.h"

#include <LibControl/common/addresschecks.h>
#include <LibControl/common/idchecks.h>

#include <QByteArray>

namespace Tool {

namespace {

using Check = bool (*)(QString const &);

struct CheckKind
{
    char const *name;
    Check check;
};

// Values reach the byte-based checks as UTF-8, as the forms pass them.
bool viaUtf8(QString const &value, bool (*check)(char const *))
{
    return check(value.toUtf8().constData());
}

CheckKind const Kinds[] = {
    { "sin", [](QString const &v) { return viaUtf8(v, CheckSIN); } },
    { "bn", [](QString const &v) { return viaUtf8(v, CheckBusiNum2); } },
    { "gst", [](QString const &v) { return CheckGSTAccountNumber(v); } },
    { "trust", [](QString const &v) { return CheckTrustNumber(v.toUtf8().constData(), nullptr); } },
    { "partnership", [](QString const &v) { return viaUtf8(v, CheckPartnershipID); } },
    { "taxshelter", [](QString const &v) { return CheckTaxShelterNumber(v); } },
    { "nisapin", [](QString const &v) { return viaUtf8(v, CheckNISAPIN); } },
    { "postal", [](QString const &v) { return viaUtf8(v, CheckCAPostCode); } },
    { "zip", [](QString const &v) { return viaUtf8(v, CheckUSPostCode); } },
    { "phone", [](QString const &v) { return CheckPhoneNumber(v); } },
    { "email", [](QString const &v) { return viaUtf8(v, checkEmail); } },
};

CheckKind const *findKind(QString const &name)
{
    for (CheckKind const &kind : Kinds) {
        if (name == QLatin1String(kind.name))
            return &kind;
    }
    return nullptr;
}

QString kindNames()
{
    QStringList names;
    for (CheckKind const &kind : Kinds)
        names << QLatin1String(kind.name);
    return names.join(QLatin1String(", "));
}

} // namespace

int checkCommand(Context &ctx)
{
    if (ctx.args.size() < 2)
        return usageError(ctx, "check", QStringLiteral("expects KIND VALUE... (kinds: %1)").arg(kindNames()));
    CheckKind const *kind = findKind(ctx.args.first());
    if (!kind)
        return usageError(
            ctx, "check", QStringLiteral("unknown kind \"%1\" (kinds: %2)").arg(ctx.args.first(), kindNames()));
    bool allAccepted = true;
    for (QString const &value : ctx.args.mid(1)) {
        bool const accepted = kind->check(value);
        allAccepted = allAccepted && accepted;
        ctx.out << value << ": " << (accepted ? "ok" : "refused") << '\n';
    }
    return allAccepted ? Ok : Refused;
}

} // namespace Tool
