#include "family/project/familyproject.h"

#include "family/assets/newsprites.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/assets/spritefile.h"
#include "family/familydocument.h"
#include "family/meaning/neededanimations.h"
#include "family/nodes/groupnode.h"
#include "family/nodes/valuenode.h"
#include "family/project/familyparentproject.h"
#include "family/project/filereference.h"

#include <zorv/core/archive.h>
#include <zorv/core/files.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/core/interface.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <memory>

namespace Family {

using Zorv::FileID;

namespace {

constexpr quint32 codeTypes = FileID::Code | FileID::Animations | FileID::Commands;

constexpr int MostBrokenLines = 20;

// Project files are destroyed by `release()`.
struct Release
{
    void operator()(Zorv::ProjectFile* file) const { file->release(); }
};
using NewFile = std::unique_ptr<Zorv::ProjectFile, Release>;

NewFile newAsset(FileID::Type type, const QString& path)
{
    if (type == FileID::Sounds) {
        return NewFile(new SoundFile);
    }
    return NewFile(path.isEmpty() ? new SpriteFile : newSprites(path));
}

QStringList brokenParts(const Zorv::ProjectFile* file)
{
    if (const auto* sprites = dynamic_cast<const SpriteCollection*>(file)) {
        return sprites->loadErrors();
    }
    const auto* sounds = dynamic_cast<const SoundFile*>(file);
    return sounds ? sounds->loadErrors() : QStringList();
}

QString newText(FileKind kind)
{
    if (kind == FileKind::Stage) {
        return QStringLiteral("zorv 1\n\n[info]\nname = \"%1\"\n\n[files]\n\n"
                              "[arena]\nleft  = -320\nright = 320\nfloor = 0\n")
            .arg(FamilyProject::tr("New stage"));
    }
    QString text = QStringLiteral("zorv 1\n\n[info]\nname = \"%1\"\n\n[files]\n\n"
                                  "[constants]\nlife = 1000\n")
                       .arg(FamilyProject::tr("New character"));
    for (int role = 0; role < AnimationRoleCount; ++role) {
        const NeededAnimation& row = neededAnimation(AnimationRole(role));
        if (row.isBasic) {
            text += QStringLiteral("\nanimation %1\nbody -16,-80, 16,0\nframe 0,0  delay -1\n")
                        .arg(QLatin1String(row.identifier));
        }
    }
    return text;
}

/// A document outside of a project always has colours and problems. In a project the user's setting
/// decides, if the host has one.
void followSetting(Zorv::CodeDocument* document)
{
    const QString key = QStringLiteral("highlightCode");
    const Zorv::Interface* host = Zorv::Interface::instance();
    if (host && host->option(key).isValid()) {
        document->setOption(key, {}, false, false);
        document->project()->setOption(key, {}, false);
        if (!document->hasSyntaxHighlight()) {
            document->reparse();
        }
    }
}

}  // namespace

FamilyProject::FamilyProject(FamilyParentProject* parent, FamilyDocument* mainDocument)
    : Project(parent, mainDocument, FileID::MainCode)
{
    followSetting(mainDocument);
}

FamilyProject* FamilyProject::open(FamilyParentProject* parent, const QString& mainFile,
                                   QString* error)
{
    auto document = std::make_unique<FamilyDocument>(fileKindOf(mainFile));
    if (!document->fromFile(*parent->archive(), mainFile, false)) {
        if (error) {
            *error = document->errorString();
        }
        return nullptr;
    }
    auto* project = new FamilyProject(parent, document.release());
    project->loadFiles();
    project->addToParent();
    return project;
}

FamilyProject* FamilyProject::create(FamilyParentProject* parent, FileKind kind)
{
    auto* document = new FamilyDocument(kind);
    auto* project = new FamilyProject(parent, document);
    document->fromString(newText(kind));
    document->setModified(true);
    project->addToParent();
    return project;
}

FamilyDocument* FamilyProject::mainDocument() const
{
    return static_cast<FamilyDocument*>(file(FileID::MainCode));
}

QList<FamilyDocument*> FamilyProject::documents() const
{
    QList<FamilyDocument*> result;
    for (const FileID::Type type :
         {FileID::MainCode, FileID::Code, FileID::Animations, FileID::Commands}) {
        const QList<Zorv::ProjectFile*> list = filesByType(type);
        for (Zorv::ProjectFile* file : list) {
            auto* document = dynamic_cast<FamilyDocument*>(file);
            if (document && !result.contains(document)) {
                result.append(document);
            }
        }
    }
    return result;
}

/// The value in the first group with that name in the main file.
QVariant FamilyProject::mainValue(const char* groupName, const char* key) const
{
    const FamilyDocument* document = mainDocument();
    for (int i = 0; document && i < document->childCount(); ++i) {
        const auto* group = dynamic_cast<GroupNode*>(document->childAt(unsigned(i)));
        if (group && group->name() == QLatin1String(groupName)) {
            const QVariant value = group->value(QLatin1String(key));
            if (value.isValid()) {
                return value;
            }
        }
    }
    return {};
}

QString FamilyProject::title() const
{
    const QString name = mainValue("info", "name").toString();
    if (!name.isEmpty()) {
        return name;
    }
    const QString fileName = QFileInfo(this->fileName()).completeBaseName();
    return fileName.isEmpty() ? tr("New project") : fileName;
}

QSize FamilyProject::gameSize() const
{
    const QVariantList pair = mainValue("info", "resolution").toList();
    return pair.size() == 2 ? QSize(pair[0].toInt(), pair[1].toInt()) : QSize();
}

QPointF FamilyProject::scale() const
{
    if (gameSize().isEmpty()) {
        return {};
    }
    const QVariantList pair = mainValue("constants", "scale").toList();
    return pair.size() == 2 ? QPointF(pair[0].toDouble(), pair[1].toDouble()) : QPointF(1, 1);
}

SpriteCollection* FamilyProject::sprites() const
{
    return dynamic_cast<SpriteCollection*>(file(FileID::Sprites));
}

SoundFile* FamilyProject::sounds() const
{
    return dynamic_cast<SoundFile*>(file(FileID::Sounds));
}

void FamilyProject::loadFiles()
{
    m_loadErrors.clear();
    QSet<QString> known;
    const QList<Zorv::ProjectFile*> present = files();
    for (const Zorv::ProjectFile* file : present) {
        known.insert(QDir::cleanPath(file->fileName()));
    }
    quint32 seenAssets = 0;
    const QVector<FileReference> references = fileReferences(mainDocument());
    for (const FileReference& reference : references) {
        const bool isAsset = isAssetFile(reference.type);
        const bool isRepeated = isAsset && (seenAssets & reference.type);
        seenAssets |= isAsset ? quint32(reference.type) : 0;
        const QString path = resolvePath(reference.path);
        const PathFault fault = pathFault(parent()->absolutePath(), fileName(), reference.path);
        if ((!isCodeFile(reference.type) && !isAsset) || isRepeated || fault != PathFault::Fine) {
            continue;
        }
        if (known.contains(path)) {
            selectAsset(reference.type, path);
            continue;
        }
        known.insert(path);
        isAsset ? loadAsset(reference.type, path) : loadDocument(reference.type, path);
    }
    emit filesChanged();
}

void FamilyProject::loadDocument(FileID::Type type, const QString& path)
{
    auto document = std::make_unique<FamilyDocument>(fileKindOfType(type));
    if (document->fromFile(*archive(), path, false)) {
        FamilyDocument* added = document.release();
        addFile(added, type);
        followSetting(added);
    } else {
        m_loadErrors.append(document->errorString());
    }
}

// The text can name a file again that is already loaded.
void FamilyProject::selectAsset(FileID::Type type, const QString& path)
{
    const QList<Zorv::ProjectFile*> list = filesByType(type);
    for (int i = 0; isAssetFile(type) && i < list.size(); ++i) {
        if (QDir::cleanPath(list[i]->fileName()) == path) {
            setSelectedFile(type, unsigned(i));
        }
    }
}

// Selects the new file, because the text names it now. Broken records are no reason to drop the
// others.
void FamilyProject::loadAsset(FileID::Type type, const QString& path)
{
    NewFile file = newAsset(type, path);
    if (!file->fromFile(*archive(), path, false)) {
        m_loadErrors.append(file->errorString());
        return;
    }
    addFile(file.get(), type);
    setSelectedFile(type, unsigned(filesByType(type).size() - 1));
    const QStringList lines = brokenParts(file.release());
    const QString name = QDir(absolutePath()).relativeFilePath(path);
    for (const QString& line : lines.mid(0, MostBrokenLines)) {
        m_loadErrors.append(name + QLatin1String(": ") + line);
    }
    if (lines.size() > MostBrokenLines) {
        m_loadErrors.append(
            tr("%1: and %n more.", nullptr, lines.size() - MostBrokenLines).arg(name));
    }
}

FileID FamilyProject::fileTypes() const
{
    return FileID::MainCode | FileID::Sprites | FileID::Sounds | codeTypes;
}

Zorv::ProjectFile* FamilyProject::newFile(FileID::Type type)
{
    if (isAssetFile(type)) {
        Zorv::ProjectFile* file = newAsset(type, {}).release();
        addFile(file, type);
        emit filesChanged();
        return file;
    }
    if (!isCodeFile(type)) {
        return nullptr;
    }
    auto* document = new FamilyDocument(fileKindOfType(type));
    addFile(document, type);
    followSetting(document);
    emit filesChanged();
    return document;
}

QString FamilyProject::resolvePath(const QString& path) const
{
    return QDir::cleanPath(absolutePath() + path);
}

QString FamilyProject::fileTitle(FileID::Type type, int index) const
{
    const QList<Zorv::ProjectFile*> list = filesByType(type);
    const QString name = index >= 0 && index < list.size() ? list.at(index)->fileName() : QString();
    if (name.isEmpty()) {
        return tr("new file");
    }
    return QDir(absolutePath()).relativeFilePath(name);
}

/// Lists the files inside the project's folder; all others stay in place when the project is
/// copied.
void FamilyProject::fileInfos(QList<FileInfo>& list)
{
    if (m_pathRevision != ValueNode::pathRevision() || m_pathsOf != fileName()) {
        m_pathRevision = ValueNode::pathRevision();
        m_pathsOf = fileName();
        m_files = namedFiles();
    }
    const QDir folder(absolutePath());
    for (const FileInfo& info : qAsConst(m_files)) {
        const QString named = resolvePath(info.path);
        const QStringList paths = filesOf(info.id.lowest(), named);
        for (const QString& path : paths) {
            list.append({info.id, path == named ? info.path : folder.relativeFilePath(path)});
        }
    }
}

// A modified folder of sprites is handled as a whole by its collection.
QStringList FamilyProject::filesOf(FileID::Type type, const QString& path) const
{
    const SpriteCollection* collection = type == FileID::Sprites ? sprites() : nullptr;
    if (collection && collection->isModified() && QDir::cleanPath(collection->fileName()) == path) {
        return {path};
    }
    return filesBehind(type, path);
}

QStringList FamilyProject::sharedFiles() const
{
    const QString root = parent()->absolutePath();
    QStringList result;
    const QList<FamilyDocument*> all =
        fileName().isEmpty() ? QList<FamilyDocument*>() : documents();
    for (const FamilyDocument* document : all) {
        const QVector<FileReference> references = fileReferences(document);
        for (const FileReference& reference : references) {
            const QString file = resolvePath(reference.path);
            if (!file.startsWith(absolutePath()) &&
                pathFault(root, fileName(), reference.path) == PathFault::Fine) {
                const QStringList behind = filesOf(reference.type, file);
                for (const QString& each : behind) {
                    result.append(each.mid(root.size()));
                }
            }
        }
    }
    result.removeDuplicates();
    return result;
}

void FamilyProject::saveAll(const QString& path, bool asCopy, QStringList* files)
{
    Project::saveAll(path, asCopy, files);
    const QStringList shared = asCopy ? sharedFiles() : QStringList();
    for (const QString& file : shared) {
        if (!copyShared(parent()->absolutePath() + file, path + file)) {
            addFailedFile(QDir(absolutePath()).relativeFilePath(parent()->absolutePath() + file));
        }
    }
}

/// Does not overwrite: another project may have copied the same file already, with its own changes.
bool FamilyProject::copyShared(const QString& file, const QString& target)
{
    Zorv::Archive& disk = *Zorv::FileSystemArchive::instance();
    const QList<Zorv::ProjectFile*> all = files();
    for (Zorv::ProjectFile* each : all) {
        if (each->isModified() && QDir::cleanPath(each->fileName()) == file) {
            return Zorv::forcePath(target) && each->toFile(disk, target, true);
        }
    }
    QString error;
    return QFileInfo::exists(target) ||
           (Zorv::forcePath(target) && Zorv::copyFile(*archive(), file, disk, target, &error) &&
            error.isEmpty());
}

QList<Zorv::Project::FileInfo> FamilyProject::namedFiles() const
{
    QList<FileInfo> result;
    QSet<QString> seen;
    const QList<FamilyDocument*> all = documents();
    for (const FamilyDocument* document : all) {
        const QVector<FileReference> references = fileReferences(document);
        for (const FileReference& reference : references) {
            const QString path = QDir::cleanPath(reference.path);
            const bool inside =
                !path.startsWith(QLatin1String("../")) &&
                pathFault(parent()->absolutePath(), fileName(), path) == PathFault::Fine;
            if (inside && !seen.contains(path)) {
                seen.insert(path);
                result.append({reference.type, path});
            }
        }
    }
    return result;
}

}  // namespace Family
