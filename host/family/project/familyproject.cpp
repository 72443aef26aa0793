#include "project/familyproject.h"

#include "core/archive.h"
#include "core/files.h"
#include "core/filesystemarchive.h"
#include "core/interface.h"
#include "familydocument.h"
#include "nodes/groupnode.h"
#include "nodes/valuenode.h"
#include "project/familyparentproject.h"
#include "project/filereference.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <memory>

namespace Family {

using Zorv::FileID;

namespace {

constexpr quint32 codeTypes = FileID::Code | FileID::Animations | FileID::Commands;

FileKind kindOfType(FileID::Type type)
{
    switch (type) {
    case FileID::Animations:
        return FileKind::Animations;
    case FileID::Commands:
        return FileKind::Commands;
    default:
        return FileKind::Code;
    }
}

QString newText(FileKind kind)
{
    if (kind == FileKind::Stage) {
        return QStringLiteral("zorv 1\n\n[info]\nname = \"%1\"\n\n[files]\n\n"
                              "[arena]\nleft  = -320\nright = 320\nfloor = 0\n")
            .arg(FamilyProject::tr("New stage"));
    }
    return QStringLiteral("zorv 1\n\n[info]\nname = \"%1\"\n\n[files]\n\n"
                          "[constants]\nlife = 1000\n\nanimation 0\nframe 0,0  delay -1\n")
        .arg(FamilyProject::tr("New character"));
}

/// A document by itself always has its colours and problems; in a project that is the person's
/// choice, as far as the host has a setting for it.
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

QString FamilyProject::title() const
{
    const FamilyDocument* document = mainDocument();
    for (int i = 0; document && i < document->childCount(); ++i) {
        const auto* group = dynamic_cast<GroupNode*>(document->childAt(unsigned(i)));
        if (group && group->name() == QLatin1String("info")) {
            const QString name = group->value(QStringLiteral("name")).toString();
            if (!name.isEmpty()) {
                return name;
            }
        }
    }
    const QString fileName = QFileInfo(this->fileName()).completeBaseName();
    return fileName.isEmpty() ? tr("New project") : fileName;
}

void FamilyProject::loadFiles()
{
    m_loadErrors.clear();
    QSet<QString> known;
    const QList<FamilyDocument*> present = documents();
    for (const FamilyDocument* document : present) {
        known.insert(QDir::cleanPath(document->fileName()));
    }
    const QVector<FileReference> references = fileReferences(mainDocument());
    for (const FileReference& reference : references) {
        const QString path = resolvePath(reference.path);
        const PathFault fault = pathFault(parent()->absolutePath(), fileName(), reference.path);
        if (!isCodeFile(reference.type) || fault != PathFault::Fine || known.contains(path)) {
            continue;
        }
        known.insert(path);
        auto document = std::make_unique<FamilyDocument>(kindOfType(reference.type));
        if (document->fromFile(*archive(), path, false)) {
            FamilyDocument* added = document.release();
            addFile(added, reference.type);
            followSetting(added);
        } else {
            m_loadErrors.append(document->errorString());
        }
    }
}

FileID FamilyProject::fileTypes() const
{
    return FileID::MainCode | FileID::Sprites | FileID::Sounds | codeTypes;
}

Zorv::ProjectFile* FamilyProject::newFile(FileID::Type type)
{
    if (!isCodeFile(type)) {
        return nullptr;
    }
    auto* document = new FamilyDocument(kindOfType(type));
    addFile(document, type);
    followSetting(document);
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

/// The files inside of the project's folder: others stay where they are when
/// the project is copied.
void FamilyProject::fileInfos(QList<FileInfo>& list)
{
    if (m_pathRevision != ValueNode::pathRevision() || m_pathsOf != fileName()) {
        m_pathRevision = ValueNode::pathRevision();
        m_pathsOf = fileName();
        m_files = namedFiles();
    }
    list += m_files;
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
                result.append(file.mid(root.size()));
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

/// Another project may have brought the same file, with changes that this one does not have.
bool FamilyProject::copyShared(const QString& file, const QString& target)
{
    Zorv::Archive& disk = *Zorv::FileSystemArchive::instance();
    const QList<FamilyDocument*> all = documents();
    for (FamilyDocument* document : all) {
        if (document->isModified() && QDir::cleanPath(document->fileName()) == file) {
            return Zorv::forcePath(target) && document->toFile(disk, target, true);
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
