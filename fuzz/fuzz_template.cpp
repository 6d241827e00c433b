// Fills arbitrary template text (read as UTF-8) from a small fixed map.

#include <LibControl/common/texttemplate.h>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size)
{
    static QMap<QString, QString> const values{{QStringLiteral("name"), QStringLiteral("Ann")},
                                               {QStringLiteral("empty"), QString()},
                                               {QStringLiteral("nested"), QStringLiteral("$$(name)")},
                                               {QStringLiteral(""), QStringLiteral("blank key")}};
    QString const text = QString::fromUtf8(reinterpret_cast<char const *>(data), int(size));
    QStringList missing;
    QString const result = fillTextTemplate(text, values, &missing);

    // Without placeholders nothing changes; each one adds a bounded amount.
    if (!text.contains(QLatin1String("$$(")) && (result != text || !missing.isEmpty()))
        std::abort();
    if (result.size() > 2 * text.size() + 20 * (text.count(QLatin1String("$$(")) + 1))
        std::abort();
    return 0;
}
