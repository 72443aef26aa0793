#include "family/grammar/filekind.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace Family {

namespace {

struct KindRow
{
    FileKind kind;
    const char* suffix;
    const char* name;
    Zorv::FileID::Type type;
};

constexpr KindRow kindRows[] = {
    {FileKind::Character, ".character", QT_TRANSLATE_NOOP("Family", "character"),
     Zorv::FileID::MainCode},
    {FileKind::Stage, ".stage", QT_TRANSLATE_NOOP("Family", "stage"), Zorv::FileID::MainCode},
    {FileKind::Code, ".code", QT_TRANSLATE_NOOP("Family", "code"), Zorv::FileID::Code},
    {FileKind::Animations, ".anim", QT_TRANSLATE_NOOP("Family", "animation"),
     Zorv::FileID::Animations},
    {FileKind::Commands, ".commands", QT_TRANSLATE_NOOP("Family", "command"),
     Zorv::FileID::Commands},
};

}  // namespace

FileKind fileKindOf(const QString& fileName)
{
    for (const KindRow& row : kindRows) {
        if (fileName.endsWith(QLatin1String(row.suffix), Qt::CaseInsensitive)) {
            return row.kind;
        }
    }
    return FileKind::Code;
}

bool isMainFile(FileKind kind)
{
    return kind == FileKind::Character || kind == FileKind::Stage;
}

QString fileSuffix(FileKind kind)
{
    return QLatin1String(kindRows[int(kind)].suffix);
}

bool hasCodeSuffix(const QString& fileName)
{
    return std::any_of(std::begin(kindRows), std::end(kindRows), [&](const KindRow& row) {
        return fileName.endsWith(QLatin1String(row.suffix), Qt::CaseInsensitive);
    });
}

QString fileKindName(FileKind kind)
{
    return QCoreApplication::translate("Family", kindRows[int(kind)].name);
}

QStringList mainFileFilters()
{
    QStringList filters;
    for (const KindRow& row : kindRows) {
        if (isMainFile(row.kind)) {
            filters += QLatin1Char('*') + QLatin1String(row.suffix);
        }
    }
    return filters;
}

Zorv::FileID::Type fileType(FileKind kind)
{
    return kindRows[int(kind)].type;
}

FileKind fileKindOfType(Zorv::FileID::Type type)
{
    const auto found =
        std::find_if(std::begin(kindRows), std::end(kindRows), [type](const KindRow& row) {
            return row.type == type && !isMainFile(row.kind);
        });
    return found == std::end(kindRows) ? FileKind::Code : found->kind;
}

}  // namespace Family
