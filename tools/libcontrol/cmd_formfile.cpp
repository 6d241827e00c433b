// The form-file commands: inspect lists the form blocks of a return file
// and their fields; diff compares the blocks of two files field by field.

#include "commands.h"

#include <LibControl/common/utilities.h>
#include <LibControl/forms/taxformdata.h>

#include <QFile>
#include <QLocale>
#include <QtEndian>

#include <tinyxml.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace Tool {

namespace {

struct FormBlock
{
    qint64 offset = 0;
    QByteArray text; // unscrambled
    bool parsed = false;
    std::vector<std::pair<QString, QString>> fields; // in document order
};

struct FileArguments
{
    QStringList files;
    QString key;
    bool xml = false;
};

// FILE... --key KEY [--xml]; false after reporting a usage error.
bool parseArguments(Context &ctx, char const *command, int fileCount, bool allowXml, FileArguments &parsed)
{
    QStringList args = ctx.args;
    bool haveKey = false;
    for (int i = 0; i < args.size(); ++i) {
        QString const &arg = args.at(i);
        if (arg == QLatin1String("--key")) {
            if (i + 1 >= args.size()) {
                usageError(ctx, command, QStringLiteral("--key needs a value"));
                return false;
            }
            parsed.key = args.at(++i);
            haveKey = true;
        } else if (allowXml && arg == QLatin1String("--xml")) {
            parsed.xml = true;
        } else if (arg.startsWith(QLatin1String("--"))) {
            usageError(ctx, command, QStringLiteral("unknown option \"%1\"").arg(arg));
            return false;
        } else {
            parsed.files << arg;
        }
    }
    if (parsed.files.size() != fileCount || !haveKey) {
        usageError(ctx, command,
                   fileCount == 1 ? QStringLiteral("expects FILE --key KEY [--xml]")
                                  : QStringLiteral("expects OLD NEW --key KEY"));
        return false;
    }
    return true;
}

void parseFields(FormBlock &block)
{
    TiXmlDocument document;
    document.Parse(block.text.constData(), nullptr, TIXML_ENCODING_UTF8);
    TiXmlElement const *root = document.Error() ? nullptr : document.FirstChildElement();
    if (!root)
        return;
    block.parsed = true;
    for (TiXmlElement const *element = root->FirstChildElement(); element; element = element->NextSiblingElement()) {
        char const *name = element->Attribute("n");
        if (!name)
            continue;
        char const *value = element->GetText();
        block.fields.emplace_back(QString::fromUtf8(name), QString::fromUtf8(value ? value : ""));
    }
}

// Every marker followed by a count the file can hold is taken as a block.
// A block that parses is skipped whole; one that does not is reported and
// the search goes on right after its marker, as it may have been a chance match.
std::vector<FormBlock> findBlocks(QByteArray const &file, QByteArray const &key)
{
    QByteArray markerBytes(4, '\0');
    qToLittleEndian<qint32>(FORM_ARCHIVE_DELIMITER, markerBytes.data());
    std::vector<FormBlock> blocks;
    int from = 0;
    for (int at; (at = file.indexOf(markerBytes, from)) >= 0;) {
        from = at + 4;
        if (file.size() - at < 8)
            break;
        qint32 const count = qFromLittleEndian<qint32>(file.constData() + at + 4);
        if (count < 0 || count > file.size() - at - 8)
            continue;
        FormBlock block;
        block.offset = at;
        block.text = file.mid(at + 8, count);
        if (!key.isEmpty() && !block.text.isEmpty())
            abcTwo(block.text.data(), block.text.size(), key.constData(), key.size());
        parseFields(block);
        if (block.parsed)
            from = at + 8 + count;
        blocks.push_back(std::move(block));
    }
    return blocks;
}

bool readBlocks(Context &ctx, char const *command, QString const &path, QString const &key,
                std::vector<FormBlock> &blocks)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ctx.err << "libcontrol " << command << ": cannot read " << path << ": " << file.errorString() << '\n';
        return false;
    }
    blocks = findBlocks(file.readAll(), key.toUtf8());
    return true;
}

QString describe(FormBlock const &block, int number)
{
    return QStringLiteral("block %1 at offset %2 (%3 bytes)").arg(number).arg(block.offset).arg(block.text.size());
}

// The re-file comparison's tolerance: numbers to the cent, texts ignoring case.
bool sameValue(QString const &a, QString const &b)
{
    bool aNumber = false;
    bool bNumber = false;
    double const x = QLocale::c().toDouble(QString(a).remove(QLatin1Char(',')), &aNumber);
    double const y = QLocale::c().toDouble(QString(b).remove(QLatin1Char(',')), &bNumber);
    if (aNumber && bNumber)
        return std::fabs(x - y) < 0.009;
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QString valueOf(FormBlock const &block, QString const &name, bool *found)
{
    for (auto const &field : block.fields) {
        if (field.first == name) {
            *found = true;
            return field.second;
        }
    }
    *found = false;
    return QString();
}

int diffBlocks(Context &ctx, FormBlock const &older, FormBlock const &newer, int number)
{
    std::vector<QString> names;
    for (FormBlock const *block : {&older, &newer}) {
        for (auto const &field : block->fields) {
            if (std::find(names.begin(), names.end(), field.first) == names.end())
                names.push_back(field.first);
        }
    }
    int differences = 0;
    for (QString const &name : names) {
        bool inOld = false;
        bool inNew = false;
        QString const a = valueOf(older, name, &inOld);
        QString const b = valueOf(newer, name, &inNew);
        if (inOld && inNew && sameValue(a, b))
            continue;
        ctx.out << "block " << number << ": " << name << ": " << (inOld ? a : QStringLiteral("(absent)")) << " -> "
                << (inNew ? b : QStringLiteral("(absent)")) << '\n';
        ++differences;
    }
    return differences;
}

} // namespace

int inspectCommand(Context &ctx)
{
    FileArguments args;
    if (!parseArguments(ctx, "inspect", 1, true, args))
        return Usage;
    std::vector<FormBlock> blocks;
    if (!readBlocks(ctx, "inspect", args.files.first(), args.key, blocks))
        return Failed;
    if (blocks.empty()) {
        ctx.out << "no form block found\n";
        return Refused;
    }
    bool allParsed = true;
    for (size_t i = 0; i < blocks.size(); ++i) {
        FormBlock const &block = blocks[i];
        if (!block.parsed) {
            ctx.out << describe(block, int(i + 1)) << ": does not parse as XML (wrong key or damaged)\n";
            allParsed = false;
            continue;
        }
        ctx.out << describe(block, int(i + 1)) << '\n';
        if (args.xml) {
            ctx.out << QString::fromUtf8(block.text) << '\n';
            continue;
        }
        for (auto const &field : block.fields)
            ctx.out << "  " << field.first << " = " << field.second << '\n';
    }
    return allParsed ? Ok : Refused;
}

int diffCommand(Context &ctx)
{
    FileArguments args;
    if (!parseArguments(ctx, "diff", 2, false, args))
        return Usage;
    std::vector<FormBlock> older;
    std::vector<FormBlock> newer;
    if (!readBlocks(ctx, "diff", args.files.at(0), args.key, older)
        || !readBlocks(ctx, "diff", args.files.at(1), args.key, newer))
        return Failed;
    int differences = 0;
    size_t const count = std::max(older.size(), newer.size());
    for (size_t i = 0; i < count; ++i) {
        int const number = int(i + 1);
        if (i >= older.size() || i >= newer.size()) {
            ctx.out << "block " << number << ": only in " << (i < older.size() ? "OLD" : "NEW") << '\n';
            ++differences;
        } else if (!older[i].parsed || !newer[i].parsed) {
            ctx.out << "block " << number << ": does not parse as XML in "
                    << (older[i].parsed ? "NEW" : "OLD") << " (wrong key or damaged)\n";
            ++differences;
        } else {
            differences += diffBlocks(ctx, older[i], newer[i], number);
        }
    }
    if (differences == 0)
        ctx.out << "no differences\n";
    return differences == 0 ? Ok : Refused;
}

} // namespace Tool
