#include "family/project/filereference.h"

#include "family/familydocument.h"
#include "family/grammar/keyinfo.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/lineedit.h"
#include "family/nodes/valuenode.h"

#include <QDir>
#include <QFileInfo>

// Paths in a file are not trusted: a game must not read or write outside of its folder. So both the
// game folder and the path are resolved completely, links included, before they are compared. A
// path that does not exist yet is resolved up to its last existing folder. The number of links is
// limited, because links can form a cycle.

namespace Family {

namespace {

using Zorv::FileID;

const struct
{
    const char* key;
    FileID::Type type;
} listedFiles[] = {
    {"sprites", FileID::Sprites},       {"sounds", FileID::Sounds},     {"code", FileID::Code},
    {"animations", FileID::Animations}, {"commands", FileID::Commands},
};

/// Finds the columns of a text inside its quotes.
void locate(const ValueNode* value, FileReference* reference)
{
    const NodeLine line(value);
    if (const LinePart* part = line.details.part(LinePart::Value)) {
        reference->column = part->start;
        reference->length = part->end - part->start;
    }
}

void collect(const GroupNode* group, QVector<FileReference>* list)
{
    for (int i = 0; i < group->childCount(); ++i) {
        const Zorv::CodeNode* child = group->childAt(unsigned(i));
        if (child->type() == Zorv::CodeNode::Group) {
            collect(static_cast<const GroupNode*>(child), list);
            continue;
        }
        const auto* value = static_cast<const ValueNode*>(child);
        const QString path =
            value->key()->form == Form::Path ? value->value().toString() : QString();
        if (!path.isEmpty()) {
            list->append(
                {namedFileType(group->name(), value->name()), path, value->firstLine(), 0, 0});
            locate(value, &list->last());
        }
    }
}

constexpr int MostLinks = 40;

/// The path without "." and ".."; links are followed as far as the path exists.
QString resolved(const QString& path)
{
    QString existing = QDir::cleanPath(path);
    QString rest;
    int links = 0;
    while (!QFileInfo::exists(existing)) {
        // Writing to a link writes to its target.
        if (QFileInfo(existing).isSymLink() && ++links <= MostLinks) {
            existing = QDir::cleanPath(QFileInfo(existing).symLinkTarget());
            continue;
        }
        const QString up = QFileInfo(existing).path();
        if (up == existing) {
            break;
        }
        rest.prepend(QLatin1Char('/') + QFileInfo(existing).fileName());
        existing = up;
    }
    const QString canonical = QFileInfo(existing).canonicalFilePath();
    return (canonical.isEmpty() ? existing : canonical) + rest;
}

}  // namespace

FileID::Type namedFileType(const QString& group, const QString& key)
{
    if (group == QLatin1String("files")) {
        for (const auto& row : listedFiles) {
            if (key == QLatin1String(row.key)) {
                return row.type;
            }
        }
    }
    return ResourceFile;
}

bool isCodeFile(FileID::Type type)
{
    return type == FileID::Code || type == FileID::Animations || type == FileID::Commands;
}

bool isAssetFile(FileID::Type type)
{
    return type == FileID::Sprites || type == FileID::Sounds;
}

QStringList filesBehind(FileID::Type type, const QString& path)
{
    if (type != FileID::Sprites || !QFileInfo(path).isDir()) {
        return {path};
    }
    QStringList files;
    const QStringList names = QDir(path).entryList(QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QString& name : names) {
        files.append(QDir::cleanPath(path) + QLatin1Char('/') + name);
    }
    return files;
}

QVector<FileReference> fileReferences(const FamilyDocument* document)
{
    QVector<FileReference> list;
    for (int i = 0; i < document->childCount(); ++i) {
        const Zorv::CodeNode* child = document->childAt(unsigned(i));
        if (child->type() == Zorv::CodeNode::Group) {
            collect(static_cast<const GroupNode*>(child), &list);
        }
    }
    return list;
}

PathFault pathFault(const QString& gameFolder, const QString& mainFile, const QString& path)
{
    if (path.trimmed().isEmpty()) {
        return PathFault::Empty;
    }
    if (path.contains(QChar(QChar::Null)) || QDir::isAbsolutePath(path)) {
        return PathFault::LeavesGame;
    }
    const QString target = resolved(QFileInfo(mainFile).absolutePath() + QLatin1Char('/') + path);
    if (target == resolved(QFileInfo(mainFile).absoluteFilePath())) {
        return PathFault::NamesItself;
    }
    return staysInside(gameFolder, target) ? PathFault::Fine : PathFault::LeavesGame;
}

bool staysInside(const QString& gameFolder, const QString& path)
{
    QString root = resolved(QFileInfo(gameFolder).absoluteFilePath());
    if (!root.endsWith(QLatin1Char('/'))) {
        root += QLatin1Char('/');
    }
    return resolved(path).startsWith(root);
}

}  // namespace Family
