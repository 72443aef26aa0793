#include "core/projectfile.h"

#include "core/filesystemarchive.h"
#include "core/project.h"
#include "core/projectfile_p.h"

namespace Zorv {

ProjectFile::ProjectFile() : d(std::make_unique<ProjectFilePrivate>(this)) {}

ProjectFile::~ProjectFile()
{
    if (m_archive && d->project && m_archive != d->project->archive()) {
        m_archive->release();
    }
    if (d->project) {
        d->project->forgetFile(this);
    }
}

Archive* ProjectFile::archive() const
{
    return m_archive ? m_archive : FileSystemArchive::instance();
}

Project* ProjectFile::project() const
{
    return d->project;
}

Messages* ProjectFile::messages() const
{
    return d.get();
}

int ProjectFile::capabilities() const
{
    return 0;
}

bool ProjectFile::canSave() const
{
    return true;
}

bool ProjectFile::isModified() const
{
    return false;
}

void ProjectFile::reset() {}

bool ProjectFile::toFile(Archive&, const QString&, bool)
{
    return false;
}

bool ProjectFile::fromFile(Archive&, const QString&, bool)
{
    return false;
}

QString ProjectFile::fileName() const
{
    return {};
}

void ProjectFile::beginChange(const QString&) {}

void ProjectFile::endChange() {}

void ProjectFile::undo() {}

void ProjectFile::redo() {}

bool ProjectFile::canUndo() const
{
    return false;
}

bool ProjectFile::canRedo() const
{
    return false;
}

QString ProjectFile::undoTitle() const
{
    return {};
}

QString ProjectFile::redoTitle() const
{
    return {};
}

bool ProjectFile::dependsOnMain() const
{
    return false;
}

QString ProjectFile::errorString() const
{
    return d->errorString;
}

QVariant ProjectFile::option(const QString& key) const
{
    const QVariant value = d->options.value(key);
    const Project* owner = project();
    return !value.isValid() && owner ? owner->option(key) : value;
}

void ProjectFile::setOption(const QString& key, const QVariant& value, bool inProject, bool global)
{
    if (inProject && project()) {
        project()->setOption(key, value, global);
    } else if (value.isNull()) {
        d->options.remove(key);
    } else {
        d->options.insert(key, value);
    }
}

void ProjectFile::setArchive(Archive* archive)
{
    m_archive = archive;
}

void ProjectFile::setErrorString(const QString& text)
{
    d->errorString = text;
}

}  // namespace Zorv
