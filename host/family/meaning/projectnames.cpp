#include "family/meaning/projectnames.h"

#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/grammar/groupinfo.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/lineedit.h"
#include "family/nodes/valuenode.h"
#include "family/project/familyproject.h"
#include "family/project/filereference.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace Family {

namespace {

using Zorv::CodeNode;

/// The position of a part of a node's line.
NamePlace placeOf(const FamilyDocument* document, const CodeNode* node, LinePart::Role role)
{
    const NodeLine line(node);
    NamePlace place{document, node->firstLine(), 0, 0};
    if (const LinePart* part = line.details.part(role)) {
        place.column = part->start;
        place.length = part->end - part->start;
    }
    return place;
}

void addAnimations(const FamilyDocument* document, QVector<NamedThing>* things)
{
    const FamilyAnimations* list = document->animations();
    for (int i = 0; i < list->count(); ++i) {
        const AnimationNode* animation = list->animation(i);
        things->append({animation->identifier(), animation->name(),
                        placeOf(document, animation, LinePart::Argument)});
    }
}

/// Visits the groups of the document with that name.
template <class Take>
void forGroups(const FamilyDocument* document, const char* name, Take take)
{
    for (int i = 0; i < document->childCount(); ++i) {
        const CodeNode* child = document->childAt(unsigned(i));
        const auto* group =
            child->type() == CodeNode::Group ? static_cast<const GroupNode*>(child) : nullptr;
        if (group && group->info()->name == QLatin1String(name)) {
            take(group);
        }
    }
}

void addCommands(const FamilyDocument* document, QVector<NamedThing>* things)
{
    forGroups(document, "commands", [=](const GroupNode* group) {
        for (int i = 0; i < group->childCount(); ++i) {
            const CodeNode* child = group->childAt(unsigned(i));
            if (child->type() == CodeNode::Value) {
                const auto* value = static_cast<const ValueNode*>(child);
                things->append(
                    {value->name(), value->text(), placeOf(document, value, LinePart::Key)});
            }
        }
    });
}

void addMoves(const FamilyDocument* document, QVector<NamedThing>* things)
{
    forGroups(document, "move", [=](const GroupNode* group) {
        things->append({group->argument(), {}, placeOf(document, group, LinePart::Argument)});
    });
}

QString animationOf(const GroupNode* move)
{
    for (int i = 0; i < move->childCount(); ++i) {
        const CodeNode* child = move->childAt(unsigned(i));
        if (child->type() == CodeNode::Value) {
            const auto* value = static_cast<const ValueNode*>(child);
            if (value->key()->form == Form::AnimationName) {
                return value->text();
            }
        }
    }
    return {};
}

void addSoundUses(const FamilyDocument* document, const QVector<int>& sound,
                  QVector<SoundUse>* uses)
{
    forGroups(document, "move", [&](const GroupNode* move) {
        const GroupNode* played = move->subGroup(QStringLiteral("sound"));
        for (int i = 0; played && i < played->childCount(); ++i) {
            const CodeNode* child = played->childAt(unsigned(i));
            const auto* value =
                child->type() == CodeNode::Value ? static_cast<const ValueNode*>(child) : nullptr;
            if (value && value->key()->form == Form::Pair && value->asIntVector() == sound) {
                uses->append({move->argument(), animationOf(move), value->name(),
                              placeOf(document, value, LinePart::Value)});
            }
        }
    });
}

/// The suffix of files that a key of this type can name; empty for anything but code.
QString suffixOf(Zorv::FileID::Type type)
{
    switch (type) {
    case Zorv::FileID::Code:
        return fileSuffix(FileKind::Code);
    case Zorv::FileID::Animations:
        return fileSuffix(FileKind::Animations);
    case Zorv::FileID::Commands:
        return fileSuffix(FileKind::Commands);
    default:
        return {};
    }
}

}  // namespace

ProjectNames::ProjectNames(const FamilyDocument* document, const FamilyProject* project)
    : m_documents{document}, m_project(project)
{
    const QList<FamilyDocument*> others = project ? project->documents() : QList<FamilyDocument*>();
    for (const FamilyDocument* other : others) {
        if (other != document) {
            m_documents.append(other);
        }
    }
}

QVector<NamedThing> ProjectNames::named(Form form) const
{
    QVector<NamedThing> things;
    for (const FamilyDocument* document : m_documents) {
        if (form == Form::AnimationName) {
            addAnimations(document, &things);
        } else if (form == Form::CommandName) {
            addCommands(document, &things);
        } else if (form == Form::MoveName) {
            addMoves(document, &things);
        }
    }
    return things;
}

QString ProjectNames::filePath(const QString& path) const
{
    return m_project ? m_project->resolvePath(path)
                     : QDir::cleanPath(QFileInfo(m_documents.first()->fileName()).absolutePath() +
                                       QLatin1Char('/') + path);
}

QStringList ProjectNames::files(const GroupInfo* group, const KeyInfo* key) const
{
    constexpr int mostFiles = 500;
    constexpr int mostVisited = 5000;
    const QString mainFile = m_project ? m_project->fileName() : m_documents.first()->fileName();
    QStringList files;
    if (mainFile.isEmpty()) {
        return files;
    }
    const QString suffix = suffixOf(namedFileType(group->name, key->name));
    const QDir folder = QFileInfo(mainFile).absoluteDir();
    QDirIterator walk(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    for (int visited = 0; walk.hasNext() && visited < mostVisited && files.size() < mostFiles;
         ++visited) {
        const QString path = folder.relativeFilePath(walk.next());
        const bool fits = suffix.isEmpty() ? !hasCodeSuffix(path) : path.endsWith(suffix);
        if (fits && !path.startsWith(QLatin1String("backup/"))) {
            files.append(path);
        }
    }
    files.sort(Qt::CaseInsensitive);
    return files;
}

QVector<NamePlace> ProjectNames::frames(int group, int number) const
{
    QVector<NamePlace> places;
    for (const FamilyDocument* document : m_documents) {
        const FamilyAnimations* list = document->animations();
        for (int i = 0; i < list->count(); ++i) {
            const AnimationNode* animation = list->animation(i);
            for (int j = 0; j < animation->childCount(); ++j) {
                const auto* frame = static_cast<const FrameNode*>(animation->childAt(unsigned(j)));
                if (frame->spriteGroup() == group && frame->spriteNumber() == number) {
                    places.append(placeOf(document, frame, LinePart::Sprite));
                }
            }
        }
    }
    return places;
}

QVector<SoundUse> ProjectNames::soundUses(int group, int number) const
{
    QVector<SoundUse> uses;
    for (const FamilyDocument* document : m_documents) {
        addSoundUses(document, {group, number}, &uses);
    }
    return uses;
}

}  // namespace Family
