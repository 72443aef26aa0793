#include "core/project.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/codedocumenteditor.h"
#include "core/archive.h"
#include "core/interface.h"
#include "core/parentproject.h"
#include "core/parentproject_p.h"
#include "core/project_p.h"
#include "core/projectfile_p.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace Zorv {

namespace {

/// Detaches an editor from its document, because the document would release the editor a second
/// time.
void leaveDocument(ProjectFile* file)
{
    auto* editor = dynamic_cast<CodeDocumentEditor*>(file);
    if (editor && editor->document()) {
        editor->document()->removeDocumentEditor(editor);
    }
}

}  // namespace

Project::Project(ParentProject* parent, CodeDocument* mainDocument, FileID id)
    : m_kind(mainDocument->projectKind()), d(std::make_unique<ProjectPrivate>(this, parent)),
      m_archive(parent->archive())
{
    for (const QString& key : {QStringLiteral("parseCode"), QStringLiteral("highlightCode")}) {
        setOption(key, mainDocument->option(key), false);
        mainDocument->setOption(key, {}, false, false);
    }
    addFile(mainDocument, id);
}

Project::~Project()
{
    for (ProjectFile* file : qAsConst(d->known)) {
        file->d->project = nullptr;
    }
}

// A host may delete the project when its main document is released. The document also releases its
// editors. So editors that are files of the project are detached first.
void Project::release()
{
    const QPointer<Project> self(this);
    if (m_archive != d->parent->archive()) {
        m_archive->release();
    }
    d->parent->d->release(this);
    const QList<ProjectFile*> all = files();
    std::for_each(all.begin(), all.end(), leaveDocument);
    for (auto it = all.crbegin(); it != all.crend(); ++it) {
        if (!self || d->fileIDs.contains(*it)) {
            (*it)->release();
        }
    }
}

bool Project::isEmpty() const
{
    const QList<ProjectFile*> all = files();
    return std::all_of(all.begin(), all.end(), [](ProjectFile* file) { return file->isEmpty(); });
}

QSize Project::gameSize() const
{
    return {};
}

QPointF Project::scale() const
{
    return {};
}

ProjectFile* Project::file(FileID::Type type) const
{
    const QList<ProjectFile*> list = d->files.value(type);
    if (list.isEmpty()) {
        return nullptr;
    }
    const unsigned index = selectedFile(type);
    return index < static_cast<unsigned>(list.size()) ? list.at(static_cast<int>(index))
                                                      : list.first();
}

QStringList Project::failedFiles() const
{
    return d->failedFiles;
}

void Project::reload()
{
    const QList<ProjectFile*> all = files();
    for (ProjectFile* file : all) {
        if (d->fileIDs.contains(file) && QFile::exists(file->fileName())) {
            file->fromFile(*file->archive(), file->fileName(), false);
        }
    }
}

// Registering a file again adds its messages again, so the project shows them once per
// registration.
void Project::addFile(ProjectFile* file, FileID id)
{
    Project* former = file->d->project;
    if (former && former != this) {
        former->forgetFile(file);
    }
    const quint32 old = d->fileIDs.value(file);
    d->fileIDs[file] = old | id;
    d->known.insert(file);
    file->d->project = this;
    d->registerMessages(file->messages());
    const quint32 added = id & ~old;
    for (quint32 bit = 1; bit != 0; bit <<= 1) {
        if (added & bit) {
            d->files[static_cast<FileID::Type>(bit)].append(file);
        }
    }
}

ProjectFile* Project::takeFile(ProjectFile* file)
{
    d->fileIDs.remove(file);
    for (QList<ProjectFile*>& list : d->files) {
        list.removeAll(file);
    }
    return file;
}

void Project::forgetFile(ProjectFile* file)
{
    takeFile(file);
    d->known.remove(file);
}

void Project::removeFile(ProjectFile* file)
{
    leaveDocument(file);
    takeFile(file)->release();
}

void Project::removeFile(FileID::Type type, unsigned index)
{
    const auto list = d->files.find(type);
    if (list == d->files.end() || index >= static_cast<unsigned>(list->size())) {
        return;
    }
    ProjectFile* file = list->takeAt(static_cast<int>(index));
    const quint32 bits = d->fileIDs.value(file);
    if (bits == type) {
        d->fileIDs.remove(file);
        leaveDocument(file);
        file->release();
    } else if (bits != 0) {
        d->fileIDs[file] = bits & ~quint32(type);
    }
}

void Project::moveFile(FileID::Type type, unsigned from, unsigned to)
{
    const auto list = d->files.find(type);
    if (list == d->files.end()) {
        return;
    }
    const auto size = static_cast<unsigned>(list->size());
    if (from < size && to < size) {
        list->move(static_cast<int>(from), static_cast<int>(to));
    }
}

QList<ProjectFile*> Project::files() const
{
    return d->fileIDs.keys();
}

const QMap<ProjectFile*, FileID>& Project::filesWithIDs() const
{
    return d->fileIDs;
}

QList<ProjectFile*> Project::filesByType(FileID::Type type) const
{
    return d->files.value(type);
}

FileID Project::fileID(ProjectFile* file) const
{
    return d->fileIDs.value(file);
}

unsigned Project::selectedFile(FileID::Type type) const
{
    return d->selected.value(type, 0);
}

void Project::setSelectedFile(FileID::Type type, unsigned index)
{
    d->selected[type] = index;
}

QString Project::fileName() const
{
    const ProjectFile* main = file(FileID::MainCode);
    return main ? main->fileName() : QString();
}

QString Project::absolutePath() const
{
    return QFileInfo(fileName()).absolutePath() + QLatin1Char('/');
}

QString Project::basePath() const
{
    return absolutePath().mid(d->parent->absolutePath().size());
}

MessageList* Project::messages() const
{
    return d.get();
}

ParentProject* Project::parent() const
{
    return d->parent;
}

int Project::kind() const
{
    return m_kind;
}

Archive* Project::archive() const
{
    return m_archive;
}

void Project::setArchive(Archive* archive)
{
    m_archive = archive;
}

void Project::addToParent()
{
    if (ProjectFile* main = file(FileID::MainCode)) {
        d->parent->addRef(static_cast<CodeDocument*>(main));
    }
}

QVariant Project::option(const QString& key) const
{
    const QVariant value = d->options.value(key);
    const Interface* host = Interface::instance();
    return !value.isValid() && host ? host->option(key) : value;
}

void Project::setOption(const QString& key, const QVariant& value, bool global)
{
    if (global && Interface::instance()) {
        Interface::instance()->setOption(key, value);
    }
    if (value.isNull()) {
        d->options.remove(key);
    } else {
        d->options.insert(key, value);
    }
}

}  // namespace Zorv
