#include <LibControl/common/texttemplate.h>

QString fillTextTemplate(QString const &text, QMap<QString, QString> const &values, QStringList *missing)
{
    static QLatin1String const opening("$$(");
    QString result;
    result.reserve(text.size());
    int from = 0;
    for (;;) {
        int const start = text.indexOf(opening, from);
        int const end = start < 0 ? -1 : text.indexOf(QLatin1Char(')'), start + opening.size());
        // Without a closing parenthesis no later placeholder can close either.
        if (end < 0)
            break;
        result += text.midRef(from, start - from);
        QString const key = text.mid(start + opening.size(), end - start - opening.size());
        auto const value = values.constFind(key);
        if (value != values.constEnd()) {
            result += *value;
        } else {
            result += QStringLiteral("%1 not defined in xmt").arg(key);
            if (missing)
                missing->append(key);
        }
        from = end + 1;
    }
    result += text.midRef(from);
    return result;
}
